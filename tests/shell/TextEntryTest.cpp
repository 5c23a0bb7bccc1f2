// What every text box of the windows that edit the document takes, whatever it is for.

#include <QAbstractSpinBox>
#include <QApplication>
#include <QDragEnterEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>
#include <algorithm>
#include <functional>
#include <vector>

#include "shell/ShellTest.h"
#include "support/QtPrinting.h"

namespace zelvor {
namespace {

class TextEntryTest : public ShellTest {
protected:
    void SetUp() override {
        OpenMainWindow();
        for (const char* entry : {"MnuEditOptionalFeatures", "MnuEditDTMF", "MnuEditCorvane", "MnuEditScanInformation",
                                  "MnuEditTestFrequency", "MnuEditEmbeddedMessage"}) {
            Choose(entry);
        }
        ClickButton("ChannelForm", "cmdChannelEdit");
        for (QLineEdit* box : window->findChildren<QLineEdit*>()) {
            if (qobject_cast<QAbstractSpinBox*>(box->parentWidget()) == nullptr) { // an up-down hides its own
                boxes_.push_back(box);
            }
        }
    }

    /// Does something to every box, and expects that it still shows what it did.
    void ExpectUntouchedBy(const std::function<void(QLineEdit&)>& deed) {
        for (QLineEdit* box : boxes_) {
            const QString before = box->text();
            deed(*box);
            EXPECT_EQ(box->text(), before) << box->objectName().toStdString();
        }
    }
    static void Press(QLineEdit& box, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
        QApplication::sendEvent(&box, &event);
    }

    std::vector<QLineEdit*> boxes_;
};

TEST_F(TextEntryTest, TheBoxesAreTheOnesOfTheWindows) {
    for (const char* name :
         {"txtTOT",       "txtTOTPreAlert", "txtSQLevel",        "txtVOXGainLevel", "txtPTTCode(0)", "txtPTTCode(1)",
          "txtDTMFSpeed", "txtDCodeAssign", "txtAutoResetTimer", "txtIDCode",       "txtStunCode",   "txtAutodial",
          "txtFleet",     "txtID",          "txtDelayTime",      "txtMsgModeTimer", "txtFleetList",  "txtPriorityCH",
          "txtMsg(0)",    "txtMsg(1)",      "txtChannel",        "txtRxFreq",       "txtTxFreq",     "txtInputBox"}) {
        EXPECT_TRUE(std::any_of(boxes_.begin(), boxes_.end(), [name](const QLineEdit* box) {
            return box->objectName() == name;
        })) << name;
    }
}

TEST_F(TextEntryTest, NoneTakesAKeyOfACommand) {
    for (const Qt::KeyboardModifiers held :
         {Qt::KeyboardModifiers(Qt::AltModifier), Qt::KeyboardModifiers(Qt::MetaModifier)}) {
        for (const char character : {'q', 'd', '1', '9', '.', '#', '*', 'a', 'n'}) {
            ExpectUntouchedBy([held, character](QLineEdit& box) {
                Press(box, QChar(character).toUpper().unicode(), held, QChar(character));
            });
        }
    }
}

TEST_F(TextEntryTest, WhatAltGrOrAnInputMethodMakesIsFiltered) {
    ExpectUntouchedBy([](QLineEdit& box) {
        if (box.objectName().startsWith("txtMsg")) {
            return; // takes any character
        }
        Press(box, Qt::Key_Q, Qt::ControlModifier | Qt::AltModifier, "@");
        Press(box, Qt::Key_Q, Qt::AltModifier, "œ");
        QInputMethodEvent composed;
        composed.setCommitString("信@");
        QApplication::sendEvent(&box, &composed);
    });
}

TEST_F(TextEntryTest, NoneTakesATextThatIsDropped) {
    ExpectUntouchedBy([](QLineEdit& box) {
        QMimeData text;
        text.setText("1");
        QDragEnterEvent enter(QPoint(3, 3), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&box, &enter);
        QDropEvent drop(QPointF(3, 3), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&box, &drop);
    });
}

} // namespace
} // namespace zelvor
