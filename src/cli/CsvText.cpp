#include "cli/CsvText.h"

namespace zelvor::cli {

namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

/// Takes a text apart, record by record.
class CsvReader {
public:
    explicit CsvReader(std::string_view text) : text_(text) {}

    [[nodiscard]] bool AtEnd() const { return place_ == text_.size(); }

    CsvRecord ReadRecord() {
        CsvRecord record{.line = line_, .fields = {}};
        do {
            record.fields.push_back(ReadField(record));
        } while (Take(","));
        TakeLineBreak(); // or the end: nothing else ends a field
        return record;
    }

private:
    bool Take(std::string_view expected) {
        if (!text_.substr(place_).starts_with(expected)) {
            return false;
        }
        place_ += expected.size();
        return true;
    }

    void TakeLineBreak() { line_ += Take("\r\n") || Take("\n") ? 1 : 0; }

    [[nodiscard]] bool AtFieldEnd() const {
        return AtEnd() || text_[place_] == ',' || text_[place_] == '\n' || text_.substr(place_).starts_with("\r\n");
    }

    static void Tell(CsvRecord& record, CsvFault fault) {
        if (record.fault == CsvFault::None) {
            record.fault = fault;
            record.faultyField = record.fields.size();
        }
    }

    std::string ReadField(CsvRecord& record) {
        if (!Take("\"")) {
            return ReadPlain(record);
        }
        std::string field = ReadQuoted(record);
        if (!ReadPlain(record).empty()) {
            Tell(record, CsvFault::TextAfterQuote);
        }
        return field;
    }

    /// Up to a comma or the end of the line.
    std::string ReadPlain(CsvRecord& record) {
        std::string field;
        for (; !AtFieldEnd(); ++place_) {
            field += text_[place_];
            if (text_[place_] == '"') {
                Tell(record, CsvFault::StrayQuote);
            } else if (text_[place_] == '\r') {
                Tell(record, CsvFault::StrayReturn);
            }
        }
        return field;
    }

    /// Up to behind the closing quotation mark.
    std::string ReadQuoted(CsvRecord& record) {
        std::string field;
        while (!AtEnd()) {
            if (Take("\"\"")) {
                field += '"';
            } else if (Take("\"")) {
                return field;
            } else {
                line_ += text_[place_] == '\n' ? 1 : 0;
                field += text_[place_++];
            }
        }
        Tell(record, CsvFault::OpenQuote);
        return field;
    }

    std::string_view text_;
    std::size_t place_ = 0;
    int line_ = 1;
};

} // namespace

std::vector<CsvRecord> ReadCsv(std::string_view text) {
    if (text.starts_with(ByteOrderMark)) {
        text.remove_prefix(ByteOrderMark.size());
    }
    std::vector<CsvRecord> records;
    for (CsvReader reader(text); !reader.AtEnd();) {
        records.push_back(reader.ReadRecord());
    }
    return records;
}

std::string CsvLine(std::span<const std::string> fields) {
    std::string line;
    for (const std::string& field : fields) {
        line += &field == fields.data() ? "" : ",";
        if (field.find_first_of(",\"\r\n") == std::string::npos) {
            line += field;
            continue;
        }
        line += '"';
        for (const char c : field) {
            line.append(c == '"' ? 2 : 1, c);
        }
        line += '"';
    }
    return line + '\n';
}

} // namespace zelvor::cli
