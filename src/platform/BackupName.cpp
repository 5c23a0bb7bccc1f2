#include "platform/BackupName.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <regex>
#include <string>
#include <utility>

#include "data/MemoryMap.h"
#include "data/ModelCatalogue.h"

namespace zelvor {

namespace {

std::string StampOf(const LocalTime& time) {
    std::array<char, 64> text{};
    // There is room for it.
    static_cast<void>(std::snprintf(text.data(), text.size(), "%04d-%02d-%02dT%02d%02d%02d", time.year, time.month,
                                    time.day, time.hour, time.minute, time.second));
    return text.data();
}

std::string HexOf(std::uint8_t byte) {
    std::array<char, 4> text{};
    static_cast<void>(std::snprintf(text.data(), text.size(), "x%02X", byte)); // there is room for it
    return text.data();
}

std::string_view WordOf(BackupDirection direction) {
    switch (direction) {
    case BackupDirection::Read:
        return "read";
    case BackupDirection::Write:
        return "write";
    }
    return {};
}

} // namespace

std::string BackupName::Text() const {
    std::string text = time + '-' + model + '-' + market + '-';
    text += WordOf(direction);
    if (number > 1) {
        text += '-' + std::to_string(number);
    }
    return text + ".dat";
}

std::optional<BackupName> BackupName::Parse(std::string_view text) {
    // A number is 2 to 999999, so that it fits an int and has one spelling.
    static const std::regex pattern(R"((\d{4}-\d\d-\d\dT\d{6})-([0-9A-Za-z]+)-([0-9A-Za-z]+)-(read|write))"
                                    R"((?:-([2-9]|[1-9]\d{1,5}))?\.dat)");
    std::match_results<std::string_view::const_iterator> parts;
    if (!std::regex_match(text.begin(), text.end(), parts, pattern)) {
        return std::nullopt;
    }
    return BackupName{.time = parts.str(1),
                      .model = parts.str(2),
                      .market = parts.str(3),
                      .direction = parts.str(4) == "read" ? BackupDirection::Read : BackupDirection::Write,
                      .number = parts[5].matched ? std::stoi(parts.str(5)) : 1};
}

BackupName BackupNameOf(const DataImage& image, const LocalTime& time, BackupDirection direction) {
    const std::uint8_t family = image.At(address::Family);
    const std::uint8_t market = image.At(address::Market);
    const ModelVariant* variant = FindVariant(family, market);
    return {.time = StampOf(time),
            .model = variant ? variant->infoModel : HexOf(family),
            .market = variant ? variant->reportMarket : HexOf(market),
            .direction = direction};
}

bool IsOlder(const BackupName& left, const BackupName& right) {
    return std::pair(left.time, left.number) < std::pair(right.time, right.number);
}

} // namespace zelvor
