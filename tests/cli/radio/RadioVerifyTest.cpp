#include "cli/RadioVerify.h"

#include "cli/radio/RadioRig.h"

namespace zelvor::cli {
namespace {

class RadioVerifyTest : public ::testing::Test, protected RadioRig {
protected:
    RadioVerifyTest() { PutFile("/mine/radio.dat", PatternImage(3)); }
    ExitStatus Verify() {
        return VerifyRadio({.radio = {.port = 3, .retries = 0}, .file = "/mine/radio.dat"}, machine, console);
    }
};

TEST_F(RadioVerifyTest, SaysNothingWhereTheRadioHoldsTheFile) {
    EXPECT_EQ(Verify(), ExitStatus::Done);
    EXPECT_EQ(out.str(), "");
    EXPECT_EQ(Err(), "");
    EXPECT_EQ(Backups(), std::vector<std::string>{"2026-11-22T014502-4618-M-read.dat"});
}

TEST_F(RadioVerifyTest, PrintsTheBytesOfFileAndRadioThatDiffer) {
    DataImage file = PatternImage(3);
    file.Set(0x011, 0xAB);
    file.Set(0x33F, 0x01);
    PutFile("/mine/radio.dat", file);
    radio.Memory[0x011] = 0xCD;
    radio.Memory[0x33F] = 0x02;
    EXPECT_EQ(Verify(), ExitStatus::No);
    EXPECT_EQ(out.str(), "0x011: AB -> CD\n0x33F: 01 -> 02\n");
    EXPECT_EQ(Err(), "zelvor-cli: COM3: the radio differs from /mine/radio.dat, bytes: 2\n");
}

TEST_F(RadioVerifyTest, LooksAtNothingThatAWriteDoesNotTakeFromTheFile) {
    for (const std::size_t address : {0x000U, 0x00CU, 0x00FU, 0x180U, 0x1B7U, 0x340U, 0x3FFU}) {
        radio.Memory.at(address) ^= 0xFF;
    }
    EXPECT_EQ(Verify(), ExitStatus::Done);
    EXPECT_EQ(out.str(), "");
}

TEST_F(RadioVerifyTest, DoesNotAskARadioForAFileThatIsNone) {
    store.Put("/mine/radio.dat", "nonsense");
    EXPECT_EQ(Verify(), ExitStatus::File);
    EXPECT_EQ(Err(), "zelvor-cli: /mine/radio.dat: is no data file\n");
    EXPECT_TRUE(radio.Commands().empty());
}

TEST_F(RadioVerifyTest, HasNoAnswerWithoutARadio) {
    isConnected = false;
    EXPECT_EQ(Verify(), ExitStatus::NoRadio);
    EXPECT_EQ(out.str(), "");
    EXPECT_TRUE(Backups().empty());
}

} // namespace
} // namespace zelvor::cli
