#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include "ModalDriver.h"
#include "fakes/FakeFileDialogs.h"
#include "platform/QtFileDialogs.h"
#include "support/QtPrinting.h"

namespace zelvor {
namespace {

struct FakeUser {
    FakeFileDialogs dialogs;
    void WillOpen(const FileDialogRequest& request, const std::string& path) { dialogs.ExpectOpen(request, path); }
    void WillSave(const FileDialogRequest& request, const std::string& path) { dialogs.ExpectSave(request, path); }
    void WillCancelOpen(const FileDialogRequest& request) { dialogs.ExpectOpen(request, std::nullopt); }
    void WillCancelSave(const FileDialogRequest& request) { dialogs.ExpectSave(request, std::nullopt); }
};

struct RealUser {
    QtFileDialogs dialogs;
    void WillOpen(const FileDialogRequest& /*request*/, const std::string& path) { Choose(path); }
    void WillSave(const FileDialogRequest& /*request*/, const std::string& path) { Choose(path); }
    void WillCancelOpen(const FileDialogRequest& /*request*/) { Cancel(); }
    void WillCancelSave(const FileDialogRequest& /*request*/) { Cancel(); }

private:
    static void Choose(const std::string& path) {
        WithNextDialog<QFileDialog>([path](QFileDialog& dialog) {
            dialog.selectFile(QString::fromStdString(path));
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
    }
    static void Cancel() {
        WithNextDialog<QFileDialog>([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    }
};

template<class User>
class FileDialogsContract : public testing::Test {
protected:
    FileDialogsContract() {
        EXPECT_TRUE(QDir(folder_.path()).mkdir(QStringLiteral("数据")));
        QFile file(folder_.filePath(QStringLiteral("数据/a.dat")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        QDir::setCurrent(folder_.path());
    }
    ~FileDialogsContract() override { QDir::setCurrent(folderBefore_); }

    [[nodiscard]] std::string Path(const char* name) const {
        return QDir::toNativeSeparators(folder_.filePath(QString::fromUtf8(name))).toStdString();
    }
    static std::string CurrentFolder() { return QDir::toNativeSeparators(QDir::currentPath()).toStdString(); }

    QTemporaryDir folder_;
    const QString folderBefore_ = QDir::currentPath();
    User user_;
    FileDialogRequest request_{"", "QPK Data Files(*.dat)|*.dat", folder_.path().toStdString()};
};

using Users = testing::Types<FakeUser, RealUser>;
TYPED_TEST_SUITE(FileDialogsContract, Users);

TYPED_TEST(FileDialogsContract, OpensAnExistingFileAndTheCurrentDirectoryFollows) {
    this->user_.WillOpen(this->request_, this->Path("数据/a.dat"));
    EXPECT_EQ(this->user_.dialogs.Open(this->request_), this->Path("数据/a.dat"));
    EXPECT_EQ(this->CurrentFolder(), this->Path("数据"));
}

TYPED_TEST(FileDialogsContract, SavesToANewFileAndTheCurrentDirectoryFollows) {
    this->user_.WillSave(this->request_, this->Path("数据/new.dat"));
    EXPECT_EQ(this->user_.dialogs.Save(this->request_), this->Path("数据/new.dat"));
    EXPECT_EQ(this->CurrentFolder(), this->Path("数据"));
    EXPECT_FALSE(QFile::exists(this->folder_.filePath(QStringLiteral("数据/new.dat"))));
}

TYPED_TEST(FileDialogsContract, AnswersNothingOnCancelAndLeavesTheCurrentDirectory) {
    this->request_.directory = this->Path("数据");
    this->user_.WillCancelOpen(this->request_);
    EXPECT_EQ(this->user_.dialogs.Open(this->request_), std::nullopt);
    this->user_.WillCancelSave(this->request_);
    EXPECT_EQ(this->user_.dialogs.Save(this->request_), std::nullopt);
    EXPECT_EQ(this->CurrentFolder(), QDir::toNativeSeparators(this->folder_.path()).toStdString());
}

} // namespace
} // namespace zelvor
