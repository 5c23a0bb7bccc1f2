#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "data/DataImage.h"
#include "link/LinkState.h"

/// The bytes of the clone protocol. There is no checksum, no escape and no sequence number: a bare command is answered
/// by a bare reply. docs/clone-engine.md draws the sessions.
namespace zelvor {

/// Values of LinkState::TransferMode.
namespace transfer {
inline constexpr int Reading = 0;
inline constexpr int Writing = 1;
inline constexpr int Done = 55; // the transfer has finished its last send
} // namespace transfer

namespace wire {
inline constexpr std::array<std::uint8_t, 7> Entry{'P', 'R', 'O', 'G', 'R', 'A', 'M'};
inline constexpr std::array<std::uint8_t, 1> IdentityRequest{0x02};
inline constexpr std::array<std::uint8_t, 1> Acknowledge{0x06};
inline constexpr std::array<std::uint8_t, 1> End{'E'};

inline constexpr std::uint8_t AcknowledgeByte = 0x06;
inline constexpr std::uint8_t ReadBlockByte = 'R';
inline constexpr std::uint8_t WritePacketByte = 'W';
inline constexpr std::uint8_t ReadReplyByte = 'W'; // head of the reply to a Read block

inline constexpr int HeadLength = 4; // command, address high, address low, count
inline constexpr int IdentityLength = 8;
inline constexpr int BlockLength = 64; // data bytes of a Read reply
inline constexpr int ReadReplyLength = HeadLength + BlockLength;
} // namespace wire

/// Blocks of a read. Block 16 is requested twice: step 17 repeats its address, and what comes back is thrown away.
inline constexpr int ReadBlockCount = 16;
inline constexpr int RepeatedReadStep = 17;

/// Packets of a write; StepCount is one more when all of them are acknowledged.
inline constexpr int WritePacketCount = 49;
inline constexpr int WriteDoneStep = 50;

/// The Read block command at AddrHigh and AddrLow.
[[nodiscard]] std::array<std::uint8_t, wire::HeadLength> ReadBlockCommand(const LinkState& link);

/// Makes TxBuffer the Write packet of StepCount, at AddrHigh and AddrLow. Changes the image first: byte 12 of each of
/// the groups 0x000 to 0x0F0 becomes 0, then 0x00C becomes 0xFF and 0x10C becomes 0. A step outside 1 to 49 gets a head
/// and zeros.
void BuildWritePacket(LinkState& link, DataImage& image);

/// Stores the data bytes of a Read reply as block StepCount (1 to 16) of the image; a short reply stores what it holds.
/// The head is not looked at. Step 17 stores nothing.
void StoreReadBlock(DataImage& image, int stepCount, std::span<const std::uint8_t> reply);

/// Moves AddrHigh and AddrLow on to StepCount, which has been raised already.
void AdvanceAddress(LinkState& link);

/// Whether a radio with this identity (8 bytes) must be asked about before the image is written to it. A radio whose
/// family byte is 0x33 is accepted on its market byte alone.
[[nodiscard]] bool IsModelWrong(std::span<const std::uint8_t> identity, const DataImage& image);

} // namespace zelvor
