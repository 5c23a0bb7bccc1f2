#include "cli/FieldCommands.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "cli/HexText.h"
#include "cli/LegalText.h"
#include "cli/RadioFile.h"
#include "cli/Refusal.h"
#include "data/FieldRules.h"
#include "data/ImageSections.h"

namespace zelvor::cli {

namespace {

constexpr TextPair NoSuchKey{"there is no such key; \"zelvor-cli keys\" lists them",
                             "没有这个键；用 \"zelvor-cli keys\" 列出所有键"};
constexpr TextPair NoFiles{"no file is named", "没有指定文件"};
constexpr TextPair NoAssignments{"no KEY=VALUE is given", "没有给出 KEY=VALUE"};
constexpr TextPair OneFileOnly{"-o goes with one file only", "-o 只能用于一个文件"};
constexpr TextPair GivenTwice{"the key is given twice", "此键给出了两次"};

/// Complains of every key that does not exist.
bool AreKeys(const std::vector<std::string>& keys, const Console& console) {
    bool areAll = true;
    for (const std::string& key : keys) {
        if (FindImageField(key) == nullptr) {
            console.Complain(key, NoSuchKey);
            areAll = false;
        }
    }
    return areAll;
}

/// Complains of every key that stands a second time.
bool AreDifferent(const std::vector<std::string>& keys, const Console& console) {
    bool areAll = true;
    for (auto key = keys.begin(); key != keys.end(); ++key) {
        if (std::count(keys.begin(), key, *key) == 1) {
            console.Complain(*key, GivenTwice);
            areAll = false;
        }
    }
    return areAll;
}

bool IsAssignment(std::string_view argument) {
    const std::size_t sign = argument.find('=');
    return sign != std::string_view::npos && argument.substr(0, sign).find_first_of("/\\") == std::string_view::npos;
}

/// Whether the request is one at all.
bool IsUsable(const SetRequest& request, const Console& console) {
    if (request.files.empty() || request.assignments.empty()) {
        console.Complain(console.Say(request.files.empty() ? NoFiles : NoAssignments));
        return false;
    }
    if (request.output && request.files.size() > 1) {
        console.Complain(console.Say(OneFileOnly));
        return false;
    }
    std::vector<std::string> keys;
    for (const Assignment& assignment : request.assignments) {
        keys.push_back(assignment.key);
    }
    return AreKeys(keys, console) && AreDifferent(keys, console);
}

/// Complains of every value that the image does not take.
bool Assign(const std::vector<Assignment>& assignments, RadioFile& file, const Console& console) {
    bool areAll = true;
    for (const Assignment& assignment : assignments) {
        const Field& field = *FindImageField(assignment.key);
        if (!field.Parse(assignment.value, file.image)) {
            console.Complain(Printable(file.path) + ": " + assignment.key + ": " +
                             RefusalOf(field, assignment.value, file.image, console.language));
            areAll = false;
        }
    }
    return areAll;
}

/// The first assignment to one of the fields; null where there is none.
const Assignment* AssignmentTo(const std::vector<Field>& fields, const std::vector<Assignment>& assignments) {
    const auto found = std::ranges::find_if(assignments, [&fields](const Assignment& assignment) {
        return std::ranges::find(fields, assignment.key, &Field::Key) != fields.end();
    });
    return found == assignments.end() ? nullptr : &*found;
}

/// Complains of values that do not go together once all are stored, where any of them was assigned.
bool GoTogether(const std::vector<Assignment>& assignments, const RadioFile& file, const Console& console) {
    bool areAll = true;
    for (const BrokenRule& broken : BrokenRules(file.image)) {
        if (const Assignment* assignment = AssignmentTo(broken.fields, assignments)) {
            console.Complain(Printable(file.path) + ": " + assignment->key + ": " +
                             TextOf(broken.fault, console.language));
            areAll = false;
        }
    }
    return areAll;
}

} // namespace

ExitStatus ListKeys(const Console& console) {
    for (const ImageSection& section : ImageSections()) {
        for (const Field& field : section.fields) {
            console.out << field.Key() << '\t' << section.name << '\t' << AddressText(field.Address()) << '\t'
                        << LegalText(field.Legal(Language::English), console.language) << '\t'
                        << field.Label(Language::English) << '\t' << field.Label(Language::Chinese) << '\n';
        }
    }
    return ExitStatus::Done;
}

ExitStatus Get(const GetRequest& request, FileStore& store, const Console& console) {
    if (!AreKeys(request.keys, console)) {
        return ExitStatus::Usage;
    }
    const std::optional<RadioFile> file = ReadRadioFile(store, request.file, console);
    if (!file) {
        return ExitStatus::File;
    }
    for (const std::string& key : request.keys) {
        console.out << key << '=' << Printable(FindImageField(key)->Show(file->image, console.language)) << '\n';
    }
    return ExitStatus::Done;
}

SetRequest ReadSetArguments(const std::vector<std::string>& arguments, const std::optional<std::string>& output) {
    SetRequest request{.files = {}, .assignments = {}, .output = output};
    for (const std::string& argument : arguments) {
        if (IsAssignment(argument)) {
            const std::size_t sign = argument.find('=');
            request.assignments.push_back({argument.substr(0, sign), argument.substr(sign + 1)});
        } else {
            request.files.push_back(argument);
        }
    }
    return request;
}

ExitStatus Set(const SetRequest& request, FileStore& store, const Console& console) {
    if (!IsUsable(request, console)) {
        return ExitStatus::Usage;
    }
    ExitStatus status = ExitStatus::Done;
    bool isRefused = false;
    std::vector<RadioFile> changed;
    for (const std::string& path : request.files) {
        std::optional<RadioFile> file = ReadRadioFile(store, path, console);
        if (!file) {
            status = ExitStatus::File;
        } else if (Assign(request.assignments, *file, console) && GoTogether(request.assignments, *file, console)) {
            changed.push_back(std::move(*file));
        } else {
            isRefused = true;
        }
    }
    if (isRefused) {
        return ExitStatus::File;
    }
    for (const RadioFile& file : changed) {
        if (!WriteBytes(store, request.output.value_or(file.path), BytesOf(file), console)) {
            status = ExitStatus::File;
        }
    }
    return status;
}

} // namespace zelvor::cli
