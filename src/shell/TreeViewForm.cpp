#include "shell/TreeViewForm.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPushButton>
#include <QTreeWidget>

#include "data/Document.h"
#include "data/MemoryMap.h"
#include "data/ModelCatalogue.h"
#include "help/HelpViewer.h"
#include "platform/Clock.h"
#include "platform/LayoutUnits.h"
#include "platform/SelectionCursor.h"
#include "platform/Services.h"
#include "platform/Toolkit.h"
#include "shell/ChildWindowRows.h"

namespace zelvor {

namespace {

constexpr const char* RootKey = "R";
constexpr int KeyRole = Qt::UserRole;

/// A double click has to follow the click on the node within this time.
constexpr std::int64_t DoubleClickMilliseconds = 500;

constexpr QSize FormTwips(3600, 4800);
constexpr int Margin = 8;
constexpr int ButtonHeight = 26;
constexpr int ButtonWidth = 108;
constexpr int ButtonTop = FormTwips.height() / TwipsPerPixel - Margin - ButtonHeight;
constexpr int TreeWidth = FormTwips.width() / TwipsPerPixel - 2 * Margin;

} // namespace

TreeViewForm::TreeViewForm(const Document& document, const WindowState& windows, Services& services, QWidget* parent)
    : ChildForm(ChildWindow::Navigator, "TreeViewForm", FormTwips, parent), document_(document), windows_(windows),
      services_(services) {
    SetCaption(ToQString(windows.LoadText(Text::TreeView)));
    BuildControls();
    BuildTree();
    NodeClickTick = services_.clock.TickCount();
}

void TreeViewForm::BuildControls() {
    treView_ = new QTreeWidget(Content());
    treView_->setObjectName("treView");
    treView_->setAccessibleName(windowTitle());
    treView_->setHeaderLabel(windowTitle()); // for assistive technology
    treView_->setHeaderHidden(true);
    // Where rows are selected, the toolkit lets assistive technology select the row before the one that was asked for.
    treView_->setSelectionBehavior(QAbstractItemView::SelectItems);
    treView_->setGeometry(LaidOut(QRect(Margin, Margin, TreeWidth, ButtonTop - 2 * Margin)));
    treView_->installEventFilter(this);
    treView_->viewport()->installEventFilter(this);
    connect(treView_, &QTreeWidget::itemClicked, this, &TreeViewForm::OnNodeClick);
    setFocusProxy(treView_);

    QPushButton* cmdClose = MakeButton("cmdClose", Text::CloseButton, Margin);
    QPushButton* cmdHelp = MakeButton("cmdHelp", Text::HelpButton, Margin + TreeWidth - ButtonWidth);
    connect(cmdClose, &QPushButton::clicked, this, &TreeViewForm::UnloadRequested);
    connect(cmdHelp, &QPushButton::clicked, this, [this] { services_.help.Show({windows_.LanguageFlag, HelpPage()}); });
}

QPushButton* TreeViewForm::MakeButton(const char* name, Text text, int left) {
    auto* button = new QPushButton(ToQString(windows_.LoadText(text)), Content());
    button->setObjectName(name);
    button->setGeometry(LaidOut(QRect(left, ButtonTop, ButtonWidth, ButtonHeight)));
    return button;
}

void TreeViewForm::BuildTree() {
    const auto model = NavigatorModelText(document_.Image.At(address::Family), document_.Image.At(address::Market));
    auto* root = new QTreeWidgetItem(treView_, {ToQString(model)});
    root->setData(0, KeyRole, RootKey);
    for (const ChildWindowRow& row : ChildWindowRows()) {
        if (row.node) {
            auto* item = new QTreeWidgetItem(root, {ToQString(windows_.LoadText(row.node->text))});
            item->setData(0, KeyRole, ToQString(row.node->key));
        }
    }
    root->setExpanded(true);
    treView_->setCurrentItem(root);
    LetCursorFollowSelection(*treView_);
}

bool TreeViewForm::eventFilter(QObject* watched, QEvent* event) {
    if (watched == treView_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            ActivateSelectedNode();
            return true;
        }
    }
    if (watched == treView_->viewport() && event->type() == QEvent::MouseButtonDblClick) {
        OnDoubleClick(static_cast<QMouseEvent*>(event)->pos());
    }
    return ChildForm::eventFilter(watched, event);
}

void TreeViewForm::OnNodeClick() {
    NodeClickTick = services_.clock.TickCount();
    NodeClicked = true;
}

void TreeViewForm::OnDoubleClick(const QPoint& position) {
    const bool isSoon = services_.clock.TickCount() - NodeClickTick < DoubleClickMilliseconds;
    if (isSoon && NodeClicked && treView_->itemAt(position) != nullptr) {
        ActivateSelectedNode();
    }
}

void TreeViewForm::ActivateSelectedNode() {
    const QTreeWidgetItem* selected = treView_->currentItem();
    if (selected == nullptr) {
        return;
    }
    for (const ChildWindowRow& row : ChildWindowRows()) {
        if (row.node && selected->text(0) == ToQString(windows_.LoadText(row.node->text))) {
            emit WindowChosen(row.window);
            return;
        }
    }
}

} // namespace zelvor
