#pragma once

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QStyleOptionSpinBox>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <vector>

#include "controls/ChildForm.h"
#include "controls/SpinText.h"
#include "controls/WindowState.h"
#include "data/Document.h"
#include "fakes/FakeServices.h"
#include "platform/Toolkit.h"
#include "support/QtPrinting.h"

namespace zelvor {

/// A window of the document with real key and mouse events. The image is erased until the test fills it.
template<typename Form>
class ChildFormTest : public testing::Test {
protected:
    /// Makes the window over the image as it is now, without showing it.
    void Load(Language language = Language::English) {
        windows.LanguageFlag = language;
        form.reset();
        form = std::make_unique<Form>(document, windows, services.Get());
    }
    /// The same, active, with the focus where the window puts it.
    void Show(Language language = Language::English) {
        Load(language);
        Activate();
    }
    void Activate() {
        form->show();
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
        if (form->focusProxy() != nullptr) {
            form->setFocus();
        }
    }

    template<typename Control>
    Control& Find(const char* name) {
        auto* control = form->template findChild<Control*>(name);
        EXPECT_NE(control, nullptr) << name;
        return *control;
    }
    QLineEdit& Box(const char* name) { return Find<QLineEdit>(name); }
    QComboBox& List(const char* name) { return Find<QComboBox>(name); }
    std::string Text(const char* name) { return Box(name).text().toStdString(); }
    int Spin(const char* name) { return Find<UpDown>(name).Value(); }

    void Key(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    /// Each key goes to the control that has the focus by then.
    void Type(const char* text) {
        for (; *text != '\0'; ++text) {
            QTest::keyClick(QApplication::focusWidget(), *text);
        }
    }
    void Click(const char* name) { QTest::mouseClick(&Find<QPushButton>(name), Qt::LeftButton); }
    /// Clicks one of the two buttons beside a number.
    void Step(const char* upDown, bool up) {
        auto& pair = Find<UpDown>(upDown);
        QStyleOptionSpinBox option;
        option.initFrom(&pair);
        option.subControls = QStyle::SC_All;
        option.buttonSymbols = pair.buttonSymbols();
        const auto which = up ? QStyle::SC_SpinBoxUp : QStyle::SC_SpinBoxDown;
        const QRect button = pair.style()->subControlRect(QStyle::CC_SpinBox, &option, which, &pair);
        QTest::mouseClick(&pair, Qt::LeftButton, {}, button.center());
    }
    void Paste(const QString& text) {
        QApplication::clipboard()->setText(text);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_V, Qt::ControlModifier);
    }
    /// Replaces a box's text by typing, and leaves it.
    void Enter(const char* name, const char* text) {
        Box(name).setFocus();
        ASSERT_TRUE(Box(name).hasFocus()) << name;
        Key(Qt::Key_Backspace);
        Type(text);
        Key(Qt::Key_Tab);
    }
    /// Takes an entry of a list as the user does.
    void Choose(const char* name, int index) {
        QComboBox& list = List(name);
        list.setFocus();
        ASSERT_TRUE(list.hasFocus()) << name;
        QTest::keyClick(&list, Qt::Key_Home);
        for (int i = 0; i < index; ++i) {
            QTest::keyClick(&list, Qt::Key_Down);
        }
        ASSERT_EQ(list.currentIndex(), index) << name;
    }
    QStringList Entries(const char* name) {
        QStringList entries;
        for (int i = 0; i < List(name).count(); ++i) {
            entries.append(List(name).itemText(i));
        }
        return entries;
    }

    int At(int address) const { return document.Image.At(address); }
    std::vector<int> From(int address, int count) const {
        std::vector<int> bytes;
        for (int i = 0; i < count; ++i) {
            bytes.push_back(At(address + i));
        }
        return bytes;
    }
    void Put(int address, std::initializer_list<int> bytes) {
        for (const int byte : bytes) {
            document.Image.Set(address++, static_cast<std::uint8_t>(byte));
        }
    }
    static DataImage RandomImage(std::mt19937& random) {
        DataImage image;
        for (int address = 0; address < 1024; ++address) {
            image.Set(address, static_cast<std::uint8_t>(random()));
        }
        return image;
    }
    /// The addresses at which both images differ.
    static std::vector<int> Differences(const DataImage& left, const DataImage& right) {
        std::vector<int> addresses;
        for (int address = 0; address < 1024; ++address) {
            if (left.At(address) != right.At(address)) {
                addresses.push_back(address);
            }
        }
        return addresses;
    }

    void ExpectNoTextCutOff() {
        for (const QLabel* label : form->template findChildren<QLabel*>()) {
            EXPECT_LE(label->heightForWidth(label->width()), label->height()) << label->text().toStdString();
        }
        for (const QPushButton* button : form->template findChildren<QPushButton*>()) {
            EXPECT_LE(button->sizeHint().width(), button->width()) << button->text().toStdString();
        }
        for (const QComboBox* list : form->template findChildren<QComboBox*>()) {
            if (!list->isVisibleTo(form.get())) {
                continue; // on a page of tabs that was not laid out yet
            }
            EXPECT_LE(list->sizeHint().width(), list->width()) << list->objectName().toStdString();
        }
    }

    FakeServices services;
    Document document;
    WindowState windows;
    std::unique_ptr<Form> form;
};

} // namespace zelvor
