#pragma once

#include <QString>

namespace zelvor::tour {

class WindowThread;

/// Leaves pictures of the main window with all that is open over it, "NN-what-language.png", numbered in order.
class Screenshots {
public:
    /// An empty directory's name takes none. A directory that is missing is made.
    Screenshots(WindowThread& windows, const QString& directory);

    void SetLanguage(const QString& language) { language_ = language; }
    /// Waits until what has just opened is painted.
    void Take(const QString& what);
    /// Does not wait: something is moving.
    void TakeAtOnce(const QString& what);
    /// Copies a file there, "NN-what-language.pdf".
    void Keep(const QString& what, const QString& file);

private:
    [[nodiscard]] QString NextPath(const QString& what, const QString& suffix);

    WindowThread& windows_;
    QString directory_;
    QString language_;
    int count_ = 0;
};

} // namespace zelvor::tour
