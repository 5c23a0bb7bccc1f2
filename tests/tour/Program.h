#pragma once

#include <QByteArray>
#include <QString>

namespace zelvor {
class MDIForm1;
class QtServices;
} // namespace zelvor

namespace zelvor::tour {

class WindowThread;

/// The program as main() builds it, in this process: states, services of the machine, main window. Its functions are
/// called by the script's thread.
class Program {
public:
    /// Builds all and shows the main window; waits until it is active.
    explicit Program(WindowThread& windows);
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    /// Leaves alone what was not taken down: after a failure, dialogs may still be running on it.
    ~Program() = default;

    /// Has the window thread take all down, with no question asked. The object is of no use afterwards.
    void TakeDown();

    [[nodiscard]] QString Title() const;
    /// The document, in address order.
    [[nodiscard]] QByteArray Image() const;
    /// Text of the grid's cell, row 1 to 16, column 1 to 9.
    [[nodiscard]] QString Cell(int row, int column) const;
    [[nodiscard]] QString LabelText(const QString& name) const;
    /// Value of the transfer's progress bar; -1 where there is none.
    [[nodiscard]] int Progress() const;
    /// Title of the grid's window.
    [[nodiscard]] QString GridCaption() const;

    // For questions to the window thread.

    [[nodiscard]] static int ProgressHere();
    /// Whether the user has left the program by its exit question.
    [[nodiscard]] bool HasEndedHere() const;

private:
    struct Parts;

    WindowThread& windows_;
    Parts* parts_ = nullptr; // the window thread's
};

} // namespace zelvor::tour
