#include "help/HelpActions.h"

#include <QAction>
#include <QStyle>
#include <QWidget>

#include "platform/Toolkit.h"

namespace zelvor {

namespace {

QAction* MakeAction(QWidget& window, const char* name, const QList<QKeySequence>& keys) {
    auto* action = new QAction(&window);
    action->setObjectName(name);
    action->setShortcuts(keys);
    window.addAction(action);
    return action;
}

void ApplyText(QAction& action, const TextPair& pair, Language language) {
    const QString text = ToQString(pair.In(language));
    action.setText(text);
    action.setToolTip(text + QStringLiteral(" (") + action.shortcut().toString(QKeySequence::NativeText) + u')');
}

/// A short mark stands on the button in place of the text, the same in both languages.
void ApplyTextBehindMark(QAction& action, const TextPair& pair, Language language) {
    const QString mark = action.iconText();
    ApplyText(action, pair, language);
    action.setIconText(mark);
}

} // namespace

HelpActions::HelpActions(QWidget& window)
    : back(MakeAction(window, "HelpBack", {Qt::ALT | Qt::Key_Left, Qt::Key_Back})),
      forward(MakeAction(window, "HelpForward", {Qt::ALT | Qt::Key_Right, Qt::Key_Forward})),
      home(MakeAction(window, "HelpHome", {Qt::ALT | Qt::Key_Home})),
      zoomOut(MakeAction(window, "HelpZoomOut", {Qt::CTRL | Qt::Key_Minus})),
      zoomReset(MakeAction(window, "HelpZoomReset", {Qt::CTRL | Qt::Key_0})),
      zoomIn(MakeAction(window, "HelpZoomIn", {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal})),
      find(MakeAction(window, "HelpFind", {Qt::CTRL | Qt::Key_F})),
      findNext(MakeAction(window, "HelpFindNext", {Qt::Key_F3, Qt::CTRL | Qt::Key_G})),
      findPrevious(MakeAction(window, "HelpFindPrevious", {Qt::SHIFT | Qt::Key_F3, Qt::CTRL | Qt::SHIFT | Qt::Key_G})),
      close(MakeAction(window, "HelpClose", {Qt::Key_Escape, Qt::CTRL | Qt::Key_W})) {
    const QStyle& style = *window.style();
    back->setIcon(style.standardIcon(QStyle::SP_ArrowBack));
    forward->setIcon(style.standardIcon(QStyle::SP_ArrowForward));
    findNext->setIcon(style.standardIcon(QStyle::SP_ArrowDown));
    findPrevious->setIcon(style.standardIcon(QStyle::SP_ArrowUp));
    zoomOut->setIconText(QStringLiteral("A−"));
    zoomReset->setIconText(QStringLiteral("100%"));
    zoomIn->setIconText(QStringLiteral("A+"));
    back->setEnabled(false);
    forward->setEnabled(false);
}

void HelpActions::ApplyTexts(Language language) const {
    ApplyText(*back, {"Back", "后退"}, language);
    ApplyText(*forward, {"Forward", "前进"}, language);
    ApplyText(*home, {"Home", "首页"}, language);
    ApplyTextBehindMark(*zoomOut, {"Smaller letters", "缩小文字"}, language);
    ApplyTextBehindMark(*zoomReset, {"Usual size of letters", "文字恢复原大小"}, language);
    ApplyTextBehindMark(*zoomIn, {"Larger letters", "放大文字"}, language);
    ApplyText(*find, {"Search", "搜索"}, language);
    ApplyText(*findNext, {"Next place on this page", "本页下一处"}, language);
    ApplyText(*findPrevious, {"Previous place on this page", "本页上一处"}, language);
    ApplyText(*close, {"Close", "关闭"}, language);
}

} // namespace zelvor
