#include "random/DisplayHands.h"

#include <QProcess>
#include <algorithm>
#include <array>
#include <utility>

namespace zelvor::random {

namespace {

constexpr int PatienceMilliseconds = 10000;

struct KeyName {
    Qt::Key key;
    const char* name; // as the X server calls it
};
constexpr std::array<KeyName, 24> KeyNames{{
    {Qt::Key_Return, "Return"}, {Qt::Key_Enter, "KP_Enter"}, {Qt::Key_Escape, "Escape"},
    {Qt::Key_Tab, "Tab"},       {Qt::Key_Backtab, "Tab"},    {Qt::Key_Space, "space"},
    {Qt::Key_Up, "Up"},         {Qt::Key_Down, "Down"},      {Qt::Key_Left, "Left"},
    {Qt::Key_Right, "Right"},   {Qt::Key_Home, "Home"},      {Qt::Key_End, "End"},
    {Qt::Key_PageUp, "Prior"},  {Qt::Key_PageDown, "Next"},  {Qt::Key_Backspace, "BackSpace"},
    {Qt::Key_Delete, "Delete"}, {Qt::Key_Insert, "Insert"},  {Qt::Key_Menu, "Menu"},
    {Qt::Key_Plus, "plus"},     {Qt::Key_Minus, "minus"},    {Qt::Key_Alt, "alt"},
    {Qt::Key_F1, "F1"},         {Qt::Key_F3, "F3"},          {Qt::Key_F4, "F4"},
}};

QString NameOf(Qt::Key key) {
    for (const KeyName& known : KeyNames) {
        if (known.key == key) {
            return known.name;
        }
    }
    return QString(QChar(static_cast<char16_t>(key))).toLower(); // letters and digits
}

QStringList NamesOf(Qt::KeyboardModifiers modifiers) {
    QStringList names;
    for (const auto& [modifier, name] : {std::pair(Qt::ControlModifier, "ctrl"), std::pair(Qt::AltModifier, "alt"),
                                         std::pair(Qt::ShiftModifier, "shift")}) {
        if (modifiers.testFlag(modifier)) {
            names.append(name);
        }
    }
    return names;
}

QStringList MoveTo(QPoint point) {
    return {"mousemove", QString::number(std::max(0, point.x())), QString::number(std::max(0, point.y()))};
}

QString NumberOf(Qt::MouseButton button) {
    return button == Qt::RightButton ? "3" : button == Qt::MiddleButton ? "2" : "1";
}

} // namespace

void DisplayHands::Tell(const QStringList& words) {
    QProcess xdotool;
    xdotool.setStandardErrorFile(QProcess::nullDevice());
    xdotool.start("xdotool", words);
    const bool hasEnded = xdotool.waitForFinished(PatienceMilliseconds);
    if (!hasEnded || xdotool.exitStatus() != QProcess::NormalExit || xdotool.exitCode() != 0) {
        ++refusals_;
    }
}

void DisplayHands::Key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    Tell({"key",
          (NamesOf(key == Qt::Key_Backtab ? modifiers | Qt::ShiftModifier : modifiers) << NameOf(key)).join('+')});
}

void DisplayHands::Type(const QByteArray& text) {
    Tell({"type", "--delay", "2", "--", QString::fromLatin1(text)});
}

void DisplayHands::Click(const Spot& spot, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
    QStringList words = MoveTo(spot.onScreen);
    for (const QString& name : NamesOf(modifiers)) {
        words << "keydown" << name;
    }
    words << "click" << NumberOf(button);
    for (const QString& name : NamesOf(modifiers)) {
        words << "keyup" << name;
    }
    Tell(words);
}

void DisplayHands::DoubleClick(const Spot& spot) {
    Tell(MoveTo(spot.onScreen) << "click"
                               << "--repeat"
                               << "2"
                               << "--delay"
                               << "40"
                               << "1");
}

void DisplayHands::Drag(const Spot& from, QPoint by) {
    Tell(MoveTo(from.onScreen) << "mousedown"
                               << "1" << MoveTo(from.onScreen + by / 2) << MoveTo(from.onScreen + by) << "mouseup"
                               << "1");
}

void DisplayHands::Wheel(const Spot& spot, bool up) {
    Tell(MoveTo(spot.onScreen) << "click" << (up ? "4" : "5"));
}

void DisplayHands::CloseWindow() {
    Tell({"key", "alt+F4"}); // the window manager's
}

void DisplayHands::Arrange(const Spot& spot, unsigned way) {
    constexpr unsigned smallest = 200;
    constexpr unsigned spread = 1000;
    switch (way % 4) {
    case 0:
        Tell({"getactivewindow", "windowminimize"});
        Tell({"search", "--name", "Zelvor", "windowactivate"}); // as from the task bar
        break;
    case 1:
        Tell({"getactivewindow", "windowsize", QString::number(smallest + way / 4 % spread),
              QString::number(smallest + way / 8 % spread)});
        break;
    case 2:
        Tell({"key", "alt+Tab"});
        break;
    default:
        Drag(spot, {static_cast<int>(way / 4 % smallest), static_cast<int>(way / 8 % smallest)});
    }
}

} // namespace zelvor::random
