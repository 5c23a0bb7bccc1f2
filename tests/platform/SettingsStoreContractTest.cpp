#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <gtest/gtest.h>

#include "platform/QtSettingsStore.h"
#include "platform/fakes/FakeSettingsStore.h"

namespace zelvor {
namespace {

QString Folder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/Zelvor");
}

QByteArray FileContent() {
    QFile file(Folder() + QStringLiteral("/Zelvor.ini"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

template<class Store>
class SettingsStoreContract : public testing::Test {
protected:
    SettingsStoreContract() { QDir(Folder()).removeRecursively(); }
    ~SettingsStoreContract() override { QDir(Folder()).removeRecursively(); }

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
    this->store_.Create();
    EXPECT_EQ(this->store_.Read(LanguageEntry), "1");
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

} // namespace
} // namespace zelvor
