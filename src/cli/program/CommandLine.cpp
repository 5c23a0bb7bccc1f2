#include "cli/program/CommandLine.h"

#include <QLocale>
#include <algorithm>
#include <iostream>
#include <memory>
#include <optional>
#include <span>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>

#include "cli/program/Complaint.h"
#include "cli/program/Describing.h"

namespace zelvor::cli {

namespace {

constexpr std::string_view LanguageOption = "--language";

constexpr TextPair Summary{"The workshop of Zelvor: shows, compares, checks and changes data files of two-way radios.",
                           "Zelvor 工具：显示、比较、检查和修改对讲机的数据文件。"};
constexpr TextPair LanguageText{"Language of texts and messages: en or zh; otherwise that of the locale",
                                "文字和消息的语言：en 或 zh；否则按区域设置"};
constexpr TextPair HelpText{"Print this help and end", "显示此帮助并退出"};
constexpr TextPair VersionText{"Print the version and end", "显示版本并退出"};
constexpr TextPair CommandsText{"Subcommands", "命令"};
constexpr TextPair TryHelp{"Try \"zelvor-cli --help\".", "请试 \"zelvor-cli --help\"。"};

std::optional<Language> LanguageOfName(std::string_view name) {
    if (name == "zh") {
        return Language::Chinese;
    }
    return name == "en" ? std::optional(Language::English) : std::nullopt;
}

/// Of texts: the first of these that is set. In this locale LANGUAGE does not count.
bool IsPosixLocale() {
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (const QByteArray value = qgetenv(name); !value.isEmpty()) {
            return value == "C" || value == "POSIX";
        }
    }
    return QLocale::system().language() == QLocale::C;
}

Language LanguageOfLocale() {
    if (IsPosixLocale()) {
        return Language::English;
    }
    return QLocale::system().uiLanguages().value(0).startsWith(u"zh") ? Language::Chinese : Language::English;
}

/// Before all else, since it is the language of the descriptions too. The last one counts.
Language LookForLanguage(std::span<const std::string> words) {
    std::optional<Language> language;
    for (std::size_t i = 0; i < words.size() && words[i] != "--"; ++i) {
        const std::string_view word = words[i];
        if (word == LanguageOption && i + 1 < words.size()) {
            language = LanguageOfName(words[++i]);
        } else if (word.starts_with(LanguageOption) && word.substr(LanguageOption.size()).starts_with('=')) {
            language = LanguageOfName(word.substr(LanguageOption.size() + 1));
        }
    }
    return language.value_or(LanguageOfLocale());
}

/// The reader takes a name in brackets as a list, and braces as none.
bool IsMisread(std::string_view argument) {
    return argument == "{}" || (argument.size() > 1 && argument.front() == '[' && argument.back() == ']');
}

/// As the reader wants them, the last one first. A file whose name it would take for something else gets its folder;
/// so does one with a hyphen behind "--", which the reader lets no command have behind its first file.
std::vector<std::string> ForReader(std::span<const std::string> words) {
    std::vector<std::string> arguments;
    bool areFiles = false;
    for (const std::string& word : words) {
        if (!areFiles && word == "--") {
            areFiles = true;
        } else if (IsMisread(word) || (areFiles && word.starts_with('-'))) {
            arguments.push_back("./" + word);
        } else {
            arguments.push_back(word);
        }
    }
    std::ranges::reverse(arguments);
    return arguments;
}

class HelpFormatter : public CLI::Formatter {
public:
    std::string make_option_name(const CLI::Option* option, bool isPositional) const override {
        return ShownNameOf(CLI::Formatter::make_option_name(option, isPositional));
    }
};

void NameLabels(CLI::App& app, Language language) {
    if (language == Language::English) {
        return;
    }
    app.option_defaults()->group(std::string(OptionsText.In(language)));
    app.group(std::string(CommandsText.In(language)));
    app.get_formatter()->label("Usage", "用法");
    app.get_formatter()->label("OPTIONS", "选项");
    app.get_formatter()->label("SUBCOMMAND", "命令");
    app.get_formatter()->label("SUBCOMMANDS", "命令");
    app.get_formatter()->label("Positionals", "参数");
    app.get_formatter()->label("REQUIRED", "必需");
}

void Describe(CLI::App& app, Language language, Action& action, std::string& languageName) {
    app.formatter(std::make_shared<HelpFormatter>());
    NameLabels(app, language);
    app.allow_windows_style_options(false); // a word that begins with a slash is a file, on every system
    app.set_help_flag("-h,--help", std::string(HelpText.In(language)));
    app.set_version_flag("--version", "zelvor-cli " ZELVOR_VERSION, std::string(VersionText.In(language)));
    app.add_option(std::string(LanguageOption), languageName, std::string(LanguageText.In(language)))
        ->type_name("LANGUAGE")
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast)
        ->check(CLI::IsMember({"en", "zh"}));
    app.require_subcommand(1);
    app.fallthrough();
    AddFileCommands(app, language, action);
    AddFieldCommands(app, language, action);
    AddChannelCommands(app, language, action);
    AddRadioCommands(app, language, action);
}

void Complain(const CLI::App& app, const CLI::ParseError& error, Language language) {
    const Console console{std::cout, std::cerr, language};
    console.Complain(Printable(ComplaintOf(app, error, language)));
    console.Complain(console.Say(TryHelp));
}

/// What help and version print, as data like those of any other command.
Action PrintingOf(const CLI::App& app, const CLI::Success& request) {
    std::ostringstream text;
    app.exit(request, text, text);
    return [text = text.str()](FileStore& /*store*/, const Console& console) {
        console.out << text;
        return ExitStatus::Done;
    };
}

} // namespace

CommandLine ReadCommandLine(std::span<const std::string> words) {
    CommandLine commandLine{.language = LookForLanguage(words), .action = {}};
    std::string languageName;
    CLI::App app(std::string(Summary.In(commandLine.language)), "zelvor-cli");
    Describe(app, commandLine.language, commandLine.action, languageName);
    try {
        app.parse(ForReader(words));
    } catch (const CLI::Success& request) {
        commandLine.action = PrintingOf(app, request);
    } catch (const CLI::ParseError& error) {
        Complain(app, error, commandLine.language);
        commandLine.action = nullptr;
    }
    return commandLine;
}

} // namespace zelvor::cli
