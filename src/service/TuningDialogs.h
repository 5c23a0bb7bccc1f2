#pragma once

#include <string_view>
#include <vector>

#include "data/TuneItems.h"
#include "service/TuningEngine.h"

namespace zelvor {

/// What a tuning dialog is, for an item and a width: which of the four sizes, its caption, its pages and the codes.
struct TuningDialog {
    std::string_view formName; // "TunningForm1" to "TunningForm4"
    Text caption;
    TuningKind kind;
    std::vector<TunePoint> points; // one a page, the value that it shows; a dialog without pages has one all the same
    int tuneItem;
};

/// For TuneItem 1 to 15.
[[nodiscard]] TuningDialog TuningDialogOf(int tuneItem, bool narrow);

[[nodiscard]] TuningPlan PlanOf(const TuningDialog& dialog);

[[nodiscard]] Text PageNameOf(TunePoint point);

} // namespace zelvor
