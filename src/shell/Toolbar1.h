#pragma once

#include <QPoint>
#include <QPointer>
#include <QToolBar>
#include <span>
#include <utility>
#include <vector>

#include "shell/Command.h"
#include "shell/DockingRule.h"
#include "text/Language.h"

class QMainWindow;
class QRubberBand;

namespace zelvor {

struct MenuDescription;

/// The toolbar: the buttons that commands of the menus have, Toolbar1(1), (2) and so on; gaps in the numbers are
/// separators. It can be dragged by its grip or any free place of it, and the drop point says at which edge it is put
/// or where it floats.
class Toolbar1 : public QToolBar {
    Q_OBJECT

public:
    /// The menus must outlive the toolbar. run: what a click on a button calls.
    Toolbar1(QMainWindow& mainWindow, std::span<const MenuDescription> menus, const RunCommand& run);

    void ApplyToolTips(Language language);

    [[nodiscard]] ToolbarAlignment Alignment() const { return alignment_; }
    /// A drop at that point of the main window's client area, in logical pixels.
    void DropAt(QPoint clientPosition);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void AddButton(const Command& command, const RunCommand& run);
    void Align(ToolbarAlignment alignment, QPoint clientPosition);
    void Float(QPoint clientPosition);
    void KeepInside();
    void EndDrag();

    QMainWindow& mainWindow_;
    std::vector<std::pair<QAction*, Text>> toolTips_;
    int lastIndex_ = 0; // of the buttons
    ToolbarAlignment alignment_ = ToolbarAlignment::Top;
    QPoint pressed_;
    bool isPressed_ = false;
    QPointer<QRubberBand> outline_; // while it is being dragged
};

} // namespace zelvor
