#include <QMenuBar>

#include "OptionalFormPttIdFixture.h"
#include "controls/PendingEdit.h"
#include "link/PreWriteChecks.h"

namespace zelvor {
namespace {

/// Both codes, and the kind of error that they are expected to give.
struct Codes {
    const char* begin;
    const char* end;
    int kind;
};

/// A PTT ID, which of its codes are enabled, and what is expected of all combinations of codes.
struct Choice {
    int pttId;
    bool begin;
    bool end;
    Codes codes[4];
};

// --- What is enabled, and the kind of error, by the PTT ID -----------------------------------------------------------

TEST_F(OptionalFormPttIdTest, TheChoiceOfThePttIdEnablesItsCodesAndTellsWhichIsMissing) {
    const Choice rows[] = {
        {Bot, true, false, {{"1", "1", 0}, {"1", "", 0}, {"", "1", 1}, {"", "", 1}}},
        {Eot, false, true, {{"1", "1", 0}, {"1", "", 2}, {"", "1", 0}, {"", "", 2}}},
        {Both, true, true, {{"1", "1", 0}, {"1", "", 2}, {"", "1", 1}, {"", "", 3}}},
    };
    for (const auto& row : rows) {
        for (const Codes& codes : row.codes) {
            Put(Dtmf, (row.pttId + 1) % 3, codes.begin, codes.end);
            Show();
            document.Flags.TxCodeErrorKind = 77;
            Take("cboPTTID", row.pttId);
            ExpectEnabled(row.begin, row.end);
            EXPECT_EQ(document.Flags.TxCodeErrorKind, codes.kind) << row.pttId << codes.begin << codes.end;
            EXPECT_EQ(At(0x132), (row.pttId + 1) % 3); // stored when left
            Key(Qt::Key_Tab);
            EXPECT_EQ(At(0x132), row.pttId);
            // And the same on opening.
            Show();
            ExpectEnabled(row.begin, row.end);
            EXPECT_EQ(document.Flags.TxCodeErrorKind, codes.kind);
        }
    }
}

TEST_F(OptionalFormPttIdTest, UnderCorvaneNoCodeIsEnabledAndTheKindStays) {
    for (const int pttId : {Bot, Eot, Both, 9}) {
        Put(Corvane, pttId, "", "");
        Show();
        ExpectEnabled(false, false);
        document.Flags.TxCodeErrorKind = 77;
        Take("cboPTTID", (pttId + 1) % 3);
        ExpectEnabled(false, false);
        EXPECT_EQ(document.Flags.TxCodeErrorKind, 77);
    }
}

TEST_F(OptionalFormPttIdTest, WithoutATypeTheChoiceOfThePttIdChangesNothing) {
    Put(2, Bot, "", "");
    Show();
    ExpectEnabled(true, true);
    document.Flags.TxCodeErrorKind = 77;
    Take("cboPTTID", Eot);
    ExpectEnabled(true, true);
    EXPECT_EQ(document.Flags.TxCodeErrorKind, 77);
}

// --- PTT ID Type -----------------------------------------------------------------------------------------------------

TEST_F(OptionalFormPttIdTest, ChoosingCorvaneStoresItAtOnceAndDisarmsTheCheckOfTheCodes) {
    Put(Dtmf, Both, "1", "");
    Show();
    document.Flags.OwnIdError = true;
    document.Flags.TxCodeErrorKind = 77;
    Take("cboPTTIDType", Corvane);
    EXPECT_EQ(At(0x133), 1);
    ExpectError(false, 77);
    EXPECT_TRUE(document.Flags.OwnIdError);
    ExpectEnabled(false, false);
}

TEST_F(OptionalFormPttIdTest, ChoosingDtmfArmsTheCheckAndTakesBackNoComplaint) {
    const Choice rows[] = {
        {Bot, true, false, {{"1", "1", 77}, {"1", "", 77}, {"", "1", 1}, {"", "", 1}}},
        {Eot, false, true, {{"1", "1", 77}, {"1", "", 2}, {"", "1", 77}, {"", "", 2}}},
        {Both, true, true, {{"1", "1", 77}, {"1", "", 2}, {"", "1", 1}, {"", "", 3}}},
    };
    for (const auto& row : rows) {
        for (const Codes& codes : row.codes) {
            Put(Corvane, row.pttId, codes.begin, codes.end);
            Show();
            document.Flags.OwnIdError = true;
            document.Flags.TxCodeError = false;
            document.Flags.TxCodeErrorKind = 77;
            Take("cboPTTIDType", Dtmf);
            EXPECT_EQ(At(0x133), 0);
            ExpectError(true, codes.kind);
            EXPECT_FALSE(document.Flags.OwnIdError);
            ExpectEnabled(row.begin, row.end);
        }
    }
}

TEST_F(OptionalFormPttIdTest, LeavingTheTypeArmsOrDisarmsTheCheckByWhatIsShown) {
    const struct {
        int type;
        bool before;
        bool after;
        int stored;
    } rows[] = {{Dtmf, false, true, 0},     {Dtmf, true, true, 0}, {Corvane, true, false, 1},
                {Corvane, false, false, 1}, {5, true, true, 255},  {5, false, false, 255}};
    for (const auto& row : rows) {
        Put(row.type, Bot, "1", "");
        Show();
        document.Flags.TxCodeError = row.before;
        PassThrough("cboPTTIDType");
        EXPECT_EQ(document.Flags.TxCodeError, row.after) << row.type;
        EXPECT_EQ(At(0x133), row.stored);
    }
}

// --- The flags -------------------------------------------------------------------------------------------------------

TEST_F(OptionalFormPttIdTest, OpeningArmsTheCheckUnderDtmfAndByCodesThatLackTheOther) {
    const struct {
        int type;
        int pttId;
        Codes codes;
        bool armed;
    } rows[] = {
        {Dtmf, Bot, {"1", "", 0}, true},     {Dtmf, Bot, {"", "", 1}, true},       {Dtmf, Both, {"1", "2", 0}, true},
        {Dtmf, Both, {"", "", 3}, true},     {Corvane, Both, {"", "", 77}, false}, // nothing but the type acts
        {Corvane, Both, {"1", "", 2}, true},                                       // the code's own rule
        {Corvane, Bot, {"", "1", 1}, true},  {Corvane, Bot, {"1", "1", 0}, true},  {4, Eot, {"", "", 77}, false},
        {4, Eot, {"1", "", 2}, true},
    };
    for (const auto& row : rows) {
        Put(row.type, row.pttId, row.codes.begin, row.codes.end);
        document.Flags.TxCodeError = false;
        document.Flags.TxCodeErrorKind = 77;
        document.Flags.OwnIdError = true;
        Load();
        ExpectError(row.armed, row.codes.kind);
        EXPECT_EQ(document.Flags.OwnIdError, row.type != Dtmf);
    }
}

TEST_F(OptionalFormPttIdTest, TakingTheFocusACodeArmsTheCheckIfItIsEmptyAndElseDisarmsIt) {
    Put(Dtmf, Both, "1", "");
    Show();
    document.Flags.TxCodeErrorKind = 77;
    Box(Begin).setFocus();
    ExpectError(false, 77);
    Box(End).setFocus();
    ExpectError(true, 77);
    Box(Begin).setFocus();
    ExpectError(false, 77);
}

TEST_F(OptionalFormPttIdTest, ACodeThatHasTheFocusBackFromElsewhereThanAControlDisarmsNothing) {
    Put(Dtmf, Both, "1", "");
    Show();
    Box(Begin).setFocus();
    Type("2");
    ExpectError(true, 2);
    CommitPendingEdit(*form); // as a write does, before it looks
    EXPECT_TRUE(Box(Begin).hasFocus());
    ExpectError(true, 2);
    QMenuBar menus(form.get());
    menus.show();
    menus.setFocus(Qt::MenuBarFocusReason);
    ASSERT_TRUE(menus.hasFocus());
    Box(Begin).setFocus(Qt::MenuBarFocusReason);
    ExpectError(true, 2);
    QLineEdit message;
    message.show();
    message.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&message));
    message.setFocus();
    ASSERT_TRUE(message.hasFocus());
    message.close();
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    ASSERT_TRUE(Box(Begin).hasFocus());
    ExpectError(true, 2);
    Find<QPushButton>("cmdClose").setFocus();
    Box(Begin).setFocus();
    ExpectError(false, 2);
}

