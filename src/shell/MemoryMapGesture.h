#pragma once

#include <QObject>

class QMouseEvent;
class QWidget;

namespace zelvor {

/// The hidden way to the memory map: Ctrl and Alt with a click of the left button in the square at the top right corner
/// of the client area, whether the corner is free or covered by a child window.
class MemoryMapGesture : public QObject {
    Q_OBJECT

public:
    static constexpr int SquareSize = 40; // pixels

    /// Belongs to the client area.
    explicit MemoryMapGesture(QWidget& clientArea);

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// After the event, so that who listens may show a dialog.
    void Made();

private:
    [[nodiscard]] bool IsInSquare(const QObject* watched, const QMouseEvent& event) const;
    void Make();

    QWidget& clientArea_;
    bool took_ = false;   // the press: nothing below the pointer gets it, nor the release
    bool making_ = false; // an event that nobody takes comes once for each widget round the pointer
};

} // namespace zelvor
