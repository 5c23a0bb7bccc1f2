#include "random/ToolkitHands.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>
#include <algorithm>
#include <utility>

#include "tour/KeyEvents.h"
#include "tour/WindowOnTop.h"
#include "tour/WindowThread.h"

namespace zelvor::random {

namespace {

constexpr int WheelStep = 120;

/// The toolkit takes the origin for "the middle".
QPoint Within(const QWindow& window, QPoint point) {
    return {std::clamp(point.x(), 1, std::max(1, window.width() - 1)),
            std::clamp(point.y(), 1, std::max(1, window.height() - 1))};
}

} // namespace

void ToolkitHands::Post(std::function<void()> work) const {
    tour::WindowThread::Post([this, work = std::move(work)] {
        if (!isOver_) {
            work();
        }
    });
}

void ToolkitHands::PostTo(const Spot& spot, std::function<void(QWindow&, QPoint)> work) const {
    Post([spot, work = std::move(work)] {
        if (spot.window && spot.window->isVisible() && spot.window->width() > 2 && spot.window->height() > 2) {
            work(*spot.window, Within(*spot.window, spot.inWindow));
        }
    });
}

// Press and release are posted one by one: a press may open a dialog and return only when that is gone.
void ToolkitHands::Key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    Post([=] { tour::SendKey(true, key, modifiers); });
    Post([=] { tour::SendKey(false, key, modifiers); });
}

void ToolkitHands::Type(const QByteArray& text) {
    for (const char character : text) {
        Post([=] { tour::SendCharacter(true, character); });
        Post([=] { tour::SendCharacter(false, character); });
    }
}

void ToolkitHands::Click(const Spot& spot, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
    PostTo(spot, [=](QWindow& window, QPoint point) { QTest::mousePress(&window, button, modifiers, point); });
    PostTo(spot, [=](QWindow& window, QPoint point) { QTest::mouseRelease(&window, button, modifiers, point); });
}

void ToolkitHands::DoubleClick(const Spot& spot) {
    PostTo(spot, [](QWindow& window, QPoint point) { QTest::mouseDClick(&window, Qt::LeftButton, {}, point); });
}

void ToolkitHands::Drag(const Spot& from, QPoint by) {
    Spot to = from;
    to.inWindow += by;
    Spot halfway = from;
    halfway.inWindow += by / 2;
    PostTo(from, [](QWindow& window, QPoint point) { QTest::mousePress(&window, Qt::LeftButton, {}, point); });
    for (const Spot& spot : {halfway, to}) {
        PostTo(spot, [](QWindow& window, QPoint point) { QTest::mouseMove(&window, point); });
    }
    PostTo(to, [](QWindow& window, QPoint point) { QTest::mouseRelease(&window, Qt::LeftButton, {}, point); });
}

void ToolkitHands::Wheel(const Spot& spot, bool up) {
    PostTo(spot, [up](QWindow& window, QPoint point) {
        QWheelEvent event(point, window.mapToGlobal(point), {}, {0, up ? WheelStep : -WheelStep}, Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&window, &event);
    });
}

void ToolkitHands::CloseWindow() {
    Post([] {
        if (QWidget* window = tour::WindowOnTop()) {
            window->close();
        }
    });
}

void ToolkitHands::Arrange(const Spot& spot, unsigned way) {
    PostTo(spot, [way](QWindow& window, QPoint) {
        if (window.type() == Qt::Window) {
            constexpr int smallest = 300;
            constexpr int spread = 900;
            window.resize(smallest + static_cast<int>(way % spread),
                          smallest + static_cast<int>(way / spread % spread));
        }
    });
}

} // namespace zelvor::random
