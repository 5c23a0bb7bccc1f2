#include "data/Session.h"

#include <algorithm>
#include <filesystem>

#include "data/MemoryMap.h"
#include "text/StringTable.h"

namespace zelvor {
namespace {

// Where the platform's separator is the backslash, its interfaces and the toolkit's use the slash as well.
constexpr std::string_view Separators = std::filesystem::path::preferred_separator == '\\' ? "\\/" : "/";

constexpr TextPair CaptionHead{" Channel Information [", " 信道信息 ["};
constexpr TextPair CaptionChannel{" Channel - ", " 信道 - "};
constexpr TextPair NewDocumentChannel{" Channel-1", " 信道 - 1"};
constexpr std::string_view CaptionEnd = " ]";

std::string Caption(Language language, std::string_view channel) {
    std::string caption(CaptionHead.In(language));
    caption += channel;
    caption += CaptionEnd;
    return caption;
}

} // namespace

bool Session::IsAnyChildOpen() const {
    return std::any_of(ChildOpen.begin(), ChildOpen.end(), [](bool open) { return open; });
}

std::string_view Session::LoadText(Text name) const {
    return TableText(LanguageFlag, name);
}

bool Session::IsDocumentChanged() {
    SavedImage.Set(address::PttIdType, Image.At(address::PttIdType));
    return Image != SavedImage;
}

bool Session::HasFile() const {
    return CurrentFileName.find_first_of(Separators) != std::string::npos;
}

std::string Session::BaseName() const {
    const std::size_t separator = CurrentFileName.find_last_of(Separators);
    return separator == std::string::npos ? CurrentFileName : CurrentFileName.substr(separator + 1);
}

std::string ChannelCaption(Language language, int n) {
    return Caption(language, std::string(CaptionChannel.In(language)) + std::to_string(n));
}

std::string NewDocumentChannelCaption(Language language) {
    return Caption(language, NewDocumentChannel.In(language));
}

} // namespace zelvor
