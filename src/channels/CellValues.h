#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/ChannelTable.h"
#include "data/DataImage.h"
#include "text/Language.h"

namespace zelvor {

/// Caption of the message that reports a frequency out of range.
inline constexpr TextPair FrequencyCaution{"Caution", "注意"};

/// The entries of the list editor in columns 5 to 9, in their order; PTT ID's depend on the image's PTT ID Type.
[[nodiscard]] std::vector<std::string> CellChoices(int column, const DataImage& image, Language language);

/// What Up (direction -1) or Down (+1) makes of a cell's text in columns 3 to 9. toneList serves both tone columns. A
/// text at the end stays; so does one that its column does not know, but in a tone column it gives the first entry.
[[nodiscard]] std::string StepCellValue(int column, std::string_view text, int direction, const DataImage& image,
                                        Language language, const std::vector<std::string>& toneList);

} // namespace zelvor
