#include "print/ReportHead.h"

#include "data/DataImage.h"
#include "data/MemoryMap.h"

namespace zelvor {

const ModelVariant& ReportVariantOf(const DataImage& image) {
    const ModelVariant* found = FindVariant(image.At(address::Family), image.At(address::Market));
    return found != nullptr ? *found : ModelCatalogue().front();
}

} // namespace zelvor
