#include "cli/ImageDifferences.h"

#include <array>
#include <cstddef>
#include <cstdint>

#include "cli/ToldBits.h"
#include "data/ImageSections.h"

namespace zelvor::cli {

ImageDifferences DifferencesOf(const DataImage& a, const DataImage& b) {
    ImageDifferences differences;
    if (a == b) {
        return differences;
    }
    std::array<unsigned, DataImage::Size> told{};
    for (const ImageSection& section : ImageSections()) {
        for (const Field& field : section.fields) {
            if (field.Show(a, Language::English) == field.Show(b, Language::English)) {
                continue;
            }
            differences.fields.push_back(field);
            for (int address = field.Address(); address < field.Address() + field.Size(); ++address) {
                told[static_cast<std::size_t>(address)] |= ToldBits(field, a, b, address);
            }
        }
    }
    for (int address = 0; address < static_cast<int>(DataImage::Size); ++address) {
        const auto changed = static_cast<unsigned>(a.At(address) ^ b.At(address));
        if ((changed & ~told[static_cast<std::size_t>(address)]) != 0) {
            differences.addresses.push_back(address);
        }
    }
    return differences;
}

} // namespace zelvor::cli
