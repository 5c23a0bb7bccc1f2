#include "channels/ChannelCaption.h"

#include <string_view>

namespace zelvor {

namespace {

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

std::string ChannelCaption(Language language, int n) {
    return Caption(language, std::string(CaptionChannel.In(language)) + std::to_string(n));
}

std::string NewDocumentChannelCaption(Language language) {
    return Caption(language, NewDocumentChannel.In(language));
}

} // namespace zelvor
