#include <QApplication>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTimer>
#include <QWindow>

#include "channels/ChannelForm.h"
#include "shell/ShellTest.h"
#include "support/QtPrinting.h"

namespace zelvor {
namespace {

using Flags = std::array<bool, 10>;
constexpr Qt::KeyboardModifiers CtrlAlt = Qt::ControlModifier | Qt::AltModifier;

class MemoryMapTest : public ShellTest {
protected:
    [[nodiscard]] QMdiArea& Area() const { return *window->findChild<QMdiArea*>(); }
    [[nodiscard]] int Width() const { return Area().width(); }
    [[nodiscard]] QMdiSubWindow& GridFrame() const {
        return *qobject_cast<QMdiSubWindow*>(Child("ChannelForm")->parentWidget());
    }

    /// Does something with the mouse; whileUp gets the dialog if that brings it up. Returns whether it came.
    bool BringsUpTheMap(const std::function<void()>& mouse, const std::function<void(QWidget&)>& whileUp) {
        bool wasShown = false;
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, [&] {
            if (QWidget* dialog = QApplication::activeModalWidget()) {
                watch.stop();
                wasShown = true;
                EXPECT_EQ(dialog->objectName(), "CPUForm");
                whileUp(*dialog);
                if (QWidget* left = QApplication::activeModalWidget()) {
                    ADD_FAILURE() << "The dialog was left open";
                    left->close();
                }
            }
        });
        watch.start(0);
        mouse();
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
        return wasShown;
    }
    /// A click at that point of the client area, on what lies there.
    bool ClickShowsMap(int x, int y, Qt::KeyboardModifiers modifiers = CtrlAlt,
                       Qt::MouseButton button = Qt::LeftButton) {
        return BringsUpTheMap(
            [&] {
                QTest::mouseClick(window->windowHandle(), button, modifiers, Area().mapTo(window.get(), QPoint(x, y)));
            },
            [](QWidget& dialog) { Click(dialog, "cmdCancel"); });
    }
    void WithMap(const std::function<void(QWidget&, QTableWidget&)>& whileUp) {
        EXPECT_TRUE(BringsUpTheMap(
            [this] {
                QTest::mouseClick(window->windowHandle(), Qt::LeftButton, CtrlAlt,
                                  Area().mapTo(window.get(), QPoint(Width() - 5, 5)));
            },
            [&](QWidget& dialog) { whileUp(dialog, *dialog.findChild<QTableWidget*>("msgMemory")); }));
    }
    /// Types two digits into the byte at an address.
    static void TypeByte(QWidget& dialog, QTableWidget& grid, int address, const char* digits) {
        if (QApplication::activeWindow() != &dialog) {
            dialog.activateWindow();
            ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        }
        grid.setFocus();
        grid.setCurrentCell(address / 16, address % 16);
        QTest::keyClick(&grid, digits[0]);
        auto* box = dialog.findChild<QLineEdit*>("txtMemory");
        QTest::keyClick(box, digits[1]);
        QTest::keyClick(box, Qt::Key_Return);
    }
    void OpenEditors() {
        Choose("MnuEditOptionalFeatures");
        Choose("MnuEditKeyAssignment");
        Choose("MnuEditDTMF");
        Choose("MnuEditCorvane");
        Choose("MnuEditScanInformation");
        Choose("MnuEditTestFrequency");
        Choose("MnuEditEmbeddedMessage");
        Choose("MnuViewTreeView");
        ClickButton("ChannelForm", "cmdChannelEdit");
        ASSERT_EQ(windows.Open(), (Flags{true, true, true, true, true, true, true, true, true, true}));
    }
    void ExpectOnlyTheGrid() {
        for (const char* name : {"OptionalForm", "KeyAssign", "ScanForm", "DTMFForm", "CorvaneForm", "TestChannelForm",
                                 "EmbedInfoForm", "TreeViewForm", "ChannelEditForm"}) {
            EXPECT_EQ(Child(name), nullptr) << name;
        }
        EXPECT_EQ(windows.Open(), (Flags{true}));
        EXPECT_TRUE(IsChildShown("ChannelForm"));
        EXPECT_FALSE(GridFrame().isMaximized() || GridFrame().isMinimized());
        EXPECT_EQ(GridFrame().pos(), QPoint(0, 0));
    }
};

// --- The gesture -----------------------------------------------------------------------------------------------------

TEST_F(MemoryMapTest, ACtrlAltClickInTheSquareAtTheTopRightShowsIt) {
    OpenMainWindow();
    for (const QPoint& corner : {QPoint(40, 0), QPoint(1, 0), QPoint(40, 39), QPoint(1, 39), QPoint(20, 20)}) {
        EXPECT_TRUE(ClickShowsMap(Width() - corner.x(), corner.y())) << corner.x() << " " << corner.y();
    }
}

TEST_F(MemoryMapTest, AClickBesideTheSquareDoesNot) {
    OpenMainWindow();
    for (const QPoint& miss : {QPoint(41, 0), QPoint(41, 39), QPoint(1, 40), QPoint(40, 40)}) {
        EXPECT_FALSE(ClickShowsMap(Width() - miss.x(), miss.y())) << miss.x() << " " << miss.y();
    }
    EXPECT_FALSE(ClickShowsMap(20, Area().height() - 20));
    EXPECT_FALSE(ClickShowsMap(Width() - 20, -20));
}

TEST_F(MemoryMapTest, OtherKeysAndButtonsDoNot) {
    OpenMainWindow();
    const int x = Width() - 20;
    EXPECT_FALSE(ClickShowsMap(x, 20, Qt::NoModifier));
    EXPECT_FALSE(ClickShowsMap(x, 20, Qt::ControlModifier));
    EXPECT_FALSE(ClickShowsMap(x, 20, Qt::AltModifier));
    EXPECT_FALSE(ClickShowsMap(x, 20, Qt::ShiftModifier));
    EXPECT_FALSE(ClickShowsMap(x, 20, CtrlAlt | Qt::ShiftModifier));
    EXPECT_FALSE(ClickShowsMap(x, 20, CtrlAlt | Qt::MetaModifier));
    EXPECT_FALSE(ClickShowsMap(x, 20, CtrlAlt, Qt::RightButton));
    EXPECT_FALSE(ClickShowsMap(x, 20, CtrlAlt, Qt::MiddleButton));
}

TEST_F(MemoryMapTest, TheLeftButtonHasToBeAlone) {
    OpenMainWindow();
    const QPoint place = Area().mapTo(window.get(), QPoint(Width() - 20, 20));
    EXPECT_FALSE(BringsUpTheMap(
        [&] {
            QTest::mousePress(window->windowHandle(), Qt::RightButton, CtrlAlt, place);
            QTest::mouseClick(window->windowHandle(), Qt::LeftButton, CtrlAlt, place);
            QTest::mouseRelease(window->windowHandle(), Qt::RightButton, CtrlAlt, place);
        },
        [](QWidget& dialog) { dialog.close(); }));
}

TEST_F(MemoryMapTest, ItIsTheReleaseThatCounts) {
    OpenMainWindow();
    const auto at = [this](int fromRight, int y) { return Area().mapTo(window.get(), QPoint(Width() - fromRight, y)); };
    EXPECT_FALSE(BringsUpTheMap(
        [&] {
            QTest::mousePress(window->windowHandle(), Qt::LeftButton, CtrlAlt, at(20, 20));
            QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, CtrlAlt, at(80, 80));
        },
        [](QWidget& dialog) { dialog.close(); }));
    EXPECT_TRUE(BringsUpTheMap(
        [&] {
            QTest::mousePress(window->windowHandle(), Qt::LeftButton, CtrlAlt, at(80, 80));
            QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, CtrlAlt, at(20, 20));
        },
        [](QWidget& dialog) { dialog.close(); }));
}

