#pragma once

#include <QJsonObject>
#include <string>
#include <string_view>

#include "data/Field.h"

namespace zelvor::cli {

[[nodiscard]] QJsonValue JsonOf(std::string_view text);
/// What the field shows in English, whatever the language is.
[[nodiscard]] QJsonValue JsonOf(const Field& field, const DataImage& image);
/// One document, ending with its line.
[[nodiscard]] std::string JsonText(const QJsonObject& object);

} // namespace zelvor::cli
