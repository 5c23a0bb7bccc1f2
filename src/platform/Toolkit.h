#pragma once

#include <QString>
#include <QStringList>
#include <span>
#include <string>
#include <string_view>

namespace zelvor {

/// Our texts are UTF-8; the toolkit's are not.
[[nodiscard]] QString ToQString(std::string_view text);
[[nodiscard]] std::string FromQString(const QString& text);
[[nodiscard]] QStringList ToQStrings(std::span<const std::string> texts);

/// A name for assistive technology out of a caption: without the mark of its access key, "&Toolbar" or "工具栏(&T)".
[[nodiscard]] QString SpokenName(QString caption);

} // namespace zelvor
