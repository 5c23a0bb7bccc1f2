#include "cli/RadioTexts.h"

#include <algorithm>

#include "link/TransferTexts.h"

namespace zelvor::cli {

namespace {

constexpr TextPair Missing{"{port} is missing. Plug in the cable; \"zelvor-cli ports\" lists what there is.",
                           "{port} 不存在。请插上编程线；用 \"zelvor-cli ports\" 列出现有端口。"};

bool NeedsNoQuotes(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9') || std::string_view("-_./:+,@%").find(character) != std::string::npos;
}

} // namespace

std::string Filled(std::string_view text, std::initializer_list<Filling> fillings) {
    std::string filled;
    while (!text.empty()) {
        const auto* const filling = std::find_if(fillings.begin(), fillings.end(),
                                                 [text](const Filling& each) { return text.starts_with(each.place); });
        if (filling == fillings.end()) {
            filled += text.front();
            text.remove_prefix(1);
        } else {
            filled += filling->text;
            text.remove_prefix(filling->place.size());
        }
    }
    return filled;
}

std::string PortName(int number) {
    return "COM" + std::to_string(number);
}

std::string NoConnectionText(const PortFailure& failure, int port, Language language) {
    switch (failure.fault) {
    case PortFault::None:
        return transfertexts::NoAnswer(port, language);
    case PortFault::Missing:
        return Filled(Missing.In(language), {{"{port}", PortName(port)}});
    case PortFault::InUse:
    case PortFault::NotPermitted:
    case PortFault::Unusable:
        break;
    }
    return transfertexts::CannotOpen(failure, port, language);
}

std::string ShellWord(std::string_view word) {
    if (!word.empty() && std::ranges::all_of(word, NeedsNoQuotes)) {
        return std::string(word);
    }
    std::string quoted = "'";
    for (const char character : word) {
        quoted += character == '\'' ? std::string("'\\''") : std::string(1, character);
    }
    return quoted + '\'';
}

} // namespace zelvor::cli
