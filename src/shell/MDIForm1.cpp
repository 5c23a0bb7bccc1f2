#include "shell/MDIForm1.h"

#include <QCloseEvent>
#include <QMdiArea>
#include <QMenuBar>
#include <QShortcut>
#include <algorithm>

#include "controls/PendingEdit.h"
#include "data/BlankImage.h"
#include "data/Session.h"
#include "platform/Clock.h"
#include "platform/LayoutUnits.h"
#include "platform/ScreenRoom.h"
#include "platform/Services.h"
#include "shell/ChildWindowRows.h"
#include "shell/ChildWindows.h"
#include "shell/DialogCommands.h"
#include "shell/DocumentView.h"
#include "shell/Icons.h"
#include "shell/LanguageCommand.h"
#include "shell/MemoryMapGesture.h"
#include "shell/MenuTree.h"
#include "shell/Menus.h"
#include "shell/RememberedSettings.h"
#include "shell/ServiceCommands.h"
#include "shell/SessionCommands.h"
#include "shell/StatusBar1.h"
#include "shell/Toolbar1.h"
#include "shell/TransferCommands.h"
#include "shell/WindowList.h"
#include "shell/bakGdForm.h"

namespace zelvor {

namespace {

constexpr QSize FirstSize(1100, 720);
constexpr int StatusBarMilliseconds = 1000;

} // namespace

MDIForm1::MDIForm1(Session& session, Services& services)
    : session_(session), services_(services), menuTree_(MenuTree()), keyCommands_(KeyCommands()) {
    SetUpWindow();
    RestoreSession();
    isStarted_ = true;
}

MDIForm1::~MDIForm1() {
    // The focus leaves the child windows while they still have all that they use then.
    hide();
}

void MDIForm1::SetUpWindow() {
    setObjectName("MDIForm1");
    setWindowIcon(MakeIcon(IconShape::Application));
    resize(LaidOut(FirstSize).boundedTo(ScreenRoom(*this)));
    // The toolkit's own menu of toolbars knows nothing of the check marks in the View menu.
    setContextMenuPolicy(Qt::NoContextMenu);

    auto* area = new QMdiArea(this);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setCentralWidget(area);
    TileMDIBkgd();

    BuildBars(*area);
    BuildCommands();
    ConnectKeys();
}

void MDIForm1::BuildBars(QMdiArea& area) {
    const RunCommand run = [this](const Command& command) { Run(command); };
    menus_ = std::make_unique<Menus>(*menuBar(), menuTree_, run);
    windowList_ = std::make_unique<WindowList>(menus_->Menu("MnuWindow"));
    toolbar1_ = new Toolbar1(*this, menuTree_, run);
    statusBar1_ = new StatusBar1(this);
    setStatusBar(statusBar1_);
    children_ = std::make_unique<ChildWindows>(session_, area, *windowList_, [this](const ChildWindowRow& row) {
        return row.make({session_, services_, *children_, isStarted_});
    });
}

void MDIForm1::BuildCommands() {
    view_ = std::make_unique<DocumentView>(session_, services_, *children_, *windowList_, *this);
    commands_ = std::make_unique<SessionCommands>(session_, services_, *view_);
    transfers_ = std::make_unique<TransferCommands>(session_, services_, *view_, *this);
    service_ = std::make_unique<ServiceCommands>(session_, services_, *this);
    connect(service_.get(), &ServiceCommands::InformationRead, this, &MDIForm1::GetDJJInfo);
    // Test mode has no entry of its own in the window list.
    connect(service_.get(), &ServiceCommands::TestModeActivated, this,
            [this] { windowList_->Mark(ChildWindow::TestFrequency); });
    connect(service_.get(), &ServiceCommands::ExchangeTold, statusBar1_, &StatusBar1::ShowExchange);
    language_ = std::make_unique<LanguageCommand>(session_, services_, *children_, *view_, *this);
    connect(language_.get(), &LanguageCommand::Switched, this, &MDIForm1::ApplyLanguage);
    dialogs_ = std::make_unique<DialogCommands>(session_, services_, *children_, *this);
    connect(dialogs_.get(), &DialogCommands::PortChosen, this,
            [this] { statusBar1_->ShowPort(session_.CommPortNumber); });
    program_.emplace(Program{*this, *toolbar1_, *statusBar1_, *commands_, *transfers_, *service_, *language_, *dialogs_,
                             *children_});
}

void MDIForm1::ConnectKeys() {
    for (const Command& command : keyCommands_) {
        connect(new QShortcut(command.shortcut, this), &QShortcut::activated, this, [this, &command] { Run(command); });
    }
    // The entry never shows: this is the only way.
    connect(new MemoryMapGesture(*centralWidget()), &MemoryMapGesture::Made, this,
            [this, &command = CommandOf(menuTree_, "MnuProgramMemoryMap")] { Run(command); });
}

void MDIForm1::RestoreSession() {
    session_.Priority.SetError(false);
    session_.OwnIdError = false;
    session_.TxCodeError = false;
    session_.ExitConfirmed = false;
    session_.SaveCancelled = false;
    session_.Link.SentState = NothingSent;
    session_.CommPortNumber = 1;
    statusBar1_->ShowPort(session_.CommPortNumber);
    StartClock();
    RestoreModel(session_, services_.settings);
    RestoreLanguage(session_, services_.settings);
    ApplyLanguage();
    session_.SetOpen(ChildWindow::Channels, true);
    view_->ListGrid();
    InitAllFrameData();
    session_.TakeSnapshot();
    session_.CurrentFileName = Session::DefaultFileName;
    view_->ShowTitle();
    view_->ShowGrid();
    view_->PlaceGrid();
}

void MDIForm1::StartClock() {
    statusBar1_->ShowTime(services_.clock.Now());
    tmrStatusBar_ = services_.clock.MakeTimer("tmrStatusBar");
    tmrStatusBar_->OnTick = [this] { statusBar1_->ShowTime(services_.clock.Now()); };
    tmrStatusBar_->SetInterval(StatusBarMilliseconds);
    tmrStatusBar_->SetEnabled(true);
}

void MDIForm1::TileMDIBkgd() {
    static_cast<QMdiArea*>(centralWidget())->setBackground(bakGdForm::Picture(devicePixelRatioF()));
}

void MDIForm1::InitAllFrameData() {
    zelvor::InitAllFrameData(session_.Image);
}

void MDIForm1::ApplyMenuCaptions() {
    menus_->ApplyCaptions(session_);
    toolbar1_->ApplyToolTips(session_);
}

void MDIForm1::ApplyLanguage() {
    toolkitLanguage_.Use(session_.LanguageFlag);
    ApplyMenuCaptions();
}

void MDIForm1::GetDJJInfo(const std::string& record) {
    auto& kept = session_.Service.RadioInfoRecord;
    std::copy_n(record.begin(), std::min(record.size(), kept.size()), kept.begin());
}

/// A command that replaces the document or wants the port ends an exchange: test mode is entered with the document that
/// the radio was compared with, or not at all.
void MDIForm1::Run(const Command& command) {
    if (command.endsExchange) {
        service_->EndForAnother();
    }
    if (command.commitsFirst) {
        CommitPendingEdit(*this);
    }
    if (command.run) {
        command.run(*program_);
    }
}

void MDIForm1::closeEvent(QCloseEvent* event) {
    if (service_->KeepsProgramOpen()) {
        event->ignore();
        return;
    }
    CommitPendingEdit(*this);
    if (!commands_->QueryExit()) {
        event->ignore();
        return;
    }
    StoreSettings(session_, services_.settings);
    tmrStatusBar_->SetEnabled(false);
    event->accept();
    emit Ended();
}

} // namespace zelvor
