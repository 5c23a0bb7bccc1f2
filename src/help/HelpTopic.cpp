#include "help/HelpTopic.h"

#include <QCoreApplication>

namespace zelvor {

std::string HelpFilePath(Language language) {
    return QCoreApplication::applicationDirPath().toStdString() +
           (language == Language::Chinese ? "\\Zelvor_c.chm" : "\\Zelvor_e.chm");
}

std::string HelpTopicPath(const HelpTopic& topic) {
    return HelpFilePath(topic.language) + "::/html/" + std::string(topic.page);
}

std::string PagePathOf(const HelpTopic& topic) {
    return (topic.language == Language::Chinese ? "zh/" : "en/") + std::string(topic.page);
}

} // namespace zelvor
