#include <QLabel>
#include <QRadioButton>

#include "shell/ShellTest.h"

namespace zelvor {
namespace {

class StatusBarTest : public ShellTest {
protected:
    [[nodiscard]] QString Panel(const char* name) const { return Find<QLabel>(name)->text(); }
};

TEST_F(StatusBarTest, ShowsPortDateAndTimeAtStart) {
    fakes.clock.SetNow({2007, 1, 30, 14, 5, 9});
    OpenMainWindow();
    EXPECT_EQ(Panel("StatusBar1(1)"), "COM1");
    EXPECT_EQ(Panel("StatusBar1(2)"), "01/30/07");
    EXPECT_EQ(Panel("StatusBar1(3)"), "02:05:09 PM");
}

TEST_F(StatusBarTest, FollowsTheClockEverySecond) {
    fakes.clock.SetNow({2007, 12, 31, 23, 59, 59});
    OpenMainWindow();
    EXPECT_EQ(fakes.clock.IntervalOf("tmrStatusBar"), 1000);
    fakes.clock.SetNow({2008, 1, 1, 0, 0, 0});
    fakes.clock.Advance(999);
    EXPECT_EQ(Panel("StatusBar1(2)"), "12/31/07");
    fakes.clock.Advance(1);
    EXPECT_EQ(Panel("StatusBar1(2)"), "01/01/08");
    EXPECT_EQ(Panel("StatusBar1(3)"), "00:00:00 AM");
}

TEST_F(StatusBarTest, ReadsAmAtTwelve) {
    fakes.clock.SetNow({2007, 1, 30, 12, 0, 0});
    OpenMainWindow();
    EXPECT_EQ(Panel("StatusBar1(3)"), "12:00:00 AM");
}

TEST_F(StatusBarTest, GoesOnWhileAMessageBoxIsUp) {
    OpenMainWindow();
    fakes.messages.Expect({"Warning", "All data will be cleared.", MessageIcon::Exclamation, MessageButtons::OkCancel,
                           MessageAnswer::Cancel},
                          [this] {
                              fakes.clock.SetNow({2007, 1, 30, 8, 0, 0});
                              fakes.clock.Advance(1000);
                              return MessageAnswer::Cancel;
                          });
    Choose("MnuFileNew");
    EXPECT_EQ(Panel("StatusBar1(3)"), "08:00:00 AM");
}

TEST_F(StatusBarTest, FollowsTheChoiceOfThePort) {
    OpenMainWindow();
    ChooseDialog("MnuSetupCommunicationPort", [](QWidget& dialog) {
        EXPECT_EQ(dialog.objectName(), "ComForm");
        dialog.findChild<QRadioButton*>("optPort(11)")->setChecked(true);
        Click(dialog, "cmdOK");
    });
    EXPECT_EQ(link.CommPortNumber, 12);
    EXPECT_EQ(Panel("StatusBar1(1)"), "COM12");
}

TEST_F(StatusBarTest, StaysWhereTheChoiceOfThePortIsCancelled) {
    OpenMainWindow();
    ChooseDialog("MnuSetupCommunicationPort", [](QWidget& dialog) {
        dialog.findChild<QRadioButton*>("optPort(11)")->setChecked(true);
        Click(dialog, "cmdCancel");
    });
    EXPECT_EQ(link.CommPortNumber, 1);
    EXPECT_EQ(Panel("StatusBar1(1)"), "COM1");
}

} // namespace
} // namespace zelvor
