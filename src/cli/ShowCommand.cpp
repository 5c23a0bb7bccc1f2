#include "cli/ShowCommand.h"

#include <QJsonArray>

#include "cli/JsonText.h"
#include "cli/RadioFile.h"
#include "cli/Sections.h"
#include "cli/TextTable.h"
#include "data/ChannelFields.h"
#include "platform/Toolkit.h"
#include "print/ReportValue.h"
#include "text/StringTable.h"

namespace zelvor::cli {

namespace {

constexpr TextPair Unknown{"unknown", "未知"};

// --- As texts --------------------------------------------------------------------------------------------------------

void PrintFields(const ImageSection& section, const DataImage& image, const Console& console) {
    for (const Field& field : section.fields) {
        std::string value = ReportValue(field, image, console.language);
        if (value.empty() && section.name == IdentitySection) {
            value = console.Say(Unknown);
        }
        console.out << "  " << field.Label(console.language) << ": " << Printable(value) << '\n';
    }
}

void PrintChannels(const DataImage& image, const Console& console) {
    TextTable table(1);
    table[0].emplace_back(TableText(console.language, Text::Channel));
    for (const ChannelField& field : ChannelFieldRows[0]) {
        table[0].emplace_back(HeadingOf(field.column, console.language));
    }
    for (const ChannelRow& row : ChannelFieldRows) {
        if (IsChannelBlank(image, row[0].channel)) {
            continue;
        }
        std::vector<std::string>& line = table.emplace_back();
        line.push_back(std::to_string(row[0].channel));
        for (const ChannelField& field : row) {
            line.push_back(ShowValue(field, image, console.language));
        }
    }
    for (std::vector<std::string>& line : table) {
        line[0].insert(0, "  ");
    }
    PrintTable(console.out, table);
}

void PrintSections(const std::vector<ImageSection>& sections, const DataImage& image, const Console& console) {
    for (const ImageSection& section : sections) {
        console.out << TitleOf(section, console.language) << '\n';
        if (section.name == ChannelsSection) {
            PrintChannels(image, console);
        } else {
            PrintFields(section, image, console);
        }
    }
}

// --- As JSON ---------------------------------------------------------------------------------------------------------

QJsonArray ChannelsJson(const DataImage& image) {
    QJsonArray channels;
    for (const ChannelRow& row : ChannelFieldRows) {
        if (IsChannelBlank(image, row[0].channel)) {
            continue;
        }
        QJsonObject channel{{"channel", row[0].channel}};
        for (const ChannelField& field : row) {
            channel.insert(ToQString(NameOf(field.column)), JsonOf(field, image));
        }
        channels.append(channel);
    }
    return channels;
}

QJsonObject FieldsJson(const ImageSection& section, const DataImage& image) {
    QJsonObject fields;
    for (const Field& field : section.fields) {
        fields.insert(ToQString(field.Key()), JsonOf(field, image));
    }
    return fields;
}

QJsonObject FileJson(const RadioFile& file, const std::vector<ImageSection>& sections) {
    QJsonObject contents;
    for (const ImageSection& section : sections) {
        const QJsonValue value = section.name == ChannelsSection ? QJsonValue(ChannelsJson(file.image))
                                                                 : QJsonValue(FieldsJson(section, file.image));
        contents.insert(ToQString(section.name), value);
    }
    return {{"file", JsonOf(file.path)}, {"sections", contents}};
}

} // namespace

ExitStatus Show(const ShowRequest& request, FileStore& store, const Console& console) {
    const std::vector<ImageSection> sections = SectionsOf(request.sections);
    ExitStatus status = ExitStatus::Done;
    QJsonArray files;
    for (const std::string& path : request.files) {
        const std::optional<RadioFile> file = ReadRadioFile(store, path, console);
        if (!file) {
            status = ExitStatus::File;
        } else if (request.json) {
            files.append(FileJson(*file, sections));
        } else {
            if (request.files.size() > 1) {
                console.out << Printable(path) << ":\n";
            }
            PrintSections(sections, file->image, console);
        }
    }
    if (request.json) {
        console.out << JsonText({{"files", files}});
    }
    return status;
}

} // namespace zelvor::cli
