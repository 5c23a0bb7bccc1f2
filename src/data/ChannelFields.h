#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "data/Field.h"
#include "data/MemoryMap.h"

/// The values of the channels one by one, each as a field: for tables of channels, for comparing and for scripts. The
/// windows edit channels through ChannelTable, whose texts are these but for two: a tone word without a text shows none
/// here, and not that of the channel before; the marks are "yes" and "no".
namespace zelvor {

/// In the order of a table of channels.
enum class ChannelColumn : std::uint8_t {
    Receive,
    Transmit,
    Decode,
    Encode,
    Power,
    Width,
    ScanAdd,
    OptionSignalling,
    PttId,
    SpUnmute,
    BusyLockout,
    Autodial,
    BeatShift,
    Compander,
};
inline constexpr std::size_t ChannelColumnCount = 14;

/// "rx_mhz": the end of its fields' keys and its name in tables for other programs. For good.
[[nodiscard]] std::string_view NameOf(ChannelColumn column);
[[nodiscard]] std::string_view HeadingOf(ChannelColumn column, Language language);

/// One value of one channel.
struct ChannelField {
    int channel; // 1 to 16
    ChannelColumn column;
};
using ChannelRow = std::array<ChannelField, ChannelColumnCount>;
inline constexpr std::array<ChannelRow, address::ChannelCount> ChannelFieldRows = [] {
    std::array<ChannelRow, address::ChannelCount> rows{};
    for (std::size_t k = 0; k < rows.size(); ++k) {
        for (std::size_t i = 0; i < ChannelColumnCount; ++i) {
            rows[k][i] = {static_cast<int>(k) + 1, static_cast<ChannelColumn>(i)};
        }
    }
    return rows;
}();

/// Whether the channel (1 to 16) has no receive frequency, and so no values.
[[nodiscard]] bool IsChannelBlank(const DataImage& image, int channel);

/// "channels.3.rx_mhz"
[[nodiscard]] std::string KeyOf(const ChannelField& field);
[[nodiscard]] int AddressOf(const ChannelField& field);
[[nodiscard]] int SizeOf(const ChannelField& field);
[[nodiscard]] std::string LabelOf(const ChannelField& field, Language language);
/// Empty for a blank channel, and where the bytes stand for no word.
[[nodiscard]] std::string ShowValue(const ChannelField& field, const DataImage& image, Language language);
/// Which PTT IDs there are is the image's PTT ID Type's to say; these are those of both types.
[[nodiscard]] LegalValues LegalValuesOf(const ChannelField& field, Language language);
/// A receive frequency makes a blank channel a new one, with the values that a new one has in the windows, receiving
/// only; an empty one blanks the channel, whose Scan Add bit stays. A blank channel takes nothing else. Tones and
/// frequencies may lack zeros at their ends. What is shown already keeps its bytes.
[[nodiscard]] bool ParseValue(const ChannelField& field, std::string_view text, DataImage& image);
[[nodiscard]] bool HoldsLegalValue(const ChannelField& field, const DataImage& image);
/// In a blank image all channels are blank.
void StoreBlankValue(const ChannelField& field, DataImage& image);

} // namespace zelvor
