#pragma once

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>

#include "controls/CellTextEditor.h"
#include "controls/EditGrid.h"
#include "data/Document.h"
#include "fakes/FakeServices.h"
#include "features/CPUForm.h"
#include "support/QtPrinting.h"

namespace zelvor {

/// The memory map over an erased image, with real key and mouse events.
class CPUFormTest : public testing::Test {
protected:
    void Load(Language language = Language::English) {
        language_ = language;
        form.reset();
        form = std::make_unique<CPUForm>(document, language, services.Get());
    }
    void Show(Language language = Language::English) {
        Load(language);
        form->show();
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
        ASSERT_TRUE(Grid().hasFocus());
    }

    EditGrid& Grid() { return *form->findChild<EditGrid*>("msgMemory"); }
    CellTextEditor& Editor() { return *form->findChild<CellTextEditor*>("txtMemory"); }
    QString Address() { return form->findChild<QLabel*>("lblAddr")->text(); }
    QPushButton& Button(const char* name) { return *form->findChild<QPushButton*>(name); }
    void Click(const char* name) { QTest::mouseClick(&Button(name), Qt::LeftButton); }
    void ClickCell(int row, int column) {
        QTest::mouseClick(Grid().viewport(), Qt::LeftButton, {},
                          Grid().visualItemRect(Grid().item(row - 1, column - 1)).center());
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    /// Each character goes to where the one before has put the focus.
    void Type(const char* text) {
        for (const char* character = text; *character != '\0'; ++character) {
            QTest::keyClick(QApplication::focusWidget(), *character);
        }
    }
    /// Whole rows in view.
    int VisibleRows() { return Grid().viewport()->height() / Grid().rowHeight(0); }
    /// The question before typed bytes are thrown away.
    Message Question() const {
        if (language_ == Language::Chinese) {
            return {"内存指针图", "放弃已更改的字节吗？", MessageIcon::Question, MessageButtons::YesNo,
                    MessageAnswer::No};
        }
        return {"Memory Map", "Discard the changed bytes?", MessageIcon::Question, MessageButtons::YesNo,
                MessageAnswer::No};
    }
    void ExpectCursor(int row, int column) {
        EXPECT_EQ(Grid().Row(), row);
        EXPECT_EQ(Grid().Column(), column);
    }

    FakeServices services;
    Document document;
    std::unique_ptr<CPUForm> form;

private:
    Language language_ = Language::English;
};

} // namespace zelvor
