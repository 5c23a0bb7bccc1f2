#pragma once

#include <vector>

#include "data/ChannelCodec.h"
#include "data/DataImage.h"
#include "print/PageGrid.h"
#include "text/Language.h"

namespace zelvor {

// The texts of each section below the page's head, at their cells: one page each, and channels on as many as they take.

[[nodiscard]] std::vector<CellText> OptionalFeaturesPage(const DataImage& image, Language language);
[[nodiscard]] std::vector<CellText> KeyAssignmentPage(const DataImage& image, Language language);
[[nodiscard]] std::vector<CellText> ScanInformationPage(const DataImage& image, Language language);
[[nodiscard]] std::vector<CellText> DtmfPage(const DataImage& image, Language language);
[[nodiscard]] std::vector<CellText> CorvanePage(const DataImage& image, Language language);
[[nodiscard]] std::vector<CellText> TestFrequencyPage(const DataImage& image, Language language);
[[nodiscard]] std::vector<CellText> EmbeddedMessagePage(const DataImage& image, Language language);
/// The texts that the block of a channel, 1 to 16, shows, of those of all channels in order: what a record leaves open
/// shows the text of the channel before it, as the grid does.
[[nodiscard]] const ChannelTexts& PrintCurChData(const std::vector<ChannelTexts>& decoded, int channel);
/// Four channels in use to a page; one page with nothing but its title where none is in use.
[[nodiscard]] std::vector<std::vector<CellText>> ChannelInformationPages(const DataImage& image, Language language);

} // namespace zelvor
