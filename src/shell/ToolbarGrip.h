#pragma once

#include <QWidget>

class QToolBar;

namespace zelvor {

/// The dotted strip at the start of a toolbar by which it is taken hold of. The mouse events are the toolbar's.
class ToolbarGrip : public QWidget {
    Q_OBJECT

public:
    explicit ToolbarGrip(QToolBar& bar);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QToolBar& bar_;
};

} // namespace zelvor
