#pragma once

#include <string>
#include <vector>

#include "platform/MessageBoxes.h"

namespace zelvor::bench {

/// Message boxes that nobody sees: answers at once as Escape would, and keeps the texts.
class AnsweringMessageBoxes : public MessageBoxes {
public:
    MessageAnswer Show(const Message& message) override;

    /// Whether this text, and no other, has been shown since the last call.
    [[nodiscard]] bool TakeOnly(const std::string& text);

private:
    std::vector<std::string> shown_;
};

} // namespace zelvor::bench
