#include "random/Sessions.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <algorithm>
#include <array>
#include <csignal>
#include <iostream>

#include "data/DataFile.h"
#include "simulator/SampleRadio.h"
#include "simulator/program/EndWithParent.h"
#include "tour/Failure.h"

namespace zelvor::random {

namespace {

constexpr std::array<Kind, 8> Kinds{{
    {"offscreen", "toolkit", "0", "offscreen, toolkit events, English"},
    {"xcb", "display", "1", "xcb, X events, Chinese"},
    {"xcb", "toolkit", "0", "xcb, toolkit events, English"},
    {"xcb", "display", "0", "xcb, X events, English"},
    {"offscreen", "toolkit", "1", "offscreen, toolkit events, Chinese"},
    {"xcb", "toolkit", "1", "xcb, toolkit events, Chinese"},
    {"offscreen", "careful", "0", "offscreen, careful, English"},
    {"xcb", "careful", "1", "xcb, careful, Chinese"},
}};

constexpr int StartMilliseconds = 30000;
constexpr int SliceMilliseconds = 100;
constexpr int LimitSlices = 6000;     // ten minutes of this process's own time,
constexpr int SlicesOfAct = 10;       // and a second for every act
constexpr int CrashPatience = 120000; // for the debugger

/// What the toolkit says without a fault of the program's: the platform without a screen of what it cannot do, and the
/// print dialog of its properties, which one key closes and the next one opens in the same round of events.
constexpr std::array ToolkitRemarks{"This plugin does not support", "QDialog::exec: Recursive call detected"};

/// Of a line with the resident memory in KiB: after ActsBeforeMemory, and at the end.
constexpr QByteArrayView MemoryLine = "memory ";

bool IsUsual(const QByteArray& line) {
    const bool isAct = !line.isEmpty() && line.front() >= '0' && line.front() <= '9';
    return line.isEmpty() || isAct || line == "LEFT" || line.startsWith(MemoryLine) ||
           std::ranges::any_of(ToolkitRemarks, [&](const char* remark) { return line.startsWith(remark); });
}

void TakeMemory(Ending& ending) {
    for (const QByteArray& line : ending.log.split('\n')) {
        if (line.startsWith(MemoryLine)) {
            const int kibibytes = line.mid(MemoryLine.size()).toInt();
            ending.earlyMemory = ending.lastMemory; // of the line before, if there was one
            ending.lastMemory = kibibytes;
        }
    }
}

/// The lines that it should not have printed.
QByteArray ComplaintsIn(const QByteArray& log) {
    QByteArray complaints;
    for (const QByteArray& line : log.split('\n')) {
        complaints += IsUsual(line) ? QByteArray() : line + '\n';
    }
    return complaints;
}

void Write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        throw tour::Failure("cannot write " + path.toStdString());
    }
}

QByteArray DataFileOf(const DataImage& image) {
    const DataFileBytes bytes = EncodeDataFile(image);
    return {reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())};
}

/// Every byte as no window would have set it.
DataImage WildImage() {
    constexpr std::uint8_t step = 37;
    DataImage image = SampleRadioMemory();
    for (int address = 0; address < static_cast<int>(DataImage::Size); ++address) {
        image.Set(address, static_cast<std::uint8_t>(address * step));
    }
    return image;
}

QString BesideThis(const char* program) {
    return QDir(QCoreApplication::applicationDirPath()).filePath(program);
}

QProcessEnvironment EnvironmentOf(const Kind& kind, const tour::PrivateHome& home) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const bool isOffscreen = QByteArray(kind.platform) == "offscreen";
    environment.insert("QT_QPA_PLATFORM",
                       isOffscreen ? "offscreen:configfile=" + home.File("screen.json") : QString(kind.platform));
    environment.insert("QT_SCALE_FACTOR", QString::number(kind.scale));
    environment.insert("CUPS_SERVER", home.File("no-printers")); // nothing comes out of anybody's printer
    for (const char* name : {"QT_QPA_PLATFORMTHEME", "SESSION_MANAGER"}) {
        environment.remove(name);
    }
    environment.insert("DBUS_SESSION_BUS_ADDRESS", "disabled:"); // none is started either
    environment.insert("MALLOC_PERTURB_", "165");                // memory that is used after its end looks it
    environment.insert("LSAN_OPTIONS", "suppressions=" LEAKS_FILE ":print_suppressions=0");
    return environment;
}

QString EndOf(const QProcess& session, const Ending& ending) {
    if (session.exitStatus() == QProcess::CrashExit) {
        return "it crashed, signal " + QString::number(session.exitCode());
    }
    if (session.exitCode() != 0) {
        return "it ended with " + QString::number(session.exitCode());
    }
    if (!ending.log.contains("LEFT\n")) {
        return "it ended before its event loop did";
    }
    return ending.complaints.isEmpty() ? QString() : "it complained";
}

} // namespace

