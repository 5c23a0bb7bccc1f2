#include "shell/MenuTree.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

namespace zelvor {
namespace {

class MenuTreeTest : public testing::Test {
protected:
    template<typename Condition>
    std::set<std::string> NamesOf(Condition condition) const {
        std::set<std::string> names;
        for (const Command* command : CommandsOf(menus)) {
            if (condition(*command)) {
                names.insert(std::string(command->name));
            }
        }
        return names;
    }

    const std::vector<MenuDescription> menus = MenuTree();
};

TEST_F(MenuTreeTest, EveryCommandHasANameOfItsOwnAndAText) {
    std::set<std::string_view> names;
    for (const Command* command : CommandsOf(menus)) {
        EXPECT_TRUE(names.insert(command->name).second) << command->name;
        EXPECT_TRUE(command->text.has_value()) << command->name;
    }
    EXPECT_EQ(names.size(), 33U);
}

TEST_F(MenuTreeTest, OnlyThePreviewDoesNothing) {
    const auto names = NamesOf([](const Command& command) { return !command.run; });
    EXPECT_EQ(names, std::set<std::string>{"MnuFilePreview"});
}

TEST_F(MenuTreeTest, WhatReadsOrReplacesTheImageOrShowsADialogCommitsFirst) {
    const auto names = NamesOf([](const Command& command) { return command.run && command.commitsFirst; });
    EXPECT_EQ(names, (std::set<std::string>{"MnuFileNew", "MnuFileOpen", "MnuFileSave", "MnuFileSaveAs", "MnuFilePrint",
                                            "MnuModelInformation", "MnuProgramRead", "MnuProgramWrite",
                                            "MnuProgramTestMode", "MnuProgramMemoryMap", "MnuToolRadioInformation",
                                            "MnuSetupCommunicationPort", "MnuSetupLanguageFileSetup", "MnuHelpAbout"}));
}

TEST_F(MenuTreeTest, WhatReplacesTheDocumentOrWantsThePortEndsAnExchange) {
    const auto names = NamesOf([](const Command& command) { return command.endsExchange; });
    EXPECT_EQ(names, (std::set<std::string>{"MnuFileNew", "MnuFileOpen", "MnuModelInformation", "MnuProgramRead",
                                            "MnuProgramWrite", "MnuProgramMemoryMap", "MnuSetupCommunicationPort"}));
}

TEST_F(MenuTreeTest, NoTwoCommandsHaveTheSameKey) {
    std::vector<Command> keys = KeyCommands();
    for (const Command* command : CommandsOf(menus)) {
        keys.push_back(*command);
    }
    std::set<QKeySequence> taken;
    for (const Command& command : keys) {
        EXPECT_TRUE(command.shortcut.isEmpty() || taken.insert(command.shortcut).second) << command.name;
    }
    EXPECT_EQ(taken.size(), 7U);
}

} // namespace
} // namespace zelvor
