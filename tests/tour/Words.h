#pragma once

#include <QString>

#include "tour/Boxes.h"

namespace zelvor::tour {

/// What the program says in one language, written out.
struct Words {
    QString language; // for file names and lines of output
    QString settings; // the value of "Language" in the settings store

    QString titleHead;   // main window's title up to the file name
    QString gridCaption; // with %1 for the channel

    QString readCaption;
    QString writeCaption;
    QString aboutCaption;
    QString aboutText;
    QString modelCaption;
    QString portCaption;
    QString portLabel;   // of port 1
    QString channelNode; // of the navigator
    QString fileFilter;

    QString languageCaption;
    QString helpTitle;
    QString helpFolder; // of the pages
    QString memoryCaption;
    QString informationCaption;
    QString testModeCaption;
    QString none;
    QString printCaption;

    Box readCompleted;
    Box writeCompleted;
    Box cleared;
    Box exit;
    Box changed;
    Box noConnection;
    Box printTuning;
};

[[nodiscard]] const Words& English();
[[nodiscard]] const Words& Chinese();

} // namespace zelvor::tour
