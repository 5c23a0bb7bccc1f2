#include "platform/Toolkit.h"

namespace zelvor {

QString ToQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string FromQString(const QString& text) {
    return text.toStdString();
}

} // namespace zelvor
