#include "shell/SessionCommands.h"

#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

#include "data/BlankImage.h"
#include "data/MemoryMap.h"
#include "data/Session.h"
#include "platform/DataFiles.h"
#include "platform/FileDialogs.h"
#include "platform/MessageBoxes.h"
#include "platform/Services.h"
#include "shell/DocumentWindows.h"
#include "text/CommonTexts.h"

namespace zelvor {

namespace {

constexpr TextPair ConfirmationTitle{"Confirmation", "确认"};
constexpr TextPair ChangedTitle{"Zelvor", "警告"};

constexpr TextPair ClearedText{"All data will be cleared.", "所有数据将被清除."};
constexpr TextPair WrongFileText{"Incorrect File Type.", "文件类型不正确。"};
constexpr TextPair OverwriteText{"Overwrite Warning!\nSave File Name:", "改写警告!\n保存文件名:"};
constexpr TextPair ExitText{"Do you wish to exit Zelvor program？", "是否退出 Zelvor 程序？"};
/// The English text names this one file, whatever the document is called.
constexpr TextPair ChangedText{"Do you wish to save the changes in \"Zelvor.DAT\" ?", "文件已更改,是否保存?"};

constexpr TextPair FileFilter{"QPK Data Files(*.dat)|*.dat", "QPK 数据文件 (*.dat)|*.dat"};

/// Nothing where the directory is gone.
std::optional<std::string> ProcessDirectory() {
    std::error_code error;
    const std::u8string directory = std::filesystem::current_path(error).u8string();
    return error ? std::nullopt : std::optional(std::string(directory.begin(), directory.end()));
}

std::pair<std::uint8_t, std::uint8_t> ModelOf(const Session& session) {
    return {session.Image.At(address::Market), session.Image.At(address::Family)};
}

/// A document with its own fleet and ID, or without Corvane PTT ID, removes the pending complaint about them.
void ReviewOwnIdError(Session& session) {
    const int fleet = session.Image.At(address::CorvaneOwnFleet);
    const int id = session.Image.At(address::CorvaneOwnId);
    const int pttIdType = session.Image.At(address::PttIdType);
    if ((fleet != 0 && fleet != 0xFF && id < 0xFF) || pttIdType != 1) {
        session.OwnIdError = false;
    }
}

} // namespace

SessionCommands::SessionCommands(Session& session, Services& services, DocumentWindows& windows)
    : session_(session), services_(services), windows_(windows) {}

void SessionCommands::New() {
    const Language language = session_.LanguageFlag;
    const MessageAnswer answer =
        services_.messages.Show({std::string(commontexts::Warning.In(language)), std::string(ClearedText.In(language)),
                                 MessageIcon::Exclamation, MessageButtons::OkCancel, MessageAnswer::Cancel});
    if (answer != MessageAnswer::Ok) {
        return;
    }
    ResetWindows();
    InitAllFrameData(session_.Image);
    session_.TakeSnapshot();
    windows_.DecodeImageToGrid();
    BecomeDefaultDocument();
    windows_.ListNewDocument();
}

void SessionCommands::Open() {
    const Language language = session_.LanguageFlag;
    const auto name =
        services_.files.Open({std::string(), std::string(FileFilter.In(language)), session_.CurrentDirectory});
    if (!name) {
        return;
    }
    // Before the file is looked at: also a wrong one closes the child windows.
    ResetWindows();
    const DataFileRead file = ReadDataFile(services_.store, *name);
    if (file.error == DataFileError::WrongType) {
        services_.messages.Show({std::string(commontexts::Error.In(language)), std::string(WrongFileText.In(language)),
                                 MessageIcon::Critical, MessageButtons::Ok, MessageAnswer::Ok});
    }
    if (file.error != DataFileError::None) {
        return;
    }
    session_.Image = file.image;
    session_.CurrentDirectory = ProcessDirectory().value_or(session_.CurrentDirectory);
    ReviewOwnIdError(session_);
    session_.TakeSnapshot();
    windows_.DecodeImageToGrid();
    session_.CurrentFileName = *name;
    windows_.ShowTitle();
    windows_.ListNewDocument();
}

void SessionCommands::Save() {
    if (session_.HasFile()) {
        if (ConfirmOverwrite()) {
            WriteFile();
        }
        return;
    }
    const auto name =
        services_.files.Save({std::string(Session::DefaultFileName), std::string(FileFilter.In(session_.LanguageFlag)),
                              session_.CurrentDirectory});
    if (name) {
        session_.CurrentFileName = *name;
        WriteFile();
    }
}

bool SessionCommands::ConfirmOverwrite() {
    const Language language = session_.LanguageFlag;
    return services_.messages.Show({std::string(commontexts::Warning.In(language)),
                                    std::string(OverwriteText.In(language)) + session_.BaseName(),
                                    MessageIcon::Exclamation, MessageButtons::OkCancel, MessageAnswer::Cancel}) ==
           MessageAnswer::Ok;
}

void SessionCommands::SaveAs() {
    const auto name = services_.files.Save(
        {session_.CurrentFileName, std::string(FileFilter.In(session_.LanguageFlag)), session_.CurrentDirectory});
    if (!name) {
        session_.SaveCancelled = true;
        return;
    }
    session_.CurrentFileName = *name;
    session_.CurrentDirectory = ProcessDirectory().value_or(session_.CurrentDirectory);
    // A document that could not be written must not be lost by the exit that asked for it.
    session_.SaveCancelled = !WriteFile();
}

bool SessionCommands::WriteFile() {
    if (!WriteDataFile(services_.store, session_.CurrentFileName, session_.Image)) {
        return false;
    }
    session_.TakeSnapshot();
    windows_.ShowTitle();
    return true;
}

void SessionCommands::ChangeModel() {
    const auto before = ModelOf(session_);
    windows_.ChooseModel();
    if (ModelOf(session_) != before) {
        InitAllFrameData(session_.Image);
        session_.TakeSnapshot();
        windows_.UnloadEditors();
        windows_.ShowGridIfClosed();
        windows_.PlaceGrid();
        windows_.DecodeImageToGrid();
        BecomeDefaultDocument();
    }
    windows_.ListGrid();
}

void SessionCommands::EditMemoryMap() {
    const auto before = ModelOf(session_);
    // Before the dialog shows: no window may write into the image behind it.
    windows_.UnloadEditors();
    windows_.PlaceGrid();
    windows_.EditMemory();
    if (ModelOf(session_) != before) {
        InitAllFrameData(session_.Image);
        session_.TakeSnapshot();
        windows_.DecodeImageToGrid();
        BecomeDefaultDocument();
    }
}

void SessionCommands::ResetWindows() {
    windows_.UnloadEditors();
    windows_.ResetGrid();
}

void SessionCommands::BecomeDefaultDocument() {
    session_.CurrentFileName = Session::DefaultFileName;
    windows_.ShowTitle();
}

bool SessionCommands::QueryExit() {
    const Language language = session_.LanguageFlag;
    const MessageAnswer answer =
        services_.messages.Show({std::string(ConfirmationTitle.In(language)), std::string(ExitText.In(language)),
                                 MessageIcon::Question, MessageButtons::YesNo, MessageAnswer::Yes});
    if (answer != MessageAnswer::Yes) {
        return false;
    }
    session_.ExitConfirmed = true;
    return !session_.IsDocumentChanged() || SaveBeforeExit();
}

bool SessionCommands::SaveBeforeExit() {
    const Language language = session_.LanguageFlag;
    const MessageAnswer answer =
        services_.messages.Show({std::string(ChangedTitle.In(language)), std::string(ChangedText.In(language)),
                                 MessageIcon::Exclamation, MessageButtons::YesNoCancel, MessageAnswer::Yes});
    if (answer == MessageAnswer::Yes) {
        SaveAs();
        return !session_.SaveCancelled;
    }
    return answer == MessageAnswer::No;
}

} // namespace zelvor
