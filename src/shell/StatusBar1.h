#pragma once

#include <QStatusBar>

class QLabel;

namespace zelvor {

struct LocalTime;

/// The status bar with its panels StatusBar1(1) to StatusBar1(3): serial port, date, time. LabExchange, between the
/// port and the date, tells what the radio is being asked in the background.
class StatusBar1 : public QStatusBar {
    Q_OBJECT

public:
    explicit StatusBar1(QWidget* parent = nullptr);

    /// "COM" and the number.
    void ShowPort(int commPortNumber);
    void ShowTime(const LocalTime& now);
    void ShowExchange(const QString& text);

private:
    QLabel* AddPanel(const QString& name, int stretch);

    QLabel* port_;
    QLabel* exchange_;
    QLabel* date_;
    QLabel* time_;
};

} // namespace zelvor
