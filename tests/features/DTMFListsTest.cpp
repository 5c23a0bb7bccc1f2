#include "DTMFFormFixture.h"

#include <algorithm>
#include <tuple>

namespace zelvor {
namespace {

using DTMFListsTest = DTMFFormTest;

struct ListCase {
    const char* name;
    int address;
    std::vector<int> codes;
};
const ListCase Lists[] = {{"cboGroupCode", 0x116, {0, 65, 66, 67, 68, 35, 42}},
                          {"cboCallAlert", 0x118, {2, 0, 1}},
                          {"cboTranspond", 0x119, {0, 1, 2}},
                          {"cboStunType", 0x1FA, {0, 1}}};

TEST_F(DTMFListsTest, EachLegalByteSelectsItsEntryAndCommitsBackToItself) {
    for (const ListCase& list : Lists) {
        for (std::size_t entry = 0; entry < list.codes.size(); ++entry) {
            Put(list.address, {list.codes[entry]});
            const DataImage before = document.Image;
            Show();
            ClickTab(1);
            EXPECT_EQ(List(list.name).currentIndex(), static_cast<int>(entry)) << list.name;
            PassThrough(list.name);
            EXPECT_EQ(document.Image, before) << list.name;
        }
    }
}

TEST_F(DTMFListsTest, AnyOtherByteSelectsNothingExceptAnErasedStunType) {
    for (int byte = 0; byte <= 0xFF; ++byte) {
        for (const ListCase& list : Lists) {
            Put(list.address, {byte});
        }
        Load();
        for (const ListCase& list : Lists) {
            const bool legal = std::find(list.codes.begin(), list.codes.end(), byte) != list.codes.end();
            const int entry = list.address == 0x1FA && byte == 0xFF ? 0 : -1;
            ASSERT_TRUE(legal || List(list.name).currentIndex() == entry) << list.name << " " << byte;
        }
    }
}

TEST_F(DTMFListsTest, LeavingAListWithoutASelectionKeepsItsByteExceptInTranspond) {
    Put(0x116, {0x45});
    Put(0x118, {3, 7});
    Put(0x1FA, {9});
    Show();
    ClickTab(1);
    for (const char* name : {"cboGroupCode", "cboCallAlert", "cboTranspond", "cboStunType"}) {
        PassThrough(name);
    }
    EXPECT_EQ(At(0x116), 0x45);
    EXPECT_EQ(At(0x118), 3);
    EXPECT_EQ(At(0x119), 0xFF);
    EXPECT_EQ(At(0x1FA), 9);
}

TEST_F(DTMFListsTest, LeavingAnErasedStunTypeStoresTheEntryThatShows) {
    Put(0x1FA, {0xFF});
    Show();
    ClickTab(1);
    PassThrough("cboStunType");
    EXPECT_EQ(At(0x1FA), 0);
}

TEST_F(DTMFListsTest, AChosenEntryIsStoredWhenTheListIsLeft) {
    for (const ListCase& list : Lists) {
        for (std::size_t entry = 0; entry < list.codes.size(); ++entry) {
            Show();
            ClickTab(1);
            const DataImage before = document.Image;
            Choose(list.name, static_cast<int>(entry));
            EXPECT_EQ(document.Image, before);
            Key(Qt::Key_Tab);
            EXPECT_EQ(At(list.address), list.codes[entry]) << list.name;
        }
    }
}

TEST_F(DTMFListsTest, CheckBoxesShowAnyByteAndStoreZeroOrOne) {
    for (int byte = 0; byte <= 0xFF; ++byte) {
        Put(0x115, {byte});
        Put(0x11A, {byte});
        Load();
        ASSERT_EQ(Check("chkDTMFSideTone").isChecked(), byte != 0) << byte;
        ASSERT_EQ(Check("chkClear").isChecked(), byte != 0 && byte != 0xFF) << byte;
    }
    for (const auto& [byte, stored, cleared] :
         {std::tuple{0, 0, 0}, std::tuple{1, 1, 1}, std::tuple{0x80, 1, 1}, std::tuple{0xFF, 1, 0}}) {
        Put(0x115, {byte});
        Put(0x11A, {byte});
        Show();
        PassThrough("chkDTMFSideTone");
        ClickTab(1);
        PassThrough("chkClear");
        EXPECT_EQ(At(0x115), stored);
        EXPECT_EQ(At(0x11A), cleared);
    }
}

TEST_F(DTMFListsTest, AClickOnACheckBoxIsStoredWhenItIsLeft) {
    ShowAt(0, "chkDTMFSideTone");
    Key(Qt::Key_Space);
    EXPECT_EQ(At(0x115), 1);
    Key(Qt::Key_Return);
    EXPECT_EQ(At(0x115), 0);
    ClickTab(1);
    Focus("chkClear");
    Key(Qt::Key_Space);
    Key(Qt::Key_Tab);
    EXPECT_EQ(At(0x11A), 0);
}

} // namespace
} // namespace zelvor
