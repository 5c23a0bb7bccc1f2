#include "help/HelpWindow.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>

#include "help/HelpBrowser.h"
#include "help/HelpHitDelegate.h"
#include "platform/QtDialogs.h"
#include "platform/ScreenRoom.h"
#include "platform/SelectionCursor.h"
#include "platform/Toolkit.h"

namespace zelvor {

namespace {

constexpr TextPair WindowTitle{"Zelvor Help", "Zelvor 帮助"};
constexpr TextPair ToolbarText{"Toolbar", "工具栏"};
constexpr TextPair ContentsText{"Contents", "目录"};
constexpr TextPair ResultsText{"Pages found", "找到的页面"};
constexpr TextPair PageText{"Help page", "帮助页面"};
constexpr TextPair SearchText{"Search all pages", "搜索所有页面"};
constexpr TextPair ClearText{"Clear", "清除"};
constexpr TextPair FoundPages{"Pages found: %1", "找到的页面：%1"};
constexpr TextPair NothingText{"No page has these words.", "没有页面包含这些文字。"};

constexpr QSize WindowSize{980, 680};
constexpr int SideWidth = 270;
constexpr int PanelMargin = 6;
constexpr int ContentsSpacing = 3;
constexpr int NameRole = Qt::UserRole;

QListWidget* MakeList(const char* name) {
    auto* list = new QListWidget;
    list->setObjectName(name);
    list->setFrameShape(QFrame::NoFrame);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setTextElideMode(Qt::ElideRight);
    return list;
}

QToolButton* MakeButton(QAction* action) {
    auto* button = new QToolButton;
    button->setObjectName(action->objectName() + QStringLiteral("Button"));
    button->setDefaultAction(action);
    button->setAutoRaise(true);
    return button;
}

} // namespace

HelpWindow::HelpWindow() {
    setObjectName("HelpWindow");
    setAttribute(Qt::WA_QuitOnClose, false);
    StandBesideWork(*this);
    setContextMenuPolicy(Qt::NoContextMenu);
    resize(WindowSize.boundedTo(ScreenRoom(*this)));

    page_ = new HelpBrowser;
    page_->setObjectName("HelpPage");
    ConnectActions();
    BuildToolbar();
    auto* splitter = new QSplitter(this);
    splitter->setObjectName("HelpSplitter");
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(BuildSidePanel());
    splitter->addWidget(page_);
    splitter->setStretchFactor(1, 1);
    const int side = std::min(SideWidth, width() * 2 / 5);
    splitter->setSizes({side, width() - side});
    setCentralWidget(splitter);

    connect(page_, &QTextBrowser::sourceChanged, this, &HelpWindow::FollowPage);
    connect(page_, &QTextBrowser::backwardAvailable, actions_.back, &QAction::setEnabled);
    connect(page_, &QTextBrowser::forwardAvailable, actions_.forward, &QAction::setEnabled);
}

void HelpWindow::ShowPage(const QString& folder, Language language, const QString& name) {
    OpenBook(folder, language);
    search_->clear();
    page_->setSource(book_->UrlOf(name));
    page_->setFocus();
}

void HelpWindow::ConnectActions() {
    connect(actions_.back, &QAction::triggered, page_, &QTextBrowser::backward);
    connect(actions_.forward, &QAction::triggered, page_, &QTextBrowser::forward);
    connect(actions_.home, &QAction::triggered, this,
            [this] { page_->setSource(book_->UrlOf(QStringLiteral("general.htm"))); });
    connect(actions_.zoomIn, &QAction::triggered, page_, [this] { page_->ZoomBy(1); });
    connect(actions_.zoomOut, &QAction::triggered, page_, [this] { page_->ZoomBy(-1); });
    connect(actions_.zoomReset, &QAction::triggered, page_, &HelpBrowser::ResetZoom);
    connect(actions_.find, &QAction::triggered, this, [this] {
        search_->setFocus(Qt::ShortcutFocusReason);
        search_->selectAll();
    });
    connect(actions_.findNext, &QAction::triggered, page_, &HelpBrowser::GoToNextMark);
    connect(actions_.findPrevious, &QAction::triggered, page_, &HelpBrowser::GoToPreviousMark);
    connect(actions_.close, &QAction::triggered, this, &HelpWindow::LeaveSearchOrClose);
}

void HelpWindow::BuildToolbar() {
    toolbar_ = addToolBar(QString());
    toolbar_->setObjectName("HelpToolbar");
    toolbar_->setMovable(false);
    toolbar_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    toolbar_->addActions({actions_.back, actions_.forward, actions_.home});
    toolbar_->addSeparator();
    toolbar_->addActions({actions_.zoomOut, actions_.zoomReset, actions_.zoomIn});
}

QWidget* HelpWindow::BuildSidePanel() {
    BuildLists();
    auto* panel = new QWidget;
    panel->setObjectName("HelpSide");
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(PanelMargin, PanelMargin, PanelMargin, PanelMargin);
    layout->addWidget(BuildSearchRow());
    layout->addWidget(lists_);
    return panel;
}

void HelpWindow::BuildLists() {
    contents_ = MakeList("HelpContents");
    contents_->setSpacing(ContentsSpacing);
    results_ = MakeList("HelpResults");
    results_->setItemDelegate(new HelpHitDelegate(results_));
    lists_ = new QStackedWidget;
    lists_->addWidget(contents_);
    lists_->addWidget(results_);
    for (QListWidget* list : {contents_, results_}) {
        LetCursorFollowSelection(*list);
        connect(list, &QListWidget::currentItemChanged, this, &HelpWindow::OpenItem);
        connect(list, &QListWidget::itemActivated, this, [this] { page_->setFocus(); });
    }
}

QWidget* HelpWindow::BuildSearchRow() {
    search_ = new QLineEdit;
    search_->setObjectName("HelpSearch");
    search_->setClearButtonEnabled(true);
    search_->installEventFilter(this);
    connect(search_, &QLineEdit::textChanged, this, &HelpWindow::Search);
    connect(search_, &QLineEdit::returnPressed, this, &HelpWindow::EnterResults);

    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(search_);
    layout->addWidget(MakeButton(actions_.findPrevious));
    layout->addWidget(MakeButton(actions_.findNext));
    return row;
}

void HelpWindow::OpenBook(const QString& folder, Language language) {
    if (book_ && book_->Folder() == folder && book_->BookLanguage() == language) {
        return;
    }
    book_.emplace(folder, language);
    page_->SetFolder(folder);
    ApplyTexts();
    FillContents();
    Search();
}

void HelpWindow::FillContents() {
    const QSignalBlocker block(contents_);
    contents_->clear();
    for (const HelpPage& page : book_->Pages()) {
        auto* item = new QListWidgetItem(page.title, contents_);
        item->setData(NameRole, page.name);
    }
}

void HelpWindow::ApplyTexts() {
    const auto text = [this](const TextPair& pair) { return ToQString(pair.In(book_->BookLanguage())); };
    setWindowTitle(text(WindowTitle));
    setAccessibleName(text(WindowTitle));
    search_->setPlaceholderText(text(SearchText));
    search_->setAccessibleName(text(SearchText));
    search_->findChild<QToolButton*>()->setAccessibleName(text(ClearText));
    search_->setToolTip(text(SearchText) + QStringLiteral(" (Ctrl+F)"));
    contents_->setAccessibleName(text(ContentsText));
    results_->setAccessibleName(text(ResultsText));
    page_->setAccessibleName(text(PageText));
    actions_.ApplyTexts(book_->BookLanguage());
    toolbar_->setAccessibleName(text(ToolbarText));
    for (QAction* action : {actions_.zoomOut, actions_.zoomReset, actions_.zoomIn}) { // they show a mark
        toolbar_->widgetForAction(action)->setAccessibleName(action->text());
    }
}

void HelpWindow::FollowPage(const QUrl& url) {
    // Going back may lead to a page of the other language.
    const QFileInfo page(url.toLocalFile());
    const bool isChinese = page.dir().dirName() == QStringLiteral("zh");
    OpenBook(book_->Folder(), isChinese ? Language::Chinese : Language::English);
    shownName_ = page.fileName();
    SelectShownPage(*contents_);
    SelectShownPage(*results_);
    UpdateMarkActions();
}

void HelpWindow::SelectShownPage(QListWidget& list) {
    const QSignalBlocker block(list);
    list.setCurrentItem(nullptr);
    for (int row = 0; row < list.count(); ++row) {
        if (list.item(row)->data(NameRole).toString() == shownName_) {
            list.setCurrentRow(row);
        }
    }
}

void HelpWindow::OpenItem(const QListWidgetItem* item) {
    const QString name = item != nullptr ? item->data(NameRole).toString() : QString();
    if (name.isEmpty()) {
        return;
    }
    page_->setSource(book_->UrlOf(name));
    page_->moveCursor(QTextCursor::Start);
    page_->GoToNextMark();
}

void HelpWindow::Search() {
    const QStringList words = WordsOf(search_->text());
    page_->MarkWords(words);
    UpdateMarkActions();
    FillResults(book_ ? book_->Search(search_->text()) : std::vector<HelpHit>());
    lists_->setCurrentWidget(words.isEmpty() ? contents_ : results_);
    search_->setAccessibleDescription(words.isEmpty() ? QString() : FoundText());
}

void HelpWindow::FillResults(const std::vector<HelpHit>& hits) {
    const QSignalBlocker block(results_);
    results_->clear();
    for (const HelpHit& hit : hits) {
        auto* item = new QListWidgetItem(hit.title, results_);
        item->setData(NameRole, hit.name);
        item->setData(HelpHitDelegate::ExcerptRole, hit.excerpt);
        item->setData(Qt::AccessibleDescriptionRole, hit.excerpt);
    }
    if (hits.empty() && book_) {
        auto* item = new QListWidgetItem(ToQString(NothingText.In(book_->BookLanguage())), results_);
        item->setFlags(Qt::NoItemFlags);
    }
    SelectShownPage(*results_);
}

bool HelpWindow::HasResults() const {
    return results_->item(0)->flags() != Qt::NoItemFlags;
}

/// The list beside the search box is out of sight of a screen reader.
QString HelpWindow::FoundText() const {
    return HasResults() ? ToQString(FoundPages.In(book_->BookLanguage())).arg(results_->count())
                        : results_->item(0)->text();
}

void HelpWindow::EnterResults() {
    if (lists_->currentWidget() == results_ && HasResults()) {
        results_->setFocus(Qt::TabFocusReason);
        const QSignalBlocker block(results_);
        results_->setCurrentRow(0);
        OpenItem(results_->item(0));
    }
}

void HelpWindow::LeaveSearchOrClose() {
    if (search_->text().isEmpty()) {
        close();
        return;
    }
    search_->clear();
}

void HelpWindow::UpdateMarkActions() {
    actions_.findNext->setEnabled(page_->HasMarks());
    actions_.findPrevious->setEnabled(page_->HasMarks());
}

bool HelpWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowBlocked) {
        QMetaObject::invokeMethod(this, &HelpWindow::StayUsable, Qt::QueuedConnection);
    }
    return QMainWindow::event(event);
}

bool HelpWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == search_ && event->type() == QEvent::KeyPress) {
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Down) {
            lists_->currentWidget()->setFocus(Qt::TabFocusReason);
            return true;
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

void HelpWindow::StayUsable() {
    // A modal dialog blocks all windows but its own: the page of the dialog is to be read while the dialog is up.
    QWindow* modal = QGuiApplication::modalWindow();
    if (modal == nullptr || windowHandle() == nullptr) {
        return;
    }
    SetOwner(*windowHandle(), *modal);
    // A message box over the dialog goes, and the dialog is there still.
    connect(modal, &QObject::destroyed, this, &HelpWindow::StayUsable,
            static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::UniqueConnection));
}

} // namespace zelvor
