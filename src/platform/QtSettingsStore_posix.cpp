#include "platform/QtSettingsStore.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <optional>
#include <span>

#include "platform/SettingsText.h"
#include "platform/Toolkit.h"

namespace zelvor {

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

} // namespace zelvor
