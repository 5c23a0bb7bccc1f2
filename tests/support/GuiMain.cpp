#include <QApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#ifdef Q_OS_WIN
#include <string>
#include <windows.h>
#endif

namespace {

constexpr auto OnlyOwner = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;

// One screen that holds the largest window, and beside it a small one: 1280 x 800 at 300 %. Both at 96 dots an inch.
constexpr auto OffscreenScreen = R"({"screens": [
    {"name": "Screen", "x": 0, "y": 0, "width": 1600, "height": 1200, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
    {"name": "Small", "x": 1600, "y": 0, "width": 427, "height": 267, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}
]})";

[[maybe_unused]] QByteArray MakeFolder(const QTemporaryDir& home, const QString& name) {
    const QString path = home.filePath(name);
    QDir().mkpath(path);
    QFile::setPermissions(path, OnlyOwner);
    return path.toLocal8Bit();
}

#ifdef Q_OS_WIN

// The folders of a user cannot be moved for one process: the toolkit has others for tests.
void UsePrivateFolders(const QTemporaryDir& /*home*/) {
    QStandardPaths::setTestModeEnabled(true);
}

/// A branch of the registry that this process sees as the one of the user; gone with it.
class PrivateRegistry {
public:
    PrivateRegistry() {
        RegCreateKeyExW(HKEY_CURRENT_USER, name_.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS, nullptr,
                        &key_, nullptr);
        RegOverridePredefKey(HKEY_CURRENT_USER, key_);
    }
    PrivateRegistry(const PrivateRegistry&) = delete;
    PrivateRegistry& operator=(const PrivateRegistry&) = delete;
    ~PrivateRegistry() {
        RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
        RegCloseKey(key_);
        RegDeleteTreeW(HKEY_CURRENT_USER, name_.c_str());
    }

private:
    std::wstring name_ = L"Software\\ZelvorTests" + std::to_wstring(GetCurrentProcessId());
    HKEY key_ = nullptr;
};

#else

/// The files of a user are all below his folders here.
struct PrivateRegistry {};

/// Nothing of the user's is read or written.
void UsePrivateFolders(const QTemporaryDir& home) {
    qputenv("HOME", home.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", MakeFolder(home, "config"));
    qputenv("XDG_DATA_HOME", MakeFolder(home, "data"));
    qputenv("XDG_RUNTIME_DIR", MakeFolder(home, "runtime"));
}

#endif

void UseOffscreenPlatform(const QTemporaryDir& home) {
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (!platform.isEmpty() && platform != "offscreen") {
        return;
    }
    QFile file(home.filePath("screen.json"));
    if (file.open(QIODevice::WriteOnly) && file.write(OffscreenScreen) > 0) {
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=screen.json");
    }
#ifdef Q_OS_WIN
    // This platform asks for no fonts of the system there.
    if (!qEnvironmentVariableIsSet("QT_QPA_FONTDIR")) {
        qputenv("QT_QPA_FONTDIR", qgetenv("SystemRoot") + "/Fonts");
    }
#endif
}

QtMessageHandler usualHandler = nullptr;

// The offscreen platform complains of what it cannot do for every window.
void DropComplaintsOfThePlatform(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (!text.startsWith(QStringLiteral("This plugin does not support"))) {
        usualHandler(type, context, text);
    }
}

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir home;
    UsePrivateFolders(home);
    [[maybe_unused]] const PrivateRegistry registry;
    UseOffscreenPlatform(home);
    usualHandler = qInstallMessageHandler(DropComplaintsOfThePlatform);
    // The platform's file is named from its folder: in its option a colon, as of a drive, would end the name.
    const QString folder = QDir::currentPath();
    QDir::setCurrent(home.path());
    const QApplication application(argc, argv);
    QDir::setCurrent(folder);
    if (QGuiApplication::platformName() == QStringLiteral("offscreen")) {
        qputenv("QT_QPA_PLATFORM", "offscreen"); // programs that a test starts do not find that file
    }
    return RUN_ALL_TESTS();
}
