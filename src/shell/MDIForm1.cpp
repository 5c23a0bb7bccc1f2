#include "shell/MDIForm1.h"

#include <QCloseEvent>
#include <QMdiArea>
#include <QMenuBar>
#include <QShortcut>
#include <algorithm>

#include "controls/PendingEdit.h"
#include "controls/WindowState.h"
#include "data/BlankImage.h"
#include "data/Document.h"
#include "link/LinkState.h"
#include "platform/Clock.h"
#include "platform/LayoutUnits.h"
#include "platform/ScreenRoom.h"
#include "platform/Services.h"
#include "platform/Toolkit.h"
#include "service/ServiceState.h"
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

MDIForm1::MDIForm1(const ProgramState& state, Services& services)
    : state_(state), services_(services), menuTree_(MenuTree()), keyCommands_(KeyCommands()) {
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
    children_ = std::make_unique<ChildWindows>(state_.windows, area, *windowList_, [this](const ChildWindowRow& row) {
        return row.make({state_.document, state_.windows, services_, *children_, isStarted_});
    });
}

void MDIForm1::BuildCommands() {
    view_ = std::make_unique<DocumentView>(state_.document, state_.windows, services_, *children_, *windowList_, *this);
    commands_ = std::make_unique<SessionCommands>(state_.document, state_.windows, services_, *view_);
    transfers_ = std::make_unique<TransferCommands>(state_, services_, *view_, *this);
    service_ = std::make_unique<ServiceCommands>(state_, services_, *this);
    connect(service_.get(), &ServiceCommands::InformationRead, this, &MDIForm1::GetDJJInfo);
    // Test mode has no entry of its own in the window list.
    connect(service_.get(), &ServiceCommands::TestModeActivated, this,
            [this] { windowList_->Mark(ChildWindow::TestFrequency); });
    connect(service_.get(), &ServiceCommands::ExchangeTold, statusBar1_, &StatusBar1::ShowExchange);
    language_ =
        std::make_unique<LanguageCommand>(state_.document, state_.windows, services_, *children_, *view_, *this);
    connect(language_.get(), &LanguageCommand::Switched, this, &MDIForm1::ApplyLanguage);
    dialogs_ = std::make_unique<DialogCommands>(state_, services_, *children_, *this);
    connect(dialogs_.get(), &DialogCommands::PortChosen, this,
            [this] { statusBar1_->ShowPort(state_.link.CommPortNumber); });
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
    state_.document.ClearWriteFlags();
    state_.windows.ExitConfirmed = false;
    state_.link.SentState = NothingSent;
    state_.link.CommPortNumber = 1;
    statusBar1_->ShowPort(state_.link.CommPortNumber);
    StartClock();
    RestoreModel(state_.document.Image, services_.settings);
    state_.windows.LanguageFlag = RestoreLanguage(services_.settings);
    ApplyLanguage();
    state_.windows.SetOpen(ChildWindow::Channels, true);
    view_->ListGrid();
    InitAllFrameData();
    state_.document.TakeSnapshot();
    state_.document.RenameToDefault();
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
    zelvor::InitAllFrameData(state_.document.Image);
}

void MDIForm1::ApplyMenuCaptions() {
    menus_->ApplyCaptions(state_.windows.LanguageFlag);
    toolbar1_->ApplyToolTips(state_.windows.LanguageFlag);
    statusBar1_->setAccessibleName(SpokenName(ToQString(state_.windows.LoadText(Text::MenuStatusBar))));
}

void MDIForm1::ApplyLanguage() {
    toolkitLanguage_.Use(state_.windows.LanguageFlag);
    service_->UseLanguage();
    ApplyMenuCaptions();
}

void MDIForm1::GetDJJInfo(const std::string& record) {
    auto& kept = state_.service.RadioInfoRecord;
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
    StoreSettings(state_.document.Image, state_.windows.LanguageFlag, services_.settings);
    tmrStatusBar_->SetEnabled(false);
    event->accept();
    emit Ended();
}

} // namespace zelvor
