#include "simulator/SampleRadio.h"

#include <array>
#include <cstdint>
#include <initializer_list>
#include <string_view>

#include "data/BlankImage.h"
#include "data/FrequencyCodec.h"
#include "data/MemoryMap.h"
#include "data/ModelCatalogue.h"
#include "data/ToneCodec.h"

namespace zelvor {
namespace {

constexpr std::uint8_t MarketM = 0x01;

constexpr ToneWord NoTone{0xFF, 0xFF};

/// Tone words with the value in tenths of a hertz, or the octal DQT code.
constexpr ToneWord Qt(int tenths) {
    return {static_cast<std::uint8_t>(tenths & 0xFF), static_cast<std::uint8_t>(tenths >> 8)};
}
constexpr ToneWord DqtNormal(int code) {
    return {static_cast<std::uint8_t>(code & 0xFF), static_cast<std::uint8_t>(0x28 | code >> 8)};
}
constexpr ToneWord DqtInverted(int code) {
    return {static_cast<std::uint8_t>(code & 0xFF), static_cast<std::uint8_t>(0xA8 | code >> 8)};
}

// Byte 12 of a record.
constexpr std::uint8_t Compander = 0x01;
constexpr std::uint8_t SignallingDtmf = 0x02;
constexpr std::uint8_t LockoutCarrier = 0x08;
constexpr std::uint8_t LockoutTone = 0x10;

// Byte 13: what every record has set, width, power, beat shift.
constexpr std::uint8_t Always = 0x81;
constexpr std::uint8_t Wide = 0x10;
constexpr std::uint8_t High = 0x20;
constexpr std::uint8_t BeatShift = 0x40;

constexpr std::uint8_t PttIdOff = 0xB0;
constexpr std::uint8_t PttIdOn = 0xB1;
constexpr std::uint8_t AutodialBefore = 247; // byte 15 is this plus the number of the autodial memory

constexpr std::int32_t ReceiveOnly = 0;

struct SampleChannel {
    std::int32_t receive = 0;            // in units of 10 Hz
    std::int32_t transmit = ReceiveOnly; // the same, or ReceiveOnly
    ToneWord decode;
    ToneWord encode;
    std::uint8_t options = 0;      // byte 12
    std::uint8_t width = 0;        // byte 13 beside the bits that are always set
    std::uint8_t pttId = PttIdOff; // byte 14
    std::uint8_t autodial = 1;     // 1 to 8
    bool scanAdd = false;
};

constexpr std::array<SampleChannel, 16> Channels{{
    {14512500, 14512500, NoTone, NoTone, 0, Wide | High, PttIdOff, 1, true},
    {14525000, 14465000, Qt(885), Qt(885), 0, Wide | High, PttIdOff, 1, true},
    {14537500, 14477500, Qt(1000), Qt(1000), LockoutCarrier, Wide | High, PttIdOff, 1, true},
    {14550000, 14550000, Qt(670), Qt(2503), 0, Wide, PttIdOff, 1, false},
    {15182000, 15182000, DqtNormal(0023), DqtNormal(0023), LockoutTone, High, PttIdOff, 1, true},
    {15188000, 15188000, DqtInverted(0023), DqtInverted(0023), 0, 0, PttIdOff, 1, false},
    {15194000, 15194000, DqtNormal(0754), DqtNormal(0754), 0, High, PttIdOff, 2, true},
    {15457000, 15457000, DqtInverted(0754), DqtInverted(0754), Compander, Wide | High, PttIdOff, 2, false},
    {15460000, 15920000, NoTone, Qt(1273), 0, Wide | High | BeatShift, PttIdOff, 1, true},
    {15680000, 15680000, NoTone, NoTone, 0, Wide | High, PttIdOff, 1, true},
    {16065000, 15605000, NoTone, NoTone, SignallingDtmf, Wide | High, PttIdOn, 3, false},
    {16165000, ReceiveOnly, NoTone, NoTone, 0, Wide, PttIdOff, 1, true},
    {16240000, ReceiveOnly, NoTone, NoTone, 0, 0, PttIdOff, 1, true},
    {16255000, ReceiveOnly, Qt(1622), NoTone, 0, Wide, PttIdOff, 1, false},
    {13600000, 13600000, NoTone, NoTone, 0, Wide | High, PttIdOff, 1, false},
    {17400000, 17400000, Qt(2418), DqtNormal(0411), 0, High, PttIdOff, 8, true},
}};

void StoreBytes(DataImage& image, int address, std::initializer_list<std::uint8_t> bytes) {
    for (const std::uint8_t byte : bytes) {
        image.Set(address++, byte);
    }
}

void StoreText(DataImage& image, int address, std::string_view text) {
    for (const char character : text) {
        image.Set(address++, static_cast<std::uint8_t>(character));
    }
}

void StoreFrequency(DataImage& image, int address, std::int32_t tensOfHertz) {
    for (const std::uint8_t byte : PackFrequency(tensOfHertz)) {
        image.Set(address++, byte);
    }
}

void StoreChannel(DataImage& image, int k, const SampleChannel& channel) {
    const int record = address::Channel(k);
    StoreFrequency(image, record, channel.receive);
    if (channel.transmit != ReceiveOnly) {
        StoreFrequency(image, record + 4, channel.transmit);
    }
    StoreBytes(image, record + 8,
               {channel.decode.lo, channel.decode.hi, channel.encode.lo, channel.encode.hi, channel.options,
                static_cast<std::uint8_t>(Always | channel.width), channel.pttId,
                static_cast<std::uint8_t>(AutodialBefore + channel.autodial)});
    const auto bit = static_cast<std::uint8_t>(1U << (k - 1) % 8);
    image.SetBits(address::ScanAdd + (k - 1) / 8, bit, channel.scanAdd ? bit : std::uint8_t{0});
}

/// Settings that differ from a blank radio's.
void StoreSettings(DataImage& image) {
    StoreBytes(image, 0x00B, {0x00}); // the head block as a write leaves it
    StoreBytes(image, 0x00E, {0x03});
    StoreBytes(image, 0x11D, {0x06, 0x0A});       // PF1 scan, PF2 squelch off momentary
    StoreBytes(image, 0x160, {0x01, 0x01});       // fixed priority channel 1
    StoreBytes(image, 0x170, {0x02, 0x03, 0x00}); // own fleet 101, own ID 1002
    StoreBytes(image, 0x1C0, {0x02, 0x04, 0x00}); // fleet list 1: fleet 101, ID 1003
    StoreBytes(image, 0x1C3, {0x03, 0x00, 0x00}); // fleet list 2: fleet 102, all IDs
    StoreText(image, 0x120, "123");               // DTMF ID code
    StoreText(image, 0x1F0, "159");               // stun code
    StoreText(image, 0x200, "0123456789      ");  // autodial memories 1 to 3 and 8
    StoreText(image, 0x210, "*12#            ");
    StoreText(image, 0x220, "ABCD            ");
    StoreText(image, 0x270, "1234567890ABCD*#");
    StoreText(image, 0x300, "Sample radio");
    StoreText(image, 0x320, "Zelvor workshop");
}

} // namespace

DataImage SampleRadioMemory() {
    DataImage image;
    image.Set(address::Market, MarketM);
    image.Set(address::Family, Family4618);
    InitAllFrameData(image);
    for (int k = 1; k <= address::ChannelCount; ++k) {
        StoreChannel(image, k, Channels[static_cast<std::size_t>(k - 1)]);
    }
    StoreSettings(image);
    for (int i = 0; i < address::TuningSize; ++i) {
        image.Set(address::Tuning + i, static_cast<std::uint8_t>(0x40 + i));
    }
    for (int i = address::NotWritten; i < static_cast<int>(DataImage::Size); ++i) {
        image.Set(i, static_cast<std::uint8_t>(i - address::NotWritten));
    }
    return image;
}

} // namespace zelvor
