#include "random/EntryModel.h"

#include <algorithm>

namespace zelvor::random {

namespace {

using Kind = tour::FieldEdit::Kind;

constexpr int RecordSize = 16;
constexpr int ChannelCount = 16;
constexpr int OptionsByte = 12; // of a record
constexpr int TestFrequencies = 0x280;

int Between(Draws& draws, int from, int to) {
    return from + static_cast<int>(draws.Below(static_cast<std::uint32_t>(to - from + 1)));
}

QByteArray LowByteFirst(int number, int size) {
    constexpr int byte = 256;
    QByteArray bytes;
    for (; size > 0; --size) {
        bytes += static_cast<char>(number % byte);
        number /= byte;
    }
    return bytes;
}

/// From 100 to 550 MHz in steps of 25 kHz, as nine characters.
QString SomeFrequency(Draws& draws) {
    constexpr int step = 25;
    constexpr int kilohertz = 1000;
    const int frequency = 100 * kilohertz + step * Between(draws, 0, 450 * kilohertz / step);
    return QString("%1.%2").arg(frequency / kilohertz).arg(frequency % kilohertz * 100, 5, 10, QChar('0'));
}

/// "145.12500" is 00 25 51 14.
QByteArray PackedDecimal(const QString& frequency) {
    QByteArray bytes = QByteArray::fromHex(frequency.toLatin1().replace(".", ""));
    std::reverse(bytes.begin(), bytes.end());
    return bytes;
}

Entry CellEntry(EntryWindow window, const char* table, int row, int column, const QString& text) {
    return {window, {Kind::Cell, table, text, row, column, text, 0, {}}};
}

} // namespace

Entry EntryModel::Enter(Draws& draws) {
    constexpr std::uint32_t ways = 10;
    switch (draws.Below(ways)) {
    case 0:
        return EnterTestFrequency(draws);
    case 1:
    case 2:
        return EnterChannelFrequency(draws);
    default:
        return EnterField(draws);
    }
}

bool EntryModel::CanBeUsed(const EntryField& field) const {
    return std::ranges::all_of(field.conditions, [this](const EntryField::Condition& condition) {
        const bool isOne = std::ranges::find(condition.bytes, At(condition.address)) != condition.bytes.end();
        return isOne == condition.isOneOf;
    });
}

Entry EntryModel::EnterField(Draws& draws) {
    const std::vector<EntryField>& fields = EntryFields();
    const EntryField* field = nullptr;
    do {
        field = &fields.at(draws.Below(static_cast<std::uint32_t>(fields.size())));
    } while (!CanBeUsed(*field));
    return {field->window, EditOf(*field, draws)};
}

tour::FieldEdit EntryModel::EditOf(const EntryField& field, Draws& draws) {
    const auto some = [&] { return Between(draws, 0, static_cast<int>(field.values.size()) - 1); };
    switch (field.form) {
    case EntryForm::Check: {
        const bool isOff = At(field.address) == 0;
        Store(field.address, isOff ? "\x01" : QByteArray(1, '\0'));
        return {.kind = Kind::Check, .control = field.control};
    }
    case EntryForm::List: {
        const int place = some();
        Store(field.address, LowByteFirst(field.values[static_cast<std::size_t>(place)], 1));
        return {.kind = Kind::List, .control = field.control, .place = place};
    }
    case EntryForm::Choice: {
        const int place = some();
        const QString text = QString::number(field.values[static_cast<std::size_t>(place)]);
        Store(field.address, LowByteFirst(place, 1));
        return {.kind = Kind::Text, .control = field.control, .typed = text, .shows = text};
    }
    case EntryForm::Number:
    case EntryForm::Hundredths:
        return NumberOf(field, draws);
    default:
        return CharactersOf(field, draws);
    }
}

tour::FieldEdit EntryModel::NumberOf(const EntryField& field, Draws& draws) {
    constexpr int hundred = 100;
    const int stored = Between(draws, field.from, field.to);
    const int shown = stored * field.factor + field.offset;
    const QString text = field.form == EntryForm::Number
                             ? QString::number(shown)
                             : QString("%1.%2").arg(shown / hundred).arg(shown % hundred, 2, 10, QChar('0'));
    Store(field.address, LowByteFirst(stored, field.size));
    return {.kind = Kind::Text, .control = field.control, .typed = text, .shows = text + field.unit};
}

tour::FieldEdit EntryModel::CharactersOf(const EntryField& field, Draws& draws) {
    QString text;
    for (int length = Between(draws, field.from, field.to); length > 0; --length) {
        text += field.characters[Between(draws, 0, static_cast<int>(field.characters.size()) - 1)];
    }
    QByteArray bytes = text.toLatin1();
    if (field.padding != EntryField::KeepsTail) {
        bytes = bytes.leftJustified(field.size, static_cast<char>(field.padding));
    }
    Store(field.address, bytes);
    if (field.form == EntryForm::Cell) {
        return {.kind = Kind::Cell,
                .control = field.control,
                .typed = text,
                .place = field.row,
                .column = 1,
                .shows = text};
    }
    return {.kind = Kind::Text, .control = field.control, .typed = text, .shows = text};
}

Entry EntryModel::EnterTestFrequency(Draws& draws) {
    constexpr int pairSize = 8;
    constexpr int size = 4;
    const int row = Between(draws, 1, 16);
    const int pair = TestFrequencies + pairSize * (row - 1);
    const bool isEmpty = At(pair) == 0xFF;
    const int column = isEmpty ? 1 : Between(draws, 1, 2);
    const QString text = SomeFrequency(draws);
    const QByteArray bytes = PackedDecimal(text);
    Store(pair + size * (column - 1), bytes);
    if (isEmpty) {
        Store(pair + size, bytes);
    }
    return CellEntry({"MnuEditTestFrequency", "TestChannelForm"}, "msgTestFreq", row, column, text);
}

/// A frequency of nine characters leaves everything else of the channel, but for what the encoder keeps.
Entry EntryModel::EnterChannelFrequency(Draws& draws) {
    constexpr int size = 4;
    const int channel = Between(draws, 1, ChannelCount);
    const int column = Between(draws, 1, 2);
    const QString text = SomeFrequency(draws);
    Store(RecordSize * channel + size * (column - 1), PackedDecimal(text));
    for (int byte = OptionsByte; byte < RecordSize; ++byte) {
        untold_.insert(RecordSize * channel + byte);
    }
    return CellEntry({"MnuEditChannelInformation", "ChannelForm"}, "ChannelGrid", channel, column, text);
}

void EntryModel::TakeUntold(const QByteArray& image) {
    for (const int address : untold_) {
        image_[address] = image[address];
    }
    untold_.clear();
}

void EntryModel::PrepareForWrite() {
    for (int record = 0; record <= ChannelCount; ++record) {
        image_[RecordSize * record + OptionsByte] = record == 0 ? '\xFF' : '\0';
    }
}

QByteArray EntryModel::WrittenTo(const QByteArray& radio) const {
    constexpr int begin = 0x010;
    constexpr int tuning = 0x180;
    constexpr int identity = 0x1B8;
    constexpr int unwritten = 0x340;
    return QByteArray::fromHex("FFFFFFFFFFFFFFFFFFFFFF00FFFF03FF") + image_.mid(begin, tuning - begin) +
           radio.mid(tuning, identity - tuning) + image_.mid(identity, unwritten - identity) + radio.mid(unwritten);
}

} // namespace zelvor::random
