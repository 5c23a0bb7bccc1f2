#include "tour/Checks.h"

#include <algorithm>

#include "tour/Failure.h"

namespace zelvor::tour {

namespace {

QString HexOf(const QByteArray& bytes, qsizetype place) {
    return place < bytes.size()
               ? QString("%1").arg(static_cast<unsigned char>(bytes.at(place)), 2, 16, QChar(u'0')).toUpper()
               : QString("nothing");
}

} // namespace

void Check(const std::string& what, bool holds) {
    if (!holds) {
        throw Failure("wrong: " + what);
    }
}

void CheckEqual(const std::string& what, const QString& is, const QString& mustBe) {
    if (is != mustBe) {
        throw Failure(what + " is \"" + is.toStdString() + "\" and must be \"" + mustBe.toStdString() + "\"");
    }
}

void CheckBytes(const std::string& what, const QByteArray& are, const QByteArray& mustBe, int firstAddress) {
    if (are == mustBe) {
        return;
    }
    const auto difference = std::mismatch(are.begin(), are.end(), mustBe.begin(), mustBe.end());
    const auto place = difference.first - are.begin();
    const QString address = QString::number(firstAddress + place, 16).toUpper();
    throw Failure(what + ": byte 0x" + address.toStdString() + " is " + HexOf(are, place).toStdString() +
                  " and must be " + HexOf(mustBe, place).toStdString());
}

QByteArray Hex(const char* text) {
    return QByteArray::fromHex(QByteArray(text));
}

} // namespace zelvor::tour
