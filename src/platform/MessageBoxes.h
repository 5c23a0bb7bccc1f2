#pragma once

#include <span>
#include <string>

namespace zelvor {

enum class MessageIcon { None, Information, Question, Exclamation, Critical };
enum class MessageButtons { Ok, OkCancel, YesNo, YesNoCancel, RetryCancel };
enum class MessageAnswer { Ok, Cancel, Yes, No, Retry };

struct Message {
    std::string title; // UTF-8
    std::string text;  // UTF-8; lines end in "\r\n" or "\n"
    MessageIcon icon = MessageIcon::None;
    MessageButtons buttons = MessageButtons::Ok;
    /// The default button: the first button of the set unless said otherwise.
    MessageAnswer defaultButton = MessageAnswer::Ok;
};

/// The buttons of a set, in order.
[[nodiscard]] std::span<const MessageAnswer> AnswersOf(MessageButtons buttons);
/// The default button where the message's set has it, else the first button of the set.
[[nodiscard]] MessageAnswer DefaultOf(const Message& message);
/// What closing the box by its frame or Escape answers.
[[nodiscard]] MessageAnswer EscapeOf(const Message& message);

/// Modal message boxes. Timers go on running while one is up.
class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;
    /// Closing a box by its frame or Escape answers Cancel where there is such a button, else No, else Ok.
    virtual MessageAnswer Show(const Message& message) = 0;
};

} // namespace zelvor
