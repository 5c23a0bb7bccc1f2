#include "platform/Terminal.h"

#include <algorithm>
#include <cstdio>
#include <fcntl.h>
#include <io.h>
#include <iostream>
#include <optional>
#include <streambuf>
#include <string>
#include <string_view>
#include <windows.h>

#include "text/Utf8.h"

namespace zelvor {

namespace {

/// The mode of a console; nothing where the handle is that of a file or pipe, or none at all.
std::optional<DWORD> ModeOf(HANDLE handle) {
    DWORD mode = 0;
    return GetConsoleMode(handle, &mode) != 0 ? std::optional(mode) : std::nullopt;
}

/// Hands text in UTF-8 to a console, whatever code page that has.
class ConsoleBuffer : public std::streambuf {
public:
    explicit ConsoleBuffer(HANDLE console) : console_(console) {}

protected:
    int_type overflow(int_type character) override {
        if (!traits_type::eq_int_type(character, traits_type::eof())) {
            waiting_ += traits_type::to_char_type(character);
        }
        return WriteWhereMany() ? traits_type::not_eof(character) : traits_type::eof();
    }
    std::streamsize xsputn(const char* text, std::streamsize size) override {
        waiting_.append(text, static_cast<std::size_t>(size));
        return WriteWhereMany() ? size : 0;
    }
    int sync() override { return Write() ? 0 : -1; }

private:
    bool WriteWhereMany() {
        constexpr std::size_t Many = 4096;
        return waiting_.size() < Many || Write();
    }

    /// The beginning of a character waits for the rest of it.
    bool Write() {
        constexpr std::size_t AtOnce = 8192; // older consoles take no more
        const std::size_t whole = WholeCharacters(waiting_);
        const std::u16string text = Utf16Of(std::string_view(waiting_).substr(0, whole));
        waiting_.erase(0, whole);
        for (std::size_t begin = 0; begin < text.size();) {
            DWORD written = 0;
            const auto count = static_cast<DWORD>(std::min(text.size() - begin, AtOnce));
            if (WriteConsoleW(console_, text.data() + begin, count, &written, nullptr) == 0 || written == 0) {
                return false;
            }
            begin += written;
        }
        return true;
    }

    HANDLE console_;
    std::string waiting_;
};

/// A stream of the program: on a console by a buffer of ours, elsewhere without translation of line ends.
class PlainStream {
public:
    PlainStream(std::ostream& stream, std::FILE* file, DWORD id) : stream_(stream) {
        HANDLE handle = GetStdHandle(id);
        if (const std::optional<DWORD> mode = ModeOf(handle)) {
            console_ = handle;
            formerMode_ = *mode;
            SetConsoleMode(handle, *mode | ENABLE_PROCESSED_OUTPUT | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
            buffer_.emplace(handle);
            former_ = stream.rdbuf(&*buffer_);
        } else if (const int descriptor = _fileno(file); descriptor >= 0) { // or there is no such stream
            _setmode(descriptor, _O_BINARY);
        }
    }
    ~PlainStream() {
        if (former_ != nullptr) {
            stream_.flush();
            stream_.rdbuf(former_);
            SetConsoleMode(console_, formerMode_); // which the console's other programs share
        }
    }
    PlainStream(const PlainStream&) = delete;
    PlainStream& operator=(const PlainStream&) = delete;

private:
    std::ostream& stream_;
    HANDLE console_ = nullptr;
    DWORD formerMode_ = 0;
    std::optional<ConsoleBuffer> buffer_;
    std::streambuf* former_ = nullptr;
};

} // namespace

/// A console that does not know the sequence for it erases no line.
bool IsStandardErrorTerminal() {
    const std::optional<DWORD> mode = ModeOf(GetStdHandle(STD_ERROR_HANDLE));
    return mode && (*mode & ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

struct StandardOutput::Console {
    PlainStream out{std::cout, stdout, STD_OUTPUT_HANDLE};
    PlainStream err{std::cerr, stderr, STD_ERROR_HANDLE};
};

StandardOutput::StandardOutput() : console_(std::make_unique<Console>()) {}

StandardOutput::~StandardOutput() = default;

} // namespace zelvor
