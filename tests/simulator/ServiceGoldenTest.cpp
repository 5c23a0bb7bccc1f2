// The whole transcripts of the service sessions, as they pass over the cable.

#include <vector>

#include <gtest/gtest.h>

#include "ServiceMemory.h"
#include "simulator/RadioResponder.h"

namespace zelvor::test {
namespace {

struct Exchange {
    Bytes command;
    Bytes reply;
};
using Session = std::vector<Exchange>;

const Bytes Identity{0x50, 0x34, 0x36, 0x31, 0x38, 0x01, 0xF8, 0xFF};

/// Sends each command; a silence of the line may complete it.
void ExpectSession(const Session& session, RadioResponder& radio) {
    std::size_t n = 0;
    for (const Exchange& exchange : session) {
        Bytes reply = Feed(radio, exchange.command);
        if (reply.empty()) {
            if (const auto reaction = radio.LineSilent()) {
                reply = reaction->reply;
            }
        }
        EXPECT_EQ(reply, exchange.reply) << "exchange " << n;
        ++n;
    }
}

Session EntrySession() {
    Session session{{Text("TUNING "), {0x06}},
                    {{0x02}, Identity},
                    {{0x06}, {0x06}},
                    {{0x05}, ServiceTuningRecord()},
                    {{0x06}, {0x06}}};
    for (std::uint8_t n = 1; n <= 16; ++n) {
        Bytes record;
        for (int i = 0; i < 8; ++i) {
            record.push_back(static_cast<std::uint8_t>((n - 1) * 8 + i));
        }
        session.push_back({{0x10, n}, record});
        session.push_back({{0x06}, {0x06}});
    }
    return session;
}

TEST(ServiceGolden, AnInformationSessionIsAnsweredByteForByte) {
    DataImage memory = ServiceMemory();
    RadioResponder radio(memory);
    const Session session{
        {Text("PROGRAM"), {0x06}},
        {{0x02}, Identity},
        {{0x06}, {0x06}},
        {{0x4E, 0x52, 0x4B},
         {0x00, 0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x07, 0x08, 0x09, 0x0A, 0x0B, 0x0C, 0x41, 0x0E, 0x0F, 0x10,
          0x31, 0x30, 0x30, 0x32, 0x34, 0x36, 0x31, 0x38, 0x19, 0x1A, 0x1B, 0x1C, 0x1D, 0x1E, 0x1F, 0x20, 0x21}},
        {{0x06}, {0x06}},
        {{0x50}, {0x00, 0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x07, 0x08, 0x09}},
        {{0x06}, {0x06}},
        {{0x45}, {0x06}},
    };
    ExpectSession(session, radio);
    EXPECT_EQ(memory, ServiceMemory());
    EXPECT_EQ(radio.Clone().State(), CloneState::Idle);
    ExpectSession(session, radio); // and again
}

TEST(ServiceGolden, AnEntryIntoTestModeIsAnsweredByteForByteAndStaysInTheMode) {
    DataImage memory = ServiceMemory();
    RadioResponder radio(memory);
    const Session session = EntrySession();
    ASSERT_EQ(session.size(), 37U);
    ExpectSession(session, radio);
    EXPECT_EQ(memory, ServiceMemory());
    EXPECT_TRUE(radio.Service().IsActive());
}

TEST(ServiceGolden, ATestModeSessionWithOneTuningIsAnsweredByteForByte) {
    DataImage memory = ServiceMemory();
    RadioResponder radio(memory);
    ExpectSession(EntrySession(), radio);
    Bytes tuned = ServiceTuningRecord();
    tuned[11] = 0xC8;
    ExpectSession({{{0x10, 0x01}, {0, 1, 2, 3, 4, 5, 6, 7}},
                   {{0x06}, {0x06}},
                   {{0x11, 0x01}, {0x06}},
                   {{0x10, 0x02}, {8, 9, 10, 11, 12, 13, 14, 15}},
                   {{0x06}, {0x06}},
                   {{0x11, 0x03}, {0x06}},
                   {{0x08, 0x0D}, {0x06}},
                   {{0x08, 0x0E}, {0x06}},
                   {{0x47}, {0x06}},
                   {{0x46}, {0x06}},
                   {{0x05}, ServiceTuningRecord()},
                   {{0x06}, {0x06}},
                   {{0x12, 0x0D}, {0x06}},
                   {{0x30, 0x0D}, {0x06}},
                   {{0x07}, {0x30, 0x45, 0, 0, 0, 0}},
                   {{0x06}, {0x06}},
                   {{0x30, 0x20, 0xC8}, {0x06}},
                   {{0x30, 0x0E}, {0x06}},
                   {{0x05}, tuned},
                   {{0x06}, {0x06}},
                   {{0x1C, 0x0D}, {0x06}},
                   {{0x1C, 0x0A}, {0x64}},
                   {{0x06}, {0x06}},
                   {{0x1C, 0x20, 0x64}, {0x06}},
                   {{0x1C, 0x0E}, {0x06}},
                   {{0x11, 0x03}, {0x06}},
                   {{0x45}, {0x06}}},
                  radio);
    DataImage expected = ServiceMemory();
    expected.Set(0x185, 0xC8);
    expected.Set(0x1AC, 0x64);
    EXPECT_EQ(memory, expected);
    EXPECT_FALSE(radio.Service().IsActive());
}

} // namespace
} // namespace zelvor::test
