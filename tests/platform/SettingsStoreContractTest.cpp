#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <gtest/gtest.h>
#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

#include "fakes/FakeSettingsStore.h"
#include "platform/QtSettingsStore.h"

namespace zelvor {
namespace {

#ifdef Q_OS_WIN

/// Those of the tests: the program's main function gives it a registry of its own.
void RemoveSettings() {
    QSettings(QStringLiteral(R"(HKEY_CURRENT_USER\SoftWare)"), QSettings::NativeFormat).remove("Zelvor");
}

#else

QString Folder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/Zelvor");
}

QByteArray FileContent() {
    QFile file(Folder() + QStringLiteral("/Zelvor.ini"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

void RemoveSettings() {
    QDir(Folder()).removeRecursively();
}

#endif

template<class Store>
class SettingsStoreContract : public testing::Test {
protected:
    SettingsStoreContract() { RemoveSettings(); }
    ~SettingsStoreContract() override { RemoveSettings(); }

    Store store_;
};

using Stores = testing::Types<FakeSettingsStore, QtSettingsStore>;
TYPED_TEST_SUITE(SettingsStoreContract, Stores);

TYPED_TEST(SettingsStoreContract, DoesNotExistBeforeTheFirstRun) {
    EXPECT_FALSE(this->store_.Exists());
    EXPECT_EQ(this->store_.Read(LastModelEntry), "");
    EXPECT_FALSE(this->store_.Exists());
}

TYPED_TEST(SettingsStoreContract, ExistsWithoutEntriesOnceCreated) {
    this->store_.Create();
    EXPECT_TRUE(this->store_.Exists());
    EXPECT_EQ(this->store_.Read(LastModelEntry), "");
    EXPECT_EQ(this->store_.Read(LanguageEntry), "");
}

TYPED_TEST(SettingsStoreContract, GivesBackWhatWasWritten) {
    this->store_.Create();
    this->store_.Write(LastModelEntry, "50:34:36:31:38:01:F8:FF");
    this->store_.Write(LanguageEntry, "1");
    EXPECT_EQ(this->store_.Read(LastModelEntry), "50:34:36:31:38:01:F8:FF");
    EXPECT_EQ(this->store_.Read(LanguageEntry), "1");
    this->store_.Write(LanguageEntry, "0");
    EXPECT_EQ(this->store_.Read(LanguageEntry), "0");
    EXPECT_EQ(this->store_.Read(LastModelEntry), "50:34:36:31:38:01:F8:FF");
}

TYPED_TEST(SettingsStoreContract, ExistsAfterAWriteAlone) {
    this->store_.Write(LanguageEntry, "1");
    EXPECT_TRUE(this->store_.Exists());
    EXPECT_EQ(this->store_.Read(LanguageEntry), "1");
}

TYPED_TEST(SettingsStoreContract, KeepsItsEntriesWhenCreatedAgain) {
    this->store_.Write(LanguageEntry, "1");
    this->store_.Write(LastModelEntry, "50:34");
    this->store_.Create();
    EXPECT_EQ(this->store_.Read(LanguageEntry), "1");
    EXPECT_EQ(this->store_.Read(LastModelEntry), "50:34");
}

TYPED_TEST(SettingsStoreContract, GivesBackAnyText) {
    for (const char* text : {"", " ", "a, b; c", "\"50:34\"", "50:34:3", "@Invalid()", "语言", "%20=\\x"}) {
        this->store_.Write(LastModelEntry, text);
        EXPECT_EQ(this->store_.Read(LastModelEntry), text);
    }
}

using QtSettingsStoreFile = SettingsStoreContract<QtSettingsStore>;

TEST_F(QtSettingsStoreFile, SurvivesTheObject) {
    QtSettingsStore().Write(LanguageEntry, "1");
    EXPECT_EQ(QtSettingsStore().Read(LanguageEntry), "1");
}

#ifdef Q_OS_WIN

TEST_F(QtSettingsStoreFile, IsInTheRegistryOfTheUser) {
    store_.Write(LastModelEntry, "50:34:36:31:38:01:F8:FF");
    store_.Write(LanguageEntry, "1");
    const QSettings key(QStringLiteral(R"(HKEY_CURRENT_USER\Software\Zelvor\BackUp)"), QSettings::NativeFormat);
    EXPECT_EQ(key.value("LastModel"), "50:34:36:31:38:01:F8:FF");
    EXPECT_EQ(key.value("Language"), "1");
    EXPECT_EQ(key.allKeys().size(), 2);
}

TEST_F(QtSettingsStoreFile, IsReadAnewAtEveryQuestion) {
    store_.Write(LanguageEntry, "0");
    QSettings key(QStringLiteral(R"(HKEY_CURRENT_USER\Software\Zelvor\BackUp)"), QSettings::NativeFormat);
    key.setValue("Language", "1");
    key.sync();
    EXPECT_EQ(store_.Read(LanguageEntry), "1");
}

#else

TEST_F(QtSettingsStoreFile, IsOnDiskWhenAWriteReturns) {
    store_.Write(LastModelEntry, "50:34:36:31:38:01:F8:FF");
    EXPECT_EQ(FileContent(), "[BackUp]\nLastModel=50:34:36:31:38:01:F8:FF\n");
}

TEST_F(QtSettingsStoreFile, IsReadAnewAtEveryQuestion) {
    store_.Write(LanguageEntry, "0");
    QFile file(Folder() + QStringLiteral("/Zelvor.ini"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[BackUp]\nLanguage=1\nLastModel=5034\n");
    file.close();
    EXPECT_EQ(store_.Read(LanguageEntry), "1");
    EXPECT_EQ(store_.Read(LastModelEntry), "5034");
}

TEST_F(QtSettingsStoreFile, IsQuietWhereItCannotBeMade) {
    QFile inTheWay(Folder());
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    store_.Create();
    store_.Write(LanguageEntry, "1");
    EXPECT_FALSE(store_.Exists());
    EXPECT_EQ(store_.Read(LanguageEntry), "");
    inTheWay.remove();
}

TEST_F(QtSettingsStoreFile, IsReadAsTheToolkitWroteIt) {
    const QString path = Folder() + QStringLiteral("/Zelvor.ini");
    {
        QSettings earlier(path, QSettings::IniFormat);
        earlier.setValue("BackUp/LastModel", "50:34:36:31:38:01:F8:FF");
        earlier.setValue("BackUp/Language", "1");
        earlier.setValue("Other/Word", "kept");
    }
    EXPECT_EQ(store_.Read(LastModelEntry), "50:34:36:31:38:01:F8:FF");
    EXPECT_EQ(store_.Read(LanguageEntry), "1");
    store_.Write(LanguageEntry, "0");
    const QString copy = path + QStringLiteral(".copy"); // the toolkit remembers a file of the same size and time
    ASSERT_TRUE(QFile::copy(path, copy));
    const QSettings later(copy, QSettings::IniFormat);
    EXPECT_EQ(later.value("BackUp/Language"), "0");
    EXPECT_EQ(later.value("BackUp/LastModel"), "50:34:36:31:38:01:F8:FF");
    EXPECT_EQ(later.value("Other/Word"), "kept");
}

#endif

#ifdef Q_OS_UNIX

/// What is in the way of the settings, and what must hold nobody up.
class SettingsInTheWay : public QtSettingsStoreFile {
protected:
    SettingsInTheWay() { QDir().mkpath(Folder()); }
    ~SettingsInTheWay() override { EXPECT_LT(time_.elapsed(), 3000) << "the settings held the program up"; }

    static QString Path() { return Folder() + QStringLiteral("/Zelvor.ini"); }
    static QString Lock() { return Folder() + QStringLiteral("/Zelvor.ini.lock"); }
    static void Put(const QString& path, const QByteArray& content) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }
    void ExpectInUse() {
        store_.Create();
        store_.Write(LanguageEntry, "1");
        EXPECT_EQ(store_.Read(LanguageEntry), "1");
    }

private:
    QElapsedTimer time_ = [] {
        QElapsedTimer timer;
        timer.start();
        return timer;
    }();
};

TEST_F(SettingsInTheWay, AnEmptyLockFileIsNotWaitedFor) {
    Put(Lock(), "");
    ExpectInUse();
}

TEST_F(SettingsInTheWay, ALockFileOfAnotherMachineIsNotWaitedFor) {
    Put(Lock(), "4711\nzelvor\nanother-machine\n\n\n");
    ExpectInUse();
}

TEST_F(SettingsInTheWay, AFolderWithTheLocksNameIsNotWaitedFor) {
    ASSERT_TRUE(QDir().mkpath(Lock()));
    ExpectInUse();
}

TEST_F(SettingsInTheWay, APipeIsNeitherReadNorWritten) {
    ASSERT_EQ(mkfifo(QFile::encodeName(Path()).constData(), 0666), 0);
    EXPECT_TRUE(store_.Exists());
    EXPECT_EQ(store_.Read(LastModelEntry), "");
    store_.Write(LanguageEntry, "1");
    EXPECT_EQ(store_.Read(LanguageEntry), "");
    EXPECT_FALSE(QFileInfo(Path()).isFile());
}

TEST_F(SettingsInTheWay, AFolderWithTheFilesNameStays) {
    ASSERT_TRUE(QDir().mkpath(Path()));
    EXPECT_EQ(store_.Read(LastModelEntry), "");
    store_.Write(LanguageEntry, "1");
    EXPECT_TRUE(QFileInfo(Path()).isDir());
}

TEST_F(SettingsInTheWay, AHugeFileIsNotReplacedByASmallOne) {
    Put(Path(), "[BackUp]\nLanguage=1\n");
    ASSERT_TRUE(QFile::resize(Path(), 2000000));
    EXPECT_EQ(store_.Read(LanguageEntry), "");
    store_.Write(LanguageEntry, "0");
    EXPECT_EQ(QFileInfo(Path()).size(), 2000000);
}

#endif

} // namespace
} // namespace zelvor
