#pragma once

#include <QWidget>

namespace zelvor {

/// Lays a text box and its up-down side by side so that they look like one control: the box covers the left edge of the
/// buttons' frame.
class UpDownPair : public QWidget {
public:
    using QWidget::QWidget;

    /// Lays out both; they become its children.
    void Hold(QWidget& box, QWidget& upDown);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* box_ = nullptr;
    QWidget* upDown_ = nullptr;
};

} // namespace zelvor
