#include "platform/MessageBoxes.h"

#include <algorithm>
#include <array>

namespace zelvor {

namespace {

constexpr std::array OkAnswers{MessageAnswer::Ok};
constexpr std::array OkCancelAnswers{MessageAnswer::Ok, MessageAnswer::Cancel};
constexpr std::array YesNoAnswers{MessageAnswer::Yes, MessageAnswer::No};
constexpr std::array YesNoCancelAnswers{MessageAnswer::Yes, MessageAnswer::No, MessageAnswer::Cancel};
constexpr std::array RetryCancelAnswers{MessageAnswer::Retry, MessageAnswer::Cancel};

bool Has(std::span<const MessageAnswer> answers, MessageAnswer answer) {
    return std::ranges::find(answers, answer) != answers.end();
}

} // namespace

std::span<const MessageAnswer> AnswersOf(MessageButtons buttons) {
    switch (buttons) {
    case MessageButtons::Ok:
        return OkAnswers;
    case MessageButtons::OkCancel:
        return OkCancelAnswers;
    case MessageButtons::YesNo:
        return YesNoAnswers;
    case MessageButtons::YesNoCancel:
        return YesNoCancelAnswers;
    case MessageButtons::RetryCancel:
        return RetryCancelAnswers;
    }
    return OkAnswers;
}

MessageAnswer DefaultOf(const Message& message) {
    const auto answers = AnswersOf(message.buttons);
    return Has(answers, message.defaultButton) ? message.defaultButton : answers.front();
}

MessageAnswer EscapeOf(const Message& message) {
    const auto answers = AnswersOf(message.buttons);
    if (Has(answers, MessageAnswer::Cancel)) {
        return MessageAnswer::Cancel;
    }
    return Has(answers, MessageAnswer::No) ? MessageAnswer::No : MessageAnswer::Ok;
}

} // namespace zelvor
