#pragma once

class QWidget;

namespace zelvor {

class DocumentView;
class Session;
struct Services;

/// Read from Radio and Write to Radio.
class TransferCommands {
public:
    TransferCommands(Session& session, Services& services, DocumentView& view, QWidget& mainWindow);

    void Read();
    /// Refused with a message box while an editor's setting is incorrect.
    void Write();

private:
    void ShowTransfer(bool isWrite);

    Session& session_;
    Services& services_;
    DocumentView& view_;
    QWidget& mainWindow_;
};

} // namespace zelvor
