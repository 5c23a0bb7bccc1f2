#include "data/CorvaneFields.h"

#include <algorithm>

#include "data/ChannelWords.h"
#include "text/StringTable.h"

namespace zelvor::corvane {

namespace {

constexpr int ErasedNumber[] = {0xFF, 0xFFFF}; // of one byte and of two

/// A number as a step from 1; 0 for an empty text.
int ReadStep(std::string_view text, const NumberField& field, int base) {
    return text.empty() ? 0 : std::clamp(LeadingNumber(text) - base, 1, field.last);
}

/// As it lies in the entry.
int StoredNumber(const DataImage& image, int n, const ListNumber& field) {
    int stored = 0;
    for (int i = field.bytes - 1; i >= 0; --i) {
        stored = stored * 256 + image.At(EntryAddress(n) + field.offset + i);
    }
    return stored;
}

} // namespace

// The byte 0 is no fleet, but it shows one below the first; a fleet that is none is stored as 0xFF and shows nothing.
std::string ShowFleet(int step, Language /*language*/) {
    return std::to_string(step + ListFleet.base);
}

int ReadFleet(std::string_view text) {
    return ReadStep(text, OwnFleet, ListFleet.base);
}

std::string ShowId(int step, Language /*language*/) {
    return step == 0 ? std::string() : std::to_string(step + ListId.base);
}

int ReadId(std::string_view text) {
    return ReadStep(text, OwnId, ListId.base);
}

int ReadDelay(std::string_view text) {
    return std::min(LeadingNumber(text), DelayTime.last);
}

int ReadTimer(std::string_view text) {
    return std::min(LeadingNumber(text), MessageModeTimer.last);
}

std::string ShowListNumber(int number, Language language) {
    return number == AllNumbers ? std::string(TableText(language, Text::All)) : std::to_string(number);
}

std::string LoadListNumber(const DataImage& image, int n, const ListNumber& field, Language language) {
    const int stored = StoredNumber(image, n, field);
    if (stored == ErasedNumber[field.bytes - 1]) {
        return {};
    }
    return ShowListNumber(stored == 0 ? AllNumbers : stored + field.base, language);
}

int ReadListNumber(std::string_view text, const ListNumber& field) {
    const int number = LeadingNumber(text);
    return number == 0 ? AllNumbers : std::clamp(number, field.first, field.last);
}

void StoreListNumber(DataImage& image, int n, const ListNumber& field, int number) {
    const int address = EntryAddress(n) + field.offset;
    int stored = number == AllNumbers ? 0 : number - field.base;
    for (int i = 0; i < field.bytes; ++i) {
        image.Set(address + i, static_cast<std::uint8_t>(stored % 256));
        stored /= 256;
    }
}

void EraseEntry(DataImage& image, int n) {
    for (int i = 0; i < EntrySize; ++i) {
        image.Set(EntryAddress(n) + i, ErasedByte);
    }
}

std::string KeyOf(const ListNumberField& field) {
    return "corvane.fleet-list." + std::to_string(field.entry) + '.' + std::string(field.number->key);
}

int AddressOf(const ListNumberField& field) {
    return EntryAddress(field.entry) + field.number->offset;
}

int SizeOf(const ListNumberField& field) {
    return field.number->bytes;
}

std::string LabelOf(const ListNumberField& field, Language language) {
    return FleetListText(language, field.entry) + ' ' + std::string(field.number->heading.In(language));
}

std::string ShowValue(const ListNumberField& field, const DataImage& image, Language language) {
    return LoadListNumber(image, field.entry, *field.number, language);
}

LegalValues LegalValuesOf(const ListNumberField& field, Language language) {
    return {.mayBeEmpty = true,
            .words = {ShowListNumber(AllNumbers, language)},
            .range = LegalValues::Range{std::to_string(field.number->first), std::to_string(field.number->last), "1"}};
}

bool ParseValue(const ListNumberField& field, std::string_view text, DataImage& image) {
    const std::string_view typed = Trimmed(text);
    if (typed.empty()) {
        StoreBlankValue(field, image);
        return true;
    }
    const bool all = typed == ShowListNumber(AllNumbers, Language::English) ||
                     typed == ShowListNumber(AllNumbers, Language::Chinese);
    const int number = all ? AllNumbers : LeadingNumber(typed);
    if (!all && (std::to_string(number) != typed || number < field.number->first || number > field.number->last)) {
        return false;
    }
    StoreListNumber(image, field.entry, *field.number, number);
    return true;
}

bool HoldsLegalValue(const ListNumberField& field, const DataImage& image) {
    const int stored = StoredNumber(image, field.entry, *field.number);
    return stored == ErasedNumber[field.number->bytes - 1] || stored + field.number->base <= field.number->last;
}

void StoreBlankValue(const ListNumberField& field, DataImage& image) {
    for (int i = 0; i < SizeOf(field); ++i) {
        image.Set(AddressOf(field) + i, ErasedByte);
    }
}

} // namespace zelvor::corvane
