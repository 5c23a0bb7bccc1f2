#pragma once

#include "OptionalFormFixture.h"

namespace zelvor {

inline constexpr int Dtmf = 0;
inline constexpr int Corvane = 1;
inline constexpr int Bot = 0;
inline constexpr int Eot = 1;
inline constexpr int Both = 2;

inline constexpr const char* Begin = "txtPTTCode(0)";
inline constexpr const char* End = "txtPTTCode(1)";

/// The PTT ID part of the window.
class OptionalFormPttIdTest : public OptionalFormTest {
protected:
    void Put(int type, int pttId, const char* begin, const char* end) {
        document.Image.Set(0x133, static_cast<std::uint8_t>(type));
        document.Image.Set(0x132, static_cast<std::uint8_t>(pttId));
        PutCode(0x140, begin);
        PutCode(0x150, end);
    }
    void ExpectEnabled(bool begin, bool end) {
        EXPECT_EQ(IsEnabled(Begin), begin);
        EXPECT_EQ(IsEnabled("lblPTTCode(0)"), begin);
        EXPECT_EQ(IsEnabled(End), end);
        EXPECT_EQ(IsEnabled("lblPTTCode(1)"), end);
    }
    void ExpectError(bool set, int kind) {
        EXPECT_EQ(document.Flags.TxCodeError, set);
        EXPECT_EQ(document.Flags.TxCodeErrorKind, kind);
    }
};

} // namespace zelvor
