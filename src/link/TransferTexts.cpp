#include "link/TransferTexts.h"

#include <initializer_list>
#include <string_view>

#include "text/StringTable.h"

namespace zelvor::transfertexts {

namespace {

constexpr TextPair SilentRadio{"{port} is open, but the radio does not answer as it should.",
                               "{port} 已打开，但对讲机没有正确应答。"};
constexpr TextPair NoDevice{
    "{port} is missing. Plug in the cable, or choose another port in Setup > Communication Port.",
    "{port} 不存在。请插上编程线，或在“设置 > 通信端口”中选择其他端口。"};
constexpr TextPair DeviceGone{
    "{port} ({device}) is missing. Plug in the cable, or choose another port in Setup > Communication Port.",
    "{port} ({device}) 不存在。请插上编程线，或在“设置 > 通信端口”中选择其他端口。"};
constexpr TextPair InUse{"{port} ({device}) is in use by another program. Close that program.",
                         "{port} ({device}) 正被其他程序使用。请关闭该程序。"};
constexpr TextPair NotPermitted{
    "You have no permission to open {port} ({device}). Ask the administrator of this computer.",
    "您没有打开 {port} ({device}) 的权限。请与计算机管理员联系。"};
constexpr TextPair NotInGroup{
    "You have no permission to open {port} ({device}). Run: sudo usermod -aG {group} $USER, then log in again.",
    "您没有打开 {port} ({device}) 的权限。请执行 sudo usermod -aG {group} $USER，然后重新登录。"};
constexpr TextPair Unusable{"{port} ({device}) cannot be opened. Check the cable, or choose another port.",
                            "无法打开 {port} ({device})。请检查编程线，或选择其他端口。"};

struct Filling {
    std::string_view place;
    std::string text;
};

std::string Filled(const TextPair& pair, Language language, std::initializer_list<Filling> fillings) {
    std::string text(pair.In(language));
    for (const auto& [place, filling] : fillings) {
        if (const std::size_t at = text.find(place); at != std::string::npos) {
            text.replace(at, place.size(), filling);
        }
    }
    return text;
}

std::string PortName(int number, Language language) {
    return std::string(TableText(language, Text::Com)) + std::to_string(number);
}

const TextPair& TextOf(const PortFailure& failure) {
    switch (failure.fault) {
    case PortFault::Missing:
        return failure.devicePath.empty() ? NoDevice : DeviceGone;
    case PortFault::InUse:
        return InUse;
    case PortFault::NotPermitted:
        return failure.group.empty() ? NotPermitted : NotInGroup;
    case PortFault::None:
    case PortFault::Unusable:
        break;
    }
    return Unusable;
}

} // namespace

std::string NoAnswer(int portNumber, Language language) {
    return Filled(SilentRadio, language, {{"{port}", PortName(portNumber, language)}});
}

std::string CannotOpen(const PortFailure& failure, int portNumber, Language language) {
    return Filled(
        TextOf(failure), language,
        {{"{port}", PortName(portNumber, language)}, {"{device}", failure.devicePath}, {"{group}", failure.group}});
}

} // namespace zelvor::transfertexts
