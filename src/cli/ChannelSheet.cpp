#include "cli/ChannelSheet.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <utility>

#include "cli/Console.h"
#include "cli/CsvText.h"
#include "cli/Refusal.h"
#include "data/ChannelFields.h"

namespace zelvor::cli {

namespace {

constexpr std::string_view ChannelHeading = "channel";

constexpr TextPair UnknownColumn{"there is no such column", "没有这一列"};
constexpr TextPair DoubledColumn{"the column is there already", "此列已存在"};
constexpr TextPair NoChannelColumn{"the heading lacks this column", "标题行缺少此列"};
constexpr TextPair FieldsOf{" fields instead of ", " 个字段，应为 "};
constexpr TextPair NoChannel{"is no channel from 1 to 16", "不是 1 至 16 的信道"};
constexpr TextPair DoubledChannel{"the channel stands already in line ", "此信道已出现在第 "};
constexpr TextPair DoubledChannelEnd{"", " 行"};
constexpr TextPair BlankChannel{"the channel is blank, and the table gives it no receive frequency",
                                "信道为空，表中又没有接收频率"};
constexpr TextPair StrayQuote{"a quotation mark stands in a field that does not begin with one",
                              "未加引号的字段中有引号"};
constexpr TextPair TextAfterQuote{"text follows the closing quotation mark", "右引号之后还有文字"};
constexpr TextPair OpenQuote{"the closing quotation mark is missing", "缺少右引号"};
constexpr TextPair StrayReturn{"a carriage return ends no line", "回车符不在行末"};

/// Any that every radio can have.
constexpr std::string_view ProbeFrequency = "145.00000";

std::optional<ChannelColumn> ColumnOf(std::string_view heading) {
    for (const ChannelField& field : ChannelFieldRows[0]) {
        if (NameOf(field.column) == heading) {
            return field.column;
        }
    }
    return std::nullopt;
}

std::optional<int> ChannelOf(std::string_view text) {
    for (const ChannelRow& row : ChannelFieldRows) {
        if (std::to_string(row[0].channel) == text) {
            return row[0].channel;
        }
    }
    return std::nullopt;
}

std::string_view ReasonOf(CsvFault fault, Language language) {
    switch (fault) {
    case CsvFault::StrayQuote:
        return StrayQuote.In(language);
    case CsvFault::TextAfterQuote:
        return TextAfterQuote.In(language);
    case CsvFault::OpenQuote:
        return OpenQuote.In(language);
    case CsvFault::StrayReturn:
        return StrayReturn.In(language);
    case CsvFault::None:
        break;
    }
    return {};
}

const ChannelField& FieldOf(int channel, ChannelColumn column) {
    return ChannelFieldRows[static_cast<std::size_t>(channel) - 1][static_cast<std::size_t>(column)];
}

class SheetReader {
public:
    SheetReader(const DataImage& image, Language language) : import_{image, {}}, language_(language) {}

    SheetImport Read(std::string_view table) {
        const std::vector<CsvRecord> records = ReadCsv(table);
        if (records.empty() || !ReadHeading(records.front())) {
            Tell(1, ChannelHeading, NoChannelColumn.In(language_));
        }
        for (std::size_t i = 1; i < records.size(); ++i) {
            ReadRecord(records[i]);
        }
        return std::move(import_);
    }

private:
    void Tell(int line, std::string_view column, std::string_view reason) {
        import_.faults.push_back({line, std::string(column), std::string(reason)});
    }

    /// False where no column has the channel.
    bool ReadHeading(const CsvRecord& record) {
        TellFault(record, record.fields);
        for (const std::string& heading : record.fields) {
            const std::optional<ChannelColumn> column = ColumnOf(heading);
            if (!column && heading != ChannelHeading) {
                Tell(record.line, heading, UnknownColumn.In(language_));
                hasKnownColumns_ = false;
            } else if (std::ranges::find(headings_, heading) != headings_.end()) {
                Tell(record.line, heading, DoubledColumn.In(language_));
            }
            headings_.push_back(heading);
        }
        return PlaceOf(ChannelHeading).has_value();
    }

    [[nodiscard]] std::optional<std::size_t> PlaceOf(std::string_view heading) const {
        const auto found = std::ranges::find(headings_, heading);
        return found == headings_.end() ? std::nullopt
                                        : std::optional(static_cast<std::size_t>(found - headings_.begin()));
    }

    bool TellFault(const CsvRecord& record, const std::vector<std::string>& headings) {
        if (record.fault != CsvFault::None) {
            const std::size_t place = std::min(record.faultyField, headings.size() - 1);
            Tell(record.line, headings[place], ReasonOf(record.fault, language_));
        }
        return record.fault != CsvFault::None;
    }

