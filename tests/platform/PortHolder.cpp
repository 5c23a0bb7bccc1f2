#include <QCoreApplication>
#include <QSerialPort>
#include <cstdio>

/// Opens the port of its argument, says so, and holds it until its input ends.
int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QSerialPort port(QCoreApplication::arguments().value(1));
    if (!port.open(QIODevice::ReadWrite)) {
        return 1;
    }
    std::puts("open");
    static_cast<void>(std::fflush(stdout));
    while (std::getchar() != EOF) {
    }
    return 0;
}
