#include "platform/QtSettingsStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include "platform/Toolkit.h"

namespace zelvor {

namespace {

#ifdef Q_OS_WIN

constexpr auto Format = QSettings::NativeFormat;

QString Location() {
    return QStringLiteral(R"(HKEY_CURRENT_USER\SoftWare\Zelvor)");
}

bool LocationExists() {
    const QSettings parent(QStringLiteral(R"(HKEY_CURRENT_USER\SoftWare)"), Format);
    return parent.childGroups().contains(u"Zelvor", Qt::CaseInsensitive);
}

void MakeLocation() {
    QSettings key(Location() + QStringLiteral(R"(\BackUp)"), Format);
    key.setValue("LastModel", QString()); // a key is made with its first value
    key.remove("LastModel");
}

#else

constexpr auto Format = QSettings::IniFormat;

QString Location() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/Zelvor/Zelvor.ini");
}

bool LocationExists() {
    return QFile::exists(Location());
}

void MakeLocation() {
    QDir().mkpath(QFileInfo(Location()).path());
    QFile file(Location());
    if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        file.write("[BackUp]\n");
    }
}

#endif

QString KeyOf(std::string_view entry) {
    return QStringLiteral("BackUp/") + ToQString(entry);
}

} // namespace

bool QtSettingsStore::Exists() {
    return LocationExists();
}

void QtSettingsStore::Create() {
    MakeLocation();
}

std::string QtSettingsStore::Read(std::string_view entry) {
    const QSettings settings(Location(), Format);
    return FromQString(settings.value(KeyOf(entry)).toString());
}

void QtSettingsStore::Write(std::string_view entry, std::string_view value) {
    QSettings settings(Location(), Format);
    settings.setValue(KeyOf(entry), ToQString(value));
    settings.sync();
}

} // namespace zelvor
