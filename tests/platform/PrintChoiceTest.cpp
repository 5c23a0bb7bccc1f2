#include "platform/PrintChoice.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QPushButton>
#include <QScreen>
#include <QStandardPaths>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <atomic>
#include <future>
#include <gtest/gtest.h>
#include <memory>
#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

#include "../support/InView.h"
#include "platform/ModalDriver.h"
#ifdef Q_OS_LINUX
#include "platform/OpenedFiles.h"
#endif
#include "platform/PrintPropertiesDriver.h"

namespace zelvor {
namespace {

using namespace std::chrono_literals;
using Kind = PageTarget::Kind;

constexpr auto LongPatience = 60s; // for what answers; nothing waits that long

PageTarget TargetOf(PrintChoice& choice) {
    std::optional<PageTarget> found;
    choice.FindTarget([&found](const PageTarget& target) { found = target; });
    EXPECT_TRUE(QTest::qWaitFor([&found] { return found.has_value(); }, 20'000));
    return found.value_or(PageTarget{});
}

bool IsAnswered(PrintChoice& choice) {
    std::optional<bool> told;
    choice.AskForPrinters([&told](bool isAnswered) { told = isAnswered; });
    EXPECT_TRUE(QTest::qWaitFor([&told] { return told.has_value(); }, 20'000));
    return told.value_or(false);
}

PageTarget TargetAmong(const PrinterLookUp::Printers& printers) {
    PrintChoice choice(
        {}, [printers] { return printers; }, LongPatience);
    return TargetOf(choice);
}

TEST(PrintChoice, IsTheDefaultPrinter) {
    const PageTarget target = TargetAmong({{.name = "Attic"}, {.name = "Office", .isDefault = true}});
    EXPECT_EQ(target.kind, Kind::Printer);
    EXPECT_EQ(target.name, "Office");
}

TEST(PrintChoice, IsTheFirstPrinterWhereNoneIsTheDefault) {
    EXPECT_EQ(TargetAmong({{.name = "Attic"}, {.name = "Office"}}).name, "Attic");
}

TEST(PrintChoice, IsNoneWithoutAPrinter) {
    EXPECT_EQ(TargetAmong({}).kind, Kind::None);
}

TEST(PrintChoice, AsksForThePrintersEachTime) {
    auto times = std::make_shared<std::atomic<int>>(0);
    PrintChoice choice(
        {}, [times] { return PrinterLookUp::Printers{{.name = "Printer " + std::to_string(++*times)}}; }, LongPatience);
    EXPECT_EQ(TargetOf(choice).name, "Printer 1");
    EXPECT_EQ(TargetOf(choice).name, "Printer 2");
}

void ExpectLike(const QPageLayout& layout, const QPageLayout& expected) {
    EXPECT_EQ(layout.pageSize().id(), expected.pageSize().id());
    EXPECT_EQ(layout.orientation(), expected.orientation());
    const QMarginsF margins = layout.margins(QPageLayout::Point);
    const QMarginsF wanted = expected.margins(QPageLayout::Point);
    EXPECT_NEAR(margins.left(), wanted.left(), 0.1);
    EXPECT_NEAR(margins.top(), wanted.top(), 0.1);
    EXPECT_NEAR(margins.right(), wanted.right(), 0.1);
    EXPECT_NEAR(margins.bottom(), wanted.bottom(), 0.1);
}

class PrintSetup : public testing::Test {
protected:
    void SetUp() override {
#ifndef Q_OS_UNIX
        GTEST_SKIP() << "The system has a dialog of its own";
#endif
        if (!QPrinterInfo::availablePrinterNames().isEmpty()) {
            GTEST_SKIP() << "This machine has a printer";
        }
        ASSERT_TRUE(IsAnswered(choice_));
    }
    [[nodiscard]] QString Path(const char* name) const {
        return folder_.filePath(QString::fromUtf8(name));
    }

    /// Looks at the next set-up dialog for that document, and cancels it.
    void Look(const QString& document, const std::function<void(QPrintDialog& dialog)>& look) {
        WithNextDialog<QPrintDialog>([&look](QPrintDialog& dialog) {
            look(dialog);
            dialog.reject();
        });
        EXPECT_FALSE(choice_.ShowSetup(document));
    }
    QString ProposedFor(const QString& document) {
        QString proposed;
        Look(document,
             [&proposed](QPrintDialog& dialog) { proposed = dialog.findChild<QLineEdit*>("filename")->text(); });
        return proposed;
    }
    void ChoosePdf(const QString& document, const QString& file) {
        WithNextDialog<QPrintDialog>([&file](QPrintDialog& dialog) {
            dialog.findChild<QLineEdit*>("filename")->setText(file);
            dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        });
        ASSERT_TRUE(choice_.ShowSetup(document));
    }

    QTemporaryDir folder_;
    PrintChoice choice_{{}, [] { return PrinterLookUp::Printers{}; }, LongPatience};
};

TEST_F(PrintSetup, IsADialogThatOnlyChooses) {
    Look(Path("radio.dat"), [](QPrintDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "dlgPrint");
        EXPECT_EQ(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->text(), "OK");
    });
}

TEST_F(PrintSetup, ChoosesAPdfFileForAllThatFollows) {
    ChoosePdf(Path("radio.dat"), Path("chosen.pdf"));
    for (int time = 0; time < 2; ++time) {
        const PageTarget target = TargetOf(choice_);
        EXPECT_EQ(target.kind, Kind::File);
        EXPECT_EQ(target.name, Path("chosen.pdf").toStdString());
        EXPECT_FALSE(target.replacesFile);
    }
    ASSERT_TRUE(choice_.File().has_value());
    EXPECT_EQ(choice_.File()->file, Path("chosen.pdf"));
}

TEST_F(PrintSetup, ChoosesNothingWhereItIsCancelled) {
    Look(Path("radio.dat"),
         [this](QPrintDialog& dialog) { dialog.findChild<QLineEdit*>("filename")->setText(Path("never.pdf")); });
    EXPECT_EQ(TargetOf(choice_).kind, Kind::None);
    ChoosePdf(Path("radio.dat"), Path("chosen.pdf"));
    Look(Path("radio.dat"),
         [this](QPrintDialog& dialog) { dialog.findChild<QLineEdit*>("filename")->setText(Path("never.pdf")); });
    EXPECT_EQ(TargetOf(choice_).name, Path("chosen.pdf").toStdString());
}

TEST_F(PrintSetup, ProposesTheDocumentsNameInItsFolder) {
    EXPECT_EQ(ProposedFor(Path("radio 1.dat")), Path("radio 1.pdf"));
    EXPECT_EQ(ProposedFor(Path("a.b.dat")), Path("a.b.pdf"));
    EXPECT_EQ(ProposedFor(Path("对讲机.dat")), Path("对讲机.pdf"));
}

TEST_F(PrintSetup, ProposesAFileAmongTheUsersDocumentsForADocumentWithoutAFolder) {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString folder = QFileInfo(documents).isDir() ? documents : QDir::homePath();
    EXPECT_EQ(ProposedFor("Zelvor.dat"), folder + "/Zelvor.pdf");
}

TEST_F(PrintSetup, ProposesTheChosenFileAgainForTheSameDocument) {
    ChoosePdf(Path("radio1.dat"), Path("my report.pdf"));
    EXPECT_EQ(ProposedFor(Path("radio1.dat")), Path("my report.pdf"));
}

TEST_F(PrintSetup, ProposesAnotherDocumentsNameInTheFolderOfTheChosenFile) {
    QDir(folder_.path()).mkdir("reports");
    ChoosePdf(Path("radio1.dat"), Path("reports/my report.pdf"));
    EXPECT_EQ(ProposedFor(Path("radio2.dat")), Path("reports/radio2.pdf"));
}

TEST_F(PrintSetup, OpensAgainWithTheChosenPaper) {
    const QPageLayout layout(QPageSize(QPageSize::A5), QPageLayout::Landscape, QMarginsF(40, 30, 20, 50));
    WithNextDialog<QPrintDialog>([&](QPrintDialog& dialog) {
        dialog.printer()->setPageLayout(layout);
        dialog.findChild<QLineEdit*>("filename")->setText(Path("chosen.pdf"));
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    ASSERT_TRUE(choice_.ShowSetup(Path("radio.dat")));
    ExpectLike(choice_.File()->layout, layout);
    Look(Path("radio.dat"), [&](QPrintDialog& dialog) {
        ExpectLike(dialog.printer()->pageLayout(), layout);
        dialog.printer()->setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()));
    });
    ExpectLike(choice_.File()->layout, layout);
}

TEST_F(PrintSetup, ScrollsWithAllItsOptionsOnTheSmallestScreen) {
    const QScreen* small = QGuiApplication::screens().last();
    ASSERT_EQ(small->size(), QSize(427, 267));
    QWidget owner;
    owner.setGeometry(small->availableGeometry().adjusted(0, 20, 0, -20));
    owner.show();
    owner.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&owner));
    Look(Path("radio.dat"), [small](QPrintDialog& dialog) {
        const auto* buttons = dialog.findChild<QDialogButtonBox*>();
        auto* cancel = buttons->button(QDialogButtonBox::Cancel);
        auto* tabs = dialog.findChild<QWidget*>("tabs");
        const auto* names = dialog.findChild<QComboBox*>("printers");
        EXPECT_GT(names->width(), names->fontMetrics().horizontalAdvance(names->currentText()));
        for (const bool withOptions : {true, false}) {
            for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
                if (button->text().contains("Options")) {
                    button->click();
                }
            }
            QTest::qWait(50); // the toolkit lays out in several steps
            EXPECT_EQ(tabs->isVisible(), withOptions);
            EXPECT_TRUE(small->geometry().contains(dialog.frameGeometry()));
            for (int key = 0; key < 40 && !cancel->hasFocus(); ++key) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            }
            ASSERT_TRUE(cancel->hasFocus());
            EXPECT_TRUE(IsAllSeen(*cancel, cancel->rect().adjusted(2, 2, -2, -2)));
        }
    });
}

TEST_F(PrintSetup, OffersForAPdfFileNoCopiesNoRangeAndNoOrder) {
    Look(Path("radio.dat"), [](QPrintDialog& dialog) {
        for (const char* name : {"copies", "reverse", "printRange", "duplexLong", "grayscale"}) {
            const auto* control = dialog.findChild<QWidget*>(name);
            ASSERT_NE(control, nullptr) << name;
            EXPECT_FALSE(control->isEnabled()) << name;
        }
        EXPECT_TRUE(dialog.findChild<QPushButton*>("properties")->isEnabled());
    });
}

TEST_F(PrintSetup, OffersForAPdfFileNothingOfAJobAmongItsProperties) {
    Look(Path("radio.dat"), [](QPrintDialog& dialog) {
        WithProperties(dialog, [](QDialog& properties) {
            const auto* tabs = properties.findChild<QTabWidget*>();
            ASSERT_NE(tabs, nullptr);
            EXPECT_TRUE(tabs->isTabEnabled(0));
            EXPECT_GT(tabs->count(), 1);
            for (int tab = 1; tab < tabs->count(); ++tab) {
                EXPECT_FALSE(tabs->isTabEnabled(tab)) << tabs->tabText(tab).toStdString();
            }
            properties.reject();
        });
    });
}

TEST_F(PrintSetup, AsksBeforeItTakesAFileThatIsThere) {
    QFile file(Path("there.pdf"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    bool asked = false;
    WithNextDialog<QPrintDialog>([&](QPrintDialog& dialog) {
        dialog.findChild<QLineEdit*>("filename")->setText(Path("there.pdf"));
        WithNextDialog<QMessageBox>([&asked](QMessageBox& box) {
            asked = true;
            box.button(QMessageBox::Yes)->click();
        });
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    EXPECT_TRUE(choice_.ShowSetup(Path("radio.dat")));
    EXPECT_TRUE(asked);
    EXPECT_TRUE(TargetOf(choice_).replacesFile);
}

TEST_F(PrintSetup, AsksForThePdfFileAsAllFilesAreAskedFor) {
    Look(Path("radio.dat"), [this](QPrintDialog& dialog) {
        WithNextDialog<QFileDialog>([this](QFileDialog& files) {
            EXPECT_EQ(files.objectName(), "dlgPrintFile");
            EXPECT_EQ(files.selectedFiles(), QStringList(Path("radio.pdf")));
            files.selectFile(Path("mine"));
            static_cast<QDialog&>(files).accept();
        });
        dialog.findChild<QAbstractButton*>("fileBrowser")->click();
        EXPECT_EQ(dialog.findChild<QLineEdit*>("filename")->text(), Path("mine.pdf"));
        EXPECT_TRUE(dialog.isVisible());
    });
}

#ifdef Q_OS_LINUX
// Completing a name lists a folder.
TEST_F(PrintSetup, LooksIntoNoneOfTheFilesBesideTheName) {
    for (const char* name : {"first", "second"}) {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(name) > 0);
    }
    const OpenedFiles opened(folder_.path());
    Look(Path("radio.dat"), [this](QPrintDialog& dialog) {
        auto* name = dialog.findChild<QLineEdit*>("filename");
        name->selectAll();
        QTest::keyClicks(name, folder_.path() + "/");
        const QAbstractItemModel* list = name->completer()->completionModel();
        EXPECT_TRUE(QTest::qWaitFor([list] { return list->rowCount() == 2; }, 5000));
        QTest::qWait(100); // names come first, and what they are follows
    });
    EXPECT_EQ(opened.Take(), QStringList());
}
#endif

#ifdef Q_OS_UNIX
TEST_F(PrintSetup, TakesNothingButAFileAndDoesNotWaitForAPipe) {
    ASSERT_EQ(mkfifo(QFile::encodeName(Path("pipe.pdf")).constData(), 0666), 0);
    ASSERT_TRUE(QFile::link("/dev/null", Path("device.pdf")));
    Look(Path("radio.dat"), [this](QPrintDialog& dialog) {
        auto* name = dialog.findChild<QLineEdit*>("filename");
        const auto* ok = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
        for (const char* file : {"pipe.pdf", "device.pdf"}) {
            name->setText(Path(file));
            EXPECT_FALSE(ok->isEnabled()) << file;
            QTest::keyClick(name, Qt::Key_Return);
            EXPECT_TRUE(dialog.isVisible()) << file;
            name->setText(Path("fresh.pdf"));
            EXPECT_TRUE(ok->isEnabled());
        }
    });
    EXPECT_EQ(TargetOf(choice_).kind, Kind::None);
}
#endif

class PrintSetupWithoutAnswer : public testing::Test {
protected:
    PrintSetupWithoutAnswer() { EXPECT_FALSE(IsAnswered(choice_)); }
    ~PrintSetupWithoutAnswer() override { mayAnswer_->set_value(); }

    QTemporaryDir folder_;
    std::shared_ptr<std::promise<void>> mayAnswer_ = std::make_shared<std::promise<void>>();
    PrintChoice choice_{{},
                        [mayAnswer = mayAnswer_] {
                            mayAnswer->get_future().wait();
                            return PrinterLookUp::Printers{};
                        },
                        50ms};
};

TEST_F(PrintSetupWithoutAnswer, IsNoTarget) {
    EXPECT_EQ(TargetOf(choice_).kind, Kind::NoAnswer);
}

TEST_F(PrintSetupWithoutAnswer, ChoosesAPdfFileWithoutThePrintingSystem) {
    WithNextDialog<QFileDialog>([this](QFileDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "dlgPrintFile");
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(dialog.selectedFiles(), QStringList(folder_.filePath("radio.pdf")));
        dialog.selectFile(folder_.filePath("mine"));
        static_cast<QDialog&>(dialog).accept();
    });
    EXPECT_TRUE(choice_.ShowSetup(folder_.filePath("radio.dat")));
    EXPECT_EQ(TargetOf(choice_).kind, Kind::File);
    EXPECT_EQ(TargetOf(choice_).name, QDir::toNativeSeparators(folder_.filePath("mine.pdf")).toStdString());
}

TEST_F(PrintSetupWithoutAnswer, AsksBeforeItTakesAFileWhoseSuffixWasNotTyped) {
    QFile file(folder_.filePath("mine.pdf"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    bool isAsked = false;
    WithNextDialog<QFileDialog>([&](QFileDialog& dialog) {
        dialog.selectFile(folder_.filePath("mine"));
        WithNextDialog<QMessageBox>([&isAsked](QMessageBox& box) {
            isAsked = true;
            box.button(QMessageBox::Yes)->click();
        });
        static_cast<QDialog&>(dialog).accept();
    });
    EXPECT_TRUE(choice_.ShowSetup(folder_.filePath("radio.dat")));
    EXPECT_TRUE(isAsked);
}

TEST_F(PrintSetupWithoutAnswer, ChoosesNothingWhereItIsCancelled) {
    WithNextDialog<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
    EXPECT_FALSE(choice_.ShowSetup(folder_.filePath("radio.dat")));
    EXPECT_EQ(TargetOf(choice_).kind, Kind::NoAnswer);
}

} // namespace
} // namespace zelvor
