#include "platform/HelpTopic.h"

#include <QCoreApplication>

namespace zelvor {

std::optional<HelpTopic> ParseHelpTopic(std::string_view path) {
    constexpr std::string_view separator = "::/html/";
    const std::size_t end = path.find(separator);
    if (end == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view file = path.substr(0, end);
    const std::string_view page = path.substr(end + separator.size());
    const bool isEnglish = file.ends_with("Zelvor_e.chm");
    const bool isChinese = file.ends_with("Zelvor_c.chm");
    if (page.empty() || page.find_first_of("/\\") != std::string_view::npos || (!isEnglish && !isChinese)) {
        return std::nullopt;
    }
    return HelpTopic{isChinese ? Language::Chinese : Language::English, std::string(page)};
}

std::string PagePathOf(const HelpTopic& topic) {
    return (topic.language == Language::Chinese ? "zh/" : "en/") + topic.page;
}

std::string HelpFilePath(Language language) {
    return QCoreApplication::applicationDirPath().toStdString() +
           (language == Language::Chinese ? "\\Zelvor_c.chm" : "\\Zelvor_e.chm");
}

std::string HelpTopicPath(Language language, std::string_view page) {
    return HelpFilePath(language) + "::/html/" + std::string(page);
}

} // namespace zelvor
