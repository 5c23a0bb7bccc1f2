#include <QApplication>
#include <cstdio>

#include "controls/WindowState.h"
#include "data/Document.h"
#include "help/QtHelpViewer.h"
#include "link/LinkState.h"
#include "platform/AfterFirstPaint.h"
#include "platform/FontCheck.h"
#include "platform/QtServices.h"
#include "service/ServiceState.h"
#include "shell/Icons.h"
#include "shell/MDIForm1.h"

namespace {

// Texts and file names are UTF-8 here in every locale. Newer versions of the toolkit complain of each that is not.
void SayAllButTheLocale(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (!text.startsWith(QLatin1String("Detected locale"))) {
        // Where this fails there is nobody to tell.
        static_cast<void>(std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, text))));
    }
}

} // namespace

int main(int argc, char** argv) {
    // The menu bar is the window's own; looking for a desktop's costs a round over the message bus at every start.
    QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    qInstallMessageHandler(SayAllButTheLocale);
    QApplication application(argc, argv);
    qInstallMessageHandler(nullptr);
    QApplication::setOrganizationName("Zelvor");
    QApplication::setApplicationName("Zelvor");
    QApplication::setApplicationVersion("1.00");
    QApplication::setDesktopFileName("org.zelvor.Zelvor");
    QApplication::setWindowIcon(zelvor::MakeIcon(zelvor::IconShape::Application));
    zelvor::TellWhereThereIsNoFont();

    zelvor::QtHelpViewer help;
    zelvor::QtServices services(help);
    zelvor::Document document;
    zelvor::WindowState windows;
    zelvor::LinkState link;
    zelvor::ServiceState service;
    zelvor::MDIForm1 mainWindow({document, windows, link, service}, services.Get());
    // At once: child windows are not asked.
    QObject::connect(&mainWindow, &zelvor::MDIForm1::Ended, &application, [] { QCoreApplication::exit(0); });
    zelvor::AfterFirstPaint(mainWindow, [&services] { services.NumberPorts(); });
    mainWindow.show();
    return QApplication::exec();
}
