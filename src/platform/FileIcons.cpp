#include "platform/FileIcons.h"

#include <QMimeDatabase>

namespace zelvor {

QIcon FileIcons::icon(IconType kind) const {
    const auto known = icons_.find(kind);
    return known != icons_.end() ? known->second : icons_.emplace(kind, QFileIconProvider::icon(kind)).first->second;
}

QIcon FileIcons::icon(const QFileInfo& info) const {
    return icon(info.isRoot() ? Drive : info.isDir() ? Folder : File);
}

QString FileIcons::type(const QFileInfo& info) const {
    return info.isDir() ? QFileIconProvider::type(info)
                        : QMimeDatabase().mimeTypeForFile(info, QMimeDatabase::MatchExtension).comment();
}

} // namespace zelvor
