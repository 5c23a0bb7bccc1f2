#pragma once

#include <vector>

#include "data/Field.h"
#include "data/ImageChecks.h"

/// What values of different fields must have to do with each other. The dialogs keep these rules by correcting one of
/// the values; a file that they did not make need not keep them.
namespace zelvor {

struct BrokenRule {
    ImageFault fault;
    std::vector<Field> fields; // that the rule is about, first the one that is wrong or missing
};

/// In the order of the image's sections.
[[nodiscard]] std::vector<BrokenRule> BrokenRules(const DataImage& image);

} // namespace zelvor
