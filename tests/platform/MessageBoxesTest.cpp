#include <gtest/gtest.h>
#include <vector>

#include "platform/MessageBoxes.h"

namespace zelvor {
namespace {

using Answers = std::vector<MessageAnswer>;
constexpr auto Ok = MessageAnswer::Ok;
constexpr auto Cancel = MessageAnswer::Cancel;
constexpr auto Yes = MessageAnswer::Yes;
constexpr auto No = MessageAnswer::No;
constexpr auto Retry = MessageAnswer::Retry;

Answers ButtonsIn(MessageButtons set) {
    const auto answers = AnswersOf(set);
    return {answers.begin(), answers.end()};
}

Message MessageWith(MessageButtons buttons, MessageAnswer defaultButton = Ok) {
    return {"Title", "Text", MessageIcon::None, buttons, defaultButton};
}

TEST(MessageButtonSets, HoldTheButtonsTheyAreNamedAfterInThatOrder) {
    EXPECT_EQ(ButtonsIn(MessageButtons::Ok), (Answers{Ok}));
    EXPECT_EQ(ButtonsIn(MessageButtons::OkCancel), (Answers{Ok, Cancel}));
    EXPECT_EQ(ButtonsIn(MessageButtons::YesNo), (Answers{Yes, No}));
    EXPECT_EQ(ButtonsIn(MessageButtons::YesNoCancel), (Answers{Yes, No, Cancel}));
    EXPECT_EQ(ButtonsIn(MessageButtons::RetryCancel), (Answers{Retry, Cancel}));
}

TEST(MessageButtonSets, EscapeIsCancelElseNoElseOk) {
    EXPECT_EQ(EscapeOf(MessageWith(MessageButtons::Ok)), Ok);
    EXPECT_EQ(EscapeOf(MessageWith(MessageButtons::OkCancel)), Cancel);
    EXPECT_EQ(EscapeOf(MessageWith(MessageButtons::YesNo)), No);
    EXPECT_EQ(EscapeOf(MessageWith(MessageButtons::YesNoCancel)), Cancel);
    EXPECT_EQ(EscapeOf(MessageWith(MessageButtons::RetryCancel)), Cancel);
}

TEST(MessageButtonSets, TheFirstButtonIsTheDefaultUnlessAnotherOfTheSetIsTold) {
    EXPECT_EQ(DefaultOf(MessageWith(MessageButtons::YesNo)), Yes);
    EXPECT_EQ(DefaultOf(MessageWith(MessageButtons::RetryCancel)), Retry);
    EXPECT_EQ(DefaultOf(MessageWith(MessageButtons::OkCancel, Cancel)), Cancel);
    EXPECT_EQ(DefaultOf(MessageWith(MessageButtons::YesNo, Cancel)), Yes);
}

} // namespace
} // namespace zelvor
