#include "random/Options.h"

#include <iostream>
#include <limits>

#include <CLI/CLI.hpp>

namespace zelvor::random {

namespace {

constexpr int ExitUsage = 2;

} // namespace

OptionsResult ReadOptions(int argc, char** argv) {
    Options options;
    CLI::App app("Uses Zelvor at random beside a simulated radio, and tells of crashes, freezes and complaints.\n"
                 "Exit status: 0 nothing was found, 1 something was, 3 the surroundings do not work.",
                 "zelvor-random");
    app.add_option("--seconds", options.seconds, "After which no further session begins")
        ->check(CLI::Range(1, 1'000'000))
        ->capture_default_str();
    app.add_option("--seed", options.seed, "Of the first session; the next ones count on")
        ->check(CLI::Range(std::uint32_t{0}, std::numeric_limits<std::uint32_t>::max()))
        ->capture_default_str();
    app.add_option("--sessions", options.sessions, "At most; 0: as many as the seconds allow")->capture_default_str();
    app.add_option("--acts", options.acts, "Of a session")->capture_default_str();
    app.add_option("--keep", options.keep, "Directory for the logs and stacks of what was found")->type_name("DIR");
    app.add_flag("--verbose", options.verbose, "Print every act, not only those before a finding");
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& request) {
        return {std::nullopt, app.exit(request)};
    } catch (const CLI::ParseError& error) {
        std::cerr << "zelvor-random: " << error.what() << "\n\n" << app.help();
        return {std::nullopt, ExitUsage};
    }
    return {options, 0};
}

} // namespace zelvor::random