TEST_F(MemoryMapTest, AMaximisedChildOverTheSquareDoesNotGetTheClick) {
    OpenMainWindow();
    GridFrame().showMaximized();
    QPushButton covered(Child("ChannelForm"));
    covered.setGeometry(Child("ChannelForm")->width() - 60, 0, 60, 60);
    covered.show();
    const QSignalSpy pressed(&covered, &QPushButton::pressed);
    EXPECT_TRUE(ClickShowsMap(Width() - 20, 20));
    EXPECT_EQ(pressed.count(), 0);
    EXPECT_FALSE(GridFrame().isMaximized());
}

TEST_F(MemoryMapTest, AClickWithoutTheKeysReachesTheMaximisedChild) {
    OpenMainWindow();
    GridFrame().showMaximized();
    QPushButton covered(Child("ChannelForm"));
    covered.setGeometry(Child("ChannelForm")->width() - 60, 0, 60, 60);
    covered.show();
    const QSignalSpy clicked(&covered, &QPushButton::clicked);
    EXPECT_FALSE(ClickShowsMap(Width() - 20, 20, Qt::NoModifier));
    EXPECT_EQ(clicked.count(), 1);
}

TEST_F(MemoryMapTest, TheScrollBarOfTheClientAreaIsPartOfTheSquare) {
    OpenMainWindow();
    GridFrame().move(100, Area().height() - 60);
    QCoreApplication::processEvents();
    ASSERT_TRUE(Area().verticalScrollBar()->isVisible());
    EXPECT_TRUE(ClickShowsMap(Width() - 5, 20));
}

