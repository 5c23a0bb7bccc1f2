#pragma once

#include <QSize>
#include <QString>
#include <QWidget>
#include <functional>
#include <string_view>

#include "controls/FocusPlace.h"
#include "controls/WindowState.h"

class QPushButton;
class QScrollBar;

namespace zelvor {

/// A child window of the main window, as every editing dialog is one: a content panel of fixed size that scrolls when
/// the window is smaller and follows the focus and the cursor of a table, and the close rules. The main window hosts it
/// in a ChildFrame and does what its signals ask: it clears the window's ChildOpen entry, hides its entry of the window
/// list, and hides or destroys the window. What is still being edited in a window that is destroyed is dropped.
class ChildForm : public QWidget {
    Q_OBJECT

public:
    /// objectName is the class's name; contentTwips is the size of the content and so the window's first size.
    ChildForm(ChildWindow window, std::string_view objectName, QSize contentTwips, QWidget* parent = nullptr);

    ~ChildForm() override;

    [[nodiscard]] ChildWindow Window() const { return window_; }

    /// The panel that holds the window's controls.
    [[nodiscard]] QWidget* Content() const { return picture1_; }

    /// The user closed the window by its frame: what is being edited is committed.
    void CloseFromFrame();

    /// The page of the help that tells about this window, such as "chinfo.htm".
    [[nodiscard]] virtual std::string_view HelpPage() const = 0;

    /// Whether its frame is that of a tool window, which can neither be minimised nor maximised.
    [[nodiscard]] virtual bool IsToolWindow() const { return false; }
    /// Whether the window opens at the top left of the main window's client area; others open where there is room.
    [[nodiscard]] virtual bool OpensAtOrigin() const { return false; }

    [[nodiscard]] QSize sizeHint() const override;
    /// The largest size within the room for a window, of which `frame` is the part round this form: the first size
    /// where there is room, else smaller, with the scroll bars that the content then needs beside it.
    [[nodiscard]] QSize SizeWithin(QSize room, QSize frame) const;

signals:
    void UnloadRequested();
    void HideRequested();
    /// The window's title changed, and its entry of the window list is to read the same.
    void CaptionChanged(const QString& caption);
    /// What has the keyboard was brought into view, and lies there in the form now.
    void FocusShown(const FocusPlace& place);

protected:
    void resizeEvent(QResizeEvent* event) override;
    /// Sets the window's title, and the caption of the window list's entry with it.
    void SetCaption(const QString& caption);
    /// What a button of the window does, after what is being edited is committed: an access key takes no focus.
    void On(const QPushButton& button, std::function<void()> command);
    /// Commits what is being edited.
    virtual void CommitEdit();
    /// The window is closed by its frame. Asks to be unloaded, unless a window has a rule of its own.
    virtual void OnFrameClosed();

private:
    void LayOutScrollBars();
    void ShowFocus(const FocusPlace& place);
    /// What a frame takes at the left and the right of a form of the first size.
    [[nodiscard]] int FrameAcross() const;

    const ChildWindow window_;
    const QSize contentSize_; // logical pixels
    QWidget* picture1_ = nullptr;
    QWidget* picture2_ = nullptr; // the corner between both bars
    QScrollBar* hScroll1_ = nullptr;
    QScrollBar* vScroll1_ = nullptr;
};

} // namespace zelvor
