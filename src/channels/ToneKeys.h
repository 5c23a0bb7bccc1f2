#pragma once

namespace zelvor {

class FilteredLineEdit;

/// Lets a box take what a tone is typed with: digits, the point, and D, I, N in either case, raised; at five characters
/// only over a selection. The grid's list editor and the dialog's tone lists have it in common.
void TakeToneKeys(FilteredLineEdit& box);

/// One of the letters of a DQT code; upper case.
[[nodiscard]] constexpr bool IsToneLetter(char16_t upper) {
    return upper == u'D' || upper == u'I' || upper == u'N';
}

} // namespace zelvor
