#pragma once

#include <QPoint>
#include <QPointer>
#include <QToolBar>
#include <functional>

#include "shell/DockingRule.h"

class QMainWindow;
class QRubberBand;

namespace zelvor {

class Session;

/// The toolbar. Its buttons are Toolbar1(1), (2), (3), (5), (7), (9) and (11); the gaps are separators. It can be
/// dragged by its grip or any free place of it, and the drop point says at which edge it is put or where it floats.
class Toolbar1 : public QToolBar {
    Q_OBJECT

public:
    explicit Toolbar1(QMainWindow& mainWindow);

    void ApplyToolTips(const Session& session);
    /// What a click on the button does.
    void On(int index, std::function<void()> command);

    [[nodiscard]] ToolbarAlignment Alignment() const { return alignment_; }
    /// A drop at that point of the main window's client area, in logical pixels.
    void DropAt(QPoint clientPosition);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void AddButtons();
    void Align(ToolbarAlignment alignment, QPoint clientPosition);
    void Float(QPoint clientPosition);
    void KeepInside();
    void EndDrag();

    QMainWindow& mainWindow_;
    ToolbarAlignment alignment_ = ToolbarAlignment::Top;
    QPoint pressed_;
    bool isPressed_ = false;
    QPointer<QRubberBand> outline_; // while it is being dragged
};

} // namespace zelvor
