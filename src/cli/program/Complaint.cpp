#include "cli/program/Complaint.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>

#include "cli/program/Describing.h"

namespace zelvor::cli {

namespace {

// Each about what stands for the braces.
constexpr TextPair NoSuchCommand{"there is no command {}", "没有命令 {}"};
constexpr TextPair NoSuchOption{"there is no option {} here", "此处没有选项 {}"};
constexpr TextPair NotExpected{"not expected: {}", "多余的参数：{}"};
constexpr TextPair IsRequired{"{} is required", "缺少命令或参数：{}"};
constexpr TextPair NeedsValue{"{} needs a value", "选项 {} 缺少值"};
constexpr TextPair GivenTwice{"{} may be given once only", "{} 只能给出一次"};
constexpr TextPair IsNotAllowed{"{}", "不允许的值：{}"};
constexpr TextPair IsWrong{"{}", "命令行有误：{}"};

constexpr TextPair Command{"a command", "命令"};

/// What the reader's words about a value that is not allowed are in the language, the last of them first.
struct Phrase {
    std::string_view reader;
    TextPair text;
};
constexpr Phrase ValuePhrases[] = {{" not in range ", {" is outside the range ", " 超出范围 "}},
                                   {" not in ", {" is none of ", " 不属于 "}},
                                   {" to ", {" to ", " 至 "}},
                                   {": Value ", {": ", "："}},
                                   {"Could not convert: ", {"", ""}}};

std::string Say(const TextPair& text, std::string_view about, Language language) {
    constexpr std::string_view Place = "{}";
    std::string sentence(text.In(language));
    return sentence.replace(sentence.find(Place), Place.size(), about);
}

/// The option or argument that the reader's sentence begins with, before these words.
std::string_view NameIn(std::string_view sentence, std::string_view before) {
    return sentence.substr(0, sentence.find(before));
}

bool IsWaitingForCommand(const CLI::App& app) {
    return app.get_require_subcommand_min() > 0 && app.get_subcommands().empty();
}

/// The command that was read last, or the program where none was.
const CLI::App& LastRead(const CLI::App& app) {
    const std::vector<CLI::App*> read = app.get_subcommands();
    return read.empty() ? app : LastRead(*read.back());
}

std::string ComplaintOfUnknown(const CLI::App& app, const std::vector<std::string>& unknown, Language language) {
    const auto option = std::ranges::find_if(unknown, [](const std::string& word) { return word.starts_with('-'); });
    if (option != unknown.end()) {
        return Say(NoSuchOption, *option, language);
    }
    return IsWaitingForCommand(LastRead(app)) ? Say(NoSuchCommand, unknown.front(), language)
                                              : Say(NotExpected, CLI::detail::join(unknown, " "), language);
}

std::string ComplaintOfMissing(const CLI::App& app, std::string_view sentence, Language language) {
    const std::string name = ShownNameOf(NameIn(sentence, " is required"));
    return Say(IsRequired, IsWaitingForCommand(LastRead(app)) ? Command.In(language) : name, language);
}

/// Some versions of the reader write a range as [1 - 20], others as 1 to 20.
std::string WithPlainRange(std::string sentence) {
    constexpr std::string_view Bracketed = " not in range [";
    constexpr std::string_view Dash = " - ";
    const std::size_t range = sentence.rfind(Bracketed);
    const std::size_t dash = sentence.find(Dash, range);
    if (range == std::string::npos || dash == std::string::npos || !sentence.ends_with(']')) {
        return sentence;
    }
    sentence.pop_back();
    sentence.replace(dash, Dash.size(), " to ");
    return sentence.erase(range + Bracketed.size() - 1, 1);
}

std::string ComplaintOfValue(std::string sentence, Language language) {
    sentence = WithPlainRange(std::move(sentence));
    for (const Phrase& phrase : ValuePhrases) {
        if (const std::size_t place = sentence.rfind(phrase.reader); place != std::string::npos) {
            sentence.replace(place, phrase.reader.size(), phrase.text.In(language));
        }
    }
    return Say(IsNotAllowed, sentence, language);
}

} // namespace

std::string ComplaintOf(const CLI::App& app, const CLI::ParseError& error, Language language) {
    const std::string sentence = error.what();
    const std::vector<std::string> unknown = app.remaining(true);
    switch (static_cast<CLI::ExitCodes>(error.get_exit_code())) {
    case CLI::ExitCodes::RequiredError:
    case CLI::ExitCodes::ExtrasError:
        return unknown.empty() ? ComplaintOfMissing(app, sentence, language)
                               : ComplaintOfUnknown(app, unknown, language);
    case CLI::ExitCodes::ArgumentMismatch:
        return Say(sentence.find("At Most") == std::string::npos ? NeedsValue : GivenTwice, NameIn(sentence, ": "),
                   language);
    case CLI::ExitCodes::ValidationError:
    case CLI::ExitCodes::ConversionError:
        return ComplaintOfValue(sentence, language);
    default:
        return Say(IsWrong, sentence, language);
    }
}

} // namespace zelvor::cli
