#include <QApplication>

#include "data/Session.h"
#include "platform/QtServices.h"
#include "shell/Icons.h"
#include "shell/MDIForm1.h"

int main(int argc, char** argv) {
    // The menu bar is the window's own; looking for a desktop's costs a round over the message bus at every start.
    QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Zelvor");
    QApplication::setApplicationName("Zelvor");
    QApplication::setApplicationVersion("1.00");
    QApplication::setDesktopFileName("org.zelvor.Zelvor");
    QApplication::setWindowIcon(zelvor::MakeIcon(zelvor::IconShape::Application));

    zelvor::QtServices services;
    zelvor::Session session;
    zelvor::MDIForm1 mainWindow(session, services.Get());
    // At once: child windows are not asked.
    QObject::connect(&mainWindow, &zelvor::MDIForm1::Ended, &application, [] { QCoreApplication::exit(0); });
    mainWindow.show();
    return QApplication::exec();
}
