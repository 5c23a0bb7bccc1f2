#include "shell/SessionCommands.h"

#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

#include "controls/WindowState.h"
#include "data/BlankImage.h"
#include "data/Document.h"
#include "data/MemoryMap.h"
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

std::pair<std::uint8_t, std::uint8_t> ModelOf(const DataImage& image) {
    return {image.At(address::Market), image.At(address::Family)};
}

/// A document with its own fleet and ID, or without Corvane PTT ID, removes the pending complaint about them.
void ReviewOwnIdError(Document& document) {
    const int fleet = document.Image.At(address::CorvaneOwnFleet);
    const int id = document.Image.At(address::CorvaneOwnId);
    const int pttIdType = document.Image.At(address::PttIdType);
    if ((fleet != 0 && fleet != 0xFF && id < 0xFF) || pttIdType != 1) {
        document.Flags.OwnIdError = false;
    }
}

} // namespace

SessionCommands::SessionCommands(Document& document, WindowState& windows, Services& services, DocumentWindows& view)
    : document_(document), windows_(windows), services_(services), view_(view) {}

void SessionCommands::New() {
    const Language language = windows_.LanguageFlag;
    const MessageAnswer answer =
        services_.messages.Show({std::string(commontexts::Warning.In(language)), std::string(ClearedText.In(language)),
                                 MessageIcon::Exclamation, MessageButtons::OkCancel, MessageAnswer::Cancel});
    if (answer != MessageAnswer::Ok) {
        return;
    }
    ResetWindows();
    InitAllFrameData(document_.Image);
    document_.TakeSnapshot();
    view_.DecodeImageToGrid();
    BecomeDefaultDocument();
    view_.ListNewDocument();
}

void SessionCommands::Open() {
    const Language language = windows_.LanguageFlag;
    const auto name = services_.files.Open({std::string(), std::string(FileFilter.In(language)), CurrentDirectory});
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
    document_.Image = file.image;
    CurrentDirectory = ProcessDirectory().value_or(CurrentDirectory);
    ReviewOwnIdError(document_);
    document_.TakeSnapshot();
    view_.DecodeImageToGrid();
    document_.Rename(*name);
    view_.ShowTitle();
    view_.ListNewDocument();
}

void SessionCommands::Save() {
    if (document_.HasFile()) {
        if (ConfirmOverwrite()) {
            WriteFile();
        }
        return;
    }
    const auto name = services_.files.Save(
        {std::string(Document::DefaultFileName), std::string(FileFilter.In(windows_.LanguageFlag)), CurrentDirectory});
    if (name) {
        document_.Rename(*name);
        WriteFile();
    }
}

bool SessionCommands::ConfirmOverwrite() {
    const Language language = windows_.LanguageFlag;
    return services_.messages.Show({std::string(commontexts::Warning.In(language)),
                                    std::string(OverwriteText.In(language)) + document_.BaseName(),
                                    MessageIcon::Exclamation, MessageButtons::OkCancel, MessageAnswer::Cancel}) ==
           MessageAnswer::Ok;
}

void SessionCommands::SaveAs() {
    const auto name = services_.files.Save(
        {document_.FileName(), std::string(FileFilter.In(windows_.LanguageFlag)), CurrentDirectory});
    if (!name) {
        SaveCancelled = true;
        return;
    }
    document_.Rename(*name);
    CurrentDirectory = ProcessDirectory().value_or(CurrentDirectory);
    // A document that could not be written must not be lost by the exit that asked for it.
    SaveCancelled = !WriteFile();
}

bool SessionCommands::WriteFile() {
    if (!WriteDataFile(services_.store, document_.FileName(), document_.Image)) {
        return false;
    }
    document_.TakeSnapshot();
    view_.ShowTitle();
    return true;
}

void SessionCommands::ChangeModel() {
    const auto before = ModelOf(document_.Image);
    view_.ChooseModel();
    if (ModelOf(document_.Image) != before) {
        InitAllFrameData(document_.Image);
        document_.TakeSnapshot();
        view_.UnloadEditors();
        view_.ShowGridIfClosed();
        view_.PlaceGrid();
        view_.DecodeImageToGrid();
        BecomeDefaultDocument();
    }
    view_.ListGrid();
}

void SessionCommands::EditMemoryMap() {
    const auto before = ModelOf(document_.Image);
    // Before the dialog shows: no window may write into the image behind it.
    view_.UnloadEditors();
    view_.PlaceGrid();
    view_.EditMemory();
    if (ModelOf(document_.Image) != before) {
        InitAllFrameData(document_.Image);
        document_.TakeSnapshot();
        view_.DecodeImageToGrid();
        BecomeDefaultDocument();
    }
}

void SessionCommands::ResetWindows() {
    view_.UnloadEditors();
    view_.ResetGrid();
}

void SessionCommands::BecomeDefaultDocument() {
    document_.RenameToDefault();
    view_.ShowTitle();
}

bool SessionCommands::QueryExit() {
    const Language language = windows_.LanguageFlag;
    const MessageAnswer answer =
        services_.messages.Show({std::string(ConfirmationTitle.In(language)), std::string(ExitText.In(language)),
                                 MessageIcon::Question, MessageButtons::YesNo, MessageAnswer::Yes});
    if (answer != MessageAnswer::Yes) {
        return false;
    }
    windows_.ExitConfirmed = true;
    return !document_.IsDocumentChanged() || SaveBeforeExit();
}

bool SessionCommands::SaveBeforeExit() {
    const Language language = windows_.LanguageFlag;
    const MessageAnswer answer =
        services_.messages.Show({std::string(ChangedTitle.In(language)), std::string(ChangedText.In(language)),
                                 MessageIcon::Exclamation, MessageButtons::YesNoCancel, MessageAnswer::Yes});
    if (answer == MessageAnswer::Yes) {
        SaveAs();
        return !SaveCancelled;
    }
    return answer == MessageAnswer::No;
}

} // namespace zelvor
