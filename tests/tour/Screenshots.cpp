#include "tour/Screenshots.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include "tour/Checks.h"
#include "tour/WindowThread.h"

namespace zelvor::tour {

namespace {

// For the window manager to put its frames up and for the paint events behind that.
constexpr std::chrono::milliseconds PaintTime(250);
constexpr std::chrono::milliseconds OffscreenPaintTime(20);

bool IsOffscreen() {
    return QGuiApplication::platformName() == "offscreen";
}

/// Where a window lies in the pile, by what it is opened over.
int HeightOf(const QWidget* window) {
    constexpr int modal = 100;
    constexpr int help = 200;
    constexpr int popup = 300;
    if (window->windowType() == Qt::Popup) {
        return popup;
    }
    if (window->objectName() == "HelpWindow") {
        return help;
    }
    int height = window == QApplication::activeModalWidget() ? modal : 0;
    for (const QWidget* parent = window->parentWidget(); parent; parent = parent->parentWidget()) {
        ++height;
    }
    return height;
}

/// Main window first, what came later behind it.
QList<QWidget*> OpenWindows() {
    QList<QWidget*> windows;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible()) {
            windows.append(window);
        }
    }
    std::stable_sort(windows.begin(), windows.end(),
                     [](const QWidget* a, const QWidget* b) { return HeightOf(a) < HeightOf(b); });
    return windows;
}

QRect AreaOf(const QList<QWidget*>& windows) {
    QRect area;
    for (const QWidget* window : windows) {
        area |= window->frameGeometry();
    }
    return area;
}

QImage GrabScreen(const QRect& area) {
    QScreen* screen = QGuiApplication::primaryScreen();
    const QRect visible = area & screen->geometry();
    return screen->grabWindow(0, visible.x(), visible.y(), visible.width(), visible.height()).toImage();
}

/// Where there is no screen to look at: each window painted, without the frames of a window manager.
QImage GrabWindows(const QList<QWidget*>& windows, const QRect& area) {
    QImage picture(area.size(), QImage::Format_RGB32);
    picture.fill(Qt::darkGray);
    QPainter painter(&picture);
    for (QWidget* window : windows) {
        const QPoint place = window->geometry().topLeft() - area.topLeft();
        painter.drawPixmap(place, window->grab());
        painter.drawRect(QRect(place, window->size()).adjusted(-1, -1, 0, 0));
    }
    return picture;
}

QImage Grab() {
    const QList<QWidget*> windows = OpenWindows();
    const QRect area = AreaOf(windows);
    if (area.isEmpty()) {
        return {};
    }
    return IsOffscreen() ? GrabWindows(windows, area) : GrabScreen(area);
}

} // namespace

Screenshots::Screenshots(WindowThread& windows, const QString& directory) : windows_(windows) {
    if (!directory.isEmpty()) {
        directory_ = QDir(directory).absolutePath(); // file dialogs change the current directory
        Check("screenshot directory " + directory.toStdString(), QDir().mkpath(directory_));
    }
}

void Screenshots::Take(const QString& what) {
    if (!directory_.isEmpty()) {
        windows_.Pause(IsOffscreen() ? OffscreenPaintTime : PaintTime);
        TakeAtOnce(what);
    }
}

void Screenshots::TakeAtOnce(const QString& what) {
    if (directory_.isEmpty()) {
        return;
    }
    // Grabbed by the window thread and compressed by this one, which a transfer does not wait for.
    const QImage picture = windows_.Ask(Grab);
    const QString path = NextPath(what, "png");
    Check("the screenshot " + path.toStdString(), picture.save(path));
}

void Screenshots::Keep(const QString& what, const QString& file) {
    if (directory_.isEmpty()) {
        return;
    }
    const QString path = NextPath(what, "pdf");
    QFile::remove(path); // of an earlier tour
    Check("the copy " + path.toStdString(), QFile::copy(file, path));
}

QString Screenshots::NextPath(const QString& what, const QString& suffix) {
    return QString("%1/%2-%3-%4.%5").arg(directory_).arg(++count_, 2, 10, QChar(u'0')).arg(what, language_, suffix);
}

} // namespace zelvor::tour
