#pragma once

#include <deque>
#include <functional>
#include <iosfwd>
#include <vector>

#include "platform/MessageBoxes.h"

namespace zelvor {

/// Whether both messages show the same box; "\r\n" and "\n" are the same line break.
[[nodiscard]] bool operator==(const Message& left, const Message& right);
void PrintTo(const Message& message, std::ostream* out);

/// Scripted and strict: a box that was not expected next fails the test and is answered as Escape would, and so does an
/// expected box that was never shown.
class FakeMessageBoxes : public MessageBoxes {
public:
    FakeMessageBoxes() = default;
    FakeMessageBoxes(const FakeMessageBoxes&) = delete;
    FakeMessageBoxes& operator=(const FakeMessageBoxes&) = delete;
    ~FakeMessageBoxes() override;

    MessageAnswer Show(const Message& message) override;

    /// The next box, in the order of the calls.
    void Expect(Message message, MessageAnswer answer);
    /// whileUp runs while the box is up, and tells the answer.
    void Expect(Message message, std::function<MessageAnswer()> whileUp);

    /// Every box shown so far, expected or not.
    [[nodiscard]] const std::vector<Message>& Shown() const { return shown_; }
    /// How many expected boxes have not been shown yet.
    [[nodiscard]] int Pending() const { return static_cast<int>(expected_.size()); }

private:
    struct Expectation {
        Message message;
        std::function<MessageAnswer()> whileUp;
    };

    std::deque<Expectation> expected_;
    std::vector<Message> shown_;
};

} // namespace zelvor
