#pragma once

#include <string>

namespace zelvor {

class DocumentWindows;
class Session;
struct Services;

/// The commands on the document: what the File and Model menus do, and the question at the end. A failing file
/// operation is silent and leaves image and snapshot as they were.
class SessionCommands {
public:
    SessionCommands(Session& session, Services& services, DocumentWindows& windows);

    void New();
    void Open();
    void Save();
    void SaveAs();
    void ChangeModel();
    void EditMemoryMap();

    /// The exit question, and the offer to save a changed document. Returns whether the program may end.
    [[nodiscard]] bool QueryExit();

private:
    void ResetWindows();
    void BecomeDefaultDocument();
    [[nodiscard]] bool ConfirmOverwrite();
    bool WriteFile();
    [[nodiscard]] bool SaveBeforeExit();

    Session& session_;
    Services& services_;
    DocumentWindows& windows_;
};

} // namespace zelvor
