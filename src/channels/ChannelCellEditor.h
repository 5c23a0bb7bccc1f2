#pragma once

#include <QObject>
#include <QString>
#include <string>
#include <vector>

#include "channels/ChannelEditor.h"
#include "data/FrequencyCodec.h"

class QKeyEvent;

namespace zelvor {

class CellListEditor;
class CellTextEditor;
class Document;
class EditGrid;
class WindowState;
struct Services;

/// Edits the cells of the channel grid: one floating text box for the two frequencies, one floating list for the other
/// columns. At most one of them is visible. What is committed goes into the working texts, and into row and record of
/// the channel; a frequency that is being typed shows in the row as it is.
class ChannelCellEditor : public QObject {
    Q_OBJECT

public:
    /// The entries of the tone columns, which the window that owns the editor keeps in the current language.
    struct ToneLists {
        const std::vector<std::string>& decode;
        const std::vector<std::string>& encode;
    };

    ChannelCellEditor(Document& document, WindowState& windows, Services& services, EditGrid& grid, QWidget* panel,
                      ToneLists tones);

    /// Opens the editor over the current cell; a blank row opens only its receive frequency.
    void ShowCellEditor();
    /// Hides both editors without committing.
    void HideEditors();
    /// Commits an open edit, before the cursor's cell becomes another one.
    void Leave();
    [[nodiscard]] bool IsTextEditing() const { return state_ == State::TextEditing; }

signals:
    /// The text box was left, and what was typed is committed.
    void FrequencyLeft();

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
    /// A typed frequency as it is to be stored; an entry out of range is reported.
    [[nodiscard]] NormalisedFrequency Enter(const QString& text) const;
    void LeaveText();

    void OnStepped(int direction);
    void OnSelected(const std::string& text);
    void OnListEnded();
    void CommitTone();
    void LeaveList();

    [[nodiscard]] bool IsRowBlank(int row) const;
    [[nodiscard]] bool HasTransmit(int row) const;
    [[nodiscard]] bool IsDialogOpen() const;

    Document& document_;
    WindowState& windows_;
    Services& services_;
    ChannelEditor editor_;
    EditGrid& grid_;
    ToneLists tones_;
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
