#pragma once

namespace zelvor {

class Document;
class WindowState;
struct LinkState;
struct ServiceState;

/// The states of the program, each of one owner, for the main window and for those of its commands that hand most of
/// them on. Everybody else gets what he needs.
struct ProgramState {
    Document& document;
    WindowState& windows;
    LinkState& link;
    ServiceState& service;
};

} // namespace zelvor
