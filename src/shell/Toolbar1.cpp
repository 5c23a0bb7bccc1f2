#include "shell/Toolbar1.h"

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMouseEvent>
#include <QRubberBand>
#include <QToolButton>
#include <optional>

#include "platform/LayoutUnits.h"
#include "platform/Toolkit.h"
#include "shell/Icons.h"
#include "shell/MenuTree.h"
#include "shell/ToolbarGrip.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

constexpr int IconSize = 24;

QString ButtonName(int index) {
    return QStringLiteral("Toolbar1(%1)").arg(index);
}

std::optional<Qt::ToolBarArea> AreaOf(ToolbarAlignment alignment) {
    switch (alignment) {
    case ToolbarAlignment::None:
        return std::nullopt;
    case ToolbarAlignment::Top:
        return Qt::TopToolBarArea;
    case ToolbarAlignment::Bottom:
        return Qt::BottomToolBarArea;
    case ToolbarAlignment::Left:
        return Qt::LeftToolBarArea;
    case ToolbarAlignment::Right:
        return Qt::RightToolBarArea;
    }
    return std::nullopt;
}

} // namespace

Toolbar1::Toolbar1(QMainWindow& mainWindow, std::span<const MenuDescription> menus, const RunCommand& run)
    : QToolBar(&mainWindow), mainWindow_(mainWindow) {
    setObjectName("Toolbar1");
    setIconSize(QSize(IconSize, IconSize));
    // The toolkit's own dragging has docking rules of its own.
    setMovable(false);
    setFloatable(false);
    setAutoFillBackground(true);
    addWidget(new ToolbarGrip(*this));
    for (const Command* command : CommandsOf(menus)) {
        if (command->button) {
            AddButton(*command, run);
        }
    }
    mainWindow.addToolBar(Qt::TopToolBarArea, this);
}

void Toolbar1::AddButton(const Command& command, const RunCommand& run) {
    const CommandButton& button = *command.button;
    while (++lastIndex_ < button.index) {
        addSeparator()->setObjectName(ButtonName(lastIndex_));
    }
    QAction* action = addAction(MakeIcon(button.icon), QString());
    action->setObjectName(ButtonName(button.index));
    widgetForAction(action)->setObjectName(ButtonName(button.index));
    connect(action, &QAction::triggered, this, [run, &command] { run(command); });
    toolTips_.emplace_back(action, button.toolTip);
}

void Toolbar1::ApplyToolTips(Language language) {
    setAccessibleName(SpokenName(ToQString(TableText(language, Text::MenuToolbar))));
    for (const auto& [action, text] : toolTips_) {
        const QString toolTip = ToQString(TableText(language, text));
        action->setText(toolTip);
        action->setToolTip(toolTip);
        widgetForAction(action)->setAccessibleName(toolTip);
    }
}

void Toolbar1::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        isPressed_ = true;
        pressed_ = event->pos();
        event->accept();
    }
}

void Toolbar1::mouseMoveEvent(QMouseEvent* event) {
    const bool isFar = (event->pos() - pressed_).manhattanLength() >= QApplication::startDragDistance();
    if (isPressed_ && !outline_ && isFar) {
        outline_ = new QRubberBand(QRubberBand::Rectangle, &mainWindow_);
        outline_->resize(sizeHint());
        outline_->show();
    }
    if (outline_) {
        outline_->move(mapTo(&mainWindow_, event->pos() - pressed_));
    }
}

void Toolbar1::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        return;
    }
    const bool wasDragged = outline_ != nullptr;
    EndDrag();
    // A drop on itself is none on the main window.
    const bool isOnMainWindow = mainWindow_.rect().contains(mapTo(&mainWindow_, event->pos()));
    if (wasDragged && isOnMainWindow && !rect().contains(event->pos())) {
        DropAt(mainWindow_.centralWidget()->mapFrom(&mainWindow_, mapTo(&mainWindow_, event->pos())));
    }
}

void Toolbar1::EndDrag() {
    isPressed_ = false;
    delete outline_;
}

void Toolbar1::DropAt(QPoint clientPosition) {
    const QSize client = mainWindow_.centralWidget()->size();
    Align(DockingRule(TwipsOfPixels(clientPosition.x()), TwipsOfPixels(clientPosition.y()),
                      TwipsOfPixels(client.width()), TwipsOfPixels(client.height())),
          clientPosition);
    update();
}

void Toolbar1::Align(ToolbarAlignment alignment, QPoint clientPosition) {
    const bool wasHidden = isHidden();
    alignment_ = alignment;
    mainWindow_.removeToolBar(this);
    if (const auto area = AreaOf(alignment)) {
        mainWindow_.addToolBar(*area, this);
    } else {
        Float(clientPosition);
    }
    setVisible(!wasHidden);
}

void Toolbar1::Float(QPoint clientPosition) {
    setParent(&mainWindow_);
    setOrientation(Qt::Horizontal);
    adjustSize();
    move(mainWindow_.centralWidget()->pos() + clientPosition);
    KeepInside();
    mainWindow_.centralWidget()->installEventFilter(this);
    raise();
}

/// A floating toolbar follows the edges of a main window that gets smaller.
void Toolbar1::KeepInside() {
    const QPoint furthest = mainWindow_.centralWidget()->geometry().bottomRight() - rect().bottomRight();
    move(qMax(0, qMin(x(), furthest.x())), qMax(0, qMin(y(), furthest.y())));
}

bool Toolbar1::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && alignment_ == ToolbarAlignment::None) {
        KeepInside();
    }
    return QToolBar::eventFilter(watched, event);
}

} // namespace zelvor
