#include "fakes/FakeMessageBoxes.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <ostream>
#include <utility>

namespace zelvor {

namespace {

std::string WithPlainLineBreaks(std::string text) {
    std::erase(text, '\r');
    return text;
}

std::string_view NameOf(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::None:
        return "None";
    case MessageIcon::Information:
        return "Information";
    case MessageIcon::Question:
        return "Question";
    case MessageIcon::Exclamation:
        return "Exclamation";
    case MessageIcon::Critical:
        return "Critical";
    }
    return "?";
}

std::string_view NameOf(MessageAnswer answer) {
    switch (answer) {
    case MessageAnswer::Ok:
        return "Ok";
    case MessageAnswer::Cancel:
        return "Cancel";
    case MessageAnswer::Yes:
        return "Yes";
    case MessageAnswer::No:
        return "No";
    case MessageAnswer::Retry:
        return "Retry";
    }
    return "?";
}

} // namespace

bool operator==(const Message& left, const Message& right) {
    return left.title == right.title && WithPlainLineBreaks(left.text) == WithPlainLineBreaks(right.text) &&
           left.icon == right.icon && left.buttons == right.buttons && DefaultOf(left) == DefaultOf(right);
}

void PrintTo(const Message& message, std::ostream* out) {
    *out << "title \"" << message.title << "\", icon " << NameOf(message.icon) << ", buttons";
    for (const MessageAnswer answer : AnswersOf(message.buttons)) {
        *out << ' ' << NameOf(answer) << (answer == DefaultOf(message) ? " (default)" : "");
    }
    *out << ", text \"" << message.text << "\"";
}

FakeMessageBoxes::~FakeMessageBoxes() {
    for (const Expectation& expectation : expected_) {
        ADD_FAILURE() << "A message box was never shown: " << testing::PrintToString(expectation.message);
    }
}

MessageAnswer FakeMessageBoxes::Show(const Message& message) {
    shown_.push_back(message);
    if (expected_.empty()) {
        ADD_FAILURE() << "A message box was not expected: " << testing::PrintToString(message);
        return EscapeOf(message);
    }
    const Expectation expectation = std::move(expected_.front());
    expected_.pop_front();
    if (!(expectation.message == message)) {
        ADD_FAILURE() << "A message box was not the expected one\n  shown:    " << testing::PrintToString(message)
                      << "\n  expected: " << testing::PrintToString(expectation.message);
        return EscapeOf(message);
    }
    const MessageAnswer answer = expectation.whileUp();
    const auto answers = AnswersOf(message.buttons);
    if (std::ranges::find(answers, answer) == answers.end()) {
        ADD_FAILURE() << "The answer " << NameOf(answer)
                      << " is no button of the message box: " << testing::PrintToString(message);
    }
    return answer;
}

void FakeMessageBoxes::Expect(Message message, MessageAnswer answer) {
    Expect(std::move(message), [answer] { return answer; });
}

void FakeMessageBoxes::Expect(Message message, std::function<MessageAnswer()> whileUp) {
    expected_.push_back({std::move(message), std::move(whileUp)});
}

} // namespace zelvor
