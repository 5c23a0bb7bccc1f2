#include "cli/ChannelCommands.h"

#include "cli/ChannelSheet.h"
#include "cli/CliFixture.h"

namespace zelvor::cli {
namespace {

class ChannelCommandsTest : public CliTest {
protected:
    ChannelCommandsTest() { Put("a.dat", Programmed()); }
};

TEST_F(ChannelCommandsTest, ExportGoesToStandardOutputOrToAFile) {
    EXPECT_EQ(ExportChannels({"a.dat", {}}, store, chinese), ExitStatus::Done);
    EXPECT_EQ(Out(), ExportChannels(Programmed()));
    store.Put("c.csv", std::string(5000, 'x'));
    EXPECT_EQ(ExportChannels({"a.dat", "c.csv"}, store, console), ExitStatus::Done);
    EXPECT_EQ(Out(), "");
    EXPECT_EQ(store.Content("c.csv"), ExportChannels(Programmed()));
    store.Refuse("d.csv");
    EXPECT_EQ(ExportChannels({"a.dat", "d.csv"}, store, console), ExitStatus::File);
    EXPECT_EQ(ExportChannels({"gone.dat", {}}, store, console), ExitStatus::File);
    EXPECT_EQ(Err(), "zelvor-cli: d.csv: cannot be written\nzelvor-cli: gone.dat: cannot be read\n");
}

TEST_F(ChannelCommandsTest, NeitherGoesOverWhatItReads) {
    store.Put("c.csv", "channel,power\n2,Low\n");
    EXPECT_EQ(ExportChannels({"a.dat", "a.dat"}, store, console), ExitStatus::Usage);
    EXPECT_EQ(ImportChannels({"a.dat", "c.csv", "c.csv"}, store, chinese), ExitStatus::Usage);
    EXPECT_EQ(Err(), "zelvor-cli: a.dat: is what the command reads; the output must be another file\n"
                     "zelvor-cli: c.csv: 是命令要读取的文件；输出须为另一个文件\n");
    EXPECT_EQ(store.Content("a.dat"), ContentOf(Programmed()));
    EXPECT_EQ(store.Content("c.csv"), "channel,power\n2,Low\n");
}

TEST_F(ChannelCommandsTest, ImportGoesInPlaceOrToAFileAndKeepsTheRest) {
    std::string content = ContentOf(Programmed());
    content.replace(6, 10, "0123456789"); // reserved
    store.Put("a.dat", content);
    store.Put("c.csv", "channel,power\n2,Low\n");
    std::string expected = content;
    expected[16 + 0x02D] = static_cast<char>(0x9F);
    EXPECT_EQ(ImportChannels({"a.dat", "c.csv", "b.dat"}, store, console), ExitStatus::Done);
    EXPECT_EQ(store.Content("a.dat"), content);
    EXPECT_EQ(store.Content("b.dat"), expected);
    EXPECT_EQ(ImportChannels({"a.dat", "c.csv", {}}, store, console), ExitStatus::Done);
    EXPECT_EQ(store.Content("a.dat"), expected);
    EXPECT_EQ(Out() + Err(), "");
}

TEST_F(ChannelCommandsTest, ImportTellsAllFaultsInTheOrderOfTheirLinesAndWritesNothing) {
    store.Put("c.csv", "channel,power,width\n2,Low,Broad\n2,High,Wide\n16,Hi\x1B,Wide\n");
    EXPECT_EQ(ImportChannels({"a.dat", "c.csv", {}}, store, console), ExitStatus::File);
    EXPECT_EQ(Err(), "zelvor-cli: c.csv:2:width: \"Broad\" is none of: Wide, Narrow\n"
                     "zelvor-cli: c.csv:3:channel: the channel stands already in line 2\n"
                     "zelvor-cli: c.csv:4:power: \"Hi␛\" is none of: High, Low\n");
    EXPECT_EQ(store.Content("a.dat"), ContentOf(Programmed()));
    EXPECT_EQ(ImportChannels({"a.dat", "c.csv", "b.dat"}, store, chinese), ExitStatus::File);
    EXPECT_EQ(Err(), "zelvor-cli: c.csv:2:width: \"Broad\" 不属于：Wide, Narrow\n"
                     "zelvor-cli: c.csv:3:channel: 此信道已出现在第 2 行\n"
                     "zelvor-cli: c.csv:4:power: \"Hi␛\" 不属于：High, Low\n");
    EXPECT_FALSE(store.Has("b.dat"));
}

TEST_F(ChannelCommandsTest, ImportOfWhatCannotBeReadTellsOfBoth) {
    EXPECT_EQ(ImportChannels({"gone.dat", "gone.csv", {}}, store, console), ExitStatus::File);
    EXPECT_EQ(Err(), "zelvor-cli: gone.dat: cannot be read\nzelvor-cli: gone.csv: cannot be read\n");
    store.Put("c.csv", std::string(1024 * 1024 + 1, ','));
    EXPECT_EQ(ImportChannels({"a.dat", "c.csv", {}}, store, console), ExitStatus::File);
    EXPECT_EQ(Err(), "zelvor-cli: c.csv: is too large for a table of channels\n");
}

} // namespace
} // namespace zelvor::cli
