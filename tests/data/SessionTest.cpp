#include "data/Session.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "data/BlankImage.h"

namespace zelvor {
namespace {

const std::string Separator(1, static_cast<char>(std::filesystem::path::preferred_separator));

TEST(Session, StartsWithANamelessEnglishDocument) {
    const Session session;
    EXPECT_EQ(session.CurrentFileName, "Zelvor.dat");
    EXPECT_EQ(session.CurrentDirectory, "");
    EXPECT_EQ(session.LanguageFlag, Language::English);
    EXPECT_FALSE(session.HasFile());
    EXPECT_FALSE(session.ExitConfirmed || session.SaveCancelled);
    EXPECT_FALSE(session.Priority.PriorityChannelError() || session.OwnIdError || session.TxCodeError);
    EXPECT_EQ(session.CommPortNumber, 1);
    EXPECT_EQ(session.Cursor.CurrentChannel(), 1);
    EXPECT_EQ(session.Cursor.EditChannel(), 1);
    EXPECT_EQ(session.Link.SentState, 55);
    EXPECT_FALSE(session.IsAnyChildOpen());
}

TEST(Session, IsCleanAfterASnapshot) {
    Session session;
    InitAllFrameData(session.Image);
    EXPECT_TRUE(session.IsDocumentChanged());
    session.TakeSnapshot();
    EXPECT_FALSE(session.IsDocumentChanged());
}

TEST(Session, CountsAChangeOfAnyByteButThePttIdType) {
    for (int address = 0; address < 1024; ++address) {
        Session session;
        InitAllFrameData(session.Image);
        session.TakeSnapshot();
        session.Image.Set(address, static_cast<std::uint8_t>(session.Image.At(address) ^ 0x10));
        EXPECT_EQ(session.IsDocumentChanged(), address != 0x133) << address;
    }
}

TEST(Session, KeepsTheCopyOfThePttIdTypeInTheSnapshot) {
    Session session;
    session.Image.Set(0x133, 0);
    session.TakeSnapshot();
    session.Image.Set(0x133, 1);
    session.Image.Set(0x010, 0x25);
    EXPECT_TRUE(session.IsDocumentChanged());
    EXPECT_EQ(session.SavedImage.At(0x133), 1);
    EXPECT_EQ(session.SavedImage.At(0x010), 0xFF);
}

TEST(Session, HasAFileWhereItsNameHoldsADirectory) {
    Session session;
    session.CurrentFileName = Separator + "home" + Separator + "radio 1" + Separator + "对讲机.dat";
    EXPECT_TRUE(session.HasFile());
    EXPECT_EQ(session.BaseName(), "对讲机.dat");
    session.CurrentFileName = "fleet.v2.dat";
    EXPECT_FALSE(session.HasFile());
    EXPECT_EQ(session.BaseName(), "fleet.v2.dat");
    session.CurrentFileName = Separator + "radios" + Separator;
    EXPECT_TRUE(session.HasFile());
    EXPECT_EQ(session.BaseName(), "");
}

TEST(Session, LoadsTextsInItsLanguage) {
    Session session;
    EXPECT_EQ(session.LoadText(Text::MenuFile), "&File");
    EXPECT_EQ(session.LoadText(Text::Corvane), "Corvane");
    session.LanguageFlag = Language::Chinese;
    EXPECT_EQ(session.LoadText(Text::MenuFile), "文件(&F)");
    EXPECT_EQ(session.LoadText(Text::Corvane), "Corvane");
    EXPECT_EQ(session.LoadText(static_cast<Text>(254)), "");
}

TEST(Session, KnowsWhetherAnyOfItsTenChildWindowsIsOpen) {
    const ChildWindow windows[] = {
        ChildWindow::Channels,  ChildWindow::OptionalFeatures, ChildWindow::KeyAssignment, ChildWindow::Scan,
        ChildWindow::Dtmf,      ChildWindow::Corvane,          ChildWindow::TestFrequency, ChildWindow::EmbeddedMessage,
        ChildWindow::Navigator, ChildWindow::ChannelEdit};
    Session session;
    ASSERT_EQ(session.ChildOpen.size(), 10u);
    for (std::size_t i = 0; i < 10; ++i) {
        session.SetOpen(windows[i], true);
        EXPECT_TRUE(session.ChildOpen[i]);
        EXPECT_TRUE(session.IsOpen(windows[i]));
        EXPECT_TRUE(session.IsAnyChildOpen());
        session.SetOpen(windows[i], false);
        EXPECT_FALSE(session.IsOpen(windows[i]));
        EXPECT_FALSE(session.IsAnyChildOpen());
    }
}

TEST(ChannelCaption, NamesTheChannelWithBlanksRoundTheDash) {
    EXPECT_EQ(ChannelCaption(Language::English, 1), " Channel Information [ Channel - 1 ]");
    EXPECT_EQ(ChannelCaption(Language::English, 16), " Channel Information [ Channel - 16 ]");
    EXPECT_EQ(ChannelCaption(Language::Chinese, 1), " 信道信息 [ 信道 - 1 ]");
    EXPECT_EQ(ChannelCaption(Language::Chinese, 16), " 信道信息 [ 信道 - 16 ]");
}

TEST(ChannelCaption, HasNoBlanksRoundTheDashInANewEnglishDocument) {
    EXPECT_EQ(NewDocumentChannelCaption(Language::English), " Channel Information [ Channel-1 ]");
    EXPECT_EQ(NewDocumentChannelCaption(Language::Chinese), " 信道信息 [ 信道 - 1 ]");
}

} // namespace
} // namespace zelvor
