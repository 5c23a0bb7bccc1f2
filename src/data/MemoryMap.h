#pragma once

/// Radio addresses of the memory image, 0x000 to 0x3FF. docs/data-file.md draws the whole map.
namespace zelvor::address {

/// Read by the channel encoder in place of the channel's own byte 12; every clone write sets it to 0xFF.
inline constexpr int EncoderMuteByte = 0x00C;

/// Channel k (1 to 16) is the 16-byte record at k * ChannelSize.
inline constexpr int ChannelSize = 16;
inline constexpr int ChannelCount = 16;
inline constexpr int FirstChannel = 0x010;

inline constexpr int PttIdType = 0x133; // 0 DTMF, 1 Corvane
inline constexpr int CorvaneOwnFleet = 0x170;
inline constexpr int CorvaneOwnId = 0x172;

/// Scan Add: bit k-1 here for channels 1 to 8, bit k-9 of the next byte for 9 to 16; 1 is Yes.
inline constexpr int ScanAdd = 0x17E;

inline constexpr int Tuning = 0x180; // 56 bytes, never sent by a clone write
inline constexpr int TuningSize = 56;

inline constexpr int Identity = 0x1B8; // eight bytes
inline constexpr int IdentitySize = 8;
inline constexpr int Market = 0x1BD; // identity byte 6
inline constexpr int Family = 0x1BE; // identity byte 7

/// Sixteen pairs of eight bytes, receive first.
inline constexpr int TestFrequencies = 0x280;
inline constexpr int TestFrequencyPairSize = 8;

inline constexpr int NotWritten = 0x340; // the last 192 bytes, never sent by a clone write

[[nodiscard]] constexpr int Channel(int k) {
    return k * ChannelSize;
}

} // namespace zelvor::address
