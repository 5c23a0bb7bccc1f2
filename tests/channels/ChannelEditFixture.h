#pragma once

#include <QCheckBox>
#include <QStringList>

#include "ChannelFormFixture.h"
#include "channels/ChannelEditForm.h"

namespace zelvor {

/// The grid and the channel edit dialog side by side in one active window, the way the main window holds them.
class ChannelEditTest : public ChannelFormTest {
protected:
    void TearDown() override { CloseAll(); }
    void CloseAll() {
        dialog.reset();
        form.reset();
        host.reset();
    }

    /// The grid alone, over the image as it is now.
    void ShowGrid(Language language = Language::English) {
        CloseAll();
        windows.LanguageFlag = language;
        host = std::make_unique<QWidget>();
        host->resize(1400, 700);
        form = std::make_unique<ChannelForm>(document, windows, services.Get());
        form->setParent(host.get(), Qt::SubWindow);
        document.Channels.DecodeImageToGrid(document.Image, windows.LanguageFlag);
        QObject::connect(form.get(), &ChannelForm::ChannelEditRequested, form.get(), [this] { LoadDialog(); });
        form->show();
        host->show();
        host->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(host.get()));
        Grid().setFocus();
    }
    /// Both, the dialog on the channel and with the focus.
    void ShowBoth(int k = 1, Language language = Language::English) {
        ShowGrid(language);
        form->SelectCell(k, 1);
        ClickChannelEdit();
    }
    void ClickChannelEdit() { QTest::mouseClick(&Find<QPushButton>("cmdChannelEdit"), Qt::LeftButton); }

    /// A new document of the same kind, with nothing open.
    void Restart() {
        CloseAll();
        document = Document();
        windows = WindowState();
        ChannelFormTest::SetUp();
    }

    template<typename Control>
    Control& In(const char* name) {
        auto* control = dialog->findChild<Control*>(name);
        EXPECT_NE(control, nullptr) << name;
        return *control;
    }
    QLineEdit& Text(const char* name) { return In<QLineEdit>(name); }
    QComboBox& Combo(const char* name) { return In<QComboBox>(name); }
    QCheckBox& Check(const char* name) { return In<QCheckBox>(name); }
    QLineEdit& Rx() { return Text("txtRxFreq"); }
    QLineEdit& Tx() { return Text("txtTxFreq"); }

    std::string Shown(const char* name) { return FromQString(Combo(name).currentText()); }
    std::vector<std::string> Entries(const char* name) {
        std::vector<std::string> entries;
        for (int i = 0; i < Combo(name).count(); ++i) {
            entries.push_back(FromQString(Combo(name).itemText(i)));
        }
        return entries;
    }

    /// Takes the focus to a control by the mouse's reason; the popup of a list stays closed.
    void Enter(const char* name) {
        In<QWidget>(name).setFocus(Qt::MouseFocusReason);
        ASSERT_TRUE(In<QWidget>(name).hasFocus()) << name;
    }
    void EnterGrid() { Grid().setFocus(Qt::MouseFocusReason); }
    /// Goes to an entry with the arrow keys.
    void Pick(const char* name, int index) {
        Enter(name);
        while (Combo(name).currentIndex() != index) {
            const int before = Combo(name).currentIndex();
            Key(before < index ? Qt::Key_Down : Qt::Key_Up);
            ASSERT_NE(Combo(name).currentIndex(), before) << name;
        }
    }
    void Replace(const char* name, const char* typed) {
        Enter(name);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
        Key(Qt::Key_Delete);
        Type(typed);
    }
    void GoToChannel(int n) {
        Enter("txtChannel");
        Text("txtChannel").selectAll();
        Type(std::to_string(n).c_str());
    }
    int Byte(int k, int j) { return document.Image.At(16 * k + j); }
    void Close() { QTest::mouseClick(&In<QPushButton>("cmdOK"), Qt::LeftButton); }

    /// Puts the record into all sixteen channels, so that the encoder carries nothing over from another one.
    void PutAll(const std::array<std::uint8_t, 16>& record) {
        for (int k = 1; k <= 16; ++k) {
            PutRecord(k, record);
        }
    }

    std::unique_ptr<QWidget> host;
    std::unique_ptr<ChannelEditForm> dialog;
    int unloads = 0;

private:
    void LoadDialog() {
        if (!dialog) {
            dialog = std::make_unique<ChannelEditForm>(document, windows, services.Get());
            dialog->setParent(host.get(), Qt::SubWindow);
            dialog->move(820, 0);
            QObject::connect(dialog.get(), &ChildForm::UnloadRequested, dialog.get(), [this] {
                ++unloads;
                windows.SetOpen(ChildWindow::ChannelEdit, false);
                dialog->hide();
            });
        }
        windows.SetOpen(ChildWindow::ChannelEdit, true);
        dialog->show();
        dialog->OpenOnEditChannel();
    }
};

/// The record of SimplexRecord with one byte changed.
inline std::array<std::uint8_t, 16> SimplexWith(int j, int value) {
    auto record = SimplexRecord;
    record[static_cast<std::size_t>(j)] = static_cast<std::uint8_t>(value);
    return record;
}

/// Every field has another value than in SimplexRecord: 150.10000 down to receive 145.62500, tones 100.0 and D023I,
/// DTMF, "QT/DQT + Opt.Sig.", "Option Signalling", Low, Narrow, Beat Shift, Compander, PTT ID on, Autodial 4.
inline constexpr std::array<std::uint8_t, 16> OtherRecord{0x00, 0x25, 0x56, 0x14, 0x00, 0x00, 0x01, 0x15,
                                                          0xE8, 0x03, 0x13, 0xA8, 0x3B, 0xCF, 0xB1, 0xFB};

/// What each low nibble of a record's byte 14 shows as PTT ID under Corvane.
inline constexpr const char* CorvanePttIds[] = {"Off",          "Own",          "Fleet List 1", "Fleet List 2",
                                                "Fleet List 3", "Fleet List 4", "Fleet List 5", "Fleet List 6",
                                                "Fleet List 7", "Fleet List 8", "Off",          "Off",
                                                "Off",          "Off",          "Off",          "Off"};

} // namespace zelvor
