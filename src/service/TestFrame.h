#pragma once

#include <QGroupBox>

class QLabel;

namespace zelvor {

class FieldList;
class Lamp;

/// A frame of test mode: a list, and of the entry on show what it means for receiving and for transmitting, each behind
/// a lamp that tells which of the two the radio does.
class TestFrame : public QGroupBox {
    Q_OBJECT

public:
    struct LineNames {
        const char* lamp;
        const char* label;
        const char* display;
    };
    struct Names {
        const char* frame;
        const char* listLabel;
        const char* list;
        LineNames receive;
        LineNames transmit;
    };
    struct Texts {
        QString title;
        QString list;
        QString receive;
        QString transmit;
        QString on; // of a lamp
        QString off;
    };

    TestFrame(const Names& names, Texts texts, QWidget* parent);

    [[nodiscard]] FieldList& List() const { return *list_; }
    void ShowTexts(const QString& receive, const QString& transmit);
    void ShowTransmitting(bool transmitting);

    /// Of the list's label; frames below each other share the widest.
    [[nodiscard]] int LabelWidth() const;
    void SetLabelWidth(int width);

private:
    struct Line {
        Lamp* lamp = nullptr;
        QLabel* display = nullptr;
    };

    [[nodiscard]] Line AddLine(int row, const LineNames& names, const QString& label);

    const Texts texts_;
    QLabel* listLabel_;
    FieldList* list_;
    Line receive_;
    Line transmit_;
};

} // namespace zelvor
