#pragma once

#include <QFileIconProvider>

namespace zelvor {

/// What a file dialog shows beside the names, told by the names alone: the toolkit's own looks into every file that it
/// lists, and a special file that never gives a byte would hold the window up for ever.
class FileIcons : public QFileIconProvider {
public:
    using QFileIconProvider::icon;
    [[nodiscard]] QIcon icon(const QFileInfo& info) const override;
    [[nodiscard]] QString type(const QFileInfo& info) const override;
};

} // namespace zelvor
