#pragma once

#include <QPointer>
#include <QWidget>

namespace zelvor {

/// Keeps a window disabled while another one of the program is to be finished first. Then the keyboard is where it was:
/// the toolkit alone would begin at the window's first control, or bring another child window to the front.
class WindowBlock {
public:
    explicit WindowBlock(QWidget& window) : window_(window) {}

    void Begin();
    /// Enables the window and makes it the active one.
    void End();

private:
    QWidget& window_;
    QPointer<QWidget> focus_;
};

} // namespace zelvor
