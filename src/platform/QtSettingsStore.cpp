#include "platform/QtSettingsStore.h"

#include <QtGlobal>

#ifdef Q_OS_WIN
#include <QSettings>
#else
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <optional>
#include <span>

#include "platform/SettingsText.h"
#endif

#include "platform/Toolkit.h"

namespace zelvor {

#ifdef Q_OS_WIN

namespace {

QString Location() {
    return QStringLiteral(R"(HKEY_CURRENT_USER\SoftWare\Zelvor)");
}

QString KeyOf(std::string_view entry) {
    return QStringLiteral("BackUp/") + ToQString(entry);
}

} // namespace

bool QtSettingsStore::Exists() {
    const QSettings parent(QStringLiteral(R"(HKEY_CURRENT_USER\SoftWare)"), QSettings::NativeFormat);
    return parent.childGroups().contains(u"Zelvor", Qt::CaseInsensitive);
}

void QtSettingsStore::Create() {
    if (Exists()) {
        return;
    }
    QSettings key(Location() + QStringLiteral(R"(\BackUp)"), QSettings::NativeFormat);
    key.setValue("LastModel", QString()); // a key is made with its first value
    key.remove("LastModel");
}

std::string QtSettingsStore::Read(std::string_view entry) {
    const QSettings settings(Location(), QSettings::NativeFormat);
    return FromQString(settings.value(KeyOf(entry)).toString());
}

void QtSettingsStore::Write(std::string_view entry, std::string_view value) {
    QSettings settings(Location(), QSettings::NativeFormat);
    settings.setValue(KeyOf(entry), ToQString(value));
    settings.sync();
}

#else

// Not the toolkit's settings class: it waits for a lock file beside the settings for half a minute, or for ever, and an
// ended process leaves such files behind. Here the file is replaced as a whole and needs no lock: of two programs that
// end at the same moment the later one's values stay.

namespace {

constexpr std::string_view Section = "BackUp";
constexpr std::size_t LargestFile = 1024UL * 1024; // a larger one is not ours

QString Location() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/Zelvor/Zelvor.ini");
}

} // namespace

std::optional<std::string> QtSettingsStore::Text() {
    const auto bytes = store_.Read(FromQString(Location()), LargestFile + 1);
    if (!bytes || bytes->size() > LargestFile) {
        return std::nullopt;
    }
    return std::string(bytes->begin(), bytes->end());
}

bool QtSettingsStore::Exists() {
    return QFileInfo::exists(Location());
}

void QtSettingsStore::Create() {
    if (!Exists()) {
        Put('[' + std::string(Section) + "]\n");
    }
}

std::string QtSettingsStore::Read(std::string_view entry) {
    return SettingOf(Text().value_or(std::string()), Section, entry);
}

void QtSettingsStore::Write(std::string_view entry, std::string_view value) {
    const std::optional<std::string> text = Exists() ? Text() : std::string();
    if (text) { // what cannot be read is not overwritten
        Put(WithSetting(*text, Section, entry, value));
    }
}

void QtSettingsStore::Put(const std::string& text) {
    QDir().mkpath(QFileInfo(Location()).path());
    const std::span bytes(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
    [[maybe_unused]] const bool isWritten = store_.Write(FromQString(Location()), bytes, FileTail::Drop);
}

#endif

} // namespace zelvor
