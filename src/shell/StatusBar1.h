#pragma once

#include <QStatusBar>
#include <array>
#include <string_view>

class QLabel;

namespace zelvor {

struct LocalTime;

/// The status bar with its panels StatusBar1(1) to StatusBar1(3): serial port, date, time.
class StatusBar1 : public QStatusBar {
    Q_OBJECT

public:
    explicit StatusBar1(QWidget* parent = nullptr);

    /// "COM" and the number.
    void ShowPort(int commPortNumber);
    void ShowTime(const LocalTime& now);

private:
    std::array<QLabel*, 3> panels_{};
};

} // namespace zelvor
