#include "cli/DiffCommand.h"

#include <QJsonArray>
#include <algorithm>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include "cli/HexText.h"
#include "cli/ImageDifferences.h"
#include "cli/JsonText.h"
#include "cli/RadioFile.h"
#include "data/ChannelFields.h"
#include "platform/FileStore.h"
#include "platform/FileSystem.h"
#include "platform/Toolkit.h"

namespace zelvor::cli {

namespace {

constexpr TextPair OnlyIn{"only in ", "仅存在于 "};
constexpr TextPair NeedsFolder{"cannot be compared with a file, since it is a folder", "是文件夹，不能与文件比较"};

struct ComparedFiles {
    RadioFile a;
    RadioFile b;
    ImageDifferences differences;
};

/// Nothing where one of them cannot be read or is no data file; that is told, of both.
std::optional<ComparedFiles> Compare(const std::string& pathOfA, const std::string& pathOfB, FileStore& store,
                                     const Console& console) {
    const std::optional<RadioFile> a = ReadRadioFile(store, pathOfA, console);
    const std::optional<RadioFile> b = ReadRadioFile(store, pathOfB, console);
    if (!a || !b) {
        return std::nullopt;
    }
    return ComparedFiles{*a, *b, DifferencesOf(a->image, b->image)};
}

ExitStatus StatusOf(const ImageDifferences& differences) {
    return differences.AreNone() ? ExitStatus::Done : ExitStatus::No;
}

/// head: what every line begins with.
void PrintTexts(const ComparedFiles& files, const std::string& head, const Console& console) {
    for (const Field& field : files.differences.fields) {
        console.out << head << field.Key() << ": " << Printable(field.Show(files.a.image, console.language)) << " -> "
                    << Printable(field.Show(files.b.image, console.language)) << '\n';
    }
    for (const int address : files.differences.addresses) {
        console.out << head << AddressText(address) << ": " << ByteText(files.a.image.At(address)) << " -> "
                    << ByteText(files.b.image.At(address)) << '\n';
    }
}

QJsonObject Json(const ComparedFiles& files) {
    const auto& [a, b, differences] = files;
    QJsonArray fields;
    QJsonArray channels;
    for (const Field& field : differences.fields) {
        QJsonObject object{{"a", JsonOf(field, a.image)}, {"b", JsonOf(field, b.image)}};
        if (const auto* channel = field.As<ChannelField>()) {
            object.insert("channel", channel->channel);
            object.insert("column", ToQString(NameOf(channel->column)));
            channels.append(object);
        } else {
            object.insert("key", ToQString(field.Key()));
            fields.append(object);
        }
    }
    QJsonArray bytes;
    for (const int address : differences.addresses) {
        bytes.append(QJsonObject{{"address", JsonOf(AddressText(address))},
                                 {"a", JsonOf(ByteText(a.image.At(address)))},
                                 {"b", JsonOf(ByteText(b.image.At(address)))}});
    }
    return {{"a", JsonOf(a.path)}, {"b", JsonOf(b.path)},  {"same", differences.AreNone()},
            {"fields", fields},    {"channels", channels}, {"bytes", bytes}};
}

ExitStatus DiffFiles(const DiffRequest& request, FileStore& store, const Console& console) {
    const std::optional<ComparedFiles> files = Compare(request.a, request.b, store, console);
    if (!files) {
        return ExitStatus::File;
    }
    if (request.json) {
        console.out << JsonText(Json(*files));
    } else {
        PrintTexts(*files, {}, console);
    }
    return StatusOf(files->differences);
}

// --- Folders ---------------------------------------------------------------------------------------------------------

using Names = std::vector<std::string>; // in order

/// As "*.dat" names them, whatever the case of the letters.
bool IsDataFileName(const std::string& name) {
    return !name.starts_with('.') && ToQString(name).endsWith(u".dat", Qt::CaseInsensitive);
}

/// Nothing where the path leads to no folder that can be read.
std::optional<Names> DataFilesIn(const std::string& path, FileStore& store) {
    std::optional<Names> names = store.NamesIn(path);
    if (names) {
        std::erase_if(*names, [](const std::string& name) { return !IsDataFileName(name); });
        std::ranges::sort(*names);
    }
    return names;
}

/// What is told of two folders: line by line, or as one document at the end.
class FolderReport {
public:
    FolderReport(const DiffRequest& request, const Console& console) : request_(request), console_(console) {}

    void AddPair(const std::string& name, const ComparedFiles& files) {
        if (request_.json) {
            pairs_.append(Json(files));
        } else {
            PrintTexts(files, Printable(name) + ": ", console_);
        }
    }
    void AddSingle(const std::string& name, bool isInA) {
        if (request_.json) {
            (isInA ? onlyInA_ : onlyInB_).append(JsonOf(name));
        } else {
            console_.out << Printable(name) << ": " << console_.Say(OnlyIn)
                         << Printable(isInA ? request_.a : request_.b) << '\n';
        }
    }
    void End(ExitStatus status) const {
        if (request_.json) {
            console_.out << JsonText({{"a", JsonOf(request_.a)},
                                      {"b", JsonOf(request_.b)},
                                      {"same", status == ExitStatus::Done},
                                      {"pairs", pairs_},
                                      {"only_in_a", onlyInA_},
                                      {"only_in_b", onlyInB_}});
        }
    }

private:
    const DiffRequest& request_;
    const Console& console_;
    QJsonArray pairs_;
    QJsonArray onlyInA_;
    QJsonArray onlyInB_;
};

ExitStatus DiffFolders(const DiffRequest& request, const Names& a, const Names& b, FileStore& store,
                       const Console& console) {
    Names all;
    std::ranges::set_union(a, b, std::back_inserter(all));
    FolderReport report(request, console);
    ExitStatus status = ExitStatus::Done;
    for (const std::string& name : all) {
        const bool isInA = std::ranges::binary_search(a, name);
        if (!isInA || !std::ranges::binary_search(b, name)) {
            report.AddSingle(name, isInA);
            status = Worse(status, ExitStatus::No);
            continue;
        }
        const std::optional<ComparedFiles> files =
            Compare(PathIn(request.a, name), PathIn(request.b, name), store, console);
        if (files) {
            report.AddPair(name, *files);
        }
        status = Worse(status, files ? StatusOf(files->differences) : ExitStatus::File);
    }
    report.End(status);
    return status;
}

/// A folder with anything else, which may be what is wrong.
ExitStatus RefuseFolder(const std::string& folder, const std::string& other, FileStore& store, const Console& console) {
    if (ReadRadioFile(store, other, console)) {
        console.Complain(folder, NeedsFolder);
    }
    return ExitStatus::File;
}

} // namespace

ExitStatus Diff(const DiffRequest& request, FileStore& store, const Console& console) {
    const std::optional<Names> a = DataFilesIn(request.a, store);
    const std::optional<Names> b = DataFilesIn(request.b, store);
    if (a && b) {
        return DiffFolders(request, *a, *b, store, console);
    }
    if (a || b) {
        return a ? RefuseFolder(request.a, request.b, store, console)
                 : RefuseFolder(request.b, request.a, store, console);
    }
    return DiffFiles(request, store, console);
}

} // namespace zelvor::cli
