#include "platform/FileIcons.h"

#include <QMimeDatabase>

namespace zelvor {

QIcon FileIcons::icon(const QFileInfo& info) const {
    return info.isDir() ? QFileIconProvider::icon(info) : icon(File);
}

QString FileIcons::type(const QFileInfo& info) const {
    return info.isDir() ? QFileIconProvider::type(info)
                        : QMimeDatabase().mimeTypeForFile(info, QMimeDatabase::MatchExtension).comment();
}

} // namespace zelvor