    /// Of the first column that a record lacks, or the last of those that it has too many for.
    bool TellWrongCount(const CsvRecord& record) {
        if (record.fields.size() == headings_.size()) {
            return false;
        }
        const std::size_t place = std::min(record.fields.size(), headings_.size() - 1);
        Tell(record.line, headings_[place],
             std::to_string(record.fields.size()) + std::string(FieldsOf.In(language_)) +
                 std::to_string(headings_.size()));
        return true;
    }

    void ReadRecord(const CsvRecord& record) {
        if (TellFault(record, headings_) || TellWrongCount(record)) {
            return;
        }
        const std::optional<int> channel = ReadChannel(record);
        const bool isReceiveGood = ReadReceive(record, channel);
        if (channel && isReceiveGood && !IsChannelBlank(import_.image, *channel)) {
            ReadValues(record, *channel, import_.image);
            return;
        }
        if (channel && hasKnownColumns_ && !PlaceOf(NameOf(ChannelColumn::Receive)) && HasValues(record)) {
            Tell(record.line, ChannelHeading, BlankChannel.In(language_));
        }
        DataImage probe = import_.image; // only to look at the values
        [[maybe_unused]] const bool isTaken =
            ParseValue(FieldOf(channel.value_or(1), ChannelColumn::Receive), ProbeFrequency, probe);
        ReadValues(record, channel.value_or(1), probe);
    }

    std::optional<int> ReadChannel(const CsvRecord& record) {
        const std::optional<std::size_t> place = PlaceOf(ChannelHeading);
        if (!place) {
            return std::nullopt;
        }
        const std::string& text = record.fields[*place];
        const std::optional<int> channel = ChannelOf(text);
        if (!channel) {
            Tell(record.line, ChannelHeading, '"' + Printable(text) + "\" " + std::string(NoChannel.In(language_)));
            return std::nullopt;
        }
        const auto [first, isNew] = lines_.insert({*channel, record.line});
        if (!isNew) {
            Tell(record.line, ChannelHeading,
                 std::string(DoubledChannel.In(language_)) + std::to_string(first->second) +
                     std::string(DoubledChannelEnd.In(language_)));
        }
        return isNew ? channel : std::nullopt;
    }

    /// The receive frequency comes first: it makes the channel one that has values, or blanks it.
    bool ReadReceive(const CsvRecord& record, std::optional<int> channel) {
        const std::optional<std::size_t> place = PlaceOf(NameOf(ChannelColumn::Receive));
        if (!place) {
            return true;
        }
        DataImage probe = import_.image;
        const bool isTaken = ReadCell(record, *place, FieldOf(channel.value_or(1), ChannelColumn::Receive), probe);
        if (isTaken && channel) {
            import_.image = probe;
        }
        return isTaken;
    }

    bool ReadCell(const CsvRecord& record, std::size_t place, const ChannelField& field, DataImage& image) {
        const std::string& text = record.fields[place];
        if (ParseValue(field, text, image)) {
            return true;
        }
        Tell(record.line, headings_[place], RefusalOf(field, text, image, language_));
        return false;
    }

    void ReadValues(const CsvRecord& record, int channel, DataImage& image) {
        for (std::size_t place = 0; place < headings_.size(); ++place) {
            const std::optional<ChannelColumn> column = ColumnOf(headings_[place]);
            const bool isLeft = record.fields[place].empty() && column != ChannelColumn::Transmit;
            if (column && column != ChannelColumn::Receive && !isLeft) {
                ReadCell(record, place, FieldOf(channel, *column), image);
            }
        }
    }

    [[nodiscard]] bool HasValues(const CsvRecord& record) const {
        for (std::size_t place = 0; place < headings_.size(); ++place) {
            if (headings_[place] != ChannelHeading && !record.fields[place].empty()) {
                return true;
            }
        }
        return false;
    }

    SheetImport import_;
    Language language_;
    std::vector<std::string> headings_;
    bool hasKnownColumns_ = true; // only; an unknown one may be meant for any
    std::map<int, int> lines_;    // of the channels that were there
};

} // namespace

std::string ExportChannels(const DataImage& image) {
    std::vector<std::string> cells{std::string(ChannelHeading)};
    for (const ChannelField& field : ChannelFieldRows[0]) {
        cells.emplace_back(NameOf(field.column));
    }
    std::string table = CsvLine(cells);
    for (const ChannelRow& row : ChannelFieldRows) {
        cells = {std::to_string(row[0].channel)};
        for (const ChannelField& field : row) {
            cells.push_back(ShowValue(field, image, Language::English));
        }
        table += CsvLine(cells);
    }
    return table;
}

SheetImport ImportChannels(std::string_view table, const DataImage& image, Language language) {
    return SheetReader(image, language).Read(table);
}

} // namespace zelvor::cli
