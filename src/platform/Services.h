#pragma once

namespace zelvor {

class Clock;
class FileDialogs;
class FileStore;
class Folder;
class HelpViewer;
class MessageBoxes;
class PageDevice;
class SerialPorts;
class SettingsStore;

/// What the program asks of the machine. Made once by the application, handed on by reference; tests hand on fakes.
struct Services {
    SerialPorts& ports;
    SettingsStore& settings;
    MessageBoxes& messages;
    FileDialogs& files;
    Clock& clock;
    HelpViewer& help;
    PageDevice& pages;
    FileStore& store;
    Folder& backups; // for Backups
};

} // namespace zelvor
