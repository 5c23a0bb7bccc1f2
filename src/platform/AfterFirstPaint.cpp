#include "platform/AfterFirstPaint.h"

#include <QEvent>
#include <QWidget>
#include <utility>

namespace zelvor {

namespace {

class PaintWait : public QObject {
public:
    PaintWait(QWidget& widget, std::function<void()> call) : QObject(&widget), call_(std::move(call)) {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            watched->removeEventFilter(this);
            // Queued: the round of painting under way ends with handing the picture over.
            QMetaObject::invokeMethod(
                this, [this] { Call(); }, Qt::QueuedConnection);
        }
        return false;
    }

private:
    void Call() {
        deleteLater();
        call_();
    }

    std::function<void()> call_;
};

} // namespace

void AfterFirstPaint(QWidget& widget, std::function<void()> call) {
    new PaintWait(widget, std::move(call));
}

} // namespace zelvor
