#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "controls/ChannelCursor.h"
#include "text/Language.h"
#include "text/Text.h"

namespace zelvor {

/// The child windows. Their order is that of the window list, of the Edit menu and of all that walks over them.
enum class ChildWindow {
    Channels,
    OptionalFeatures,
    KeyAssignment,
    Scan,
    Dtmf,
    Corvane,
    TestFrequency,
    EmbeddedMessage,
    Navigator,
    ChannelEdit,
};
inline constexpr int ChildWindowCount = 10;

/// What the windows share beside the document. Owned by the program, handed on by reference; the main window and its
/// commands change it, the windows read it.
class WindowState {
public:
    using OpenFlags = std::array<bool, ChildWindowCount>;

    Language LanguageFlag = Language::English;
    ChannelCursor Cursor;
    /// Yes was said to the exit question; stays set when the close is then cancelled.
    bool ExitConfirmed = false;

    [[nodiscard]] std::string_view LoadText(Text name) const;

    [[nodiscard]] bool IsOpen(ChildWindow window) const { return ChildOpen[static_cast<std::size_t>(window)]; }
    void SetOpen(ChildWindow window, bool open) { ChildOpen[static_cast<std::size_t>(window)] = open; }
    [[nodiscard]] bool IsAnyChildOpen() const;
    /// All of them, in the order of ChildWindow.
    [[nodiscard]] const OpenFlags& Open() const { return ChildOpen; }

private:
    OpenFlags ChildOpen{};
};

} // namespace zelvor
