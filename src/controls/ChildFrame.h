#pragma once

#include <QMdiSubWindow>

namespace zelvor {

class ChildForm;

/// The frame of a child window in the main window's area. It never closes by itself: it tells the form, whose rule it
/// is.
class ChildFrame : public QMdiSubWindow {
    Q_OBJECT

public:
    /// Takes ownership of the form.
    explicit ChildFrame(ChildForm* form, QWidget* parent = nullptr);

    [[nodiscard]] ChildForm* Form() const { return form_; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void RestoreMaximised();

    ChildForm* form_;
};

} // namespace zelvor
