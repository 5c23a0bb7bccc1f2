#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <string>
#include <vector>

class QKeyEvent;

namespace zelvor {

class CellListEditor;
class CellTextEditor;
class ChannelEditForm;
class EditGrid;
class Session;
struct Services;

/// Edits the cells of the channel grid: one floating text box for the two frequencies, one floating list for the other
/// columns. At most one of them is visible. What is committed goes into the session's working texts and, through the
/// owner's encoder, into grid and image.
class ChannelCellEditor : public QObject {
    Q_OBJECT

public:
    /// What the editor asks of the window that owns it.
    struct Owner {
        std::function<void(int k)> encodeChannelRow;
        std::function<void(int row)> clearChannelData;
        std::function<void()> updateFreeArea;
        std::function<void(int n)> showChannelInCaption;
        std::function<const std::vector<std::string>&()> toneListDec;
        std::function<const std::vector<std::string>&()> toneListEnc;
        std::function<ChannelEditForm*()> openDialog; // null while the channel edit dialog is closed
    };

    ChannelCellEditor(Session& session, Services& services, EditGrid& grid, QWidget* panel, Owner owner);

    /// Opens the editor over the current cell; a blank row opens only its receive frequency.
    void ShowCellEditor();
    /// Copies cells 1 to 9 of the row into the working texts, and reads the values without a column from the image. An
    /// open channel edit dialog, on that channel already, shows them.
    void LoadRowIntoFields(int row);
    /// Hides both editors without committing.
    void HideEditors();
    /// Commits an open edit, before the cursor's cell becomes another one.
    void Leave();

private:
    enum class State { Idle, TextEditing, ListEditing };

    void OnCellClicked();
    void OnGridKey(QKeyEvent* event);
    void OnGridCharacter(QChar character);
    void OnGridScrolled();

    void OnTextChanged(const QString& text);
    void OnTextEnded(bool restore);
    void CommitText();
    void CommitReceive(const QString& text);
    void CommitTransmit(const QString& text);
    void LeaveText();

    void OnStepped(int direction);
    void OnSelected(const std::string& text);
    void OnListEnded();
    void CommitTone();
    void LeaveList();

    void TellChoice();
    void EncodeAndRefresh();

    Session& session_;
    Services& services_;
    EditGrid& grid_;
    Owner owner_;
    CellTextEditor* txtInputBox_;
    CellListEditor* comInputStep_;

    State state_ = State::Idle;
    bool committing_ = false; // a message box of the commit takes the focus, which is no leaving of the editor
    bool loading_ = false;    // the text box is being given the cell's own text
    QString CellUndoText;     // the cell's text on entry
    std::string CycledText;   // the value that Up and Down step through
    bool CycleActive = false; // CycledText, not the list's text, is the user's choice
};

} // namespace zelvor
