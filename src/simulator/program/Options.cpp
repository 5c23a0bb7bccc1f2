#include "simulator/program/Options.h"

#include <algorithm>
#include <iostream>
#include <string>

#include <CLI/CLI.hpp>

#include "simulator/program/PortLink.h"

namespace zelvor {
namespace {

std::string CheckFault(const std::string& text) {
    const std::optional<Fault> fault = ParseFault(text);
    if (fault && fault->kind == FaultKind::Cut && fault->value >= LongestReply(fault->reply)) {
        const std::string longest = std::to_string(LongestReply(fault->reply));
        return "\"" + text + "\" cuts nothing off; reply " + std::to_string(fault->reply) + " has no more bytes than " +
               longest;
    }
    if (fault) {
        return {};
    }
    return "\"" + text + "\" is no fault; one of drop@N, corrupt@N, cut:BYTES@N, delay:MS@N, hang@N, unplug@N is";
}

/// The command line as it is written, before it becomes Options.
struct Texts {
    std::string load;
    std::string save;
    std::string linkDirectory;
    std::vector<std::string> faults;
    int serveMany = 0;
    int unplugged = 1000;
};

void Describe(CLI::App& app, Options& options, Texts& texts) {
    app.set_version_flag("--version", "zelvor-radio " ZELVOR_VERSION);
    app.add_option("--port", options.port, "Number of the port to be, as Zelvor counts them")
        ->check(CLI::Range(1, 20))
        ->capture_default_str();
    app.add_option("--load", texts.load, "Data file with the radio's memory; without it, a sample radio of 16 channels")
        ->type_name("FILE.dat");
    app.add_option("--save", texts.save, "Data file to keep the memory in, after every session and at the end")
        ->type_name("FILE.dat");
    app.add_option("--serve-many", texts.serveMany,
                   "Be N radios, one after the other: a session ends when the program closes the port, the next one"
                   " begins with the memory as it was loaded, and after N sessions zelvor-radio ends")
        ->type_name("N")
        ->check(CLI::Range(1, 1000000));
    app.add_flag("--trace", options.trace, "Print every exchange in hexadecimal, with its time in seconds");
    app.add_option("--fault", texts.faults,
                   "Spoil a reply, counted from 1: drop@N, corrupt@N, cut:BYTES@N, delay:MS@N, hang@N, unplug@N;"
                   " may be given several times")
        ->type_name("SPEC")
        ->allow_extra_args(false)
        ->check(CheckFault);
    app.add_option("--unplugged", texts.unplugged, "Milliseconds for which the port stays away after unplug@N")
        ->type_name("MS")
        ->check(CLI::Range(0, 600000))
        ->capture_default_str();
    app.add_option("--link-dir", texts.linkDirectory, "Directory for the link COM<n> in place of Zelvor's own")
        ->type_name("DIR");
}

std::optional<std::filesystem::path> PathIfGiven(const std::string& text) {
    return text.empty() ? std::nullopt : std::optional<std::filesystem::path>(text);
}

} // namespace

OptionsResult ReadOptions(int argc, char** argv) {
    Options options;
    Texts texts;
    CLI::App app("A simulated radio on a pseudo-terminal, for Zelvor.", "zelvor-radio");
    Describe(app, options, texts);
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& request) {
        return {std::nullopt, app.exit(request)};
    } catch (const CLI::ParseError& error) {
        std::string complaint = error.what();
        std::ranges::replace(complaint, '\n', ' ');
        std::cerr << "zelvor-radio: " << complaint << "\nTry \"zelvor-radio --help\".\n";
        return {std::nullopt, ExitUsage};
    }
    options.load = PathIfGiven(texts.load);
    options.save = PathIfGiven(texts.save);
    options.linkDirectory = texts.linkDirectory.empty() ? PortDirectory() : std::filesystem::path(texts.linkDirectory);
    if (texts.serveMany > 0) {
        options.serveMany = texts.serveMany;
    }
    options.unplugged = std::chrono::milliseconds(texts.unplugged);
    for (const std::string& text : texts.faults) {
        options.faults.push_back(*ParseFault(text));
    }
    return {options, 0};
}

} // namespace zelvor
