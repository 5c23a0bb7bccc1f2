#pragma once

#include "help/HelpTopic.h"

namespace zelvor {

/// The help viewer. A topic that does not exist shows nothing and reports nothing.
class HelpViewer {
public:
    virtual ~HelpViewer() = default;
    virtual void Show(const HelpTopic& topic) = 0;
};

} // namespace zelvor
