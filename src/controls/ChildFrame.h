#pragma once

#include <QMdiSubWindow>

namespace zelvor {

class ChildForm;
struct FocusPlace;

/// The frame of a child window in the main window's area. It never closes by itself: it tells the form, whose rule it
/// is. Until the user or a command gives it another size it is as large as its form would be, or as the area allows,
/// and lies within the area.
class ChildFrame : public QMdiSubWindow {
    Q_OBJECT

public:
    /// Takes ownership of the form.
    explicit ChildFrame(ChildForm* form, QWidget* parent = nullptr);

    [[nodiscard]] ChildForm* Form() const { return form_; }
    /// The size at which all of the form shows, or what there is room for.
    [[nodiscard]] QSize FirstSize(QSize room) const;
    /// Of a window that is neither minimised nor maximised.
    [[nodiscard]] int TitleBarHeight() const;

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void RestoreMaximised();
    void FitToArea();
    void ShowInArea(const FocusPlace& place);

    ChildForm* form_;
    QSize fitted_; // the size that the area's room gave it
};

} // namespace zelvor
