#pragma once

#include <vector>

#include "data/Field.h"

namespace zelvor::cli {

struct ImageDifferences {
    std::vector<Field> fields;  // that show different values
    std::vector<int> addresses; // of the bytes that differ and are none of theirs

    [[nodiscard]] bool AreNone() const { return fields.empty() && addresses.empty(); }
};

[[nodiscard]] ImageDifferences DifferencesOf(const DataImage& a, const DataImage& b);

} // namespace zelvor::cli
