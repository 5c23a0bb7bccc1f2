#include "shell/MenuTree.h"

#include <array>

namespace zelvor {

namespace {

constexpr bool Checkable = true;
constexpr bool Hidden = true;

constexpr std::array FileEntries{
    MenuEntry{"MnuFileNew", Text::MenuNew},
    MenuEntry{"MnuFileOpen", Text::MenuOpen},
    MenuEntry{"MnuFileSave", Text::MenuSave},
    MenuEntry{"MnuFileSaveAs", Text::MenuSaveAs},
    MenuEntry{"MnuFileBlank1"},
    MenuEntry{"MnuFilePrint", Text::MenuPrint},
    MenuEntry{"MnuFilePreview", Text::MenuPrintPreview, !Checkable, Hidden},
    MenuEntry{"MnuFileBlank2"},
    MenuEntry{"MnuFileExit", Text::MenuExit},
};

constexpr std::array ModelEntries{
    MenuEntry{"MnuModelInformation", Text::MenuModelInformation},
};

constexpr std::array EditEntries{
    MenuEntry{"MnuEditChannelInformation", Text::MenuChannelInformation},
    MenuEntry{"MnuEditBlank1"},
    MenuEntry{"MnuEditOptionalFeatures", Text::MenuOptionalFeatures},
    MenuEntry{"MnuEditKeyAssignment", Text::MenuKeyAssignment},
    MenuEntry{"MnuEditScanInformation", Text::MenuScanInformation},
    MenuEntry{"MnuEditBlank2"},
    MenuEntry{"MnuEditDTMF", Text::MenuDtmf},
    MenuEntry{"MnuEditCorvane", Text::MenuCorvane},
    MenuEntry{"MnuEditBlank3"},
    MenuEntry{"MnuEditTestFrequency", Text::MenuTestFrequency},
    MenuEntry{"MnuEditEmbeddedMessage", Text::MenuEmbeddedMessage},
};

constexpr std::array ProgramEntries{
    MenuEntry{"MnuProgramRead", Text::MenuReadFromRadio},
    MenuEntry{"MnuProgramWrite", Text::MenuWriteToRadio},
    MenuEntry{"MnuProgramTestMode", Text::MenuTestMode},
    MenuEntry{"MnuProgramMemoryMap", Text::MenuMemoryMap, !Checkable, Hidden},
};

constexpr std::array ToolEntries{
    MenuEntry{"MnuToolRadioInformation", Text::MenuRadioInformation},
};

constexpr std::array SetupEntries{
    MenuEntry{"MnuSetupCommunicationPort", Text::MenuCommunicationPort},
    MenuEntry{"MnuSetupLanguageFileSetup", Text::MenuLanguageFileSetup},
};

constexpr std::array ViewEntries{
    MenuEntry{"MnuViewTreeView", Text::MenuTreeView},
    MenuEntry{"MnuViewBlank"},
    MenuEntry{"MnuViewToolbar", Text::MenuToolbar, Checkable},
    MenuEntry{"MnuViewStatusBar", Text::MenuStatusBar, Checkable},
};

constexpr std::array WindowEntries{
    MenuEntry{"MnuWindowCascade", Text::MenuCascade},
    MenuEntry{"MnuWindowHorizontally", Text::MenuTileHorizontally},
    MenuEntry{"MnuWindowVertically", Text::MenuTileVertically},
    MenuEntry{"MnuWindowArrangeIcon", Text::MenuArrangeIcons},
    MenuEntry{"MnuWindowBlank1"},
    MenuEntry{"MnuWindowCloseAll", Text::MenuCloseAllWindows},
    MenuEntry{"MnuWindowBlank2"},
};

constexpr std::array HelpEntries{
    MenuEntry{"MnuHelpTopics", Text::MenuHelpTopics},
    MenuEntry{"MnuHelpBlank"},
    MenuEntry{"MnuHelpAbout", Text::MenuAboutZelvor},
};

constexpr std::array<MenuDescription, 9> Menus{{
    {"MnuFile", Text::MenuFile, FileEntries},
    {"MnuModel", Text::MenuModel, ModelEntries},
    {"MnuEdit", Text::MenuEdit, EditEntries},
    {"MnuProgram", Text::MenuProgram, ProgramEntries},
    {"MnuTool", Text::MenuTools, ToolEntries},
    {"MnuSetup", Text::MenuSetup, SetupEntries},
    {"MnuView", Text::MenuView, ViewEntries},
    {"MnuWindow", Text::MenuWindow, WindowEntries},
    {"MnuHelp", Text::MenuHelp, HelpEntries},
}};

} // namespace

std::span<const MenuDescription> MenuTree() {
    return Menus;
}

} // namespace zelvor