Kind KindOf(std::uint32_t seed) {
    Kind kind = Kinds.at(seed % Kinds.size());
    kind.scale += static_cast<int>(seed / Kinds.size() % 2);
    return kind;
}

bool NeedsDisplay(const Kind& kind) {
    return QByteArray(kind.platform) == "xcb";
}

Sessions::Sessions(const Options& options, const tour::PrivateHome& home)
    : options_(options), home_(home),
      keep_(options.keep.empty()
                ? QDir::tempPath() + "/zelvor-random-" + QString::number(QCoreApplication::applicationPid())
                : QString::fromLocal8Bit(options.keep.c_str())) {}

void Sessions::PrepareHome(const Kind& kind) const {
    for (const char* folder : {"radios", "config/Zelvor", "links"}) {
        QDir(home_.File(folder)).removeRecursively();
        QDir().mkpath(home_.File(folder));
    }
    QDir().mkpath(home_.DataFile("folder"));
    QFile::remove(home_.File("stacks.txt"));
    Write(home_.DataFile("one.dat"), DataFileOf(SampleRadioMemory()));
    Write(home_.DataFile("two.dat"), DataFileOf(WildImage()));
    Write(home_.DataFile("three"), DataFileOf(SampleRadioMemory()));
    Write(home_.DataFile("short.dat"), DataFileOf(SampleRadioMemory()).left(1000));
    Write(home_.File("config/Zelvor/Zelvor.ini"),
          QByteArray("[BackUp]\nLastModel=50:34:36:31:38:01:F8:FF\nLanguage=") + kind.language + "\n");
    const QByteArray width = QByteArray::number(1440 * kind.scale);
    const QByteArray height = QByteArray::number(1000 * kind.scale);
    Write(home_.File("screen.json"), R"({"screens": [{"name": "Screen", "x": 0, "y": 0, "width": )" + width +
                                         R"(, "height": )" + height +
                                         R"(, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
}

void Sessions::Start(QProcess& session, std::uint32_t seed) const {
    const Kind kind = KindOf(seed);
    PrepareHome(kind);
    QProcessEnvironment environment = EnvironmentOf(kind, home_);
    environment.insert("ZELVOR_RANDOM", QStringList{QString::number(seed), QString::number(options_.acts), kind.hands,
                                                    home_.File("."), BesideThis("../bin/zelvor-radio")}
                                            .join('\t'));
    session.setProcessEnvironment(environment);
    session.setProcessChannelMode(QProcess::MergedChannels); // a complaint stands behind its act
    session.setWorkingDirectory(home_.File("radios"));
    session.setChildProcessModifier([] { EndWithParent(); });
    session.start(BesideThis("zelvor-random-session"), QStringList());
    if (!session.waitForStarted(StartMilliseconds)) {
        throw tour::Failure("the session does not start: " + session.errorString().toStdString());
    }
}

void Sessions::Follow(QProcess& session, Ending& ending) const {
    const auto takeOutput = [&] {
        const QByteArray output = session.readAllStandardOutput();
        ending.log += output;
        if (options_.verbose) {
            std::cout << output.constData() << std::flush;
        }
    };
    for (int slices = 0; !session.waitForFinished(SliceMilliseconds) && session.state() != QProcess::NotRunning;
         ++slices) {
        takeOutput();
        if (slices == LimitSlices + SlicesOfAct * options_.acts) {
            ending.log += "\nIt is at no end.\n";
            ::kill(static_cast<pid_t>(session.processId()), SIGABRT); // which keeps the stacks
            session.waitForFinished(CrashPatience);
            session.kill();
        }
    }
    takeOutput();
}

Ending Sessions::Run(std::uint32_t seed) {
    Ending ending;
    QElapsedTimer time;
    time.start();
    QProcess session;
    Start(session, seed);
    Follow(session, ending);
    ending.seconds = static_cast<double>(time.elapsed()) / 1000;
    ending.acts = static_cast<int>(ending.log.count(": "));
    ending.complaints = ComplaintsIn(ending.log);
    TakeMemory(ending);
    ending.finding = EndOf(session, ending);
    return ending;
}

QString Sessions::Keep(std::uint32_t seed, const Ending& ending) const {
    const QDir folder(keep_.filePath(QString::number(seed)));
    folder.mkpath(".");
    Write(folder.filePath("acts.log"), ending.log);
    Write(folder.filePath("complaints.txt"), ending.finding.toUtf8() + '\n' + ending.complaints);
    QFile::copy(home_.File("stacks.txt"), folder.filePath("stacks.txt"));
    return folder.absolutePath();
}

} // namespace zelvor::random
