#include "cli/ShowCommand.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "cli/CliFixture.h"
#include "cli/TextTable.h"

namespace zelvor::cli {
namespace {

class ShowTest : public CliTest {
protected:
    ShowTest() { Put("a.dat", Programmed()); }
};

TEST_F(ShowTest, PrintsTheFieldsOfASectionAsTheReportSaysThem) {
    EXPECT_EQ(Show({.files = {"a.dat"}, .sections = {"keys", "scan"}}, store, console), ExitStatus::Done);
    EXPECT_EQ(Out(), "Key Assignment\n"
                     "  PF1: None\n"
                     "  PF2: Squelch Off Momentary\n"
                     "Scan Information\n"
                     "  Priority: None\n"
                     "  Priority Channel: ---\n"
                     "  Look Back Time A [s]: 2.00\n"
                     "  Look Back Time B [s]: 3.00\n"
                     "  Revert Channel: Selected + Talk Back\n"
                     "  Dropout Delay Time [s]: 3\n"
                     "  Tx Dwell Time [s]: 3\n");
    EXPECT_EQ(Err(), "");
}

TEST_F(ShowTest, PrintsTheProgrammedChannelsAsATable) {
    EXPECT_EQ(Show({.files = {"a.dat"}, .sections = {"channels"}}, store, console), ExitStatus::Done);
    EXPECT_EQ(
        Out(),
        "Channel Information\n"
        "  Channel  Receive Frequency  Transmit Frequency  QT/DQT Decode  QT/DQT Encode  TX Power  Wide/Narrow  "
        "Scan Add  Option Signalling  PTT ID  SP Unmute  Busy Channel Lockout  Autodial Memory  Beat Shift  "
        "Compander\n"
        "  2        145.12500          145.12500           88.2           D023N          High      Wide         "
        "yes       None               Off     Carrier    Off                   1                no          no\n"
        "  16       150.00000                              None           None           High      Wide         "
        "no        None               Off     Carrier    Off                   1                no          no\n");
}

TEST_F(ShowTest, PrintsEverySectionWithoutAChoiceAndTheModelInTheLanguage) {
    EXPECT_EQ(Show({.files = {"a.dat"}, .sections = {}}, store, chinese), ExitStatus::Done);
    const std::string text = Out();
    std::size_t place = 0;
    for (const char* title : {"可选功能\n", "键设定\n", "扫描信息\n", "DTMF(双音多频)\n", "Corvane(科瓦讯)\n",
                              "测试频率\n", "嵌入信息\n", "信道信息\n", "  机型类型: 4618\n", "  市场: M\n"}) {
        const std::size_t found = text.find(title, place);
        EXPECT_NE(found, std::string::npos) << title;
        place = found;
    }
}

TEST_F(ShowTest, SaysUnknownForAnUnknownModel) {
    DataImage image = Blank();
    image.Set(0x1BE, 0x00);
    Put("a.dat", image);
    EXPECT_EQ(Show({.files = {"a.dat"}, .sections = {"identity"}}, store, console), ExitStatus::Done);
    EXPECT_EQ(Out(), "Model Information\n  Model Type: unknown\n  Market: unknown\n");
}

TEST_F(ShowTest, GoesOnBehindAFileThatIsNoneAndNamesEach) {
    store.Put("short.dat", "RQ6152");
    Put("b.dat", Blank());
    EXPECT_EQ(Show({.files = {"a.dat", "short.dat", "gone.dat", "b.dat"}, .sections = {"identity"}}, store, console),
              ExitStatus::File);
    EXPECT_EQ(Out(), "a.dat:\nModel Information\n  Model Type: 4618\n  Market: M\n"
                     "b.dat:\nModel Information\n  Model Type: 4618\n  Market: M\n");
    EXPECT_EQ(Err(), "zelvor-cli: short.dat: is no data file\nzelvor-cli: gone.dat: cannot be read\n");
    EXPECT_EQ(Show({.files = {"gone.dat"}, .sections = {}}, store, chinese), ExitStatus::File);
    EXPECT_EQ(Err(), "zelvor-cli: gone.dat: 无法读取\n");
}

TEST_F(ShowTest, IsOneJsonDocumentForAllFilesInEnglish) {
    Put("b.dat", Blank());
    EXPECT_EQ(Show({.files = {"a.dat", "gone.dat", "b.dat"}, .sections = {}, .json = true}, store, chinese),
              ExitStatus::File);
    QJsonParseError error;
    const QJsonArray files =
        QJsonDocument::fromJson(QByteArray::fromStdString(Out()), &error).object()["files"].toArray();
    ASSERT_EQ(error.error, QJsonParseError::NoError);
    ASSERT_EQ(files.size(), 2);
    EXPECT_EQ(files[0]["file"].toString(), "a.dat");
    const QJsonObject sections = files[0]["sections"].toObject();
    EXPECT_EQ(sections.keys(),
              (QStringList{"channels", "corvane", "dtmf", "identity", "keys", "message", "optional", "scan", "test"}));
    EXPECT_EQ(sections["optional"]["optional.battery-save"].toString(), "Off");
    EXPECT_EQ(sections["scan"].toObject().size(), 7);
    EXPECT_EQ(sections["identity"]["identity.market"].toString(), "M");
    ASSERT_EQ(sections["channels"].toArray().size(), 2);
    EXPECT_EQ(sections["channels"][0]["channel"].toInt(), 2);
    EXPECT_EQ(sections["channels"][0]["rx_mhz"].toString(), "145.12500");
    EXPECT_EQ(sections["channels"][0]["power"].toString(), "High");
    EXPECT_EQ(sections["channels"][0].toObject().size(), 15);
    EXPECT_EQ(files[1]["sections"]["channels"].toArray().size(), 0);
}

TEST_F(ShowTest, KeepsEveryValueToItsLine) {
    DataImage image = Blank();
    testing::StoreHex(image, 0x300, "410A1B5B7FE9FF");
    Put("a.dat", image);
    EXPECT_EQ(Show({.files = {"a.dat"}, .sections = {"message"}}, store, console), ExitStatus::Done);
    EXPECT_EQ(Out(), "Embedded Message\n  Line 1: A␊␛[␡é\n  Line 2: \n");
}

TEST(TextTable, CountsAChineseCharacterAsTwoColumns) {
    EXPECT_EQ(DisplayWidth("Wide"), 4U);
    EXPECT_EQ(DisplayWidth("宽带/窄带"), 9U);
    std::ostringstream out;
    PrintTable(out, {{"信道", "x"}, {"1", "y"}});
    EXPECT_EQ(out.str(), "信道  x\n1     y\n");
}

} // namespace
} // namespace zelvor::cli
