#include <filesystem>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "fakes/FakeServices.h"

namespace zelvor {
namespace {

const Message Question{"Confirmation", "Go on?", MessageIcon::Question, MessageButtons::YesNo, MessageAnswer::Yes};
const FileDialogRequest Request{"Zelvor.dat", "QPK Data Files(*.dat)|*.dat", "/tmp"};

TEST(FakeMessageBoxes, AnswerExpectedBoxesInOrder) {
    FakeMessageBoxes boxes;
    boxes.Expect(Question, MessageAnswer::No);
    boxes.Expect({"Error", "Bad.", MessageIcon::Critical}, [] { return MessageAnswer::Ok; });
    EXPECT_EQ(boxes.Show(Question), MessageAnswer::No);
    EXPECT_EQ(boxes.Show({"Error", "Bad.", MessageIcon::Critical}), MessageAnswer::Ok);
    EXPECT_EQ(boxes.Pending(), 0);
    EXPECT_EQ(boxes.Shown().size(), 2U);
}

TEST(FakeMessageBoxes, FailOnABoxThatWasNotExpectedAndAnswerAsEscape) {
    MessageAnswer answer{};
    EXPECT_NONFATAL_FAILURE(
        {
            FakeMessageBoxes boxes;
            answer = boxes.Show(Question);
        },
        "title \"Confirmation\", icon Question, buttons Yes (default) No, text \"Go on?\"");
    EXPECT_EQ(answer, MessageAnswer::No);
}

TEST(FakeMessageBoxes, FailOnABoxThatWasNeverShown) {
    EXPECT_NONFATAL_FAILURE(
        {
            FakeMessageBoxes boxes;
            boxes.Expect(Question, MessageAnswer::Yes);
        },
        "never shown");
}

TEST(FakeMessageBoxes, FailOnAnAnswerThatHasNoButton) {
    EXPECT_NONFATAL_FAILURE(
        {
            FakeMessageBoxes boxes;
            boxes.Expect(Question, MessageAnswer::Retry);
            boxes.Show(Question);
        },
        "The answer Retry is no button");
}

class MessagesThatDiffer : public testing::TestWithParam<Message> {};

TEST_P(MessagesThatDiffer, AreNotTheExpectedOne) {
    EXPECT_NONFATAL_FAILURE(
        {
            FakeMessageBoxes boxes;
            boxes.Expect(Question, MessageAnswer::Yes);
            boxes.Show(GetParam());
        },
        "not the expected one");
}

INSTANTIATE_TEST_SUITE_P(
    EachMember, MessagesThatDiffer,
    testing::Values(
        Message{"confirmation", "Go on?", MessageIcon::Question, MessageButtons::YesNo, MessageAnswer::Yes},
        Message{"Confirmation", "Go on? ", MessageIcon::Question, MessageButtons::YesNo, MessageAnswer::Yes},
        Message{"Confirmation", "Go on?", MessageIcon::Exclamation, MessageButtons::YesNo, MessageAnswer::Yes},
        Message{"Confirmation", "Go on?", MessageIcon::Question, MessageButtons::YesNoCancel, MessageAnswer::Yes},
        Message{"Confirmation", "Go on?", MessageIcon::Question, MessageButtons::YesNo, MessageAnswer::No}));

TEST(FakeMessageBoxes, TakeBothLineBreaksForTheSame) {
    FakeMessageBoxes boxes;
    boxes.Expect({"", "one\r\ntwo"}, MessageAnswer::Ok);
    EXPECT_EQ(boxes.Show({"", "one\ntwo"}), MessageAnswer::Ok);
}

TEST(FakeFileDialogs, FailOnADialogThatWasNotExpectedAndCancelIt) {
    std::optional<std::string> answer = "untouched";
    EXPECT_NONFATAL_FAILURE(
        {
            FakeFileDialogs dialogs;
            answer = dialogs.Open(Request);
        },
        "not expected: open, file name \"Zelvor.dat\"");
    EXPECT_EQ(answer, std::nullopt);
}

TEST(FakeFileDialogs, FailOnADialogThatWasNeverShown) {
    EXPECT_NONFATAL_FAILURE(
        {
            FakeFileDialogs dialogs;
            dialogs.ExpectSave(Request, std::nullopt);
        },
        "never shown: save");
}

TEST(FakeFileDialogs, FailOnTheOtherKindOfDialog) {
    EXPECT_NONFATAL_FAILURE(
        {
            FakeFileDialogs dialogs;
            dialogs.ExpectSave(Request, "/tmp/a.dat");
            EXPECT_EQ(dialogs.Open(Request), std::nullopt);
        },
        "not the expected one");
}

TEST(FakeFileDialogs, FailOnAnotherStartDirectory) {
    EXPECT_NONFATAL_FAILURE(
        {
            FakeFileDialogs dialogs;
            dialogs.ExpectOpen(Request, "/tmp/a.dat");
            EXPECT_EQ(dialogs.Open({"Zelvor.dat", "QPK Data Files(*.dat)|*.dat", ""}), std::nullopt);
        },
        "not the expected one");
}

TEST(FakeFileDialogs, LeaveTheCurrentDirectoryWhereAChosenFolderIsMissing) {
    const auto before = std::filesystem::current_path();
    FakeFileDialogs dialogs;
    dialogs.ExpectOpen(Request, "/no such folder/a.dat");
    EXPECT_EQ(dialogs.Open(Request), "/no such folder/a.dat");
    EXPECT_EQ(std::filesystem::current_path(), before);
}

TEST(FakePageDevice, KeepsTextsWithTheirPlaceAndFont) {
    FakePageDevice device;
    ASSERT_TRUE(device.BeginDocument("Report"));
    device.SetFont({.pointSize = 16, .bold = true});
    device.DrawText(100, 200, "Title");
    ASSERT_TRUE(device.NewPage());
    device.DrawLine(1, 2, 3, 4);
    device.EndDocument();
    ASSERT_EQ(device.Pages().size(), 2U);
    ASSERT_EQ(device.Pages()[0].texts.size(), 1U);
    const FakePageText& text = device.Pages()[0].texts[0];
    EXPECT_EQ(text.x, 100);
    EXPECT_EQ(text.y, 200);
    EXPECT_EQ(text.text, "Title");
    EXPECT_EQ(text.pointSize, 16);
    EXPECT_TRUE(text.bold);
    EXPECT_EQ(device.Pages()[1].lines, (std::vector<FakePageLine>{{1, 2, 3, 4}}));
    EXPECT_EQ(device.Documents(), std::vector<std::string>{"Report"});
}

TEST(FakePageDevice, MeasuresEveryCharacterAlike) {
    FakePageDevice device;
    ASSERT_TRUE(device.BeginDocument("Report"));
    EXPECT_EQ(device.TextWidth("abc"), 300);
    EXPECT_EQ(device.TextWidth("信道"), 200);
    EXPECT_EQ(device.TextHeight(), 240);
    device.SetFont({.pointSize = 16});
    EXPECT_EQ(device.TextWidth("abc"), 480);
    device.EndDocument();
}

TEST(FakePageDevice, EndsTheDocumentWhereItIsToldToFail) {
    FakePageDevice device;
    device.FailAtPage(2);
    ASSERT_TRUE(device.BeginDocument("Report"));
    EXPECT_FALSE(device.NewPage());
    EXPECT_EQ(device.Failures(), 1);
    EXPECT_EQ(device.Pages().size(), 1U);
    EXPECT_TRUE(device.Documents().empty());
    device.FailAtPage(1);
    EXPECT_FALSE(device.BeginDocument("Report"));
    EXPECT_EQ(device.Failures(), 2);
}

TEST(FakePageDevice, FailsOnDrawingOutsideOfADocument) {
    FakePageDevice device;
    EXPECT_NONFATAL_FAILURE(device.DrawText(0, 0, "lost"), "outside of a document");
}

TEST(FakePageDevice, FailsOnASetUpDialogThatWasNotExpected) {
    FakePageDevice device;
    EXPECT_NONFATAL_FAILURE(EXPECT_FALSE(device.ShowSetup("radio.dat")), "not expected");
    device.ExpectSetup(true);
    EXPECT_TRUE(device.ShowSetup("other.dat"));
    EXPECT_EQ(device.SetupDocuments(), (std::vector<std::string>{"radio.dat", "other.dat"}));
}

TEST(FakePageDevice, HoldsItsAnswersUntilItIsLetTell) {
    FakePageDevice device;
    device.HoldAnswers();
    std::vector<std::string> told;
    device.FindTarget([&](const PageTarget& target) { told.push_back(target.name); });
    device.AskForPrinters([&](bool isAnswered) { told.emplace_back(isAnswered ? "answered" : "not answered"); });
    EXPECT_TRUE(told.empty());
    device.SetTarget({PageTarget::Kind::NoAnswer, "nothing"});
    device.Answer();
    EXPECT_EQ(told, (std::vector<std::string>{"nothing", "not answered"}));
}

TEST(FakePageDevice, FailsOnASetUpDialogThatWasNeverShown) {
    EXPECT_NONFATAL_FAILURE(
        {
            FakePageDevice device;
            device.ExpectSetup(false);
        },
        "never shown");
}

TEST(FakeSettingsStore, TellsWritesFromWhatWasThere) {
    FakeSettingsStore store;
    store.Preset("Language", "1");
    store.Write("LastModel", "50:34");
    EXPECT_EQ(store.Read("Language"), "1");
    EXPECT_EQ(store.Writes(), (std::vector<std::pair<std::string, std::string>>{{"LastModel", "50:34"}}));
}

} // namespace
} // namespace zelvor
