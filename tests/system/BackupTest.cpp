// What the program keeps of reads and writes, in the folder of its user.

#include "SystemTest.h"

#include <QDir>
#include <QFile>

namespace zelvor::test {
namespace {

class BackupTest : public SystemTest {
protected:
    [[nodiscard]] static QDir Folder() { return QDir(qEnvironmentVariable("XDG_DATA_HOME") + "/Zelvor/backups"); }
    /// Names of the backups since this was called last, oldest first.
    [[nodiscard]] QStringList TakeNames() {
        QStringList names = Folder().entryList(QDir::Files, QDir::Name);
        for (const QString& name : known_) {
            names.removeAll(name);
        }
        known_ += names;
        return names;
    }
    [[nodiscard]] static QByteArray MemoryIn(const QString& name) {
        QFile file(Folder().filePath(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(name);
        return file.readAll().mid(16);
    }

private:
    QStringList known_ = Folder().entryList(QDir::Files);
};

TEST_F(BackupTest, EveryReadAndEveryWriteIsKept) {
    Script([this] {
        Start({});
        BeginRead();
        ExpectReadCompleted();
        const QByteArray memory = Radio().Memory();
        const QStringList read = TakeNames();
        ASSERT_EQ(read.size(), 1);
        EXPECT_TRUE(read[0].contains("-4618-M-read")) << qPrintable(read[0]);
        EXPECT_EQ(MemoryIn(read[0]), memory);

        BeginWrite();
        ExpectWriteCompleted();
        const QStringList written = TakeNames();
        ASSERT_EQ(written.size(), 1);
        EXPECT_TRUE(written[0].contains("-4618-M-write")) << qPrintable(written[0]);
        EXPECT_EQ(MemoryIn(written[0]), memory);
    });
}

} // namespace
} // namespace zelvor::test
