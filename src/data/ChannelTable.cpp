#include "data/ChannelTable.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "data/CellTranslation.h"
#include "data/ChannelRecord.h"
#include "data/ChannelWords.h"
#include "text/Decimal.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

constexpr int PttIdChoiceMask = 0x0F;
constexpr int LastPttIdChoice = 10;
constexpr std::uint8_t Erased = 0xFF;

std::size_t Index(int number) {
    return static_cast<std::size_t>(number) - 1;
}

int PttIdChoice(const DataImage& image, int k) {
    return image.At(address::Channel(k) + record::PttId) & PttIdChoiceMask;
}

/// The word that is not "Off".
std::string WordOfType(const DataImage& image, Language language) {
    const bool isDtmf = image.At(address::PttIdType) == record::TypeDtmf;
    return std::string(TableText(language, isDtmf ? Text::On : Text::Own));
}

/// Nothing where the text is to stay.
std::optional<std::string> PttIdOfRecord(const DataImage& image, int choice, Language language) {
    const std::uint8_t type = image.At(address::PttIdType);
    if (type != record::TypeDtmf && type != record::TypeCorvane) {
        return std::nullopt;
    }
    if (choice == 0) {
        return std::string(TableText(language, Text::Off));
    }
    if (type == record::TypeDtmf || choice == 1) {
        return WordOfType(image, language);
    }
    const int entry = choice - 1;
    return entry <= record::FleetListCount ? std::optional(FleetListText(language, entry)) : std::nullopt;
}

} // namespace

const std::string& ChannelTable::CellText(int k, int column) const {
    return rows_[Index(k)][Index(column)];
}

void ChannelTable::SetCellText(int k, int column, std::string text) {
    rows_[Index(k)][Index(column)] = std::move(text);
    observers_.Tell(&ChannelTableObserver::OnCellSet, k, column);
}

bool ChannelTable::HasFrequency(int k) const {
    return !Decimal::Leading(CellText(k, column::Rx)).IsZero();
}

int ChannelTable::FreeBytes() const {
    int free = 0;
    for (int k = 1; k <= address::ChannelCount; ++k) {
        free += HasFrequency(k) ? 0 : address::ChannelSize;
    }
    return free;
}

void ChannelTable::DecodeImageToGrid(const DataImage& image, Language language) {
    const std::vector<ChannelTexts> channels = codec_.DecodeAll(image, language);
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        const bool blank = channels[row].RxText == NoFrequencyText;
        for (std::size_t i = 0; i < GridTexts.size(); ++i) {
            rows_[row][i] = blank ? std::string() : channels[row].*GridTexts[i];
        }
    }
    observers_.Tell(&ChannelTableObserver::OnDecoded);
}

void ChannelTable::LoadRowIntoFields(const DataImage& image, Language language, int k) {
    for (std::size_t i = 0; i < GridTexts.size(); ++i) {
        Texts().*GridTexts[i] = rows_[Index(k)][i];
    }
    codec_.LoadHiddenFields(image, language, k);
}

void ChannelTable::OpenRow(const DataImage& image, Language language, int k) {
    LoadRowIntoFields(image, language, k);
    observers_.Tell(&ChannelTableObserver::OnRowOpened, k);
}

void ChannelTable::EncodeChannelRow(DataImage& image, Language language, int k, bool& txCodeError) {
    for (int column = 1; column <= column::Count; ++column) {
        SetCellText(k, column, Texts().*GridTexts[Index(column)]);
    }
    codec_.EncodeChannel(image, language, k, txCodeError);
    codec_.RefreshChannelBytes(image);
}

void ChannelTable::ClearChannelData(DataImage& image, int k) {
    ClearTexts();
    for (int column = 1; column <= column::Count; ++column) {
        SetCellText(k, column, {});
    }
    for (int j = 0; j < address::ChannelSize; ++j) {
        image.Set(address::Channel(k) + j, Erased);
    }
    observers_.Tell(&ChannelTableObserver::OnRowCleared, k);
}

void ChannelTable::ClearTexts() {
    for (const auto text : GridTexts) {
        (Texts().*text).clear();
    }
}

void ChannelTable::TellEdited(int k, int column) const {
    observers_.Tell(&ChannelTableObserver::OnTextEdited, k, column);
}

void ChannelTable::Translate(const DataImage& image, Language language) {
    for (int k = 1; k <= address::ChannelCount; ++k) {
        if (!IsProgrammed(k)) {
            continue;
        }
        for (int column = 1; column <= column::Count; ++column) {
            SetCellText(k, column, TranslateCell(column, CellText(k, column), image, k, language));
        }
    }
    observers_.Tell(&ChannelTableObserver::OnTranslated);
}

void ChannelTable::ShowPttIdsOfType(const DataImage& image, Language language) {
    std::optional<bool> isOn; // of the last channel
    for (int k = 1; k <= address::ChannelCount; ++k) {
        if (IsProgrammed(k)) {
            const int choice = PttIdChoice(image, k);
            isOn = choice >= 1 && choice <= LastPttIdChoice;
            SetCellText(k, column::PttId,
                        *isOn ? WordOfType(image, language) : std::string(TableText(language, Text::Off)));
        }
    }
    if (isOn) {
        observers_.Tell(&ChannelTableObserver::OnPttIdTypeChosen, *isOn);
    }
}

void ChannelTable::RefreshPttIds(const DataImage& image, Language language) {
    for (int k = 1; k <= address::ChannelCount; ++k) {
        const auto text = PttIdOfRecord(image, PttIdChoice(image, k), language);
        if (text && IsProgrammed(k)) {
            SetCellText(k, column::PttId, *text);
        }
    }
    observers_.Tell(&ChannelTableObserver::OnPttIdsRefreshed);
}

bool IsRecordInUse(const DataImage& image, int k) {
    return image.At(address::Channel(k)) != Erased;
}

} // namespace zelvor
