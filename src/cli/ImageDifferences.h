#pragma once

#include <vector>

#include "data/Field.h"

namespace zelvor::cli {

struct ImageDifferences {
    std::vector<Field> fields;  // that show different values
    std::vector<int> addresses; // of the bytes that differ in more than these values tell

    [[nodiscard]] bool AreNone() const { return fields.empty() && addresses.empty(); }
};

/// Every bit that differs is told: by the fields whose values it changes, or else by its byte.
[[nodiscard]] ImageDifferences DifferencesOf(const DataImage& a, const DataImage& b);

} // namespace zelvor::cli
