#include "tour/KeyEvents.h"

#include <QApplication>
#include <QTest>
#include <QWidget>
#include <QWindow>

#include "tour/WindowOnTop.h"

namespace zelvor::tour {

namespace {

/// An open menu gets the keys, wherever the window system has the focus.
QWindow* WindowForKeys() {
    const QWidget* popup = QApplication::activePopupWidget();
    if (popup) {
        return popup->windowHandle();
    }
    QWindow* focus = QGuiApplication::focusWindow();
    const QWidget* top = WindowOnTop();
    return focus || !top ? focus : top->windowHandle();
}

/// One key event, where the keys go now: the event before may have closed a menu or opened a dialog.
void SendOne(bool press, Qt::Key key, Qt::KeyboardModifiers modifiers, const QString& text = {}) {
    if (QWindow* window = WindowForKeys()) {
        QTest::simulateEvent(window, press, key, modifiers, text, false);
    }
}

struct ModifierKey {
    Qt::KeyboardModifier modifier;
    Qt::Key key;
};
constexpr ModifierKey ModifierKeys[] = {
    {Qt::ShiftModifier, Qt::Key_Shift}, {Qt::ControlModifier, Qt::Key_Control}, {Qt::AltModifier, Qt::Key_Alt}};

QString TextOf(char ascii) {
    return ascii == 0 ? QString() : QString(QChar::fromLatin1(ascii));
}

} // namespace

void SendKey(bool press, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    if (!press) {
        SendOne(false, key, modifiers, TextOf(QTest::keyToAscii(key)));
    }
    Qt::KeyboardModifiers held;
    for (const ModifierKey& modifier : ModifierKeys) {
        if (modifiers.testFlag(modifier.modifier)) {
            SendOne(press, modifier.key, press ? held : modifiers & ~held);
            held |= modifier.modifier;
        }
    }
    if (press) {
        SendOne(true, key, modifiers, TextOf(QTest::keyToAscii(key)));
    }
}

void SendCharacter(bool press, char character) {
    SendOne(press, QTest::asciiToKey(character), {}, TextOf(character));
}

} // namespace zelvor::tour
