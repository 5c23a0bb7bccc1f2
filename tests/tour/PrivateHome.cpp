#include "tour/PrivateHome.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace zelvor::tour {

namespace {

constexpr auto OnlyOwner = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;

// As scripts/headless has it: a screen of 1440 by 1000 at 96 dots an inch.
constexpr auto OffscreenScreen = R"({"screens": [{"name": "Screen", "x": 0, "y": 0, "width": 1440, "height": 1000,
    "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";

void UseFolder(const char* variable, const QString& path) {
    QDir().mkpath(path);
    QFile::setPermissions(path, OnlyOwner);
    qputenv(variable, path.toLocal8Bit());
}

} // namespace

PrivateHome::PrivateHome() {
    KeepDisplayAccess();
    UseFolder("HOME", directory_.path());
    UseFolder("XDG_CONFIG_HOME", File("config"));
    UseFolder("XDG_DATA_HOME", File("data"));
    QDir().mkpath(File("radios"));
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) {
        UseFolder("XDG_RUNTIME_DIR", File("runtime"));
    }
    ChoosePlatform();
}

/// The key to the user's display lies in the user's home.
void PrivateHome::KeepDisplayAccess() {
    const QString key = QDir::home().filePath(".Xauthority");
    if (qEnvironmentVariableIsEmpty("XAUTHORITY") && QFile::exists(key)) {
        qputenv("XAUTHORITY", key.toLocal8Bit());
    }
}

void PrivateHome::ChoosePlatform() {
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    const bool hasDisplay = !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if (platform != "offscreen" && (!platform.isEmpty() || hasDisplay)) {
        return;
    }
    QFile screen(File("screen.json"));
    if (screen.open(QIODevice::WriteOnly) && screen.write(OffscreenScreen) > 0) {
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screen.fileName().toLocal8Bit());
    }
}

QString SettingsFile() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/Zelvor/Zelvor.ini";
}

} // namespace zelvor::tour
