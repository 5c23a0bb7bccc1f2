#pragma once

#include <QString>

#include "platform/Folder.h"

namespace zelvor {

/// A folder of the machine's. Held by a file ".lock" in it, which nobody respects once its process is gone, or
/// where it tells of none, or half a minute has passed.
class QtFolder : public Folder {
public:
    /// Longer than a few processes in a row need for a file each, and short enough for a user who waits.
    static constexpr int UsualPatience = 2000;

    /// patience: the milliseconds after which Hold() gives up.
    explicit QtFolder(QString path, int patience = UsualPatience);

    [[nodiscard]] std::string Path() const override;
    [[nodiscard]] std::string PathOf(const std::string& name) const override;
    [[nodiscard]] std::vector<std::string> FileNames() override;
    void Remove(const std::string& name) override;
    [[nodiscard]] std::shared_ptr<void> Hold() override;

private:
    QString path_;
    int patience_;
};

/// Where the user's backups are: Zelvor/backups in the local data folder. Looked up anew by each call.
[[nodiscard]] QString BackupFolderPath();

} // namespace zelvor
