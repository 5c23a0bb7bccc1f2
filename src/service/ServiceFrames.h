#pragma once

#include <array>
#include <cstdint>

/// The bytes of the service protocol: bare commands, answered by one acknowledgement or by a fixed number of bytes,
/// with no checksum and no framing. Entry of radio information, Identity request, Acknowledge and End are the clone
/// protocol's. docs/wire-protocol.md tells them all.
namespace zelvor::service {

// Radio information.
inline constexpr std::array<std::uint8_t, 3> ManufacturingRecord{'N', 'R', 'K'};
inline constexpr std::uint8_t UnusedRecord = 'P'; // ten bytes that nothing looks at
inline constexpr int ManufacturingRecordLength = 34;
inline constexpr int UnusedRecordLength = 10;

inline constexpr std::array<std::uint8_t, 7> TuningEntry{'T', 'U', 'N', 'I', 'N', 'G', ' '};
inline constexpr std::uint8_t IdentityFirstByte = 0x50;
inline constexpr std::uint8_t ReadTuningData = 0x05;
inline constexpr std::uint8_t SetChannel = 0x10; // and the channel; answered by its record, or by one byte
inline constexpr int ChannelRecordLength = 8;
inline constexpr std::uint8_t SetSignalling = 0x11; // and 1 to 9
inline constexpr std::array<std::uint8_t, 2> PttOn{0x08, 0x0D};
inline constexpr std::array<std::uint8_t, 2> PttOff{0x08, 0x0E};
inline constexpr std::uint8_t Wide = 'F';
inline constexpr std::uint8_t Narrow = 'G';
inline constexpr std::uint8_t ReadPoint = 0x07;
inline constexpr int PointLength = 6;

// Second bytes, behind the code of an item or point.
inline constexpr std::uint8_t Select = 0x0D;
inline constexpr std::uint8_t SetValue = 0x20; // and the value
inline constexpr std::uint8_t Store = 0x0E;
inline constexpr std::uint8_t ReadMeasurement = 0x0A;

} // namespace zelvor::service
