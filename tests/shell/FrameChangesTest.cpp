// A child window that is closed, hidden, minimised or maximised with one of its fields being edited.

#include <QLineEdit>
#include <QMdiSubWindow>

#include "ShellTest.h"

namespace zelvor {
namespace {

enum class Change { Close, CloseAll, Minimise, Maximise };

using FrameState = ShellTest;

class FrameChanges : public ShellTest, public testing::WithParamInterface<Change> {
protected:
    QMdiSubWindow& Frame() { return *qobject_cast<QMdiSubWindow*>(Child("OptionalForm")->parentWidget()); }
    void Make(Change change) {
        switch (change) {
        case Change::Close:
            Frame().close();
            break;
        case Change::CloseAll:
            Choose("MnuWindowCloseAll");
            break;
        case Change::Minimise:
            Frame().showMinimized();
            break;
        case Change::Maximise:
            Frame().showMaximized();
            break;
        }
    }
};

std::string NameOf(const testing::TestParamInfo<Change>& info) {
    constexpr std::array names{"Close", "CloseAll", "Minimise", "Maximise"};
    return names[static_cast<std::size_t>(info.param)];
}

INSTANTIATE_TEST_SUITE_P(Ways, FrameChanges,
                         testing::Values(Change::Close, Change::CloseAll, Change::Minimise, Change::Maximise), NameOf);

TEST_P(FrameChanges, StoreNoFieldThatWasNotEdited) {
    OpenMainWindow();
    document.Image.Set(0x131, 77); // the next field's, illegal: kept while that is not visited
    Choose("MnuEditOptionalFeatures");
    auto* box = Find<QLineEdit>("txtTOT");
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, "30");
    Make(GetParam());
    const bool goesOn = GetParam() == Change::Maximise;
    EXPECT_EQ(box->hasFocus(), goesOn);
    EXPECT_EQ(document.Image.At(0x130), goesOn ? 4 : 2);
    EXPECT_EQ(document.Image.At(0x131), 77);
}

TEST_P(FrameChanges, LeaveTheComplaintAboutAMissingCode) {
    OpenMainWindow();
    document.Image.Set(0x133, 0); // PTT ID Type DTMF
    document.Image.Set(0x132, 2); // PTT ID Both
    for (int digit = 0; digit < 5; ++digit) {
        document.Image.Set(0x140 + digit, static_cast<std::uint8_t>(1 + digit));
    }
    Choose("MnuEditOptionalFeatures");
    Find<QWidget>("cboPTTID")->setFocus(); // the box of the first code, which is not empty, comes next
    document.Flags.TxCodeError = true;
    Make(GetParam());
    EXPECT_TRUE(document.Flags.TxCodeError);
}

TEST_F(FrameState, AChangeOfStateLeavesTheKeyboardWhereItWas) {
    OpenMainWindow();
    Choose("MnuEditOptionalFeatures");
    auto* box = Find<QLineEdit>("txtTOTPreAlert");
    box->setFocus();
    auto& frame = *qobject_cast<QMdiSubWindow*>(Child("OptionalForm")->parentWidget());
    frame.showMaximized();
    EXPECT_TRUE(box->hasFocus());
    frame.showNormal();
    EXPECT_TRUE(box->hasFocus());
    frame.showMinimized();
    frame.showNormal();
    EXPECT_TRUE(box->hasFocus());
}

} // namespace
} // namespace zelvor
