#pragma once

#include <QFileIconProvider>
#include <map>

namespace zelvor {

/// What a file dialog shows beside the names, told by the names alone: the toolkit's own looks into every file that it
/// lists, and a special file that never gives a byte would hold the window up for ever. Each picture is looked up once,
/// since the toolkit searches all folders of icons for every row of a list.
class FileIcons : public QFileIconProvider {
public:
    [[nodiscard]] QIcon icon(IconType kind) const override;
    [[nodiscard]] QIcon icon(const QFileInfo& info) const override;
    [[nodiscard]] QString type(const QFileInfo& info) const override;

private:
    mutable std::map<IconType, QIcon> icons_;
};

} // namespace zelvor