TEST_F(OptionalFormPttIdTest, AClickIntoADisabledCodeDoesNothing) {
    Put(Corvane, Both, "", "1");
    Show();
    document.Flags.TxCodeError = false;
    document.Flags.TxCodeErrorKind = 77;
    document.Image.Set(0x141, 0x31); // an empty box would clear it
    for (const char* name : {Begin, End}) {
        QTest::mouseClick(&Box(name), Qt::LeftButton);
        ExpectError(false, 77);
    }
    EXPECT_EQ(Code(0x140), ".1..............");
}

TEST_F(OptionalFormPttIdTest, AChangeOfACodeArmsTheCheckWhileOneIsEmptyAndNamesTheMissingOnesByTheStoredPttId) {
    const struct {
        int pttId;
        int onlyBegin, onlyEnd, none; // kinds, by the codes that there are
    } rows[] = {{Bot, 0, 1, 1}, {Eot, 2, 0, 2}, {Both, 2, 1, 3}, {200, 0, 0, 0}};
    for (const auto& row : rows) {
        Put(Dtmf, Both, "", "");
        Show();
        document.Image.Set(0x132, static_cast<std::uint8_t>(row.pttId));
        Box(Begin).setFocus();
        document.Flags.TxCodeError = false;
        Type("1");
        ExpectError(true, row.onlyBegin);
        Key(Qt::Key_Backspace);
        ExpectError(true, row.none);
        Box(End).setFocus();
        document.Flags.TxCodeError = false;
        Type("1");
        ExpectError(true, row.onlyEnd);
        Box(Begin).setFocus();
        document.Flags.TxCodeErrorKind = 77;
        Type("2");
        ExpectError(true, 0); // armed by the focus of the empty box, and left so
        document.Flags.TxCodeError = false;
        Type("3");
        ExpectError(false, 0);
    }
}

