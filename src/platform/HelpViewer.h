#pragma once

#include <string>
#include <string_view>

namespace zelvor {

/// The help viewer. A topic that does not exist shows nothing and reports nothing.
class HelpViewer {
public:
    virtual ~HelpViewer() = default;
    /// path is the program's directory, the help file and the page, such as "...\Zelvor_e.chm::/html/chinfo.htm".
    virtual void ShowTopic(std::string_view path) = 0;
};

} // namespace zelvor
