#include "tour/Options.h"

#include <iostream>

#include <CLI/CLI.hpp>

namespace zelvor::tour {

namespace {

constexpr int ExitUsage = 2;

} // namespace

OptionsResult ReadOptions(int argc, char** argv) {
    Options options;
    CLI::App app("Drives Zelvor's windows through the whole job against a simulated radio.", "zelvor-tour");
    app.set_version_flag("--version", "zelvor-tour " ZELVOR_VERSION);
    app.add_option("--screenshots", options.screenshots, "Directory to leave pictures of the windows in")
        ->type_name("DIR");
    app.add_option("--timeout", options.timeout, "Seconds after which the tour gives up")
        ->type_name("SECONDS")
        ->check(CLI::Range(1, 3600))
        ->capture_default_str();
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& request) {
        return {std::nullopt, app.exit(request)};
    } catch (const CLI::ParseError& error) {
        std::cerr << "zelvor-tour: " << error.what() << "\n\n" << app.help();
        return {std::nullopt, ExitUsage};
    }
    return {options, 0};
}

} // namespace zelvor::tour
