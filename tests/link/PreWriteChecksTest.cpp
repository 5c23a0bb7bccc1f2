#include "link/PreWriteChecks.h"

#include <gtest/gtest.h>

#include "fakes/FakeMessageBoxes.h"

namespace zelvor {
namespace {

// Byte 14 of channel n.
void SetCodeByte(Session& session, int channel, std::uint8_t value) {
    session.Image.Set(channel * 16 + 14, value);
}

class PreWriteChecks : public testing::Test {
protected:
    PreWriteChecks() {
        for (int channel = 1; channel <= 16; ++channel) {
            SetCodeByte(session, channel, 0x00);
        }
    }
    // Channel 7 uses the code.
    void UseCode() { SetCodeByte(session, 7, 0x01); }

    void ExpectBox(Language language, const char* title, const char* text) {
        session.LanguageFlag = language;
        const std::optional<Message> box = CheckBeforeWrite(session);
        ASSERT_TRUE(box);
        EXPECT_EQ(box->title, title);
        EXPECT_EQ(box->text, text);
        EXPECT_EQ(box->icon, MessageIcon::Critical);
        EXPECT_EQ(box->buttons, MessageButtons::Ok);
    }

    Session session;
};

TEST_F(PreWriteChecks, LetTheWriteGoAheadWhereNoFlagIsSet) {
    UseCode();
    session.TxCodeErrorKind = 3;
    EXPECT_FALSE(CheckBeforeWrite(session));
}

TEST_F(PreWriteChecks, NameThePriorityChannelBehindAnEmptyLine) {
    session.Priority.SetError(true);
    ExpectBox(Language::English, "Error", "The following setting is incorrect.\r\n\r\n\"Priority Channel\"");
    ExpectBox(Language::Chinese, "错误", "以下设置错误。\r\n\r\n\"优先信道\"");
}

TEST_F(PreWriteChecks, NameOwnFleetAndIdBehindAnEmptyLine) {
    session.OwnIdError = true;
    ExpectBox(Language::English, "Error", "The following setting is incorrect.\r\n\r\n\"Fleet(Own)\"\r\n\"ID(Own)\"");
    ExpectBox(Language::Chinese, "错误", "以下设置错误。\r\n\r\n\"队列（自身）\"\r\n\"ID（自身）\"");
}

TEST_F(PreWriteChecks, NameTheBeginCodeWithNoEmptyLine) {
    UseCode();
    session.TxCodeError = true;
    session.TxCodeErrorKind = 1;
    ExpectBox(Language::English, "Error", "The following setting is incorrect.\r\n\"Begin of TX code\"");
    ExpectBox(Language::Chinese, "错误", "以下设置错误。\r\n\"发射开始代码\"");
}

TEST_F(PreWriteChecks, NameTheEndCodeBehindAnEmptyLine) {
    UseCode();
    session.TxCodeError = true;
    session.TxCodeErrorKind = 2;
    ExpectBox(Language::English, "Error", "The following setting is incorrect.\r\n\r\n\"End of TX code\"");
    ExpectBox(Language::Chinese, "错误", "以下设置错误。\r\n\r\n\"发射结束代码\"");
}

TEST_F(PreWriteChecks, NameBothCodesWithNoEmptyLine) {
    UseCode();
    session.TxCodeError = true;
    session.TxCodeErrorKind = 3;
    ExpectBox(Language::English, "Error",
              "The following setting is incorrect.\r\n\"Begin of TX code\"\r\n\"End of TX code\"");
    ExpectBox(Language::Chinese, "错误", "以下设置错误。\r\n\"发射开始代码\"\r\n\"发射结束代码\"");
}

TEST_F(PreWriteChecks, LetAnyOtherKindGoAheadAndKeepItsFlag) {
    UseCode();
    session.TxCodeError = true;
    for (const int kind : {-1, 0, 4, 100}) {
        session.TxCodeErrorKind = kind;
        EXPECT_FALSE(CheckBeforeWrite(session)) << kind;
        EXPECT_TRUE(session.TxCodeError) << kind;
    }
}

TEST_F(PreWriteChecks, ReportTheFirstOfSeveralErrors) {
    UseCode();
    session.Priority.SetError(true);
    session.OwnIdError = session.TxCodeError = true;
    session.TxCodeErrorKind = 2;
    EXPECT_NE(CheckBeforeWrite(session)->text.find("Priority Channel"), std::string::npos);
    session.Priority.SetError(false);
    EXPECT_NE(CheckBeforeWrite(session)->text.find("Fleet(Own)"), std::string::npos);
    session.OwnIdError = false;
    EXPECT_NE(CheckBeforeWrite(session)->text.find("End of TX code"), std::string::npos);
}

TEST_F(PreWriteChecks, ClearTheCodeErrorWhereNoChannelUsesTheCode) {
    session.TxCodeError = true;
    session.TxCodeErrorKind = 1;
    EXPECT_FALSE(CheckBeforeWrite(session));
    EXPECT_FALSE(session.TxCodeError);
}

TEST_F(PreWriteChecks, DoNotClearTheCodeErrorBehindAnotherError) {
    session.Priority.SetError(true);
    session.TxCodeError = true;
    EXPECT_TRUE(CheckBeforeWrite(session));
    EXPECT_TRUE(session.TxCodeError);
}

TEST_F(PreWriteChecks, EveryChannelCountsByItself) {
    for (int channel = 1; channel <= 16; ++channel) {
        SetCodeByte(session, channel, 0x01);
        session.TxCodeError = true;
        session.TxCodeErrorKind = 1;
        EXPECT_TRUE(CheckBeforeWrite(session)) << channel;
        EXPECT_TRUE(session.TxCodeError) << channel;
        SetCodeByte(session, channel, 0x00);
    }
}

TEST_F(PreWriteChecks, AChannelUsesTheCodeWithBitZeroSetAndALowNibbleOtherThanF) {
    for (int value = 0; value < 256; ++value) {
        SetCodeByte(session, 16, static_cast<std::uint8_t>(value));
        session.TxCodeError = true;
        session.TxCodeErrorKind = 1;
        const int low = value % 16;
        const bool uses =
            low == 0x1 || low == 0x3 || low == 0x5 || low == 0x7 || low == 0x9 || low == 0xB || low == 0xD;
        EXPECT_EQ(CheckBeforeWrite(session).has_value(), uses) << value;
        EXPECT_EQ(session.TxCodeError, uses) << value;
    }
}

TEST_F(PreWriteChecks, LookAtNoByteOutsideTheSixteenChannels) {
    SetCodeByte(session, 0, 0x01);
    SetCodeByte(session, 17, 0x01);
    session.TxCodeError = true;
    session.TxCodeErrorKind = 1;
    EXPECT_FALSE(CheckBeforeWrite(session));
}

} // namespace
} // namespace zelvor
