// `zelvor-cli set` with any assignments to any keys, on images of any bytes.

#include <algorithm>
#include <sstream>

#include "FuzzImages.h"
#include "Require.h"
#include "cli/FieldCommands.h"
#include "cli/LegalText.h"
#include "data/ChannelFields.h"
#include "data/DataFile.h"
#include "data/IdentityFields.h"
#include "data/ImageSections.h"
#include "fakes/FakeFileStore.h"

namespace zelvor::fuzz {
namespace {

constexpr Language Languages[] = {Language::English, Language::Chinese};
constexpr std::size_t LongestValue = 40;
constexpr const char* Path = "a.dat";

const std::vector<Field>& Fields() {
    static const std::vector<Field> fields = [] {
        std::vector<Field> all;
        for (const ImageSection& section : ImageSections()) {
            all.insert(all.end(), section.fields.begin(), section.fields.end());
        }
        return all;
    }();
    return fields;
}

/// "145" and "145.00000" are the same, and so are "Yes" and "yes".
std::string Plain(std::string_view text) {
    std::string plain(Trimmed(text));
    if (!plain.empty() && plain.find_first_not_of("0123456789.") == std::string::npos &&
        plain.find('.') != std::string::npos) {
        plain.erase(plain.find_last_not_of('0') + 1);
        plain.erase(plain.find_last_not_of('.') + 1);
    }
    plain.erase(0, std::min(plain.find_first_not_of('0'), plain.empty() ? 0 : plain.size() - 1));
    std::ranges::transform(plain, plain.begin(), [](char c) { return c >= 'A' && c <= 'Z' ? char(c + 32) : c; });
    return plain;
}

/// Texts of the user's own are shown to the letter.
bool IsShown(const Field& field, std::string_view text, const DataImage& image) {
    const bool isOwnText = field.As<TextField>() != nullptr;
    return std::ranges::any_of(Languages, [&](Language language) {
        const std::string shown = field.Show(image, language);
        return shown == text || (!isOwnText && Plain(shown) == Plain(text));
    });
}

void CheckOne(const Field& field, const std::string& text, const DataImage& image) {
    DataImage stored = image;
    if (!field.Parse(text, stored)) {
        Require(stored == image, "what is refused stores nothing");
        return;
    }
    Require(IsShown(field, text, stored), "what is taken is shown as it was set");
    Require(field.HoldsLegal(stored), "what is taken is legal");
    DataImage again = stored;
    Require(field.Parse(text, again) && again == stored, "what is taken once more changes nothing");
}

/// All words that are offered are taken; those of a channel depend on it.
void CheckWords(const Field& field, const DataImage& image, Language language) {
    const LegalValues legal = field.Legal(language);
    Require(!cli::LegalText(legal, language).empty(), "what a field takes can be told");
    if (field.As<ChannelField>() != nullptr || field.As<IdentityField>() != nullptr) {
        return;
    }
    for (const std::string& word : legal.words) {
        DataImage stored = image;
        Require(field.Parse(word, stored) && field.HoldsLegal(stored), "a word that is offered is taken");
    }
}

struct Outcome {
    cli::ExitStatus status;
    std::string content;
    std::string said;
};

Outcome Set(const std::vector<std::string>& arguments, const std::string& content, Language language) {
    FakeFileStore store;
    store.Put(Path, content);
    std::ostringstream out;
    std::ostringstream errors;
    const cli::ExitStatus status =
        cli::Set(cli::ReadSetArguments(arguments, std::nullopt), store, {out, errors, language});
    Require(out.str().empty(), "set prints nothing");
    return {status, store.Content(Path), errors.str()};
}

/// The command, on a file whose head is the input's as well.
void CheckCommand(std::vector<std::string> arguments, const DataImage& image, Language language) {
    const DataFileBytes bytes = EncodeDataFile(image);
    const std::string content(bytes.begin(), bytes.end());
    arguments.emplace_back(Path);
    const Outcome outcome = Set(arguments, content, language);
    Require(outcome.status == cli::ExitStatus::Done || outcome.status == cli::ExitStatus::Usage ||
                outcome.status == cli::ExitStatus::File,
            "set ends in one of its ways");
    Require((outcome.status == cli::ExitStatus::Done) == outcome.said.empty(), "a refusal is told, and only that");
    if (outcome.status != cli::ExitStatus::Done) {
        Require(outcome.content == content, "a refusal leaves the file");
        return;
    }
    Require(outcome.content.size() == 1040 && outcome.content.substr(0, 16) == content.substr(0, 16),
            "the head of the file stays");
    const Outcome again = Set(arguments, outcome.content, language); // words of the PTT ID may be others by now
    Require(again.status != cli::ExitStatus::Done || again.content == outcome.content,
            "the same assignments once more change nothing");
}

} // namespace
} // namespace zelvor::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    using namespace zelvor;
    using namespace zelvor::fuzz;
    FuzzInput input(bytes, count);
    const Language language = input.TakeBool() ? Language::Chinese : Language::English;
    const DataImage image = TakeImage(input);
    std::vector<std::string> arguments;
    while (!input.IsEmpty()) {
        const Field& field = Fields()[static_cast<std::size_t>(input.TakeBelow(static_cast<int>(Fields().size())))];
        const std::size_t length = input.TakeByte();
        const std::string text = input.TakeText(length % (LongestValue + 1));
        CheckOne(field, text, image);
        CheckWords(field, image, language);
        const std::string argument = length == 0xFF ? text : field.Key() + '=' + text; // FF: any at all
        if (cli::ReadSetArguments({argument}, std::nullopt).files.empty()) {
            arguments.push_back(argument);
        }
    }
    CheckCommand(std::move(arguments), image, language);
    return 0;
}
