#pragma once

namespace zelvor {

class Session;
struct ChannelWindows;

// What the open channel windows show of the channels' PTT ID, kept in step with the image's PTT ID Type. The records
// themselves stay, and so do the rows of blank channels.

/// After a choice of the type, which the image has by now: "On" (DTMF) or "Own" (Corvane) in column 9 of the grid where
/// the record's low nibble is 1 to 10, else "Off". The channel edit dialog offers the type's entries. Intended: as its
/// list is made anew with each channel, it shows what the last programmed one has, and the Corvane entries for the
/// fleet list are bare digits.
void ShowPttIdsOfType(Session& session, const ChannelWindows& windows);

/// Column 9 by the record: "Off" for a low nibble of 0, else "On" (DTMF), "Own" or the entry of the fleet list
/// (Corvane); left alone where it is neither.
void RefreshPttIdColumn(Session& session, const ChannelWindows& windows);

} // namespace zelvor
