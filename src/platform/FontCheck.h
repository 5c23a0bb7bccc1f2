#pragma once

namespace zelvor {

/// Whether the system has a font at all.
[[nodiscard]] bool HasFont();

/// Says on standard error, in both languages, that the system has no font with which to show texts, and keeps the
/// toolkit from complaining of it text by text. The program goes on: commands, files and the radio need no font.
void TellWhereThereIsNoFont();

} // namespace zelvor
