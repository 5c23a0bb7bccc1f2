#pragma once

#include "data/ObserverList.h"

namespace zelvor {

class ChannelCursorObserver {
public:
    virtual ~ChannelCursorObserver() = default;
    /// The cursor of the grid came to channel n, or an editor was opened there.
    virtual void OnGridChannel(int /*n*/) {}
    /// The channel edit dialog shows channel n.
    virtual void OnDialogChannel(int /*n*/) {}
};

/// Which channel the two channel windows are at. The dialog follows the grid; the grid only names the dialog's channel.
class ChannelCursor {
public:
    /// 1 to 16, named in the grid's captions, and the one that a cell's commit goes to.
    [[nodiscard]] int CurrentChannel() const { return currentChannel_; }
    /// Column of the grid's cursor, 1 to 9.
    [[nodiscard]] int CurrentCol() const { return currentCol_; }
    /// The channel of the channel edit dialog.
    [[nodiscard]] int EditChannel() const { return editChannel_; }

    /// Names a channel without moving anything.
    void SetCurrentChannel(int n) { currentChannel_ = n; }
    void SetEditChannel(int n) { editChannel_ = n; }

    void GoToCell(int n, int column) {
        currentChannel_ = n;
        currentCol_ = column;
        editChannel_ = n;
        observers_.Tell(&ChannelCursorObserver::OnGridChannel, n);
    }
    void ShowInDialog(int n) {
        editChannel_ = n;
        observers_.Tell(&ChannelCursorObserver::OnDialogChannel, n);
    }

    void Add(ChannelCursorObserver& observer) { observers_.Add(observer); }
    void Remove(ChannelCursorObserver& observer) { observers_.Remove(observer); }

private:
    int currentChannel_ = 1;
    int currentCol_ = 1;
    int editChannel_ = 1;
    ObserverList<ChannelCursorObserver> observers_;
};

} // namespace zelvor
