#include "cli/FieldCommands.h"

#include <algorithm>

#include "cli/CliFixture.h"

namespace zelvor::cli {
namespace {

class FieldCommandsTest : public CliTest {
protected:
    FieldCommandsTest() { Put("a.dat", Programmed()); }

    ExitStatus SetIn(const std::vector<std::string>& arguments, const std::optional<std::string>& output = {}) {
        return Set(ReadSetArguments(arguments, output), store, console);
    }
};

TEST_F(FieldCommandsTest, KeysListsEveryFieldWithWhatItTakes) {
    EXPECT_EQ(ListKeys(console), ExitStatus::Done);
    const std::string text = Out();
    EXPECT_EQ(std::ranges::count(text, '\n'), 107 + 16 * 14 + 2);
    EXPECT_TRUE(text.starts_with("optional.time-out-timer\toptional\t0x130\t15 to 600 by 15\tTime Out Timer(TOT)[s]\t"
                                 "超时定时器(TOT)[秒]\n"));
    for (const char* line :
         {"optional.time-out-pre-alert\toptional\t0x131\tOff; 1 to 10 by 1\t",
          "dtmf.id-code\tdtmf\t0x120\t3 to 10 digits\t", "dtmf.stun-code\tdtmf\t0x1F0\t3 to 10 DTMF digits; empty\t",
          "message.line.2\tmessage\t0x320\t1 to 32 characters; empty\tLine 2\t行 2\n",
          "channels.1.decode\tchannels\t0x018\tNone; 67.0 to 254.1 by 0.1; D000N to D777I by 1\t",
          "identity.model\tidentity\t0x1B8\t4618, 5618, 4613, 5613, 4617, 5617\tModel Type\t机型类型\n"}) {
        EXPECT_NE(text.find(line), std::string::npos) << line;
    }
    EXPECT_EQ(ListKeys(chinese), ExitStatus::Done);
    EXPECT_NE(Out().find("15 至 600"), std::string::npos);
}

TEST_F(FieldCommandsTest, GetPrintsALineForEachKeyInItsOrder) {
    EXPECT_EQ(
        Get({"a.dat", {"optional.beep", "channels.2.encode", "channels.1.power", "identity.model"}}, store, console),
        ExitStatus::Done);
    EXPECT_EQ(Out(), "optional.beep=On\nchannels.2.encode=D023N\nchannels.1.power=\nidentity.model=4618\n");
    EXPECT_EQ(Get({"a.dat", {"optional.beep"}}, store, chinese), ExitStatus::Done);
    EXPECT_EQ(Out(), "optional.beep=开\n");
}

TEST_F(FieldCommandsTest, GetOfAnUnknownKeyIsWrongUsageAndPrintsNothing) {
    EXPECT_EQ(Get({"a.dat", {"optional.beep", "optional.boop"}}, store, console), ExitStatus::Usage);
    EXPECT_EQ(Out(), "");
    EXPECT_EQ(Err(), "zelvor-cli: optional.boop: there is no such key; \"zelvor-cli keys\" lists them\n");
    EXPECT_EQ(Get({"gone.dat", {"optional.beep"}}, store, console), ExitStatus::File);
}

TEST_F(FieldCommandsTest, SetTakesFilesAndAssignmentsApart) {
    const SetRequest request = ReadSetArguments({"a.dat", "k=1", "./b=c.dat", "m==", "x/y=z"}, "o.dat");
    EXPECT_EQ(request.files, (std::vector<std::string>{"a.dat", "./b=c.dat", "x/y=z"}));
    ASSERT_EQ(request.assignments.size(), 2U);
    EXPECT_EQ(request.assignments[0].key, "k");
    EXPECT_EQ(request.assignments[0].value, "1");
    EXPECT_EQ(request.assignments[1].key, "m");
    EXPECT_EQ(request.assignments[1].value, "=");
    EXPECT_EQ(request.output, "o.dat");
}

TEST_F(FieldCommandsTest, SetChangesItsFieldsAndNoOtherByteOfTheFile) {
    std::string content = ContentOf(Programmed());
    content.replace(6, 10, "0123456789"); // reserved
    store.Put("a.dat", content);
    Put("b.dat", Blank());
    EXPECT_EQ(SetIn({"a.dat", "b.dat", "optional.time-out-timer=75", "message.line.1=a=b"}), ExitStatus::Done);
    content[16 + 0x130] = 5;
    content.replace(16 + 0x300, 3, "a=b");
    EXPECT_EQ(store.Content("a.dat"), content);
    DataImage expected = Blank();
    testing::StoreHex(expected, 0x130, "05");
    testing::StoreHex(expected, 0x300, "613D62");
    EXPECT_TRUE(ImageIn("b.dat") == expected);
    EXPECT_EQ(Out() + Err(), "");
}

TEST_F(FieldCommandsTest, SetWritesToAnotherFileWhereOneIsNamed) {
    const std::string before = store.Content("a.dat");
    store.Put("o.dat", std::string(2000, 'x')); // longer than a data file
    EXPECT_EQ(SetIn({"a.dat", "optional.beep=Off"}, "o.dat"), ExitStatus::Done);
    EXPECT_EQ(store.Content("a.dat"), before);
    DataImage expected = Programmed();
    expected.Set(0x136, 0);
    EXPECT_EQ(store.Content("o.dat"), ContentOf(expected));
}

TEST_F(FieldCommandsTest, SetRefusesWhatTheDialogWouldCorrectAndThenWritesNoFileAtAll) {
    Put("b.dat", Blank());
    const std::string a = store.Content("a.dat");
    const std::string b = store.Content("b.dat");
    EXPECT_EQ(SetIn({"a.dat", "optional.squelch-level=10", "optional.time-out-timer=16", "optional.beep=Off"}),
              ExitStatus::File);
    EXPECT_EQ(Err(), "zelvor-cli: a.dat: optional.squelch-level: \"10\" is none of: 0 to 9 by 1\n"
                     "zelvor-cli: a.dat: optional.time-out-timer: \"16\" is none of: 15 to 600 by 15\n");
    // Only one of the two has the channel.
    EXPECT_EQ(SetIn({"a.dat", "b.dat", "channels.2.power=Low"}), ExitStatus::File);
    EXPECT_EQ(Err(),
              "zelvor-cli: b.dat: channels.2.power: the channel is blank, and takes a receive frequency first\n");
    EXPECT_EQ(store.Content("a.dat"), a);
    EXPECT_EQ(store.Content("b.dat"), b);
}

TEST_F(FieldCommandsTest, SetTellsWhyAChannelDoesNotTakeAValue) {
    EXPECT_EQ(SetIn({"a.dat", "channels.2.rx_mhz=145.123"}), ExitStatus::File);
    EXPECT_EQ(Err(), "zelvor-cli: a.dat: channels.2.rx_mhz: \"145.123\" is no multiple of 5 kHz or 6.25 kHz\n");
    EXPECT_EQ(SetIn({"a.dat", "channels.2.tx_mhz=600"}), ExitStatus::File);
    EXPECT_EQ(Err(), "zelvor-cli: a.dat: channels.2.tx_mhz: \"600\" is outside the range in MHz of 100-550\n");
    EXPECT_EQ(SetIn({"a.dat", "channels.2.tx_mhz=high"}), ExitStatus::File);
    EXPECT_EQ(Err(), "zelvor-cli: a.dat: channels.2.tx_mhz: \"high\" is no frequency in MHz\n");
    EXPECT_EQ(SetIn({"a.dat", "channels.2.ptt_id=Own"}), ExitStatus::File);
    EXPECT_EQ(Err(), "zelvor-cli: a.dat: channels.2.ptt_id: \"Own\" is none of: Off, On\n");
    EXPECT_EQ(SetIn({"a.dat", "identity.model=5618"}), ExitStatus::File);
    EXPECT_EQ(Err(),
              "zelvor-cli: a.dat: identity.model: the identity cannot be set; \"zelvor-cli new\" makes an image of "
              "another model\n");
}

TEST_F(FieldCommandsTest, SetTellsWhyATextOrATestFrequencyIsRefused) {
    DataImage image = Programmed();
    image.Set(0x1BE, 0xFF); // without a model the limits are narrower
    Put("b.dat", image);
    const std::string before = store.Content("a.dat");
    const auto expectRefused = [&](const char* file, const char* assignment, const std::string& told) {
        EXPECT_EQ(SetIn({file, assignment}), ExitStatus::File) << assignment;
        EXPECT_EQ(Err(), std::string("zelvor-cli: ") + file + ": " + told + '\n');
    };
    expectRefused("a.dat", "optional.begin-of-tx=abcd",
                  "optional.begin-of-tx: \"abcd\" has other characters than 0 to 9, A to D, * and #");
    expectRefused("a.dat", "dtmf.id-code=12A", "dtmf.id-code: \"12A\" has other characters than 0 to 9");
    expectRefused("a.dat", "dtmf.id-code=12", "dtmf.id-code: \"12\" is none of: 3 to 10 digits");
    expectRefused("a.dat", "message.line.1=日本", "message.line.1: \"日本\" has characters that cannot be stored");
    expectRefused("a.dat", "test.1.receive=600", "test.1.receive: \"600\" is outside the range in MHz of 100-550");
    expectRefused("b.dat", "test.1.receive=180", "test.1.receive: \"180\" is outside the range in MHz of 136-174");
    expectRefused("a.dat", "test.1.transmit=145.123",
                  "test.1.transmit: \"145.123\" is no multiple of 5 kHz or 6.25 kHz");
    EXPECT_EQ(store.Content("a.dat"), before);
    EXPECT_EQ(SetIn({"a.dat", "test.1.receive=145", "optional.begin-of-tx=ABCD"}), ExitStatus::Done);
    EXPECT_EQ(store.Content("a.dat").substr(16 + 0x280, 4), std::string("\x00\x00\x50\x14", 4));
    EXPECT_EQ(store.Content("a.dat").substr(16 + 0x140, 5), "ABCD\xFF");
}

TEST_F(FieldCommandsTest, SetRefusesValuesThatDoNotGoTogetherInTheEnd) {
    const std::string before = store.Content("a.dat");
    const auto expectRefused = [&](const std::vector<std::string>& assignments, const std::string& told) {
        std::vector<std::string> arguments{"a.dat"};
        arguments.insert(arguments.end(), assignments.begin(), assignments.end());
        EXPECT_EQ(SetIn(arguments), ExitStatus::File) << assignments.front();
        EXPECT_EQ(Err(), "zelvor-cli: a.dat: " + told + '\n');
        EXPECT_EQ(store.Content("a.dat"), before);
    };
    const std::string half = ": of the own fleet and the own ID only one is set";
    expectRefused({"corvane.own-fleet=100"}, "corvane.own-fleet" + half);
    expectRefused({"corvane.own-id=1000"}, "corvane.own-id" + half);
    expectRefused({"corvane.fleet-list.8.id=All"},
                  "corvane.fleet-list.8.id: of the entry's fleet and ID only one is set");
    expectRefused({"channels.16.encode=88.5"},
                  "channels.16.encode: the channel has an encode tone and no transmit frequency");
    expectRefused({"channels.2.tx_mhz="},
                  "channels.2.tx_mhz: the channel has an encode tone and no transmit frequency");
    expectRefused({"scan.priority-channel=3"}, "scan.priority-channel: the priority channel is not programmed");
    expectRefused({"scan.priority=Fixed", "scan.priority-channel=3"},
                  "scan.priority-channel: the priority channel is not programmed");
    const std::string notOffered = ": the priority mode does not offer this revert channel";
    expectRefused({"scan.revert-channel=Priority"}, "scan.revert-channel" + notOffered);
    expectRefused({"scan.priority=Selected"}, "scan.priority" + notOffered);
    expectRefused({"scan.priority=Selected", "scan.revert-channel=Selected"}, "scan.priority" + notOffered);
}

TEST_F(FieldCommandsTest, SetJudgesItsAssignmentsTogether) {
    EXPECT_EQ(SetIn({"a.dat", "corvane.own-fleet=100", "corvane.own-id=1000", "corvane.fleet-list.1.id=1001",
                     "corvane.fleet-list.1.fleet=All"}),
              ExitStatus::Done);
    EXPECT_EQ(SetIn({"a.dat", "channels.16.encode=88.5", "channels.16.tx_mhz=150"}), ExitStatus::Done);
    EXPECT_EQ(SetIn({"a.dat", "channels.2.tx_mhz=", "channels.2.encode=None"}), ExitStatus::Done);
    EXPECT_EQ(SetIn({"a.dat", "scan.revert-channel=Priority", "scan.priority=Selected"}), ExitStatus::Done);
    EXPECT_EQ(SetIn({"a.dat", "scan.priority=Fixed", "scan.priority-channel=3", "channels.3.rx_mhz=146"}),
              ExitStatus::Done);
    EXPECT_EQ(Err(), "");
    const std::string before = store.Content("a.dat");
    EXPECT_EQ(SetIn({"a.dat", "corvane.own-fleet="}), ExitStatus::File);
    EXPECT_EQ(SetIn({"a.dat", "channels.3.rx_mhz="}), ExitStatus::File);
    EXPECT_EQ(Err(), "zelvor-cli: a.dat: corvane.own-fleet: of the own fleet and the own ID only one is set\n"
                     "zelvor-cli: a.dat: channels.3.rx_mhz: the priority channel is not programmed\n");
    EXPECT_EQ(store.Content("a.dat"), before);
    EXPECT_EQ(SetIn({"a.dat", "corvane.own-fleet=", "corvane.own-id="}), ExitStatus::Done);
}

TEST_F(FieldCommandsTest, SetLeavesAloneWhatDidNotGoTogetherBefore) {
    DataImage image = Programmed();
    image.Set(0x170, 1);    // an own fleet without an own ID
    image.Set(0x164, 3);    // a revert channel of another priority mode
    image.Set(0x161, 9);    // a priority channel that is blank
    image.Set(0x1C0, 0x01); // an entry without an ID
    testing::StoreHex(image, 0x024, "FFFFFFFF");
    Put("a.dat", image);
    EXPECT_EQ(SetIn({"a.dat", "optional.beep=Off", "channels.2.power=Low", "optional.ptt-id=Both",
                     "channels.2.ptt_id=On"}), // a missing code is no matter of its own
              ExitStatus::Done);
    EXPECT_EQ(Err(), "");
    EXPECT_EQ(SetIn({"a.dat", "corvane.own-fleet=101"}), ExitStatus::File);
    EXPECT_EQ(SetIn({"a.dat", "corvane.own-id=1000"}), ExitStatus::Done);
}

TEST_F(FieldCommandsTest, SetStoresInOrderSoThatAChannelCanBeMade) {
    EXPECT_EQ(SetIn({"a.dat", "channels.5.rx_mhz=146", "channels.5.tx_mhz=146.6", "channels.5.encode=88.5"}),
              ExitStatus::Done);
    DataImage expected = Programmed();
    testing::StoreHex(expected, 0x050, "0000601400006614FFFF750300BFB0F8");
    expected.Set(0x17E, 0x12);
    EXPECT_TRUE(ImageIn("a.dat") == expected);
}

TEST_F(FieldCommandsTest, SetOfTooLittleOrTooMuchIsWrongUsage) {
    EXPECT_EQ(SetIn({"a.dat"}), ExitStatus::Usage);
    EXPECT_EQ(Err(), "zelvor-cli: no KEY=VALUE is given\n");
    EXPECT_EQ(SetIn({"optional.beep=Off"}), ExitStatus::Usage);
    EXPECT_EQ(Err(), "zelvor-cli: no file is named\n");
    EXPECT_EQ(SetIn({"a.dat", "b.dat", "optional.beep=Off"}, "o.dat"), ExitStatus::Usage);
    EXPECT_EQ(Err(), "zelvor-cli: -o goes with one file only\n");
    EXPECT_EQ(SetIn({"a.dat", "optional.boop=Off"}), ExitStatus::Usage);
    Err();
    EXPECT_EQ(SetIn({"a.dat", "optional.beep=Off", "optional.vox-gain-level=3", "optional.beep=On"}, "o.dat"),
              ExitStatus::Usage);
    EXPECT_EQ(Err(), "zelvor-cli: optional.beep: the key is given twice\n");
    EXPECT_FALSE(store.Has("o.dat"));
}

TEST_F(FieldCommandsTest, SetGoesOnBehindAFileThatCannotBeReadOrWritten) {
    Put("b.dat", Blank());
    EXPECT_EQ(SetIn({"gone.dat", "b.dat", "optional.beep=Off"}), ExitStatus::File);
    EXPECT_EQ(Err(), "zelvor-cli: gone.dat: cannot be read\n");
    EXPECT_EQ(ImageIn("b.dat").At(0x136), 0);
    store.Refuse("o.dat");
    EXPECT_EQ(SetIn({"b.dat", "optional.beep=On"}, "o.dat"), ExitStatus::File);
    EXPECT_EQ(Err(), "zelvor-cli: o.dat: cannot be written\n");
}

} // namespace
} // namespace zelvor::cli
