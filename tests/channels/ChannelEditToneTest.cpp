#include "ChannelEditFixture.h"

namespace zelvor {
namespace {

struct Tone {
    const char* typed;
    std::string stored;
};
constexpr int ToneByte = 8;

TEST_F(ChannelEditTest, LeavingAToneNormalisesItIntoGridAndRecord) {
    const Tone tones[] = {{"D23", "D230N"},   {"D9", "D700N"},    {"N", "67.0"},      {"300", "254.1"},
                          {"100.0", "100.0"}, {"d754i", "D754I"}, {"", "None"},       {"D", "D000N"},
                          {"i", "67.0"},      {"12", "67.0"},     {"D.1.2", "D010N"}, {"254.1", "254.1"},
                          {"67.19", "67.1"}};
    PutAll(SimplexRecord);
    ShowBoth();
    struct Side {
        const char* list;
        int column;
    };
    for (const Side side : {Side{"ComDecode", 3}, Side{"ComEncode", 4}}) {
        for (const Tone& tone : tones) {
            Replace(side.list, tone.typed);
            Key(Qt::Key_Return);
            EXPECT_EQ(Shown(side.list), tone.stored) << tone.typed;
            EXPECT_EQ(Cell(1, side.column), tone.stored) << tone.typed;
        }
    }
}

TEST_F(ChannelEditTest, ATypedToneIsEncoded) {
    PutAll(SimplexRecord);
    ShowBoth(2);
    Replace("ComEncode", "D754I");
    Key(Qt::Key_Tab);
    EXPECT_TRUE(Combo("ComSelSignal").hasFocus());
    EXPECT_EQ(Byte(2, ToneByte + 2), 0xEC);
    EXPECT_EQ(Byte(2, ToneByte + 3), 0xA9);
    Replace("ComDecode", "100");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Byte(2, ToneByte), 0xE8);
    EXPECT_EQ(Byte(2, ToneByte + 1), 0x03);
    EXPECT_EQ(windows.Cursor.CurrentChannel(), 2);
}

TEST_F(ChannelEditTest, TheToneListsTakeTheSameKeysAsTheGridsEditor) {
    PutAll(SimplexRecord);
    ShowBoth();
    Replace("ComDecode", "d0x2 3n7");
    EXPECT_EQ(Shown("ComDecode"), "D023N");
    Key(Qt::Key_Backspace);
    EXPECT_EQ(Shown("ComDecode"), "D023");
    Combo("ComDecode").lineEdit()->selectAll();
    QApplication::clipboard()->setText("zz67.01234");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Shown("ComDecode"), "67.01");
}

TEST_F(ChannelEditTest, ATypedToneChangesTheDependentListsOnLeaving) {
    PutAll(SimplexRecord);
    ShowBoth();
    Replace("ComDecode", "71.9");
    Key(Qt::Key_Return);
    EXPECT_EQ(Entries("ComSPMute"), (std::vector<std::string>{"QT/DQT"}));
    EXPECT_EQ(Combo("ComBusyLock").count(), 3);
    Replace("ComDecode", "");
    Key(Qt::Key_Return);
    EXPECT_EQ(Shown("ComDecode"), "None");
    EXPECT_EQ(Entries("ComSPMute"), (std::vector<std::string>{"Carrier"}));
}

TEST_F(ChannelEditTest, AChosenToneGoesToTheGridAtOnceAndToTheRecordOnLeaving) {
    PutAll(SimplexRecord);
    ShowBoth();
    Pick("ComDecode", 2);
    EXPECT_EQ(Cell(1, 3), "71.9");
    EXPECT_EQ(Byte(1, ToneByte), 0xFF);
    Pick("ComEncode", 1);
    EXPECT_EQ(Byte(1, ToneByte), 0xCF);
    EXPECT_EQ(Cell(1, 4), "67.0");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Byte(1, ToneByte + 2), 0x9E);
}

TEST_F(ChannelEditTest, AnEmptiedToneIsTheChineseNoneInChinese) {
    PutAll(OtherRecord);
    ShowBoth(1, Language::Chinese);
    EXPECT_EQ(Shown("ComSPMute"), "QT/DQT+可选信令");
    Replace("ComDecode", "");
    Key(Qt::Key_Return);
    EXPECT_EQ(Shown("ComDecode"), "无");
    EXPECT_EQ(Cell(1, 3), "无");
    EXPECT_EQ(Byte(1, ToneByte + 1), 0xFF);
    EXPECT_EQ(Shown("ComSPMute"), "载波+可选信令");
}

} // namespace
} // namespace zelvor
