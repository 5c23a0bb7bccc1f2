#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "text/Language.h"

namespace zelvor {

/// A page of the help.
struct HelpTopic {
    Language language = Language::English;
    std::string page; // "chinfo.htm"

    bool operator==(const HelpTopic&) const = default;
};

/// The help file of a language behind the program's directory: "...\Zelvor_e.chm" or "...\Zelvor_c.chm".
[[nodiscard]] std::string HelpFilePath(Language language);

/// What HelpViewer::ShowTopic takes for a page: the help file, "::/html/" and the page, such as "chinfo.htm".
[[nodiscard]] std::string HelpTopicPath(Language language, std::string_view page);

/// What a topic path such as "...\Zelvor_e.chm::/html/chinfo.htm" names; nothing where it is no such path.
[[nodiscard]] std::optional<HelpTopic> ParseHelpTopic(std::string_view path);

/// Where the page lies below the help's folder: "en/chinfo.htm" or "zh/chinfo.htm".
[[nodiscard]] std::string PagePathOf(const HelpTopic& topic);

} // namespace zelvor
