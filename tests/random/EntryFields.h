#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

namespace zelvor::random {

/// A window of the Edit menu.
struct EntryWindow {
    const char* menuEntry;
    const char* name;
    int page = 0; // of its tabs, from 1; 0 where it has none
};

enum class EntryForm {
    Number,     // a box that is typed into: a number of one byte, or of two, the lower one first
    Hundredths, // the same, typed with two decimals
    Choice,     // the same: one of a few numbers, whose place is the byte
    List,       // a closed list
    Check,      // a check box: 1 or 0
    Code,       // characters that a box is given
    Cell,       // characters that a table's cell is given
};

/// A value of the memory that a user enters: where, by which control, and which bytes it has.
struct EntryField {
    EntryWindow window;
    const char* control;
    int address;
    EntryForm form;
    // The stored number, or how many characters.
    int from = 0;
    int to = 0;
    // What is typed: stored number * factor + offset, and what stands behind it once it is left.
    int factor = 1;
    int offset = 0;
    const char* unit = "";
    int size = 1; // bytes
    // The bytes of a list's entries, or what is typed of a choice.
    std::vector<int> values{};
    QString characters{};
    int padding = KeepsTail; // the byte behind the characters
    int row = 0;             // of a table, from 1
    // The control can be used only where these bytes are, or are not, one of these.
    struct Condition {
        int address;
        bool isOneOf;
        std::vector<int> bytes;
    };
    std::vector<Condition> conditions{};

    static constexpr int KeepsTail = -1;
};

/// All but the frequencies, in a document that begins as the sample radio: its priority channel is fixed, and stays so.
[[nodiscard]] const std::vector<EntryField>& EntryFields();

} // namespace zelvor::random
