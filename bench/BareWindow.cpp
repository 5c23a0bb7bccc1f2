// The measure for start-up time and memory: a main window with an empty QMdiArea. "zelvor-bare caption" has one empty
// child window in it, whose caption makes the toolkit load its fonts as every window with a text does.

#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>

#include "FirstPaint.h"

const char* const zelvor::bench::AwaitedWidget = "BareArea";

namespace {

constexpr QSize WindowSize(1100, 720); // as Zelvor's main window
constexpr QSize ChildSize(800, 460);   // as its channel grid

void AddChild(QMdiArea& area) {
    auto* child = new QMdiSubWindow(&area);
    child->setWidget(new QWidget);
    child->setWindowTitle("Caption");
    child->setGeometry(QRect(QPoint(0, 0), ChildSize));
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QMainWindow window;
    auto* area = new QMdiArea(&window);
    area->setObjectName(zelvor::bench::AwaitedWidget);
    window.setCentralWidget(area);
    if (QApplication::arguments().contains("caption")) {
        AddChild(*area);
    }
    window.resize(WindowSize.boundedTo(window.screen()->availableSize()));
    window.show();
    return QApplication::exec();
}