TEST_F(OptionalFormPttIdTest, AClickIntoACodeDoesWhatAChangeDoes) {
    Put(Dtmf, Both, "1", "");
    Show();
    Box(Begin).setFocus();
    document.Flags.TxCodeErrorKind = 77;
    ExpectError(false, 77);
    QTest::mouseClick(&Box(Begin), Qt::RightButton);
    ExpectError(false, 77);
    QTest::mouseClick(&Box(Begin), Qt::LeftButton);
    ExpectError(true, 2);
    document.Image.Set(0x150, 0x31); // behind the window's back
    QTest::mouseClick(&Box(End), Qt::LeftButton);
    EXPECT_EQ(Code(0x150), "................");
}

// --- The write -------------------------------------------------------------------------------------------------------

constexpr const char* Head = "The following setting is incorrect.";

TEST_F(OptionalFormPttIdTest, AMissingCodeStopsTheWriteOnlyIfAChannelSendsIt) {
    Put(Dtmf, Bot, "", "");
    Show();
    EXPECT_FALSE(CheckBeforeWrite(document, windows.LanguageFlag).has_value());
    EXPECT_FALSE(document.Flags.TxCodeError);
    document.Image.Set(0x05E, 0xB1); // channel 5
    Take("cboPTTIDType", Corvane);
    Take("cboPTTIDType", Dtmf);
    const auto complaint = CheckBeforeWrite(document, windows.LanguageFlag);
    ASSERT_TRUE(complaint.has_value());
    EXPECT_EQ(complaint->text, "The following setting is incorrect.\r\n\"Begin of TX code\"");
    EXPECT_TRUE(document.Flags.TxCodeError);
}

TEST_F(OptionalFormPttIdTest, TheWriteNamesTheCodesThatAreMissing) {
    document.Image.Set(0x01E, 0xB1);
    const struct {
        int pttId;
        Codes codes;
        const char* names;
    } rows[] = {{Both, {"", "", 3}, "\r\n\"Begin of TX code\"\r\n\"End of TX code\""},
                {Both, {"1", "", 2}, "\r\n\r\n\"End of TX code\""},
                {Eot, {"1", "", 2}, "\r\n\r\n\"End of TX code\""},
                {Both, {"", "1", 1}, "\r\n\"Begin of TX code\""}};
    for (const auto& row : rows) {
        Put(Dtmf, row.pttId, row.codes.begin, row.codes.end);
        Load();
        const auto complaint = CheckBeforeWrite(document, windows.LanguageFlag);
        ASSERT_TRUE(complaint.has_value());
        EXPECT_EQ(complaint->text, std::string(Head) + row.names);
    }
    Put(Dtmf, Both, "1", "1");
    Load();
    EXPECT_FALSE(CheckBeforeWrite(document, windows.LanguageFlag).has_value());
    EXPECT_TRUE(document.Flags.TxCodeError);
}

} // namespace
} // namespace zelvor
