#pragma once

#include <QWidget>
#include <memory>

namespace zelvor {

class Clock;
class Timer;

/// The splash window: goes away after five seconds or at a click. Nothing opens it; the program starts with MDIForm1.
class frmStart : public QWidget {
    Q_OBJECT

public:
    explicit frmStart(Clock& clock, QWidget* parent = nullptr);
    ~frmStart() override;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Unload();

    std::unique_ptr<Timer> tmrStart_;
};

} // namespace zelvor
