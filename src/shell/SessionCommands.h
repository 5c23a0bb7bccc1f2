#pragma once

#include <string>

namespace zelvor {

class Document;
class DocumentWindows;
class WindowState;
struct Services;

/// The commands on the document: what the File and Model menus do, and the question at the end. A failing file
/// operation is silent and leaves image and snapshot as they were.
class SessionCommands {
public:
    SessionCommands(Document& document, WindowState& windows, Services& services, DocumentWindows& view);

    void New();
    void Open();
    void Save();
    void SaveAs();
    void ChangeModel();
    void EditMemoryMap();

    /// The exit question, and the offer to save a changed document. Returns whether the program may end.
    [[nodiscard]] bool QueryExit();

    /// For the file dialogs: empty until an Open or a Save As.
    [[nodiscard]] const std::string& LastDirectory() const { return CurrentDirectory; }
    /// Whether the last Save As was cancelled or failed.
    [[nodiscard]] bool IsSaveCancelled() const { return SaveCancelled; }

private:
    void ResetWindows();
    void BecomeDefaultDocument();
    [[nodiscard]] bool ConfirmOverwrite();
    bool WriteFile();
    [[nodiscard]] bool SaveBeforeExit();

    Document& document_;
    WindowState& windows_;
    Services& services_;
    DocumentWindows& view_;
    std::string CurrentDirectory;
    bool SaveCancelled = false;
};

} // namespace zelvor
