#include "service/ServiceControls.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>

namespace zelvor {

namespace {

constexpr int CaptionMargin = 16; // logical pixels beside the widest caption

/// Chinese glyphs may be higher than Latin ones; a display keeps its height whatever it shows.
constexpr const char* TallText = "Ag无";

} // namespace

QLabel* MakeDisplay(const QString& name, int width, QWidget* parent) {
    auto* display = new QLabel(parent);
    display->setObjectName(name);
    display->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    display->setMargin(3);
    display->setMinimumWidth(width);
    display->setTextFormat(Qt::PlainText);
    display->setText(TallText);
    display->setMinimumHeight(display->sizeHint().height());
    display->clear();
    return display;
}

void ShowOn(QLabel& display, const QString& label, const QString& text) {
    display.setText(text);
    display.setAccessibleName(label + u' ' + text);
}

void OnEnter(QWidget& control, const std::function<void()>& act) {
    for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* key = new QShortcut(enter, &control);
        key->setContext(Qt::WidgetShortcut);
        QObject::connect(key, &QShortcut::activated, &control, act);
    }
}

QPushButton* MakeButton(const QString& name, const QString& text, QWidget* parent) {
    auto* button = new QPushButton(text, parent);
    button->setObjectName(name);
    button->setAutoDefault(false);
    OnEnter(*button, [button] { button->click(); });
    return button;
}

void AlignButtons(QWidget& window) {
    const QList<QPushButton*> buttons = window.findChildren<QPushButton*>();
    QSize size;
    for (const QPushButton* button : buttons) {
        size = size.expandedTo(button->sizeHint());
    }
    for (QPushButton* button : buttons) {
        button->setMinimumSize(size.width() + CaptionMargin, size.height());
    }
}

} // namespace zelvor
