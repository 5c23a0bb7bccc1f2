// Drives the real windows through the whole job with synthetic user input, against a real zelvor-radio on a real
// pseudo-terminal: once in English, once in Chinese, and a shorter one by the keyboard alone in both.

#include <QApplication>
#include <QDir>
#include <QSettings>
#include <cstdlib>
#include <iostream>
#include <thread>

#include "shell/Icons.h"
#include "tour/Checks.h"
#include "tour/Failure.h"
#include "tour/Job.h"
#include "tour/KeyboardJob.h"
#include "tour/Options.h"
#include "tour/PrivateHome.h"
#include "tour/RadioProgram.h"
#include "tour/Screenshots.h"
#include "tour/WindowOnTop.h"
#include "tour/WindowThread.h"

namespace {

using namespace zelvor::tour;

void Remember(const Words& words) {
    QSettings settings(SettingsFile(), QSettings::IniFormat);
    settings.setValue("BackUp/Language", words.settings);
}

void RunRounds(const PrivateHome& home, WindowThread& windows, RadioProgram& radio, Screenshots& screenshots) {
    Job(windows, radio, screenshots,
        {.words = English(),
         .rows = SampleRows(),
         .otherWords = Chinese(),
         .otherRows = SampleRowsInChinese(),
         .edit = EnglishEdit(),
         .features = EnglishFeatures(),
         .tuning = EnglishTuning(),
         .records = SampleRecords(),
         .memoryByte = "35",
         .dataFile = home.DataFile("english.dat"),
         .exitFile = QString()})
        .Run();
    Remember(Chinese());
    Job(windows, radio, screenshots,
        {.words = Chinese(),
         .rows = WrittenRowsInChinese(),
         .otherWords = English(),
         .otherRows = WrittenRowsInEnglish(),
         .edit = ChineseEdit(),
         .features = ChineseFeatures(),
         .tuning = ChineseTuning(),
         .records = RecordsAfterEnglishEdit(),
         .memoryByte = "39",
         .dataFile = home.DataFile("chinese.dat"),
         .exitFile = home.DataFile("exit.dat")})
        .Run();
}

/// After the rounds: the radio's channel 10 is as it was at first.
void RunByKeys(const PrivateHome& home, WindowThread& windows, RadioProgram& radio) {
    Remember(Chinese());
    KeyboardJob(windows, radio,
                {.words = Chinese(),
                 .channel = 10,
                 .before = "156.80000",
                 .typed = "157.40000",
                 .record = Hex("00 00 74 15  00 00 68 15  FF FF FF FF  00 BF B0 F8"),
                 .dataFile = home.DataFile("chinese-keys.dat")})
        .Run();
    Remember(English());
    KeyboardJob(windows, radio,
                {.words = English(),
                 .channel = 10,
                 .before = "157.40000",
                 .typed = "158.12500",
                 .record = Hex("00 25 81 15  00 00 68 15  FF FF FF FF  00 BF B0 F8"),
                 .dataFile = home.DataFile("english-keys.dat")})
        .Run();
}

void ReportWindows(WindowThread& windows, Screenshots& screenshots) {
    try {
        std::cout << windows.Ask(WindowsInAWord) << std::endl;
        screenshots.TakeAtOnce("failed");
    } catch (const Failure&) {
        // There is no window left, or it does not answer any more. The first failure is what counts.
    }
}

void RunWithRadio(const PrivateHome& home, WindowThread& windows, Screenshots& screenshots) {
    RadioProgram radio(QCoreApplication::applicationDirPath() + "/zelvor-radio", home.File("radio.dat"), {"--trace"});
    std::cout << "ok  zelvor-radio is ready on port 1" << std::endl;
    try {
        RunRounds(home, windows, radio, screenshots);
        RunByKeys(home, windows, radio);
    } catch (const Failure&) {
        std::cout << "The radio's last lines:\n" << radio.LastLines().toStdString() << std::endl;
        ReportWindows(windows, screenshots);
        throw;
    }
}

/// The script's thread. A tour that fails leaves windows and dialogs as they are: the process ends at once.
void RunTour(const Options& options, PrivateHome& home) {
    WindowThread windows{std::chrono::seconds(options.timeout)};
    try {
        Screenshots screenshots(windows, QString::fromLocal8Bit(options.screenshots.c_str()));
        RunWithRadio(home, windows, screenshots);
    } catch (const Failure& failure) {
        std::cout << "FAILED  " << failure.what() << std::endl;
        home.Remove();
        std::_Exit(EXIT_FAILURE);
    }
    std::cout << "The tour is complete." << std::endl;
    WindowThread::Post([] { QCoreApplication::exit(EXIT_SUCCESS); });
}

} // namespace

int main(int argc, char** argv) {
    const OptionsResult commandLine = ReadOptions(argc, argv);
    if (!commandLine.options) {
        return commandLine.exitCode;
    }
    PrivateHome home;
    QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar); // as the program itself
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Zelvor");
    QApplication::setApplicationName("Zelvor");
    QApplication::setWindowIcon(zelvor::MakeIcon(zelvor::IconShape::Application));
    QApplication::setQuitOnLastWindowClosed(false);

    std::thread script(RunTour, std::cref(*commandLine.options), std::ref(home));
    const int result = QApplication::exec();
    script.join();
    return result;
}
