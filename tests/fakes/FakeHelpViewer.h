#pragma once

#include <string>
#include <vector>

#include "help/HelpViewer.h"

namespace zelvor {

/// Keeps the paths of the topics asked for.
class FakeHelpViewer : public HelpViewer {
public:
    void Show(const HelpTopic& topic) override { topics_.push_back(HelpTopicPath(topic)); }

    [[nodiscard]] const std::vector<std::string>& Topics() const { return topics_; }

private:
    std::vector<std::string> topics_;
};

} // namespace zelvor
