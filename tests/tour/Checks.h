#pragma once

#include <QByteArray>
#include <QString>
#include <string>

namespace zelvor::tour {

/// Each throws a Failure that says what is wrong where it does not hold.
void Check(const std::string& what, bool holds);
void CheckEqual(const std::string& what, const QString& is, const QString& mustBe);
/// Names the first byte that differs, counted from firstAddress.
void CheckBytes(const std::string& what, const QByteArray& are, const QByteArray& mustBe, int firstAddress = 0);

/// The bytes that a text such as "00 25 FF" writes out.
[[nodiscard]] QByteArray Hex(const char* text);

} // namespace zelvor::tour
