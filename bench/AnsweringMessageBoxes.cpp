#include "AnsweringMessageBoxes.h"

#include <utility>

namespace zelvor::bench {

MessageAnswer AnsweringMessageBoxes::Show(const Message& message) {
    shown_.push_back(message.text);
    return EscapeOf(message);
}

bool AnsweringMessageBoxes::TakeOnly(const std::string& text) {
    return std::exchange(shown_, {}) == std::vector<std::string>{text};
}

} // namespace zelvor::bench
