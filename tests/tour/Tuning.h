#pragma once

#include <QByteArray>
#include <QString>
#include <Qt>
#include <vector>

namespace zelvor::tour {

/// A tuning item, and the dialog that it opens.
struct TuneItem {
    int row; // of the list of items, from 1
    QString form;
    QString caption;
};

/// One value that is changed on the live radio, by the keys.
struct TuneEdit {
    bool narrow;
    TuneItem item;
    int page; // of the dialog, from 1
    Qt::Key key;
    int presses;
    QString before; // as shown
    QString after;
    QByteArray command; // as the radio tells it
    int address;        // in the radio's memory
    char value;         // there, afterwards
};

/// What a round does in test mode.
struct Tuning {
    TuneEdit edit;
    TuneItem single; // dialogs that are opened and cancelled
    TuneItem points;
    TuneItem measured;
    QByteArray region; // 0x180 to 0x1B7 of the radio before the round
};

[[nodiscard]] const Tuning& EnglishTuning();
[[nodiscard]] const Tuning& ChineseTuning();

/// The tuning region after the round.
[[nodiscard]] QByteArray Tuned(const Tuning& tuning);

} // namespace zelvor::tour
