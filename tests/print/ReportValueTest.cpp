#include "print/ReportValue.h"

#include <gtest/gtest.h>

#include "data/BlankImage.h"
#include "data/FieldRegistry.h"

namespace zelvor {
namespace {

constexpr Language En = Language::English;

DataImage Blank() {
    DataImage image;
    image.Set(0x1BD, 1);
    image.Set(0x1BE, 0xF8);
    InitAllFrameData(image);
    return image;
}

std::string Printed(const char* key, const DataImage& image, Language language = En) {
    return ReportValue(*FindField(key), image, language);
}

TEST(ReportValue, IsMostlyWhatTheWindowShows) {
    const DataImage image = Blank();
    EXPECT_EQ(Printed("optional.time-out-timer", image), "60");
    EXPECT_EQ(Printed("optional.ptt-id", image), "BOT");
    EXPECT_EQ(Printed("keys.pf2", image, Language::Chinese), FindField("keys.pf2")->Show(image, Language::Chinese));
    EXPECT_EQ(Printed("dtmf.id-code", image), "000");
    EXPECT_EQ(Printed("message.line.1", image), "");
}

TEST(ReportValue, OfACheckIsEnabledOrDisabled) {
    EXPECT_EQ(Printed("optional.beep", Blank()), "Enabled");
    EXPECT_EQ(Printed("optional.clone-mode", Blank()), "Disabled");
    EXPECT_EQ(EnabledWord(true, Language::Chinese), Printed("optional.beep", Blank(), Language::Chinese));
}

TEST(ReportValue, OfSomeFieldsHasATextOfItsOwn) {
    DataImage image = Blank();
    EXPECT_EQ(Printed("optional.end-of-tx", image), "------");
    EXPECT_EQ(Printed("scan.priority-channel", image), "---");
    EXPECT_EQ(Printed("corvane.own-fleet", image), "---");
    EXPECT_EQ(Printed("corvane.own-id", image), "----");
    EXPECT_EQ(Printed("dtmf.d-code-assignment", image), "D 码");
    EXPECT_EQ(Printed("dtmf.group-code", image), "关");
    EXPECT_EQ(Printed("dtmf.transpond", image), "关");
    image.Set(0x132, 2); // PTT ID at both ends
    image.Set(0x13A, 0); // VOX gain level
    image.Set(0x176, 0); // message mode timer
    image.Set(0x177, 0);
    EXPECT_EQ(Printed("optional.ptt-id", image), "Language File Setup");
    EXPECT_EQ(Printed("optional.vox-gain-level", image), "关");
    EXPECT_EQ(Printed("corvane.message-mode-timer", image), "关");
}

} // namespace
} // namespace zelvor
