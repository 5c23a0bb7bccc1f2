// A program that asks where its documents go and ends while the printing system has not answered.

#include <QApplication>
#include <QTimer>

#include "platform/QtPageDevice.h"

int main(int argc, char** argv) {
    constexpr int EndAfter = 300; // milliseconds
    QApplication application(argc, argv);
    zelvor::QtPageDevice device;
    device.FindTarget([](const zelvor::PageTarget& /*target*/) { QCoreApplication::exit(1); });
    QTimer::singleShot(EndAfter, [] { QCoreApplication::exit(0); });
    return QApplication::exec();
}
