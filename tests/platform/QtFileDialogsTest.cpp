#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <unistd.h>
#endif

#include "ModalDriver.h"
#ifdef Q_OS_LINUX
#include "OpenedFiles.h"
#endif
#include "platform/QtFileDialogs.h"
#include "platform/QtFolder.h"
#include "platform/StartDirectory.h"
#include "platform/ToolkitSettings.h"
#include "support/QtPrinting.h"

namespace zelvor {
namespace {

class QtFileDialogsInUse : public testing::Test {
protected:
    QtFileDialogsInUse() { MakeFile("old.dat"); }
    ~QtFileDialogsInUse() override { QDir::setCurrent(folderBefore_); }

    void MakeFile(const char* name) {
        QFile file(folder_.filePath(QString::fromUtf8(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    }
    [[nodiscard]] std::string Path(const char* name) const {
        return QDir::toNativeSeparators(folder_.filePath(QString::fromUtf8(name))).toStdString();
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
    /// Types the name, leaves what the toolkit proposes for it, and clicks Open.
    static void TypeAndClickOpen(QFileDialog& dialog, const QString& name) {
        auto* box = dialog.findChild<QLineEdit*>("fileNameEdit");
        QTest::keyClicks(box, name);
        if (QWidget* proposals = QApplication::activePopupWidget()) {
            QTest::keyClick(proposals, Qt::Key_Escape);
        }
        EXPECT_EQ(box->text(), name);
        QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open), Qt::LeftButton);
        const bool isOpened = !dialog.isVisible();
        EXPECT_TRUE(isOpened);
        if (!isOpened) {
            dialog.reject();
        }
    }
    /// Looks at the dialog and cancels it.
    static void WillLook(const std::function<void(QFileDialog&)>& look) {
        WithNextDialog<QFileDialog>([look](QFileDialog& dialog) {
            look(dialog);
            dialog.reject();
        });
    }
    static void WillAnswer(
        QMessageBox::StandardButton button, const std::function<void()>& then = [] {}) {
        WithNextDialog<QMessageBox>([button, then](QMessageBox& box) {
            then();
            QTest::mouseClick(box.button(button), Qt::LeftButton);
        });
    }

    QTemporaryDir folder_;
    const QString folderBefore_ = QDir::currentPath();
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

TEST_F(QtFileDialogsInUse, SayWhichLabelIsOfWhichList) {
    const auto look = [](const QFileDialog& dialog) {
        for (const char* name : {"lookIn", "fileType"}) {
            const QString part(name);
            const auto* list = dialog.findChild<QComboBox*>(part + "Combo");
            ASSERT_NE(list, nullptr) << name;
            EXPECT_EQ(dialog.findChild<QLabel*>(part + "Label")->buddy(), list) << name;
        }
    };
    WillLook(look);
    EXPECT_EQ(dialogs_.Save(Request()), std::nullopt);
    WillLook(look);
    EXPECT_EQ(dialogs_.Open(Request()), std::nullopt);
}

TEST_F(QtFileDialogsInUse, StartInTheFolderOfAPresetPath) {
    ASSERT_TRUE(QDir(folder_.path()).mkdir("below"));
    MakeFile("below/here.dat");
    WillLook([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory().path(), folder_.filePath("below"));
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

TEST_F(QtFileDialogsInUse, OfferAFolderToOpenFilesOfBehindWhatTheSideBarHolds) {
    ASSERT_TRUE(QDir(folder_.path()).mkdir("backups"));
    QList<QUrl> usual;
    WillLook([&](QFileDialog& dialog) { usual = dialog.sidebarUrls(); });
    EXPECT_EQ(dialogs_.Open(Request()), std::nullopt);
    EXPECT_FALSE(usual.isEmpty());
    dialogs_.OfferToOpen(folder_.filePath("backups"));
    for (int i = 0; i < 2; ++i) {
        WillLook([&](QFileDialog& dialog) {
            EXPECT_EQ(dialog.sidebarUrls(), usual + QList<QUrl>{QUrl::fromLocalFile(folder_.filePath("backups"))});
        });
        EXPECT_EQ(dialogs_.Open(Request()), std::nullopt);
    }
}

TEST_F(QtFileDialogsInUse, ShowTheWholeNamesOfThePlacesInTheSideBar) {
    ASSERT_TRUE(QDir(folder_.path()).mkdir("backups of radios"));
    dialogs_.OfferToOpen(folder_.filePath("backups of radios"));
    WillLook([&](QFileDialog& dialog) {
        const auto& bar = *dialog.findChild<QListView*>("sidebar");
        for (int row = 0; row < bar.model()->rowCount(); ++row) {
            const QModelIndex place = bar.model()->index(row, 0);
            EXPECT_GE(bar.viewport()->width(), bar.sizeHintForIndex(place).width())
                << place.data().toString().toStdString();
        }
        EXPECT_LT(bar.width(), dialog.width() / 2);
    });
    EXPECT_EQ(dialogs_.Open(Request()), std::nullopt);
}

TEST_F(QtFileDialogsInUse, OfferTheFolderInNoDialogForSavingAndToNoOtherProgram) {
    ASSERT_TRUE(QDir(folder_.path()).mkdir("backups"));
    const QUrl backups = QUrl::fromLocalFile(folder_.filePath("backups"));
    dialogs_.OfferToOpen(folder_.filePath("backups"));
    WillLook([&](QFileDialog& dialog) { EXPECT_TRUE(dialog.sidebarUrls().contains(backups)); });
    EXPECT_EQ(dialogs_.Open(Request()), std::nullopt);
    WillLook([&](QFileDialog& dialog) { EXPECT_FALSE(dialog.sidebarUrls().contains(backups)); });
    EXPECT_EQ(dialogs_.Save(Request()), std::nullopt);
    const QFileDialog other;
    EXPECT_FALSE(other.sidebarUrls().isEmpty());
    EXPECT_FALSE(other.sidebarUrls().contains(backups));
}

TEST_F(QtFileDialogsInUse, OfferNoFolderThatIsNotThereYet) {
    dialogs_.OfferToOpen(folder_.filePath("backups"));
    WillLook([&](QFileDialog& dialog) {
        EXPECT_FALSE(dialog.sidebarUrls().contains(QUrl::fromLocalFile(folder_.filePath("backups"))));
    });
    EXPECT_EQ(dialogs_.Open(Request()), std::nullopt);
    EXPECT_FALSE(QFile::exists(folder_.filePath("backups")));
}

TEST_F(QtFileDialogsInUse, LeaveAPlaceThatTheUserHasPutIntoTheSideBarHimself) {
    ASSERT_TRUE(QDir(folder_.path()).mkdir("backups"));
    const QUrl backups = QUrl::fromLocalFile(folder_.filePath("backups"));
    QList<QUrl> before;
    WillLook([&](QFileDialog& dialog) {
        before = dialog.sidebarUrls();
        dialog.setSidebarUrls(QList<QUrl>{backups} + before);
    });
    EXPECT_EQ(dialogs_.Open(Request()), std::nullopt);
    dialogs_.OfferToOpen(folder_.filePath("backups"));
    for (int i = 0; i < 2; ++i) {
        WillLook([&](QFileDialog& dialog) {
            EXPECT_EQ(dialog.sidebarUrls(), QList<QUrl>{backups} + before);
            if (i == 1) {
                dialog.setSidebarUrls(before); // as it was, for the other tests
            }
        });
        EXPECT_EQ(dialogs_.Open(Request()), std::nullopt);
    }
}

#ifdef Q_OS_UNIX
TEST_F(QtFileDialogsInUse, BackupsAreInTheUsersLocalData) {
    const QByteArray data = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", folder_.path().toLocal8Bit());
    EXPECT_EQ(BackupFolderPath(), folder_.filePath("Zelvor/backups"));
    qunsetenv("XDG_DATA_HOME");
    EXPECT_EQ(BackupFolderPath(), QDir::home().filePath(".local/share/Zelvor/backups"));
    qputenv("XDG_DATA_HOME", data);
}
#endif

TEST_F(QtFileDialogsInUse, StartInDocumentsWhereTheProgramsFolderCannotBeWrittenTo) {
    EXPECT_EQ(StartDirectoryFor(folder_.path()), folder_.path());
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    EXPECT_EQ(StartDirectoryFor(folder_.filePath("no such folder")), documents);
#ifdef Q_OS_UNIX
    if (geteuid() != 0) { // root may write everywhere
        EXPECT_EQ(StartDirectoryFor("/"), documents);
    }
#endif
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

TEST_F(QtFileDialogsInUse, OpenATypedNameThatTheFilterDoesNotShow) {
    MakeFile("radio.txt");
    MakeFile("no ending");
    for (const char* name : {"radio.txt", "no ending"}) {
        WithNextDialog<QFileDialog>([name](QFileDialog& dialog) { Type(dialog, name); });
        EXPECT_EQ(dialogs_.Open(Request()), Path(name));
        WithNextDialog<QFileDialog>([name](QFileDialog& dialog) { TypeAndClickOpen(dialog, name); });
        EXPECT_EQ(dialogs_.Open(Request()), Path(name));
    }
}

// The first of its folder in every folder on the way: the toolkit mistakes the same row for the same file.
TEST_F(QtFileDialogsInUse, OpenAPathThatIsTypedLetterByLetter) {
    ASSERT_TRUE(QDir(folder_.path()).mkpath("a/b/c"));
    MakeFile("a/b/c/radio.dat");
    const auto type = [&](QFileDialog& dialog, const char* path) {
        auto* box = dialog.findChild<QLineEdit*>("fileNameEdit");
        box->selectAll();
        for (const char letter : Path(path)) {
            QTest::keyClick(box, letter);
            QTest::qWait(5); // the folders on the way are listed meanwhile
        }
        QTest::keyClick(box, Qt::Key_Return);
        const bool isOpen = dialog.isVisible();
        EXPECT_FALSE(isOpen);
        if (isOpen) {
            dialog.reject();
        }
    };
    WithNextDialog<QFileDialog>([&](QFileDialog& dialog) { type(dialog, "a/b/c/radio.dat"); });
    EXPECT_EQ(dialogs_.Open(Request()), Path("a/b/c/radio.dat"));
    WithNextDialog<QFileDialog>([&](QFileDialog& dialog) { type(dialog, "a/b/c/fresh.dat"); });
    EXPECT_EQ(dialogs_.Save(Request()), Path("a/b/c/fresh.dat"));
}

TEST_F(QtFileDialogsInUse, KeepTheButtonForAFolderAndForNoFile) {
    ASSERT_TRUE(QDir(folder_.path()).mkdir("below"));
    WillLook([](QFileDialog& dialog) {
        auto* box = dialog.findChild<QLineEdit*>("fileNameEdit");
        QTest::keyClicks(box, "missing.txt");
        EXPECT_FALSE(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open)->isEnabled());
    });
    EXPECT_EQ(dialogs_.Open(Request()), std::nullopt);
}

/// Ends the dialog as a dialog of the system's does, which shows no window of the toolkit's and asks about the typed
/// name alone.
void EndAsASystemDialog(QFileDialog& dialog, const QString& typed) {
    const QString suffix = dialog.defaultSuffix();
    dialog.setDefaultSuffix(QString()); // else the toolkit's own list would choose the name with it
    dialog.findChild<QLineEdit*>("fileNameEdit")->setText(typed);
    dialog.setDefaultSuffix(suffix);
    static_cast<QDialog&>(dialog).done(QDialog::Accepted);
    dialog.setAttribute(Qt::WA_DontShowOnScreen); // hiding cleared it: it is the toolkit's dialog, after all
}

TEST_F(QtFileDialogsInUse, AskAboutTheNameThatASystemDialogDidNotAskAbout) {
    bool wasAsked = false;
    WithNextDialog<QFileDialog>([&](QFileDialog& dialog) {
        WithNextDialog<QMessageBox>([&](QMessageBox& box) {
            wasAsked = true;
            EXPECT_EQ(box.text(), "old.dat already exists.\nDo you want to replace it?");
            EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::No));
            QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
        });
        EndAsASystemDialog(dialog, "old");
    });
    EXPECT_EQ(dialogs_.Save(Request()), Path("old.dat"));
    EXPECT_TRUE(wasAsked);
}

TEST_F(QtFileDialogsInUse, ShowASystemDialogAgainWhereTheUserWillNotOverwrite) {
    int questions = 0;
    WithNextDialog<QFileDialog>([&](QFileDialog& dialog) {
        WillAnswer(QMessageBox::No, [&] {
            ++questions;
            WithNextDialog<QFileDialog>([](QFileDialog& again) { EndAsASystemDialog(again, "fresh"); });
        });
        EndAsASystemDialog(dialog, "old");
    });
    EXPECT_EQ(dialogs_.Save(Request()), Path("fresh.dat"));
    EXPECT_EQ(questions, 1);
}

TEST_F(QtFileDialogsInUse, DoNotAskTwiceAboutTheNameThatASystemDialogAskedAbout) {
    WithNextDialog<QFileDialog>([](QFileDialog& dialog) { EndAsASystemDialog(dialog, "old.dat"); });
    EXPECT_EQ(dialogs_.Save(Request()), Path("old.dat"));
}

TEST_F(QtFileDialogsInUse, StartAtHomeWhereThereIsNoFolderOfDocuments) {
    QtFileDialogs dialogs(folder_.filePath("Documents"));
    WillLook([](QFileDialog& dialog) { EXPECT_EQ(dialog.directory().path(), QDir::homePath()); });
    EXPECT_EQ(dialogs.Open({"", "QPK Data Files(*.dat)|*.dat", ""}), std::nullopt);
}

TEST(StartDirectory, IsTheDocumentsForAProgramThatTheSystemInstalled) {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    for (const char* folder : {"/usr/bin", "/usr/local/bin", "/opt/zelvor/bin", "/app/bin", "/usr"}) {
        EXPECT_TRUE(IsSystemFolder(folder)) << folder;
        EXPECT_EQ(StartDirectoryFor(folder), documents) << folder;
    }
    for (const char* folder : {"/home/dealer/zelvor", "/srv/radio", "/usrx/bin", "/optional", "/"}) {
        EXPECT_FALSE(IsSystemFolder(folder)) << folder;
    }
    qputenv("ProgramFiles", "C:/Program Files");
    EXPECT_EQ(IsSystemFolder("C:/Program Files/Zelvor"), true);
    EXPECT_EQ(IsSystemFolder("C:/Zelvor"), false);
    qunsetenv("ProgramFiles");
}

#ifdef Q_OS_UNIX
TEST(StartDirectory, IsTheProgramsOwnWithinTheHomeOfTheUser) {
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", "/usr/home/dealer");
    EXPECT_FALSE(IsSystemFolder("/usr/home/dealer/zelvor"));
    EXPECT_TRUE(IsSystemFolder("/usr/home/other/zelvor"));
    qputenv("HOME", home);
}
#endif

#ifdef Q_OS_LINUX

// One that never gives a byte would hold the window up for ever.
TEST_F(QtFileDialogsInUse, LookIntoNoneOfTheFilesThatTheyList) {
    MakeFile("other.dat");
    const OpenedFiles opened(folder_.path());
    ASSERT_TRUE(QFile(folder_.filePath("old.dat")).open(QIODevice::ReadOnly));
    ASSERT_EQ(opened.Take(), QStringList("old.dat"));
    WillLook([](QFileDialog& dialog) {
        const QAbstractItemModel* list = dialog.findChild<QListView*>("listView")->model();
        const auto rows = [&] { return list->rowCount(dialog.findChild<QListView*>("listView")->rootIndex()); };
        EXPECT_TRUE(QTest::qWaitFor([&] { return rows() == 2; }, 5000));
        QTest::qWait(100); // names come first, and what they are follows
    });
    EXPECT_EQ(dialogs_.Open(Request()), std::nullopt);
    EXPECT_EQ(opened.Take(), QStringList());
}

#endif

#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)

/// The toolkit's own settings, with something in the way.
class ToolkitSettingsInTheWay : public QtFileDialogsInUse {
protected:
    ToolkitSettingsInTheWay() {
        QDir().mkpath(Config());
        QFile::remove(Config() + "/QtProject.conf");
    }
    ~ToolkitSettingsInTheWay() override {
        QFile::remove(Config() + "/QtProject.conf");
        QFile::remove(Config() + "/QtProject.conf.lock");
        QDir().rmdir(Config() + "/QtProject.conf.lock");
        ToolkitSettings().Review();
    }

    static QString Config() { return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation); }
    static void Put(const QString& path, const QByteArray& content) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }
    void ExpectQuick() {
        QElapsedTimer time;
        time.start();
        WithNextDialog<QFileDialog>([&](QFileDialog& dialog) { Type(dialog, "old.dat"); });
        EXPECT_EQ(dialogs_.Open(Request()), Path("old.dat"));
        EXPECT_LT(time.elapsed(), 5000) << "the toolkit's settings held the program up";
    }
};

TEST_F(ToolkitSettingsInTheWay, AnEmptyLockFileIsNotWaitedFor) {
    Put(Config() + "/QtProject.conf.lock", "");
    ExpectQuick();
}

TEST_F(ToolkitSettingsInTheWay, ALockFileOfAnotherMachineThatComesMeanwhileIsNotWaitedFor) {
    QElapsedTimer time;
    WithNextDialog<QFileDialog>([&](QFileDialog& dialog) {
        Put(Config() + "/QtProject.conf.lock", "4711\nprogram\nanother-machine\n\n\n");
        time.start();
        Type(dialog, "old.dat");
    });
    EXPECT_EQ(dialogs_.Open(Request()), Path("old.dat"));
    EXPECT_LT(time.elapsed(), 5000) << "the toolkit's settings held the program up";
}

TEST_F(ToolkitSettingsInTheWay, AFolderWithTheLocksNameIsNotWaitedFor) {
    ASSERT_TRUE(QDir().mkpath(Config() + "/QtProject.conf.lock"));
    ExpectQuick();
}

TEST_F(ToolkitSettingsInTheWay, APipeIsNotReadFrom) {
    ASSERT_EQ(mkfifo(QFile::encodeName(Config() + "/QtProject.conf").constData(), 0666), 0);
    ExpectQuick();
}

TEST_F(ToolkitSettingsInTheWay, APipeWithTheLocksNameIsNotWaitedFor) {
    ASSERT_EQ(mkfifo(QFile::encodeName(Config() + "/QtProject.conf.lock").constData(), 0666), 0);
    ExpectQuick();
}

TEST_F(ToolkitSettingsInTheWay, NothingKeepsTheLookOfTheDialogs) {
    ExpectQuick();
    EXPECT_TRUE(QFileInfo(Config() + "/QtProject.conf").isFile());
    EXPECT_FALSE(QFileInfo::exists(Config() + "/QtProject.conf.lock"));
}

#endif

TEST(FileFilters, ShowTheirTextOnce) {
    EXPECT_EQ(NameFilterOf("QPK Data Files(*.dat)|*.dat"), "QPK Data Files(*.dat)");
    EXPECT_EQ(NameFilterOf("QPK 数据文件 (*.dat)|*.dat"), "QPK 数据文件 (*.dat)");
    EXPECT_EQ(NameFilterOf("Data|*.dat"), "Data (*.dat)");
}

} // namespace
} // namespace zelvor
