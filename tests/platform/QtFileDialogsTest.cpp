#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>
#include <unistd.h>

#include "ModalDriver.h"
#include "platform/QtFileDialogs.h"
#include "support/QtPrinting.h"

namespace zelvor {
namespace {

class QtFileDialogsInUse : public testing::Test {
protected:
    QtFileDialogsInUse() { MakeFile("old.dat"); }
    ~QtFileDialogsInUse() override { QDir::setCurrent(QDir::rootPath()); }

    void MakeFile(const char* name) {
        QFile file(folder_.filePath(QString::fromUtf8(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    }
    [[nodiscard]] std::string Path(const char* name) const {
        return folder_.filePath(QString::fromUtf8(name)).toStdString();
    }
    [[nodiscard]] FileDialogRequest Request(std::string fileName = {}) const {
        return {std::move(fileName), "QPK Data Files(*.dat)|*.dat", folder_.path().toStdString()};
    }
    /// Types the name into the dialog and presses Enter.
    static void Type(QFileDialog& dialog, const QString& name) {
        auto* box = dialog.findChild<QLineEdit*>("fileNameEdit");
        ASSERT_NE(box, nullptr);
        box->selectAll();
        QTest::keyClicks(box, name);
        QTest::keyClick(box, Qt::Key_Return);
    }
    /// Looks at the dialog and cancels it.
    static void WillLook(std::function<void(QFileDialog&)> look) {
        WithNextDialog<QFileDialog>([look](QFileDialog& dialog) {
            look(dialog);
            dialog.reject();
        });
    }
    static void WillAnswer(
        QMessageBox::StandardButton button, std::function<void()> then = [] {}) {
        WithNextDialog<QMessageBox>([button, then](QMessageBox& box) {
            then();
            QTest::mouseClick(box.button(button), Qt::LeftButton);
        });
    }

    QTemporaryDir folder_;
    QtFileDialogs dialogs_;
};

TEST_F(QtFileDialogsInUse, AddTheSuffixThatIsNotTyped) {
    WithNextDialog<QFileDialog>([](QFileDialog& dialog) { Type(dialog, "fresh"); });
    EXPECT_EQ(dialogs_.Save(Request()), Path("fresh.dat"));
}

TEST_F(QtFileDialogsInUse, PresetTheFileName) {
    WillLook(
        [](QFileDialog& dialog) { EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "Zelvor.dat"); });
    EXPECT_EQ(dialogs_.Save(Request("Zelvor.dat")), std::nullopt);
}

TEST_F(QtFileDialogsInUse, StartInTheFolderOfAPresetPath) {
    ASSERT_TRUE(QDir(folder_.path()).mkdir("below"));
    MakeFile("below/here.dat");
    WillLook([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory().path().toStdString(), Path("below"));
        EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "here.dat");
    });
    EXPECT_EQ(dialogs_.Save(Request(Path("below/here.dat"))), std::nullopt);
}

TEST_F(QtFileDialogsInUse, StartInTheFolderTold) {
    WillLook([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "dlgFile");
        EXPECT_EQ(dialog.directory().path(), folder_.path());
        EXPECT_EQ(dialog.nameFilters(), QStringList{"QPK Data Files(*.dat)"});
    });
    EXPECT_EQ(dialogs_.Open(Request()), std::nullopt);
}

TEST_F(QtFileDialogsInUse, StartInTheProgramsFolderWithNoneTold) {
    QtFileDialogs dialogs(folder_.path());
    WillLook([&](QFileDialog& dialog) { EXPECT_EQ(dialog.directory().path(), folder_.path()); });
    EXPECT_EQ(dialogs.Open({"", "QPK Data Files(*.dat)|*.dat", ""}), std::nullopt);
}

TEST_F(QtFileDialogsInUse, StartInDocumentsWhereTheProgramsFolderCannotBeWrittenTo) {
    EXPECT_EQ(StartDirectoryFor(folder_.path()), folder_.path());
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    EXPECT_EQ(StartDirectoryFor(folder_.filePath("no such folder")), documents);
    if (geteuid() != 0) { // root may write everywhere
        EXPECT_EQ(StartDirectoryFor("/"), documents);
    }
}

TEST_F(QtFileDialogsInUse, AskBeforeAnExistingFileIsOverwritten) {
    WithNextDialog<QFileDialog>([&](QFileDialog& dialog) {
        WillAnswer(QMessageBox::Yes);
        Type(dialog, "old.dat");
    });
    EXPECT_EQ(dialogs_.Save(Request()), Path("old.dat"));
}

TEST_F(QtFileDialogsInUse, StayUpWhereTheUserWillNotOverwrite) {
    bool wasAsked = false;
    WithNextDialog<QFileDialog>([&](QFileDialog& dialog) {
        WillAnswer(QMessageBox::No, [&] { wasAsked = true; });
        Type(dialog, "old.dat");
        EXPECT_TRUE(dialog.isVisible());
        dialog.reject();
    });
    EXPECT_EQ(dialogs_.Save(Request()), std::nullopt);
    EXPECT_TRUE(wasAsked);
}

TEST_F(QtFileDialogsInUse, DoNotOpenAMissingFile) {
    bool wasTold = false;
    WithNextDialog<QFileDialog>([&](QFileDialog& dialog) {
        WillAnswer(QMessageBox::Ok, [&] { wasTold = true; });
        Type(dialog, "missing.dat");
        EXPECT_TRUE(dialog.isVisible());
        dialog.reject();
    });
    EXPECT_EQ(dialogs_.Open(Request()), std::nullopt);
    EXPECT_TRUE(wasTold);
}

TEST(FileFilters, ShowTheirTextOnce) {
    EXPECT_EQ(NameFilterOf("QPK Data Files(*.dat)|*.dat"), "QPK Data Files(*.dat)");
    EXPECT_EQ(NameFilterOf("QPK 数据文件 (*.dat)|*.dat"), "QPK 数据文件 (*.dat)");
    EXPECT_EQ(NameFilterOf("Data|*.dat"), "Data (*.dat)");
}

} // namespace
} // namespace zelvor
