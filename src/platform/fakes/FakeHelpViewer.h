#pragma once

#include <string>
#include <vector>

#include "platform/HelpViewer.h"

namespace zelvor {

/// Keeps the topics asked for.
class FakeHelpViewer : public HelpViewer {
public:
    void ShowTopic(std::string_view path) override { topics_.emplace_back(path); }

    [[nodiscard]] const std::vector<std::string>& Topics() const { return topics_; }

private:
    std::vector<std::string> topics_;
};

} // namespace zelvor
