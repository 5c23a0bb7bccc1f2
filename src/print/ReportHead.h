#pragma once

#include "data/ModelCatalogue.h"
#include "text/Language.h"

namespace zelvor {

class DataImage;

/// The title of both reports.
inline constexpr TextPair ReportTitle{"Zelvor Radio Programming Information", "Zelvor 对讲机编程信息"};

/// The variant that both reports name: the first of the catalogue for an image of an unknown one.
[[nodiscard]] const ModelVariant& ReportVariantOf(const DataImage& image);

} // namespace zelvor
