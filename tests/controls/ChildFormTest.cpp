#include "controls/ChildForm.h"

#include <QMdiArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

#include "controls/ChildFrame.h"

namespace zelvor {
namespace {

class PlainForm : public ChildForm {
public:
    PlainForm() : ChildForm(ChildWindow::Scan, "PlainForm", {6000, 3000}) {}
    [[nodiscard]] std::string_view HelpPage() const override { return "plain.htm"; }
};

TEST(ChildForm, HasTheSizeThatItsTwipsTell) {
    const PlainForm form;
    EXPECT_EQ(form.size(), QSize(400, 200));
    EXPECT_EQ(form.Content()->size(), QSize(400, 200));
    EXPECT_EQ(form.objectName(), "PlainForm");
}

TEST(ChildForm, ScrollBarsMoveTheContentByTheirValue) {
    PlainForm form;
    form.show();
    form.resize(300, 150);
    auto* horizontal = form.findChild<QScrollBar*>("HScroll1");
    auto* vertical = form.findChild<QScrollBar*>("VScroll1");
    EXPECT_EQ(horizontal->maximum(), 400 - (300 - 16));
    EXPECT_EQ(vertical->maximum(), 200 - (150 - 16));
    horizontal->setValue(40);
    vertical->setValue(30);
    EXPECT_EQ(form.Content()->pos(), QPoint(-40, -30));
    form.resize(400, 200);
    EXPECT_EQ(form.Content()->pos(), QPoint(0, 0));
}

TEST(ChildForm, ClosingItsFrameAsksToBeUnloadedAndClosesNothing) {
    QMdiArea area;
    auto* form = new PlainForm;
    auto* frame = new ChildFrame(form);
    area.addSubWindow(frame);
    area.show();
    frame->show();
    const QSignalSpy unloaded(form, &ChildForm::UnloadRequested);
    frame->close();
    EXPECT_EQ(unloaded.count(), 1);
    EXPECT_TRUE(frame->isVisible());
    EXPECT_EQ(frame->Form(), form);
}

} // namespace
} // namespace zelvor
