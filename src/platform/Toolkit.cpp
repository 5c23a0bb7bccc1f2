#include "platform/Toolkit.h"

#include <QRegularExpression>

namespace zelvor {

QString ToQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string FromQString(const QString& text) {
    return text.toStdString();
}

QStringList ToQStrings(std::span<const std::string> texts) {
    QStringList list;
    list.reserve(static_cast<qsizetype>(texts.size()));
    for (const std::string& text : texts) {
        list.append(ToQString(text));
    }
    return list;
}

QString SpokenName(QString caption) {
    static const QRegularExpression behind(QStringLiteral("\\(&.\\)$"));
    return caption.remove(behind).remove(u'&');
}

} // namespace zelvor