TEST_F(MemoryMapTest, TheSquareFollowsTheToolbarAndTheSizeOfTheWindow) {
    OpenMainWindow();
    Choose("MnuViewToolbar");
    window->resize(900, 600);
    QCoreApplication::processEvents();
    EXPECT_TRUE(ClickShowsMap(Width() - 1, 0));
}

TEST_F(MemoryMapTest, AMainWindowThatIsDisabledDoesNotShowIt) {
    OpenMainWindow();
    window->setEnabled(false);
    EXPECT_FALSE(ClickShowsMap(Width() - 20, 20));
    window->setEnabled(true);
    EXPECT_TRUE(ClickShowsMap(Width() - 20, 20));
}

TEST_F(MemoryMapTest, TheMenuDoesNotShowIt) {
    OpenMainWindow();
    EXPECT_FALSE(Entry("MnuProgramMemoryMap")->isVisible());
}

// --- What follows ----------------------------------------------------------------------------------------------------

TEST_F(MemoryMapTest, CancelLeavesTheImageAndClosesTheEditors) {
    OpenMainWindow();
    FillImage();
    OpenEditors();
    GridFrame().showMaximized();
    const DataImage before = document.Image;
    const DataImage saved = document.Snapshot();
    WithMap([](QWidget& dialog, QTableWidget& grid) {
        TypeByte(dialog, grid, 0x000, "12");
        TypeByte(dialog, grid, 0x1BD, "21");
        TypeByte(dialog, grid, 0x3FF, "34");
        Click(dialog, "cmdCancel");
    });
    EXPECT_EQ(document.Image, before);
    EXPECT_EQ(document.Snapshot(), saved);
    ExpectOnlyTheGrid();
}

TEST_F(MemoryMapTest, OkStoresWhatWasTypedAndClosesTheEditors) {
    OpenMainWindow();
    OpenEditors();
    Find<QLineEdit>("txtMsg(0)")->setFocus();
    GridFrame().showMinimized();
    DataImage expected = document.Image;
    expected.Set(0x300, 0x41);
    expected.Set(0x3FF, 0x34);
    WithMap([](QWidget& dialog, QTableWidget& grid) {
        TypeByte(dialog, grid, 0x300, "41");
        TypeByte(dialog, grid, 0x3FF, "34");
        Click(dialog, "cmdOK");
    });
    EXPECT_EQ(document.Image, expected);
    EXPECT_TRUE(document.IsDocumentChanged());
    ExpectOnlyTheGrid();
}

TEST_F(MemoryMapTest, AnEditUnderWayIsInTheMap) {
    OpenMainWindow();
    Choose("MnuEditEmbeddedMessage");
    auto* line = Find<QLineEdit>("txtMsg(0)");
    line->setFocus();
    QTest::keyClicks(line, "HELLO");
    WithMap([](QWidget& dialog, QTableWidget& grid) {
        EXPECT_EQ(grid.item(0x30, 0)->text(), "48");
        EXPECT_EQ(grid.item(0x30, 4)->text(), "4F");
        Click(dialog, "cmdCancel");
    });
}

