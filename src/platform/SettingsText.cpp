#include "platform/SettingsText.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace zelvor {

namespace {

using Lines = std::vector<std::string>;

constexpr std::string_view Blanks = " \t\r";
/// A value of these alone needs no quotes.
constexpr std::string_view PlainCharacters = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz:.-_+/";

std::string_view Trimmed(std::string_view text) {
    const std::size_t begin = text.find_first_not_of(Blanks);
    return begin == std::string_view::npos ? std::string_view()
                                           : text.substr(begin, text.find_last_not_of(Blanks) - begin + 1);
}

Lines LinesOf(std::string_view text) {
    Lines lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

std::string Quoted(std::string_view value) {
    if (!value.empty() && value.find_first_not_of(PlainCharacters) == std::string_view::npos) {
        return std::string(value);
    }
    std::string quoted = "\"";
    for (const char character : value) {
        if (character == '"' || character == '\\') {
            quoted += '\\';
        }
        quoted += character == '\n' ? std::string("\\n") : std::string(1, character);
    }
    return quoted + '"';
}

std::string Unquoted(std::string_view value) {
    if (value.size() < 2 || value.front() != '"' || value.back() != '"') {
        return std::string(value);
    }
    std::string plain;
    const std::string_view inside = value.substr(1, value.size() - 2);
    for (std::size_t i = 0; i < inside.size(); ++i) {
        const bool isEscaped = inside[i] == '\\' && i + 1 < inside.size();
        i += isEscaped ? 1 : 0;
        plain += isEscaped && inside[i] == 'n' ? '\n' : inside[i];
    }
    return plain;
}

bool IsSection(std::string_view line) {
    return Trimmed(line).starts_with('[');
}

/// The lines of the section behind its head, as first and end; nothing where there is no such section.
std::optional<std::pair<std::size_t, std::size_t>> FindSection(const Lines& lines, std::string_view section) {
    const std::string head = '[' + std::string(section) + ']';
    const auto found =
        std::find_if(lines.begin(), lines.end(), [&](const std::string& line) { return Trimmed(line) == head; });
    if (found == lines.end()) {
        return std::nullopt;
    }
    const auto end = std::find_if(found + 1, lines.end(), IsSection);
    return std::pair(static_cast<std::size_t>(found - lines.begin()) + 1,
                     static_cast<std::size_t>(end - lines.begin()));
}

/// The value as it stands in the line; nothing where the line is not this entry's.
std::optional<std::string_view> ValueIn(std::string_view line, std::string_view entry) {
    const std::size_t sign = line.find('=');
    if (sign == std::string_view::npos || Trimmed(line.substr(0, sign)) != entry) {
        return std::nullopt;
    }
    return Trimmed(line.substr(sign + 1));
}

} // namespace

std::string SettingOf(std::string_view text, std::string_view section, std::string_view entry) {
    const Lines lines = LinesOf(text);
    const auto place = FindSection(lines, section);
    for (std::size_t i = place ? place->first : 0; place && i < place->second; ++i) {
        if (const auto value = ValueIn(lines[i], entry)) {
            return Unquoted(*value);
        }
    }
    return {};
}

std::string WithSetting(std::string_view text, std::string_view section, std::string_view entry,
                        std::string_view value) {
    Lines lines = LinesOf(text);
    auto place = FindSection(lines, section);
    if (!place) {
        lines.push_back('[' + std::string(section) + ']');
        place = {lines.size(), lines.size()};
    }
    const std::string line = std::string(entry) + '=' + Quoted(value);
    auto end = lines.begin() + static_cast<std::ptrdiff_t>(place->second);
    auto old = std::find_if(lines.begin() + static_cast<std::ptrdiff_t>(place->first), end,
                            [entry](const std::string& candidate) { return ValueIn(candidate, entry).has_value(); });
    if (old != end) {
        *old = line;
    } else {
        while (place->second > place->first && Trimmed(lines[place->second - 1]).empty()) {
            --place->second; // before the blank lines that part it from the next section
        }
        lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(place->second), line);
    }
    std::string result;
    for (const std::string& one : lines) {
        result += one + '\n';
    }
    return result;
}

} // namespace zelvor
