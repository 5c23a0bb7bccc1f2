#include "cli/ImageDifferences.h"

#include <bitset>
#include <cstddef>

#include "data/ImageSections.h"

namespace zelvor::cli {

ImageDifferences DifferencesOf(const DataImage& a, const DataImage& b) {
    ImageDifferences differences;
    if (a == b) {
        return differences;
    }
    std::bitset<DataImage::Size> told;
    for (const ImageSection& section : ImageSections()) {
        for (const Field& field : section.fields) {
            if (field.Show(a, Language::English) == field.Show(b, Language::English)) {
                continue;
            }
            differences.fields.push_back(field);
            for (int address = field.Address(); address < field.Address() + field.Size(); ++address) {
                told.set(static_cast<std::size_t>(address));
            }
        }
    }
    for (int address = 0; address < static_cast<int>(DataImage::Size); ++address) {
        if (a.At(address) != b.At(address) && !told.test(static_cast<std::size_t>(address))) {
            differences.addresses.push_back(address);
        }
    }
    return differences;
}

} // namespace zelvor::cli