TEST_F(MemoryMapTest, WithoutAChangeOfTheModelTheGridIsNotDecodedAnew) {
    OpenMainWindow();
    document.Rename("/tmp/one.dat");
    WithMap([](QWidget& dialog, QTableWidget& grid) {
        TypeByte(dialog, grid, 0x010, "00");
        TypeByte(dialog, grid, 0x011, "25");
        TypeByte(dialog, grid, 0x012, "51");
        TypeByte(dialog, grid, 0x013, "14");
        Click(dialog, "cmdOK");
    });
    EXPECT_EQ(document.Image.At(0x013), 0x14);
    EXPECT_EQ(Find<QTableWidget>("ChannelGrid")->item(0, 0)->text(), "");
    EXPECT_EQ(document.FileName(), "/tmp/one.dat");
}

TEST_F(MemoryMapTest, AChangedMarketMakesABlankDocumentAndDropsEveryOtherEdit) {
    OpenMainWindow();
    document.Channels.SetCellText(1, 1, "145.12500");
    document.Rename("/tmp/one.dat");
    OpenEditors();
    WithMap([](QWidget& dialog, QTableWidget& grid) {
        TypeByte(dialog, grid, 0x010, "00");
        TypeByte(dialog, grid, 0x300, "41");
        TypeByte(dialog, grid, 0x1BD, "21");
        Click(dialog, "cmdOK");
    });
    EXPECT_EQ(document.Image.At(0x1BD), 0x21);
    EXPECT_EQ(document.Image.At(0x1B9), 0x35); // UHF
    EXPECT_EQ(document.Image.At(0x010), 0xFF);
    EXPECT_EQ(document.Image.At(0x300), 0xFF);
    EXPECT_EQ(document.Image.At(0x283), 0x47); // the first test frequency, 470.05000
    EXPECT_FALSE(document.IsDocumentChanged());
    EXPECT_EQ(document.FileName(), "Zelvor.dat");
    EXPECT_EQ(window->windowTitle(), "Zelvor [5618: UHF: 450-490 MHz(M)] [ File Name:Zelvor.dat]");
    EXPECT_EQ(Find<QTableWidget>("ChannelGrid")->item(0, 0)->text(), "");
    ExpectOnlyTheGrid();
}

TEST_F(MemoryMapTest, AChangedFamilyMakesABlankDocument) {
    OpenMainWindow();
    WithMap([](QWidget& dialog, QTableWidget& grid) {
        TypeByte(dialog, grid, 0x300, "41");
        TypeByte(dialog, grid, 0x1BE, "F9");
        Click(dialog, "cmdOK");
    });
    EXPECT_EQ(document.Image.At(0x1BC), 0x33);
    EXPECT_EQ(document.Image.At(0x300), 0xFF);
    EXPECT_EQ(window->windowTitle(), "Zelvor [4613: VHF: 136-174 MHz(M)] [ File Name:Zelvor.dat]");
}

TEST_F(MemoryMapTest, AnotherIdentityByteIsAnEditLikeAnyOther) {
    OpenMainWindow();
    WithMap([](QWidget& dialog, QTableWidget& grid) {
        TypeByte(dialog, grid, 0x1BC, "41");
        TypeByte(dialog, grid, 0x300, "42");
        Click(dialog, "cmdOK");
    });
    EXPECT_EQ(document.Image.At(0x1BC), 0x41);
    EXPECT_EQ(document.Image.At(0x300), 0x42);
}

TEST_F(MemoryMapTest, AModelOutsideTheCatalogueHasNoTextInTheTitle) {
    OpenMainWindow();
    WithMap([](QWidget& dialog, QTableWidget& grid) {
        TypeByte(dialog, grid, 0x1BD, "00");
        Click(dialog, "cmdOK");
    });
    EXPECT_EQ(window->windowTitle(), "Zelvor [Zelvor.dat]");
}

} // namespace
} // namespace zelvor
