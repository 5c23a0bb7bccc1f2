#pragma once

#include <QDir>
#include <QMdiSubWindow>
#include <QTableWidget>
#include <QTemporaryDir>

#include "shell/ShellTest.h"

namespace zelvor {

/// The commands that open and save documents, with a folder for them.
class FileCommandsTest : public ShellTest {
protected:
    void SetUp() override { oldDirectory_ = QDir::currentPath(); }
    void TearDown() override { QDir::setCurrent(oldDirectory_); }

    [[nodiscard]] std::string PathOf(const char* name) const { return directory.filePath(name).toStdString(); }

    /// Types into the first cell of the channel grid, which opens the cell's editor, and leaves that open.
    QWidget* TypeIntoFirstCell(const QString& text) {
        auto* grid = Find<QTableWidget>("ChannelGrid");
        grid->setFocus();
        QTest::keyClicks(grid, text.left(1));
        auto* editor = Find<QWidget>("txtInputBox");
        EXPECT_TRUE(editor->isVisible());
        QTest::keyClicks(editor, text.mid(1));
        return editor;
    }

    QTemporaryDir directory;

private:
    QString oldDirectory_;
};

} // namespace zelvor
