#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

#include "ModalDriver.h"
#include "fakes/FakeMessageBoxes.h"
#include "platform/QtMessageBoxes.h"

namespace zelvor {
namespace {

struct Case {
    MessageButtons buttons;
    MessageAnswer answer;
    QMessageBox::StandardButton button;
};

const Case Cases[] = {
    {MessageButtons::Ok, MessageAnswer::Ok, QMessageBox::Ok},
    {MessageButtons::OkCancel, MessageAnswer::Ok, QMessageBox::Ok},
    {MessageButtons::OkCancel, MessageAnswer::Cancel, QMessageBox::Cancel},
    {MessageButtons::YesNo, MessageAnswer::Yes, QMessageBox::Yes},
    {MessageButtons::YesNo, MessageAnswer::No, QMessageBox::No},
    {MessageButtons::YesNoCancel, MessageAnswer::Yes, QMessageBox::Yes},
    {MessageButtons::YesNoCancel, MessageAnswer::No, QMessageBox::No},
    {MessageButtons::YesNoCancel, MessageAnswer::Cancel, QMessageBox::Cancel},
    {MessageButtons::RetryCancel, MessageAnswer::Retry, QMessageBox::Retry},
    {MessageButtons::RetryCancel, MessageAnswer::Cancel, QMessageBox::Cancel},
};

struct FakeUser {
    FakeMessageBoxes boxes;
    void WillPress(const Message& message, const Case& row) { boxes.Expect(message, row.answer); }
    void WillDo(const Message& message, std::function<void()> whileUp) {
        boxes.Expect(message, [whileUp] {
            whileUp();
            return MessageAnswer::Ok;
        });
    }
};

struct RealUser {
    QtMessageBoxes boxes;
    void WillPress(const Message& /*message*/, const Case& row) {
        WithNextDialog<QMessageBox>(
            [button = row.button](QMessageBox& box) { QTest::mouseClick(box.button(button), Qt::LeftButton); });
    }
    void WillDo(const Message& /*message*/, std::function<void()> whileUp) {
        WithNextDialog<QMessageBox>([whileUp](QMessageBox& box) {
            whileUp();
            QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
        });
    }
};

template<class User>
class MessageBoxesContract : public testing::Test {
protected:
    User user_;
};

using Users = testing::Types<FakeUser, RealUser>;
TYPED_TEST_SUITE(MessageBoxesContract, Users);

TYPED_TEST(MessageBoxesContract, AnswersTheButtonPressedForEveryButtonOfEverySet) {
    for (const Case& row : Cases) {
        const Message message{"Warning", "One.\r\nTwo.", MessageIcon::Exclamation, row.buttons};
        this->user_.WillPress(message, row);
        EXPECT_EQ(this->user_.boxes.Show(message), row.answer) << testing::PrintToString(message);
    }
}

TYPED_TEST(MessageBoxesContract, LetsABoxComeUpWhileAnotherIsUp) {
    const Message outer{"Outer", "First."};
    const Message inner{"Inner", "Second.", MessageIcon::Question, MessageButtons::RetryCancel};
    MessageAnswer innerAnswer{};
    this->user_.WillDo(outer, [&] {
        this->user_.WillPress(inner, {MessageButtons::RetryCancel, MessageAnswer::Retry, QMessageBox::Retry});
        innerAnswer = this->user_.boxes.Show(inner);
    });
    EXPECT_EQ(this->user_.boxes.Show(outer), MessageAnswer::Ok);
    EXPECT_EQ(innerAnswer, MessageAnswer::Retry);
}

} // namespace
} // namespace zelvor
