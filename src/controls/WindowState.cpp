#include "controls/WindowState.h"

#include <algorithm>

#include "text/StringTable.h"

namespace zelvor {

std::string_view WindowState::LoadText(Text name) const {
    return TableText(LanguageFlag, name);
}

bool WindowState::IsAnyChildOpen() const {
    return std::any_of(ChildOpen.begin(), ChildOpen.end(), [](bool open) { return open; });
}

} // namespace zelvor
