#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/DataImage.h"
#include "text/Language.h"

namespace zelvor {

/// Data columns of the channel grid.
namespace column {
inline constexpr int Rx = 1;
inline constexpr int Tx = 2;
inline constexpr int Decode = 3;
inline constexpr int Encode = 4;
inline constexpr int Power = 5;
inline constexpr int Width = 6;
inline constexpr int ScanAdd = 7;
inline constexpr int OptSignal = 8;
inline constexpr int PttId = 9;
inline constexpr int Count = 9;
} // namespace column

/// Caption of the message that reports a frequency out of range.
inline constexpr TextPair FrequencyCaution{"Caution", "注意"};

[[nodiscard]] constexpr bool IsFrequencyColumn(int column) {
    return column == column::Rx || column == column::Tx;
}
[[nodiscard]] constexpr bool IsToneColumn(int column) {
    return column == column::Decode || column == column::Encode;
}

/// The entries of the list editor in columns 5 to 9, in their order; PTT ID's depend on the image's PTT ID Type.
[[nodiscard]] std::vector<std::string> CellChoices(int column, const DataImage& image, Language language);

/// What Up (direction -1) or Down (+1) makes of a cell's text in columns 3 to 9. toneList serves both tone columns. A
/// text at the end stays; so does one that its column does not know, but in a tone column it gives the first entry.
[[nodiscard]] std::string StepCellValue(int column, std::string_view text, int direction, const DataImage& image,
                                        Language language, const std::vector<std::string>& toneList);

} // namespace zelvor
