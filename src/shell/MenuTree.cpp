#include "shell/MenuTree.h"

#include <array>

namespace zelvor {

namespace {

constexpr bool Checkable = true;
constexpr bool Hidden = true;

constexpr std::array FileEntries{
    MenuEntry{"MnuFileNew", 2},
    MenuEntry{"MnuFileOpen", 3},
    MenuEntry{"MnuFileSave", 4},
    MenuEntry{"MnuFileSaveAs", 5},
    MenuEntry{"MnuFileBlank1"},
    MenuEntry{"MnuFilePrint", 6},
    MenuEntry{"MnuFilePreview", 7, !Checkable, Hidden},
    MenuEntry{"MnuFileBlank2"},
    MenuEntry{"MnuFileExit", 8},
};

constexpr std::array ModelEntries{
    MenuEntry{"MnuModelInformation", 10},
};

constexpr std::array EditEntries{
    MenuEntry{"MnuEditChannelInformation", 12},
    MenuEntry{"MnuEditBlank1"},
    MenuEntry{"MnuEditOptionalFeatures", 13},
    MenuEntry{"MnuEditKeyAssignment", 14},
    MenuEntry{"MnuEditScanInformation", 15},
    MenuEntry{"MnuEditBlank2"},
    MenuEntry{"MnuEditDTMF", 16},
    MenuEntry{"MnuEditCorvane", 17},
    MenuEntry{"MnuEditBlank3"},
    MenuEntry{"MnuEditTestFrequency", 18},
    MenuEntry{"MnuEditEmbeddedMessage", 19},
};

constexpr std::array ProgramEntries{
    MenuEntry{"MnuProgramRead", 21},
    MenuEntry{"MnuProgramWrite", 22},
    MenuEntry{"MnuProgramTestMode", 23},
    MenuEntry{"MnuProgramMemoryMap", 24, !Checkable, Hidden},
};

constexpr std::array ToolEntries{
    MenuEntry{"MnuToolRadioInformation", 26},
};

constexpr std::array SetupEntries{
    MenuEntry{"MnuSetupCommunicationPort", 28},
    MenuEntry{"MnuSetupLanguageFileSetup", 29},
};

constexpr std::array ViewEntries{
    MenuEntry{"MnuViewTreeView", 31},
    MenuEntry{"MnuViewBlank"},
    MenuEntry{"MnuViewToolbar", 32, Checkable},
    MenuEntry{"MnuViewStatusBar", 33, Checkable},
};

constexpr std::array WindowEntries{
    MenuEntry{"MnuWindowCascade", 35},     MenuEntry{"MnuWindowHorizontally", 36}, MenuEntry{"MnuWindowVertically", 37},
    MenuEntry{"MnuWindowArrangeIcon", 38}, MenuEntry{"MnuWindowBlank1"},           MenuEntry{"MnuWindowCloseAll", 39},
    MenuEntry{"MnuWindowBlank2"},
};

constexpr std::array HelpEntries{
    MenuEntry{"MnuHelpTopics", 50},
    MenuEntry{"MnuHelpBlank"},
    MenuEntry{"MnuHelpAbout", 51},
};

constexpr std::array<MenuDescription, 9> Menus{{
    {"MnuFile", 1, FileEntries},
    {"MnuModel", 9, ModelEntries},
    {"MnuEdit", 11, EditEntries},
    {"MnuProgram", 20, ProgramEntries},
    {"MnuTool", 25, ToolEntries},
    {"MnuSetup", 27, SetupEntries},
    {"MnuView", 30, ViewEntries},
    {"MnuWindow", 34, WindowEntries},
    {"MnuHelp", 49, HelpEntries},
}};

} // namespace

std::span<const MenuDescription> MenuTree() {
    return Menus;
}

} // namespace zelvor
