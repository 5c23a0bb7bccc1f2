#include "random/CarefulUser.h"

#include <QApplication>
#include <QComboBox>
#include <QMessageBox>
#include <algorithm>
#include <array>
#include <iostream>
#include <utility>

#include "random/ResidentMemory.h"
#include "random/Targets.h"
#include "random/WayOut.h"
#include "simulator/SampleRadio.h"
#include "tour/Checks.h"
#include "tour/RadioProgram.h"
#include "tour/WindowOnTop.h"
#include "tour/Words.h"

namespace zelvor::random {

namespace {

constexpr std::chrono::seconds BehindLateReplies(3);

QByteArray SampleMemory() {
    const DataImage image = SampleRadioMemory();
    QByteArray memory;
    for (int address = 0; address < static_cast<int>(DataImage::Size); ++address) {
        memory += static_cast<char>(image.At(address));
    }
    return memory;
}

// For questions to the window thread.

bool HasKeys(const QString& window) {
    const QWidget* found = tour::WidgetOnTop(window);
    return found && found->isAncestorOf(QApplication::focusWidget());
}

/// The buttons of the box in front; none where there is no box.
QMessageBox::StandardButtons ButtonsInFront() {
    const auto* box = qobject_cast<const QMessageBox*>(QApplication::activeModalWidget());
    return box && box->isVisible() ? box->standardButtons() : QMessageBox::NoButton;
}

bool IsFirstLanguage() {
    const auto* list = qobject_cast<const QComboBox*>(tour::WidgetOnTop("ComLanguage"));
    return list && list->currentIndex() == 0;
}

bool IsCompleted(const QString& text) {
    return std::ranges::any_of(std::array{&tour::English(), &tour::Chinese()}, [&](const tour::Words* words) {
        return text == words->readCompleted.text || text == words->writeCompleted.text;
    });
}

} // namespace

CarefulUser::CarefulUser(SessionPlan plan, const std::atomic<bool>& isOver)
    : plan_(std::move(plan)), isOver_(isOver), draws_(plan_.seed),
      radio_(plan_.radioProgram, plan_.home, Draws(plan_.seed + 1)), radioMemory_(SampleMemory()),
      model_(SampleMemory()), file_(plan_.home + "/radios/one.dat") {}

void CarefulUser::Run() {
    OpenSaved();
    for (number_ = 1; number_ <= plan_.acts && !isOver_; ++number_) {
        Do(draws_.Below(40));
        if (number_ == ActsBeforeMemory) {
            TellResidentMemory();
        }
    }
    Log("the last look");
    Save();
    TellResidentMemory();
    LeaveProgram(windows_, isOver_);
}

void CarefulUser::Do(std::uint32_t number) {
    switch (number) {
    case 0:
    case 1:
        Save();
        break;
    case 2:
        SwitchLanguage();
        break;
    case 3:
    case 4:
        CloseWindow();
        break;
    case 5:
        Read();
        break;
    case 6:
        Write();
        break;
    case 7:
        Save();
        OpenSaved();
        break;
    default:
        EnterSomething();
    }
}

void CarefulUser::EnterSomething() {
    const Entry entry = model_.Enter(draws_);
    const tour::FieldEdit& edit = entry.edit;
    Log("enter: " + std::string(entry.window.name) + " " + edit.control.toStdString() + " \"" +
        edit.typed.toStdString() + "\" " + std::to_string(edit.place) + " " + std::to_string(edit.column));
    Open(entry.window);
    hands_.Do(edit);
}

void CarefulUser::Open(const EntryWindow& window) {
    user_.ChooseByMouse("MnuEdit", window.menuEntry);
    windows_.WaitUntil("the window " + std::string(window.name), [&] { return HasKeys(window.name); });
    if (window.page > 0) {
        user_.ClickTab("SSTab1", window.page);
    }
}

void CarefulUser::SwitchLanguage() {
    Log("language: the other one");
    user_.ChooseByMouse("MnuSetup", "MnuSetupLanguageFileSetup");
    windows_.WaitUntil("the dialog of the language", [] { return tour::IsOnTop("LanguageForm"); });
    user_.TabTo("ComLanguage");
    user_.Press(windows_.Ask(IsFirstLanguage) ? Qt::Key_Down : Qt::Key_Up);
    user_.Click("CmdOK");
    boxes_.WaitUntilGone("LanguageForm");
}

void CarefulUser::CloseWindow() {
    Log("close: the child window in front");
    user_.Press(Qt::Key_F4, Qt::ControlModifier);
}

void CarefulUser::Save() {
    Log("save: " + file_.toStdString());
    Choose("MnuFileSave");
    windows_.WaitUntil("the question of the save", IsDialogInFront);
    if (!windows_.Ask(IsFileDialogInFront)) {
        boxes_.Answer(QMessageBox::Ok); // the file is to be written over
    } else {                            // what was read from a radio has no file yet
        file_ = plan_.home + "/radios/careful-" + QString::number(++files_) + ".dat";
        boxes_.EnterPath(file_);
    }
    windows_.WaitUntil("the end of the save", [] { return tour::IsOnTop("MDIForm1"); });
    const QByteArray saved = tour::MemoryOfDataFile(file_);
    model_.TakeUntold(saved);
    tour::CheckBytes("the file against what was entered", saved, model_.Image());
}

void CarefulUser::OpenSaved() {
    Log("open: " + file_.toStdString());
    Choose("MnuFileOpen");
    if (windows_.Ask(ButtonsInFront).testFlag(QMessageBox::No)) {
        boxes_.Answer(QMessageBox::No);
    }
    windows_.WaitUntil("the file dialog", IsFileDialogInFront);
    boxes_.EnterPath(file_);
    windows_.WaitUntil("the end of the dialog", [] { return tour::IsOnTop("MDIForm1"); });
}

void CarefulUser::PlugOtherRadio() {
    if (radio_.Radio() != nullptr) {
        radio_.Turn();
    }
    Log("radio: " + radio_.Turn());
    radioMemory_ = SampleMemory();
}

void CarefulUser::Read() {
    Save();
    PlugOtherRadio();
    if (Transfer("MnuProgramRead")) {
        model_ = EntryModel(radioMemory_);
        Save();
    } else {
        OpenSaved();
    }
}

void CarefulUser::Write() {
    Save();
    PlugOtherRadio();
    if (radio_.Radio() == nullptr || !Transfer("MnuProgramWrite")) {
        OpenSaved();
        return;
    }
    model_.PrepareForWrite();
    radioMemory_ = model_.WrittenTo(radioMemory_);
    tour::CheckBytes("the radio against what was entered", radio_.Radio()->Memory(), radioMemory_);
    Save();
}

bool CarefulUser::Transfer(const char* menuEntry) {
    Log(std::string("transfer: ") + menuEntry);
    if (radio_.Radio() != nullptr) {
        radio_.Radio()->ForgetMemory();
    }
    Choose(menuEntry);
    windows_.WaitUntil("the dialog of the transfer, or a refusal",
                       [] { return tour::IsOnTop("ConnectForm") || ButtonsInFront() != QMessageBox::NoButton; });
    if (windows_.Ask(ButtonsInFront) != QMessageBox::NoButton) { // a code that is needed is missing
        Log("refused: " + boxes_.TextOfNext().simplified().toStdString());
        boxes_.Answer(QMessageBox::Ok);
        return false;
    }
    user_.Click("cmdOK");
    const bool isCompleted = AnswerPrompts();
    boxes_.WaitUntilGone("ConnectForm");
    return isCompleted;
}

bool CarefulUser::AnswerPrompts() {
    constexpr int mostRetries = 3;
    for (int retries = 0;; ++retries) {
        const QString text = boxes_.TextOfNext();
        const auto buttons = windows_.Ask(ButtonsInFront);
        Log("box: " + text.simplified().toStdString());
        if (IsCompleted(text)) {
            boxes_.Answer(QMessageBox::Ok);
            return true;
        }
        windows_.Pause(BehindLateReplies);
        const bool isRetry = buttons.testFlag(QMessageBox::Retry) && retries < mostRetries;
        boxes_.Answer(isRetry ? QMessageBox::Retry : QMessageBox::Cancel);
        if (!isRetry) {
            return false;
        }
    }
}

void CarefulUser::Choose(const char* menuEntry) {
    const auto entry = windows_.Ask([menuEntry] { return EntryNamed(menuEntry); });
    tour::Check(std::string("the entry ") + menuEntry, entry.has_value());
    user_.ChooseByKeys(entry->menu, entry->entry);
    windows_.WaitUntil("a closed menu", [] { return QApplication::activePopupWidget() == nullptr; });
}

void CarefulUser::Log(const std::string& act) const {
    std::cout << number_ << ' ' << act << std::endl;
}

} // namespace zelvor::random
