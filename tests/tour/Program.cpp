#include "tour/Program.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QTableWidget>
#include <memory>
#include <utility>

#include "controls/WindowState.h"
#include "data/Document.h"
#include "help/QtHelpViewer.h"
#include "link/LinkState.h"
#include "platform/QtServices.h"
#include "service/ServiceState.h"
#include "shell/MDIForm1.h"
#include "tour/User.h"
#include "tour/WindowOnTop.h"
#include "tour/WindowThread.h"

namespace zelvor::tour {

struct Program::Parts {
    QtHelpViewer help;
    QtServices services{help};
    Document document;
    WindowState windows;
    LinkState link;
    ServiceState service;
    MDIForm1 mainWindow{{document, windows, link, service}, services.Get()};
    bool hasEnded = false;
};

Program::Program(WindowThread& windows) : windows_(windows) {
    parts_ = windows_.Ask([] {
        auto parts = std::make_unique<Parts>();
        QObject::connect(&parts->mainWindow, &MDIForm1::Ended, &parts->mainWindow,
                         [ended = &parts->hasEnded] { *ended = true; });
        parts->mainWindow.show();
        return parts.release();
    });
    User(windows_).Activate();
}

void Program::TakeDown() {
    WindowThread::Post([parts = std::exchange(parts_, nullptr)] { delete parts; });
}

QString Program::Title() const {
    return windows_.Ask([this] { return parts_->mainWindow.windowTitle(); });
}

QByteArray Program::Image() const {
    return windows_.Ask([this] {
        QByteArray bytes;
        for (int address = 0; address < static_cast<int>(DataImage::Size); ++address) {
            bytes.append(static_cast<char>(parts_->document.Image.At(address)));
        }
        return bytes;
    });
}

QString Program::Cell(int row, int column) const {
    return windows_.Ask([=, this] {
        const auto* grid = parts_->mainWindow.findChild<QTableWidget*>("ChannelGrid");
        const QTableWidgetItem* cell = grid ? grid->item(row - 1, column - 1) : nullptr;
        return cell ? cell->text() : QString("(no cell)");
    });
}

QString Program::LabelText(const QString& name) const {
    return windows_.Ask([&] {
        const auto* label = parts_->mainWindow.findChild<QLabel*>(name);
        return label ? label->text() : QString("(no label)");
    });
}

int Program::Progress() const {
    return windows_.Ask(ProgressHere);
}

QString Program::GridCaption() const {
    return windows_.Ask([this] {
        const auto* grid = parts_->mainWindow.findChild<QWidget*>("ChannelForm");
        return grid ? grid->windowTitle() : QString("(no window)");
    });
}

int Program::ProgressHere() {
    const auto* bar = qobject_cast<QProgressBar*>(WidgetOnTop("PrgValue"));
    return bar ? bar->value() : -1;
}

bool Program::HasEndedHere() const {
    return parts_->hasEnded;
}

} // namespace zelvor::tour
