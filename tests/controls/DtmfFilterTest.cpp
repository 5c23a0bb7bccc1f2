#include "controls/DtmfFilter.h"

#include <gtest/gtest.h>

#include "support/QtPrinting.h"

namespace zelvor {
namespace {

TEST(DtmfFilter, PassesDtmfDigitsAndTurnsSmallLettersIntoCapitals) {
    const QString entered = "0123456789ABCD*#abcd";
    const QString accepted = "0123456789ABCD*#ABCD";
    for (int character = 0; character <= 0xFFFF; ++character) {
        const auto place = entered.indexOf(QChar(static_cast<char16_t>(character)));
        const QChar expected = place < 0 ? QChar() : accepted[place];
        ASSERT_EQ(DtmfDigitFilter(QChar(static_cast<char16_t>(character))), expected) << character;
    }
}

} // namespace
} // namespace zelvor
