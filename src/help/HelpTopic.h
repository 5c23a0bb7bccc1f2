#pragma once

#include <string>
#include <string_view>

#include "text/Language.h"

namespace zelvor {

/// A page of the help in one of its languages.
struct HelpTopic {
    Language language = Language::English;
    std::string_view page; // "chinfo.htm"; a literal, or something else that outlives the topic
};

/// The help file of a language behind the program's directory: "...\Zelvor_e.chm" or "...\Zelvor_c.chm".
[[nodiscard]] std::string HelpFilePath(Language language);

/// The topic's path: the help file, "::/html/" and the page.
[[nodiscard]] std::string HelpTopicPath(const HelpTopic& topic);

/// Where the page lies below the help's folder: "en/chinfo.htm" or "zh/chinfo.htm".
[[nodiscard]] std::string PagePathOf(const HelpTopic& topic);

} // namespace zelvor
