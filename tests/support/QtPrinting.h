#pragma once

#include <QString>
#include <ostream>

/// So that a failing expectation shows the text.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}
