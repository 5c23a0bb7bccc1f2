#include "cli/CheckCommand.h"

#include "cli/CliFixture.h"

namespace zelvor::cli {
namespace {

class CheckTest : public CliTest {};

TEST_F(CheckTest, SaysNothingOfASoundFile) {
    Put("a.dat", Programmed());
    EXPECT_EQ(Check({"a.dat", "a.dat"}, store, console), ExitStatus::Done);
    EXPECT_EQ(Out() + Err(), "");
}

TEST_F(CheckTest, PrintsALineForEachFindingOfEachFile) {
    DataImage image = Programmed();
    image.Set(0x160, 1);    // fixed priority mode without a channel
    image.Set(0x136, 7);    // beep
    image.Set(0x020, 0x23); // off the raster
    Put("a.dat", image);
    image = Programmed();
    image.Set(0x023, 0x40); // 405.125 MHz
    Put("b.dat", image);
    EXPECT_EQ(Check({"a.dat", "b.dat"}, store, console), ExitStatus::No);
    EXPECT_EQ(Out(),
              "a.dat: scan.priority-channel: stops a write: the priority mode is Fixed, and no channel is chosen\n"
              "a.dat: optional.beep: the value is not legal\n"
              "a.dat: channels.2.rx_mhz: the frequency is no multiple of 5 kHz or 6.25 kHz\n"
              "b.dat: channels.2.rx_mhz: hint: the frequency is outside the market's range\n");
}

TEST_F(CheckTest, AHintIsNoReasonToAnswerNo) {
    DataImage image = Programmed();
    image.Set(0x023, 0x40);
    Put("b.dat", image);
    EXPECT_EQ(Check({"b.dat"}, store, chinese), ExitStatus::Done);
    EXPECT_EQ(Out(), "b.dat: channels.2.rx_mhz: 提示：频率超出该市场的范围\n");
}

TEST_F(CheckTest, TheWorstResultIsItsAnswer) {
    DataImage image = Programmed();
    image.Set(0x136, 7);
    Put("bad.dat", image);
    Put("good.dat", Programmed());
    store.Put("cut.dat", ContentOf(image).substr(0, 1039));
    EXPECT_EQ(Check({"cut.dat", "bad.dat", "good.dat"}, store, console), ExitStatus::File);
    EXPECT_EQ(Out(), "bad.dat: optional.beep: the value is not legal\n");
    EXPECT_EQ(Err(), "zelvor-cli: cut.dat: is no data file\n");
    EXPECT_EQ(Check({"good.dat", "bad.dat"}, store, console), ExitStatus::No);
}

} // namespace
} // namespace zelvor::cli
