// Asks the library of CUPS and not the toolkit, whose print plug-in gives its password dialog to the thread that loads
// it: that has to be the window's. Nor does the toolkit tell a printer's orientation.

#include <QLibrary>
#include <algorithm>
#include <span>
#include <string_view>

#include "platform/InstalledPrinters.h"

namespace zelvor {

namespace {

/// As cups_option_t and cups_dest_t are, in all versions 1 and 2 of the library.
struct Option {
    char* name;
    char* value;
};
struct Destination {
    char* name;
    char* instance;
    int isDefault;
    int optionCount;
    Option* options;
};
using GetDestinations = int (*)(Destination** destinations);
using FreeDestinations = void (*)(int count, Destination* destinations);
using PasswordCallback = const char* (*)(const char* prompt, void* connection, const char* method, const char* resource,
                                         void* data);
using SetPasswordCallback = void (*)(PasswordCallback callback, void* data);

constexpr const char* LibraryName = "cups";
constexpr int LibraryVersion = 2;

constexpr std::string_view OrientationOption = "orientation-requested";
constexpr std::string_view Landscape = "4";
constexpr std::string_view ReverseLandscape = "5";
constexpr std::string_view LandscapeOption = "landscape"; // the older way of asking for it
constexpr std::string_view No = "false";

/// Otherwise the library asks for a password on the terminal that the program was started from.
const char* RefusePassword(const char* /*prompt*/, void* /*connection*/, const char* /*method*/,
                           const char* /*resource*/, void* /*data*/) {
    return nullptr;
}

bool AsksForLandscape(const Option& option) {
    const std::string_view name = option.name;
    const std::string_view value = option.value;
    return (name == OrientationOption && (value == Landscape || value == ReverseLandscape)) ||
           (name == LandscapeOption && value != No);
}

InstalledPrinter PrinterOf(const Destination& destination) {
    const std::span options(destination.options, static_cast<std::size_t>(destination.optionCount));
    std::string name = destination.name;
    if (destination.instance != nullptr) {
        name += '/';
        name += destination.instance;
    }
    return {.name = std::move(name),
            .isDefault = destination.isDefault != 0,
            .isLandscape = std::ranges::any_of(options, AsksForLandscape)};
}

} // namespace

std::vector<InstalledPrinter> AskForPrinters() {
    QLibrary cups(LibraryName, LibraryVersion);
    cups.setLoadHints(QLibrary::PreventUnloadHint); // at the program's end this thread may still be in it
    const auto get = reinterpret_cast<GetDestinations>(cups.resolve("cupsGetDests"));
    const auto release = reinterpret_cast<FreeDestinations>(cups.resolve("cupsFreeDests"));
    const auto setPasswordCallback = reinterpret_cast<SetPasswordCallback>(cups.resolve("cupsSetPasswordCB2"));
    if (get == nullptr || release == nullptr || setPasswordCallback == nullptr) {
        return {};
    }
    setPasswordCallback(RefusePassword, nullptr); // for this thread alone
    Destination* destinations = nullptr;
    const int count = get(&destinations);
    std::vector<InstalledPrinter> printers;
    for (const Destination& destination : std::span(destinations, static_cast<std::size_t>(std::max(count, 0)))) {
        printers.push_back(PrinterOf(destination));
    }
    release(count, destinations);
    return printers;
}

} // namespace zelvor
