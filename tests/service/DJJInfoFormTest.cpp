#include "service/DJJInfoForm.h"

#include "service/ServiceWindows.h"

namespace zelvor {
namespace {

class DJJInfoFormTest : public ServiceWindowTest {
protected:
    void TearDown() override { delete form; }

    void Open(Language language = Language::English) {
        form = new DJJInfoForm(rig.document, rig.service, language, rig.services);
        unloaded = std::make_unique<QSignalSpy>(form, &DJJInfoForm::Unloaded);
        ShowActive(*form);
    }
    std::string Text(const char* name) { return TextOf(*form, name); }
    void ExpectModel(std::uint8_t second, int first, const char* model, const char* frequency) {
        SetModel(static_cast<std::uint8_t>(first), second);
        const DJJInfoForm shown(rig.document, rig.service, Language::English, rig.services);
        EXPECT_EQ(TextOf(shown, "LabModel"), model) << int{second} << ' ' << first;
        EXPECT_EQ(TextOf(shown, "LabFreq"), frequency) << int{second} << ' ' << first;
    }
    void ExpectGone() {
        EXPECT_EQ(unloaded->count(), 1);
        RemoveClosed();
        EXPECT_TRUE(form.isNull());
    }

    QPointer<DJJInfoForm> form;
    std::unique_ptr<QSignalSpy> unloaded;
};

TEST_F(DJJInfoFormTest, TheWindowHasItsNamesAndTexts) {
    Open();
    EXPECT_EQ(form->objectName(), "DJJInfoForm");
    EXPECT_EQ(form->windowTitle(), "Radio Information");
    EXPECT_FALSE(form->isModal());
    EXPECT_EQ(Text("lblModelType"), "Model Type");
    EXPECT_EQ(Text("lblFrequency"), "Frequency");
    EXPECT_EQ(Text("lblSerialNum"), "Serial Number");
    EXPECT_EQ(Text("lblVersion"), "Version");
    EXPECT_EQ(Text("LabVersion"), "V1.0");
    EXPECT_EQ(Text("cmdClose"), "&Close");
    EXPECT_EQ(Text("cmdHelp"), "&Help");
    ExpectSpokenNames(*form);
}

TEST_F(DJJInfoFormTest, TheWindowSpeaksChinese) {
    Open(Language::Chinese);
    EXPECT_EQ(form->windowTitle(), "对讲机信息");
    EXPECT_EQ(Text("lblModelType"), "机型类型");
    EXPECT_EQ(Text("lblFrequency"), "频率");
    EXPECT_EQ(Text("lblSerialNum"), "序号");
    EXPECT_EQ(Text("lblVersion"), "版本");
    EXPECT_EQ(Text("LabVersion"), "V1.0");
    EXPECT_EQ(Text("cmdClose"), "关闭(&C)");
    EXPECT_EQ(Text("cmdHelp"), "帮助(&H)");
    ExpectSpokenNames(*form);
}

struct ModelRow {
    std::uint8_t second;
    int first;
    const char* model;
    const char* frequency;
};

const std::vector<ModelRow> Models{
    {0xF8, 1, "4618", "VHF: 136-174 MHz(M)"},    {0xF8, 33, "5618", "UHF: 450-490 MHz(M)"},
    {0xF8, 51, "5618", "UHF: 440-480 MHz(C)"},   {0xF8, 67, "5618", "UHF: 400-430 MHz(C2)"},
    {0xF8, 99, "5618", "UHF: 370-390 MHz(C5)"},  {0xF8, 83, "5618", "UHF: 350-370 MHz(C6)"},
    {0xF8, 115, "5618", "UHF: 400-470 MHz(C7)"}, {0xF9, 1, "4613", "VHF: 136-174 MHz(M)"},
    {0xF9, 0, "4613", "VHF: 136-174 MHz(K)"},    {0xF9, 32, "5613", "UHF: 450-490 MHz(K)"},
    {0xF9, 112, "5613", "UHF: 470-512 MHz(K2)"}, {0xF9, 33, "5613", "UHF: 450-490 MHz(M)"},
    {0xF9, 113, "5613", "UHF: 470-512 MHz(M2)"}, {0xFC, 1, "4617", "VHF: 136-174 MHz(M)"},
    {0xFC, 33, "5617", "VHF: 450-490 MHz(M)"},   {0xFC, 65, "5617", "VHF: 400-430 MHz(M3)"},
};

TEST_F(DJJInfoFormTest, ModelAndRangeAreThoseOfTheDocument) {
    for (const ModelRow& row : Models) {
        ExpectModel(row.second, row.first, row.model, row.frequency);
    }
}

TEST_F(DJJInfoFormTest, AKnownFamilyWithAnUnknownMarketShowsNeither) {
    for (const std::uint8_t second : {0xF8, 0xF9, 0xFC}) {
        for (int first = 0; first <= 0xFF; ++first) {
            const bool isListed = std::any_of(Models.begin(), Models.end(), [&](const ModelRow& row) {
                return row.second == second && row.first == first;
            });
            if (!isListed) {
                ExpectModel(second, first, "", "");
            }
        }
    }
}

TEST_F(DJJInfoFormTest, AnUnknownFamilyShowsOneModel) {
    for (const std::uint8_t second : {0x00, 0x01, 0x7F, 0xF7, 0xFA, 0xFB, 0xFD, 0xFE, 0xFF}) {
        for (const int first : {0, 1, 33, 51, 115, 255}) {
            ExpectModel(second, first, "4613", "VHF: 136-174 MHz(K)");
        }
    }
}

TEST_F(DJJInfoFormTest, TheSerialNumberIsTheRadios) {
    auto& record = rig.service.RadioInfoRecord;
    record.fill('x');
    record[13] = 'A';
    for (std::size_t i = 0; i < 8; ++i) {
        record[17 + i] = static_cast<std::uint8_t>("01234567"[i]);
    }
    Open();
    EXPECT_EQ(Text("LabSN"), " A 01234567");
}

TEST_F(DJJInfoFormTest, SerialNumberBytesAreCharactersOfTheWesternCodePage) {
    auto& record = rig.service.RadioInfoRecord;
    record[13] = 0x80;
    for (std::size_t i = 0; i < 8; ++i) {
        record[17 + i] = static_cast<std::uint8_t>("<b>&\xE9\xFF\xA9 "[i]);
    }
    Open();
    EXPECT_EQ(Text("LabSN"), " € <b>&éÿ© ");
}

TEST_F(DJJInfoFormTest, TheButtonClosesIt) {
    Open();
    Click(*form, "cmdClose");
    ExpectGone();
}

TEST_F(DJJInfoFormTest, EnterPressesTheCloseButton) {
    Open();
    QTest::keyPress(QApplication::focusWidget(), Qt::Key_Return);
    ExpectGone();
}

TEST_F(DJJInfoFormTest, EscapeClosesIt) {
    Open();
    QTest::keyPress(form, Qt::Key_Escape);
    ExpectGone();
}

TEST_F(DJJInfoFormTest, ClosingByTheFrameIsToldToo) {
    Open();
    CloseByFrame(*form);
    ExpectGone();
}

TEST_F(DJJInfoFormTest, ClosingTwiceIsToldOnce) {
    Open();
    form->close();
    form->close();
    ExpectGone();
}

TEST_F(DJJInfoFormTest, TheHelpButtonAndTheHelpKeyOpenItsTopic) {
    const std::string folder = FromQString(QCoreApplication::applicationDirPath());
    Open();
    Click(*form, "cmdHelp");
    EXPECT_EQ(rig.help.Topics(), std::vector<std::string>{folder + "\\Zelvor_e.chm::/html/radioinfo.htm"});
    QTest::keyClick(form, Qt::Key_F1);
    EXPECT_EQ(rig.help.Topics().size(), 2U);
    delete form;
    Open(Language::Chinese);
    Click(*form, "cmdHelp");
    EXPECT_EQ(rig.help.Topics().back(), folder + "\\Zelvor_c.chm::/html/radioinfo.htm");
}

} // namespace
} // namespace zelvor
