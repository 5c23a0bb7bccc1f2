#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zelvor::cli {

/// Tables as texts after RFC 4180, UTF-8. A line may end with LF or CRLF, and the last one without either.

enum class CsvFault : std::uint8_t {
    None,
    StrayQuote,     // a quotation mark in a field that does not begin with one
    TextAfterQuote, // between the closing quotation mark and the comma
    OpenQuote,      // the text ends within a quoted field
    StrayReturn,    // a carriage return that ends no line
};

/// One record, with the line on which it begins, counted from 1.
struct CsvRecord {
    int line = 1;
    std::vector<std::string> fields;
    CsvFault fault = CsvFault::None; // the first of the record
    std::size_t faultyField = 0;     // its place
};

/// A byte order mark at the beginning is passed over.
[[nodiscard]] std::vector<CsvRecord> ReadCsv(std::string_view text);

/// A record's line, ending with LF. Fields are quoted where they must be.
[[nodiscard]] std::string CsvLine(std::span<const std::string> fields);

} // namespace zelvor::cli
