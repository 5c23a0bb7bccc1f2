#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

namespace zelvor::tour {

/// What a user does to one control of a window by the keys, what the control shows when it has been left, and what the
/// document holds then.
struct FieldEdit {
    enum class Kind {
        Text,  // a box: `typed` takes the place of its text
        List,  // a closed list: the entry of number `place`, from 0
        Check, // a check box: the other state
        Cell,  // a cell of a table, by a click: `typed` takes the place of its text
        Look,  // nothing is done to the cell
        Page,  // a click on the tab of number `place`
    };
    Kind kind = Kind::Text;
    QString control{};
    QString typed{};
    int place = 0; // of a cell: the row, from 1
    int column = 0;
    QString shows{}; // null: whatever it does
    int address = 0;
    QByteArray bytes{}; // from there on; empty where the document is not looked at
};

/// A window of the Edit menu, and what is done in it.
struct FeatureWindow {
    QString menuEntry;
    QString window;
    QString title;
    QString helpPage; // of F1
    QString picture;
    std::vector<FieldEdit> edits;
};

/// Each in the document of its round: the Chinese one begins with what the English one has left in the radio.
[[nodiscard]] const std::vector<FeatureWindow>& EnglishFeatures();
[[nodiscard]] const std::vector<FeatureWindow>& ChineseFeatures();

} // namespace zelvor::tour
