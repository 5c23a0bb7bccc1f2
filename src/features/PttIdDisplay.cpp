#include "features/PttIdDisplay.h"

#include <optional>

#include "channels/CellValues.h"
#include "channels/ChannelEditForm.h"
#include "channels/ChannelForm.h"
#include "channels/ChannelWindows.h"
#include "data/ChannelRecord.h"
#include "data/ChannelWords.h"
#include "data/MemoryMap.h"
#include "data/Session.h"
#include "platform/Toolkit.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

constexpr int ChoiceMask = 0x0F;
constexpr int LastChoice = 10;

ChannelForm* OpenGrid(const Session& session, const ChannelWindows& windows) {
    return session.IsOpen(ChildWindow::Channels) ? windows.grid.data() : nullptr;
}

ChannelEditForm* OpenDialog(const Session& session, const ChannelWindows& windows) {
    return session.IsOpen(ChildWindow::ChannelEdit) ? windows.dialog.data() : nullptr;
}

int ChoiceOf(const Session& session, int k) {
    return session.Image.At(address::Channel(k) + record::PttId) & ChoiceMask;
}

QString Word(const Session& session, Text name) {
    return ToQString(session.LoadText(name));
}

bool IsProgrammed(const ChannelForm& grid, int k) {
    return !grid.CellText(k, column::Rx).isEmpty();
}

/// The words that are not "Off".
Text WordOfType(const Session& session) {
    return session.Image.At(address::PttIdType) == record::TypeDtmf ? Text::On : Text::Own;
}

QStringList EntriesOfType(const Session& session) {
    QStringList entries{Word(session, Text::Off), Word(session, WordOfType(session))};
    if (session.Image.At(address::PttIdType) == record::TypeCorvane) {
        for (int n = 1; n <= record::FleetListCount; ++n) {
            entries.append(QString::number(n));
        }
    }
    return entries;
}

/// Nothing where the cell is to stay.
std::optional<QString> RefreshedText(const Session& session, int choice) {
    const std::uint8_t type = session.Image.At(address::PttIdType);
    if (type != record::TypeDtmf && type != record::TypeCorvane) {
        return std::nullopt;
    }
    if (choice == 0) {
        return Word(session, Text::Off);
    }
    if (type == record::TypeDtmf || choice == 1) {
        return Word(session, WordOfType(session));
    }
    const int entry = choice - 1;
    return entry <= record::FleetListCount ? std::optional(ToQString(FleetListText(session.LanguageFlag, entry)))
                                           : std::nullopt;
}

} // namespace

void ShowPttIdsOfType(Session& session, const ChannelWindows& windows) {
    ChannelForm* grid = OpenGrid(session, windows);
    if (grid == nullptr) {
        return;
    }
    std::optional<bool> isOn; // of the last channel
    for (int k = 1; k <= address::ChannelCount; ++k) {
        if (IsProgrammed(*grid, k)) {
            const int choice = ChoiceOf(session, k);
            isOn = choice >= 1 && choice <= LastChoice;
            grid->SetCellText(k, column::PttId, Word(session, *isOn ? WordOfType(session) : Text::Off));
        }
    }
    if (ChannelEditForm* dialog = OpenDialog(session, windows); dialog != nullptr && isOn) {
        dialog->OfferPttIds(EntriesOfType(session), *isOn ? 1 : 0);
        dialog->TakePttId();
    }
}

void RefreshPttIdColumn(Session& session, const ChannelWindows& windows) {
    ChannelForm* grid = OpenGrid(session, windows);
    if (grid == nullptr) {
        return;
    }
    for (int k = 1; k <= address::ChannelCount; ++k) {
        const auto text = RefreshedText(session, ChoiceOf(session, k));
        if (text && IsProgrammed(*grid, k)) {
            grid->SetCellText(k, column::PttId, *text);
        }
    }
    if (ChannelEditForm* dialog = OpenDialog(session, windows)) {
        dialog->TakePttId();
    }
}

} // namespace zelvor
