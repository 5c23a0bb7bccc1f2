#include "cli/DiffCommand.h"

#include <QJsonArray>

#include "cli/HexText.h"
#include "cli/ImageDifferences.h"
#include "cli/JsonText.h"
#include "cli/RadioFile.h"
#include "data/ChannelFields.h"
#include "platform/Toolkit.h"

namespace zelvor::cli {

namespace {

void PrintTexts(const ImageDifferences& differences, const DataImage& a, const DataImage& b, const Console& console) {
    for (const Field& field : differences.fields) {
        console.out << field.Key() << ": " << Printable(field.Show(a, console.language)) << " -> "
                    << Printable(field.Show(b, console.language)) << '\n';
    }
    for (const int address : differences.addresses) {
        console.out << AddressText(address) << ": " << ByteText(a.At(address)) << " -> " << ByteText(b.At(address))
                    << '\n';
    }
}

QJsonObject Json(const ImageDifferences& differences, const RadioFile& a, const RadioFile& b) {
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

} // namespace

ExitStatus Diff(const DiffRequest& request, FileStore& store, const Console& console) {
    const std::optional<RadioFile> a = ReadRadioFile(store, request.a, console);
    const std::optional<RadioFile> b = ReadRadioFile(store, request.b, console);
    if (!a || !b) {
        return ExitStatus::File;
    }
    const ImageDifferences differences = DifferencesOf(a->image, b->image);
    if (request.json) {
        console.out << JsonText(Json(differences, *a, *b));
    } else {
        PrintTexts(differences, a->image, b->image, console);
    }
    return differences.AreNone() ? ExitStatus::Done : ExitStatus::No;
}

} // namespace zelvor::cli
