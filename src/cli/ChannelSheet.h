#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/DataImage.h"
#include "text/Language.h"

/// The channels of an image as a table of comma-separated values: the number of the channel, then a column for every
/// value that a channel has, under the names of ChannelFields.h.
namespace zelvor::cli {

/// All channels; blank ones with the number alone.
[[nodiscard]] std::string ExportChannels(const DataImage& image);

struct SheetFault {
    int line;           // of the table, from 1
    std::string column; // its name in the table
    std::string reason;
};

struct SheetImport {
    DataImage image; // with the channels of the table where there is no fault
    std::vector<SheetFault> faults;
};

/// Stores the channels of a table in an image. Channels and columns that it does not have stay as they are; so does a
/// value whose cell is empty, but for the frequencies: a channel without a receive frequency is blank, and one without
/// a transmit frequency receives only. What is in the cells of a channel that becomes blank must be legal all the same.
[[nodiscard]] SheetImport ImportChannels(std::string_view table, const DataImage& image, Language language);

} // namespace zelvor::cli
