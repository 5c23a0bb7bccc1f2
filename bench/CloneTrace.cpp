#include "CloneTrace.h"

#include <sstream>

namespace zelvor::bench {

namespace {

constexpr double BitsPerByte = 11; // start bit, 8 data bits, 2 stop bits
constexpr double BitsPerSecond = 9600;

struct Exchange {
    double end = 0; // of its last byte, in seconds
    char direction = 0;
    std::vector<std::string> bytes;

    [[nodiscard]] double Start() const { return end - WireTime(static_cast<int>(bytes.size())); }
};

// "[   3.129617] > 50 52 4F": the time is that of the last byte.
std::optional<Exchange> ReadExchange(const std::string& line) {
    std::istringstream in(line);
    Exchange exchange;
    char bracket = 0;
    if (!(in >> bracket >> exchange.end >> bracket >> exchange.direction)) {
        return std::nullopt;
    }
    for (std::string byte; in >> byte;) {
        exchange.bytes.push_back(byte);
    }
    return exchange;
}

std::optional<std::vector<Exchange>> ReadExchanges(const std::string& trace) {
    std::istringstream in(trace);
    std::vector<Exchange> all;
    for (std::string line; std::getline(in, line);) {
        if (line.empty() || line.front() != '[') {
            continue;
        }
        const std::optional<Exchange> exchange = ReadExchange(line);
        if (!exchange || (exchange->direction != '>' && exchange->direction != '<')) {
            return std::nullopt;
        }
        all.push_back(*exchange);
    }
    return all;
}

bool IsWholeSession(const std::vector<Exchange>& all) {
    constexpr std::size_t EntryLength = 7;
    return all.size() > 1 && all.front().direction == '>' && all.front().bytes.size() == EntryLength &&
           all.back().direction == '>' && all.back().bytes == std::vector<std::string>{"45"};
}

} // namespace

double WireTime(int bytes) {
    return bytes * BitsPerByte / BitsPerSecond;
}

std::optional<SessionTimes> ReadTrace(const std::string& trace) {
    const std::optional<std::vector<Exchange>> all = ReadExchanges(trace);
    if (!all || !IsWholeSession(*all)) {
        return std::nullopt;
    }
    SessionTimes times;
    times.duration = all->back().end - all->front().Start();
    for (std::size_t i = 0; i < all->size(); ++i) {
        const Exchange& exchange = (*all)[i];
        times.bytes += static_cast<int>(exchange.bytes.size());
        if (i > 0 && exchange.direction == '>') {
            times.turnarounds.push_back(exchange.Start() - (*all)[i - 1].end);
        }
    }
    return times;
}

} // namespace zelvor::bench
