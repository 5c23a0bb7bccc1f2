#pragma once

#include <QPointer>

namespace zelvor {

class ChannelEditForm;
class ChannelForm;
class ScanForm;

/// The windows of this folder that show each other's values. Each enters itself when it is made; a window that is gone
/// is null. Owned by the main window, handed on by reference.
struct ChannelWindows {
    QPointer<ChannelForm> grid;
    QPointer<ChannelEditForm> dialog;
    QPointer<ScanForm> scan;
};

} // namespace zelvor
