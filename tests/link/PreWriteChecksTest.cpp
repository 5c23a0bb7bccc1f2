#include "link/PreWriteChecks.h"

#include <gtest/gtest.h>

#include "data/Document.h"
#include "fakes/FakeMessageBoxes.h"

namespace zelvor {
namespace {

// Byte 14 of channel n.
void SetCodeByte(Document& document, int channel, std::uint8_t value) {
    document.Image.Set(channel * 16 + 14, value);
}

class PreWriteChecks : public testing::Test {
protected:
    PreWriteChecks() {
        for (int channel = 1; channel <= 16; ++channel) {
            SetCodeByte(document, channel, 0x00);
        }
    }
    // Channel 7 uses the code.
    void UseCode() { SetCodeByte(document, 7, 0x01); }

    void ExpectBox(Language language, const char* title, const char* text) {
        const std::optional<Message> box = CheckBeforeWrite(document, language);
        ASSERT_TRUE(box);
        EXPECT_EQ(box->title, title);
        EXPECT_EQ(box->text, text);
        EXPECT_EQ(box->icon, MessageIcon::Critical);
        EXPECT_EQ(box->buttons, MessageButtons::Ok);
    }

    Document document;
};

TEST_F(PreWriteChecks, LetTheWriteGoAheadWhereNoFlagIsSet) {
    UseCode();
    document.Flags.TxCodeErrorKind = 3;
    EXPECT_FALSE(CheckBeforeWrite(document, Language::English));
}

TEST_F(PreWriteChecks, NameThePriorityChannelBehindAnEmptyLine) {
    document.Priority.SetError(true);
    ExpectBox(Language::English, "Error", "The following setting is incorrect.\r\n\r\n\"Priority Channel\"");
    ExpectBox(Language::Chinese, "错误", "以下设置错误。\r\n\r\n\"优先信道\"");
}

TEST_F(PreWriteChecks, NameOwnFleetAndIdBehindAnEmptyLine) {
    document.Flags.OwnIdError = true;
    ExpectBox(Language::English, "Error", "The following setting is incorrect.\r\n\r\n\"Fleet(Own)\"\r\n\"ID(Own)\"");
    ExpectBox(Language::Chinese, "错误", "以下设置错误。\r\n\r\n\"队列（自身）\"\r\n\"ID（自身）\"");
}

TEST_F(PreWriteChecks, NameTheBeginCodeWithNoEmptyLine) {
    UseCode();
    document.Flags.TxCodeError = true;
    document.Flags.TxCodeErrorKind = 1;
    ExpectBox(Language::English, "Error", "The following setting is incorrect.\r\n\"Begin of TX code\"");
    ExpectBox(Language::Chinese, "错误", "以下设置错误。\r\n\"发射开始代码\"");
}

TEST_F(PreWriteChecks, NameTheEndCodeBehindAnEmptyLine) {
    UseCode();
    document.Flags.TxCodeError = true;
    document.Flags.TxCodeErrorKind = 2;
    ExpectBox(Language::English, "Error", "The following setting is incorrect.\r\n\r\n\"End of TX code\"");
    ExpectBox(Language::Chinese, "错误", "以下设置错误。\r\n\r\n\"发射结束代码\"");
}

TEST_F(PreWriteChecks, NameBothCodesWithNoEmptyLine) {
    UseCode();
    document.Flags.TxCodeError = true;
    document.Flags.TxCodeErrorKind = 3;
    ExpectBox(Language::English, "Error",
              "The following setting is incorrect.\r\n\"Begin of TX code\"\r\n\"End of TX code\"");
    ExpectBox(Language::Chinese, "错误", "以下设置错误。\r\n\"发射开始代码\"\r\n\"发射结束代码\"");
}

TEST_F(PreWriteChecks, LetAnyOtherKindGoAheadAndKeepItsFlag) {
    UseCode();
    document.Flags.TxCodeError = true;
    for (const int kind : {-1, 0, 4, 100}) {
        document.Flags.TxCodeErrorKind = kind;
        EXPECT_FALSE(CheckBeforeWrite(document, Language::English)) << kind;
        EXPECT_TRUE(document.Flags.TxCodeError) << kind;
    }
}

TEST_F(PreWriteChecks, ReportTheFirstOfSeveralErrors) {
    UseCode();
    document.Priority.SetError(true);
    document.Flags.OwnIdError = document.Flags.TxCodeError = true;
    document.Flags.TxCodeErrorKind = 2;
    EXPECT_NE(CheckBeforeWrite(document, Language::English)->text.find("Priority Channel"), std::string::npos);
    document.Priority.SetError(false);
    EXPECT_NE(CheckBeforeWrite(document, Language::English)->text.find("Fleet(Own)"), std::string::npos);
    document.Flags.OwnIdError = false;
    EXPECT_NE(CheckBeforeWrite(document, Language::English)->text.find("End of TX code"), std::string::npos);
}

TEST_F(PreWriteChecks, ClearTheCodeErrorWhereNoChannelUsesTheCode) {
    document.Flags.TxCodeError = true;
    document.Flags.TxCodeErrorKind = 1;
    EXPECT_FALSE(CheckBeforeWrite(document, Language::English));
    EXPECT_FALSE(document.Flags.TxCodeError);
}

TEST_F(PreWriteChecks, DoNotClearTheCodeErrorBehindAnotherError) {
    document.Priority.SetError(true);
    document.Flags.TxCodeError = true;
    EXPECT_TRUE(CheckBeforeWrite(document, Language::English));
    EXPECT_TRUE(document.Flags.TxCodeError);
}

TEST_F(PreWriteChecks, EveryChannelCountsByItself) {
    for (int channel = 1; channel <= 16; ++channel) {
        SetCodeByte(document, channel, 0x01);
        document.Flags.TxCodeError = true;
        document.Flags.TxCodeErrorKind = 1;
        EXPECT_TRUE(CheckBeforeWrite(document, Language::English)) << channel;
        EXPECT_TRUE(document.Flags.TxCodeError) << channel;
        SetCodeByte(document, channel, 0x00);
    }
}

TEST_F(PreWriteChecks, AChannelUsesTheCodeWithBitZeroSetAndALowNibbleOtherThanF) {
    for (int value = 0; value < 256; ++value) {
        SetCodeByte(document, 16, static_cast<std::uint8_t>(value));
        document.Flags.TxCodeError = true;
        document.Flags.TxCodeErrorKind = 1;
        const int low = value % 16;
        const bool uses =
            low == 0x1 || low == 0x3 || low == 0x5 || low == 0x7 || low == 0x9 || low == 0xB || low == 0xD;
        EXPECT_EQ(CheckBeforeWrite(document, Language::English).has_value(), uses) << value;
        EXPECT_EQ(document.Flags.TxCodeError, uses) << value;
    }
}

TEST_F(PreWriteChecks, LookAtNoByteOutsideTheSixteenChannels) {
    SetCodeByte(document, 0, 0x01);
    SetCodeByte(document, 17, 0x01);
    document.Flags.TxCodeError = true;
    document.Flags.TxCodeErrorKind = 1;
    EXPECT_FALSE(CheckBeforeWrite(document, Language::English));
}

} // namespace
} // namespace zelvor
