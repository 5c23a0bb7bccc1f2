#include "cli/JsonText.h"

#include <QJsonDocument>

#include "platform/Toolkit.h"

namespace zelvor::cli {

QJsonValue JsonOf(std::string_view text) {
    return {ToQString(text)};
}

QJsonValue JsonOf(const Field& field, const DataImage& image) {
    return JsonOf(field.Show(image, Language::English));
}

std::string JsonText(const QJsonObject& object) {
    return QJsonDocument(object).toJson(QJsonDocument::Indented).toStdString();
}

} // namespace zelvor::cli
