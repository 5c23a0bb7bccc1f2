#pragma once

#include <QDir>
#include <QString>
#include <QTemporaryDir>

namespace zelvor::tour {

/// A home directory of this run's own, so that nothing of the user's is read or written. Made before the QApplication.
class PrivateHome {
public:
    PrivateHome();

    [[nodiscard]] QString File(const QString& name) const { return directory_.filePath(name); }
    /// In a folder where the file dialogs find nothing else.
    [[nodiscard]] QString DataFile(const QString& name) const { return directory_.filePath("radios/" + name); }
    void Remove() { directory_.remove(); }

private:
    void KeepDisplayAccess();
    void ChoosePlatform();

    QTemporaryDir directory_{QDir::tempPath() + "/tour-XXXXXX"};
};

/// Where the program keeps its settings.
[[nodiscard]] QString SettingsFile();

} // namespace zelvor::tour
