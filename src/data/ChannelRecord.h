#pragma once

#include <cstdint>

/// The 16-byte channel record: places of its fields, and the bits of bytes 12 to 15. docs/data-file.md tells their
/// meaning.
namespace zelvor::record {

inline constexpr int RxFrequency = 0; // four bytes
inline constexpr int TxFrequency = 4; // four bytes
inline constexpr int DecodeTone = 8;  // two bytes
inline constexpr int EncodeTone = 10; // two bytes
inline constexpr int Signalling = 12;
inline constexpr int Transmitter = 13;
inline constexpr int PttId = 14;
inline constexpr int AutoDial = 15;

/// The highest byte of a frequency says whether there is one: 0x00 and 0xFF stand for none.
inline constexpr int FrequencyTopByte = 3;
[[nodiscard]] constexpr bool IsNoFrequency(int topByte) {
    return topByte == 0x00 || topByte == 0xFF;
}

// Byte 12. Bit 7 has no meaning.
inline constexpr std::uint8_t CompanderBit = 0x01;
inline constexpr std::uint8_t OptSignalMask = 0x06; // none of the two: no signalling; both: no legal value
inline constexpr std::uint8_t OptSignalDtmf = 0x02;
inline constexpr std::uint8_t OptSignalCorvane = 0x04;
inline constexpr std::uint8_t BusyLockMask = 0x18; // 0: off
inline constexpr std::uint8_t BusyLockCarrier = 0x08;
inline constexpr std::uint8_t BusyLockQtDqt = 0x10;
inline constexpr std::uint8_t BusyLockOptSignal = 0x18;
inline constexpr std::uint8_t SpMuteMask = 0x60; // 0: carrier; both: no legal value
inline constexpr std::uint8_t SpMuteCarrierAndOptSig = 0x20;
inline constexpr std::uint8_t SpMuteCarrierOrOptSig = 0x40;

// Byte 13.
inline constexpr std::uint8_t WideBit = 0x10;
inline constexpr std::uint8_t HighPowerBit = 0x20;
inline constexpr std::uint8_t BeatShiftBit = 0x40;
inline constexpr std::uint8_t TransmitterFixedBits = 0x8F; // always set by the encoder

// Byte 14, in words that depend on the PTT ID Type of the image.
inline constexpr std::uint8_t TypeDtmf = 0;
inline constexpr std::uint8_t TypeCorvane = 1;
inline constexpr std::uint8_t PttIdOff = 0xB0;
inline constexpr std::uint8_t PttIdOn = 0xB1;  // type DTMF
inline constexpr std::uint8_t PttIdOwn = 0xB1; // type Corvane
inline constexpr int PttIdFleetBase = 0xB1;    // type Corvane: fleet list n is this plus n
inline constexpr int FleetListCount = 8;

// Byte 15.
inline constexpr std::uint8_t AutoDialMask = 0x07;
inline constexpr int AutoDialBase = 247; // memory n is this plus n
inline constexpr std::uint8_t AutoDialFirst = 248;

} // namespace zelvor::record
