#pragma once

#include <QObject>
#include <QString>

namespace zelvor::random {

/// Keeps the file dialogs of this process in one folder and from deleting and renaming: a user at random must not come
/// to anybody's files.
class FileDialogGuard : public QObject {
public:
    FileDialogGuard(QString folder, QObject* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const QString folder_;
};

} // namespace zelvor::random
