#include "platform/FileSystem.h"

#include <QDateTime>
#include <QDir>
#include <QSaveFile>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdint>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

#include "platform/QtFileStore.h"
#include "platform/Toolkit.h"

namespace zelvor {
namespace {

using Bytes = std::vector<std::uint8_t>;

/// Looks at files by the toolkit's means: the standard library's end at 260 characters on some systems.
class FileSystemTest : public testing::Test {
protected:
    [[nodiscard]] std::string Path(const QString& name) const {
        return FromQString(QDir::toNativeSeparators(folder_.filePath(name)));
    }
    void Put(const QString& name, const QByteArray& content) const {
        QFile file(folder_.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << name.toStdString();
        ASSERT_EQ(file.write(content), content.size());
    }
    [[nodiscard]] QByteArray Content(const QString& name) const {
        QFile file(folder_.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }
    [[nodiscard]] QStringList Names(const QString& folder = {}) const {
        return QDir(folder_.filePath(folder)).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    }

    QTemporaryDir folder_;
    QtFileStore store_;
};

/// Folders in folders, with Chinese names and blanks, so that the path has far more than 260 characters.
class FarDownTest : public FileSystemTest {
protected:
    FarDownTest() {
        for (int depth = 0; depth < 8; ++depth) {
            far_ += QStringLiteral("对讲机 写频数据 radio data of the workshop %1/").arg(depth);
        }
        QDir(folder_.path()).mkpath(far_);
    }

    QString far_;
};

TEST_F(FarDownTest, FilesAreWrittenReplacedAndRead) {
    const QString name = far_ + QStringLiteral("电台.dat");
    ASSERT_GT(folder_.filePath(name).size(), 300);
    ASSERT_TRUE(store_.Write(Path(name), Bytes{'a', 'b', 'c'}, FileTail::Drop));
    EXPECT_EQ(Content(name), "abc");
    ASSERT_TRUE(store_.Write(Path(name), Bytes{'x'}, FileTail::Keep));
    EXPECT_EQ(Content(name), "xbc");
    EXPECT_EQ(store_.Read(Path(name), 9), (Bytes{'x', 'b', 'c'}));
    EXPECT_EQ(Names(far_), QStringList(QStringLiteral("电台.dat")));
}

TEST_F(FarDownTest, AReadOnlyFileIsRefusedAndAMissingOneNotFound) {
    const QString name = far_ + QStringLiteral("电台.dat");
    Put(name, "old");
    ASSERT_TRUE(QFile::setPermissions(folder_.filePath(name), QFileDevice::ReadOwner));
    EXPECT_FALSE(store_.Write(Path(name), Bytes{'x'}, FileTail::Drop));
    EXPECT_EQ(Content(name), "old");
    EXPECT_EQ(Names(far_), QStringList(QStringLiteral("电台.dat")));
    EXPECT_EQ(store_.Read(Path(far_ + QStringLiteral("无.dat")), 9), std::nullopt);
    QFile::setPermissions(folder_.filePath(name), QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

TEST_F(FarDownTest, WhatAKilledProcessLeftIsSwept) {
    const QString left = far_ + QStringLiteral(".zelvor-123.tmp");
    Put(left, "left");
    QFile file(folder_.filePath(left));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTime().addSecs(-120), QFileDevice::FileModificationTime));
    file.close();
    ASSERT_TRUE(store_.Write(Path(far_ + QStringLiteral("电台.dat")), Bytes{'x'}, FileTail::Drop));
    EXPECT_EQ(Names(far_), QStringList(QStringLiteral("电台.dat")));
}

TEST_F(FarDownTest, OneFileIsToldFromAnother) {
    Put(far_ + QStringLiteral("一.dat"), "1");
    Put(far_ + QStringLiteral("二.dat"), "1");
    const std::string one = Path(far_ + QStringLiteral("一.dat"));
    const std::string roundabout =
        Path(far_ + QStringLiteral("./../") + QDir(far_).dirName() + QStringLiteral("/一.dat"));
    EXPECT_TRUE(LeadToSameFile(one, one));
    EXPECT_TRUE(LeadToSameFile(one, roundabout));
    EXPECT_FALSE(LeadToSameFile(one, Path(far_ + QStringLiteral("二.dat"))));
    EXPECT_FALSE(LeadToSameFile(one, Path(far_ + QStringLiteral("无.dat"))));
    EXPECT_FALSE(LeadToSameFile("", ""));
}

TEST_F(FarDownTest, TheFilesOfAFolderAreListed) {
    Put(far_ + QStringLiteral("电台.dat"), "1");
    Put(far_ + QStringLiteral(".hidden"), "1");
    ASSERT_TRUE(QDir(folder_.filePath(far_)).mkdir("a folder"));
    std::optional<std::vector<std::string>> names = store_.NamesIn(Path(far_));
    ASSERT_TRUE(names.has_value());
    std::ranges::sort(*names);
    EXPECT_EQ(*names, (std::vector<std::string>{".hidden", "电台.dat"}));
    EXPECT_EQ(store_.Read(PathIn(Path(far_), "电台.dat"), 9), Bytes{'1'});
    EXPECT_EQ(store_.NamesIn(Path(far_ + QStringLiteral("无"))), std::nullopt);
}

TEST(PathIn, IsSpelledAsTheFolderIs) {
    EXPECT_EQ(PathIn("2025", "7.dat"), "2025/7.dat");
    EXPECT_EQ(PathIn("2025/", "7.dat"), "2025/7.dat");
    EXPECT_EQ(PathIn("/", "7.dat"), "/7.dat");
#ifdef Q_OS_WIN
    EXPECT_EQ(PathIn("C:\\2025\\", "7.dat"), "C:\\2025\\7.dat");
    EXPECT_EQ(PathIn("C:", "7.dat"), "C:7.dat");
#else
    EXPECT_EQ(PathIn("2025\\", "7.dat"), "2025\\/7.dat");
    EXPECT_EQ(PathIn("C:", "7.dat"), "C:/7.dat");
#endif
}

#ifdef Q_OS_UNIX
TEST_F(FileSystemTest, ALinkThatLeadsNowhereIsListedAsAFileAndOneToAFolderIsNot) {
    ASSERT_TRUE(QFile::link("gone", folder_.filePath("a.dat")));
    ASSERT_TRUE(QFile::link(".", folder_.filePath("b.dat")));
    EXPECT_EQ(store_.NamesIn(Path(".")), std::vector<std::string>{"a.dat"});
}
#endif

TEST_F(FileSystemTest, AFileIsWrittenByAPathFromTheCurrentFolder) {
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(folder_.path()));
    EXPECT_TRUE(store_.Write("电台.dat", Bytes{'x'}, FileTail::Drop));
    EXPECT_EQ(store_.Read("./电台.dat", 9), Bytes{'x'});
    QDir::setCurrent(before);
    EXPECT_EQ(Content(QStringLiteral("电台.dat")), "x");
}

TEST_F(FileSystemTest, AFileAtWorkIsNotSwept) {
    QSaveFile file(folder_.filePath(".zelvor-1.tmp"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const FileClaim claim(file);
    ASSERT_TRUE(SyncFile(file) && file.commit());
    ASSERT_EQ(Names(), QStringList(".zelvor-1.tmp"));
    ASSERT_TRUE(store_.Write(Path("a.dat"), Bytes{'x'}, FileTail::Drop)); // as another program would
    EXPECT_EQ(Names(), (QStringList{".zelvor-1.tmp", "a.dat"}));
}

TEST_F(FileSystemTest, PuttingInPlaceReplacesOrMakesAFile) {
    Put("old.dat", "old");
    Put("fresh.tmp", "fresh");
    ASSERT_TRUE(PutInPlace(FilePathOf(Path("fresh.tmp")), FilePathOf(Path("old.dat"))));
    EXPECT_EQ(Content("old.dat"), "fresh");
    ASSERT_TRUE(PutInPlace(FilePathOf(Path("old.dat")), FilePathOf(Path("new.dat"))));
    EXPECT_EQ(Content("new.dat"), "fresh");
    EXPECT_EQ(Names(), QStringList("new.dat"));
}

TEST_F(FileSystemTest, WhatCannotBePutInPlaceStaysWhereItIs) {
    Put("fresh.tmp", "fresh");
    ASSERT_TRUE(QDir(folder_.path()).mkdir("a folder"));
    EXPECT_FALSE(PutInPlace(FilePathOf(Path("fresh.tmp")), FilePathOf(Path("a folder"))));
    EXPECT_FALSE(PutInPlace(FilePathOf(Path("fresh.tmp")), FilePathOf(Path("no folder/a.dat"))));
    EXPECT_FALSE(PutInPlace(FilePathOf(Path("no file")), FilePathOf(Path("a.dat"))));
    EXPECT_EQ(Names(), QStringList("fresh.tmp"));
    EXPECT_EQ(Content("fresh.tmp"), "fresh");
}

} // namespace
} // namespace zelvor
