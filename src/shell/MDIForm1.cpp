#include "shell/MDIForm1.h"

#include <QAction>
#include <QCloseEvent>
#include <QMdiArea>
#include <QMenuBar>
#include <QShortcut>
#include <algorithm>
#include <array>

#include "channels/ChannelEditForm.h"
#include "channels/ChannelForm.h"
#include "channels/EmbedInfoForm.h"
#include "channels/ScanForm.h"
#include "channels/TestChannelForm.h"
#include "controls/PendingEdit.h"
#include "data/BlankImage.h"
#include "data/Session.h"
#include "features/CorvaneForm.h"
#include "features/DTMFForm.h"
#include "features/KeyAssign.h"
#include "features/OptionalForm.h"
#include "link/ComForm.h"
#include "platform/Clock.h"
#include "platform/HelpTopic.h"
#include "platform/HelpViewer.h"
#include "platform/LayoutUnits.h"
#include "platform/ScreenRoom.h"
#include "platform/Services.h"
#include "print/frmPrintList.h"
#include "shell/AboutForm.h"
#include "shell/ChildWindows.h"
#include "shell/DocumentView.h"
#include "shell/Icons.h"
#include "shell/LanguageCommand.h"
#include "shell/MemoryMapGesture.h"
#include "shell/Menus.h"
#include "shell/RememberedSettings.h"
#include "shell/ServiceCommands.h"
#include "shell/SessionCommands.h"
#include "shell/StatusBar1.h"
#include "shell/Toolbar1.h"
#include "shell/TransferCommands.h"
#include "shell/TreeViewForm.h"
#include "shell/WindowList.h"
#include "shell/bakGdForm.h"

namespace zelvor {

namespace {

constexpr QSize FirstSize(1100, 720);
constexpr int StatusBarMilliseconds = 1000;
/// Test mode has no entry of its own in the window list: it marks the one of the test frequencies.
constexpr int TestModeListEntry = 6;

struct EditEntry {
    std::string_view name;
    ChildWindow window;
};
constexpr std::array<EditEntry, 8> EditEntries{{
    {"MnuEditChannelInformation", ChildWindow::Channels},
    {"MnuEditOptionalFeatures", ChildWindow::OptionalFeatures},
    {"MnuEditKeyAssignment", ChildWindow::KeyAssignment},
    {"MnuEditScanInformation", ChildWindow::Scan},
    {"MnuEditDTMF", ChildWindow::Dtmf},
    {"MnuEditCorvane", ChildWindow::Corvane},
    {"MnuEditTestFrequency", ChildWindow::TestFrequency},
    {"MnuEditEmbeddedMessage", ChildWindow::EmbeddedMessage},
}};

} // namespace

MDIForm1::MDIForm1(Session& session, Services& services) : session_(session), services_(services) {
    SetUpWindow();
    ConnectFileMenu();
    ConnectEditMenu();
    ConnectProgramMenu();
    ConnectMemoryMapGesture();
    ConnectViewMenu();
    ConnectWindowMenu();
    ConnectHelpMenu();
    ConnectToolbar();
    RegisterChildWindows();
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

    menus_ = std::make_unique<Menus>(*menuBar());
    windowList_ = std::make_unique<WindowList>(menus_->Menu("MnuWindow"));
    toolbar1_ = new Toolbar1(*this);
    statusBar1_ = new StatusBar1(this);
    setStatusBar(statusBar1_);
    children_ = std::make_unique<ChildWindows>(session_, *area, *windowList_);
    view_ = std::make_unique<DocumentView>(session_, services_, *children_, *windowList_, *this);
    commands_ = std::make_unique<SessionCommands>(session_, services_, *view_);
    transfers_ = std::make_unique<TransferCommands>(session_, services_, *view_, *this);
    service_ = std::make_unique<ServiceCommands>(
        session_, services_,
        ServiceCommands::MainWindow{*this, [this](const std::string& record) { GetDJJInfo(record); },
                                    [this] { windowList_->Mark(TestModeListEntry); },
                                    [this](const QString& text) { statusBar1_->ShowExchange(text); }});
    language_ = std::make_unique<LanguageCommand>(
        session_, services_, LanguageCommand::Windows{*children_, *view_, *this, [this] { ApplyLanguage(); }});
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

void MDIForm1::RegisterChildWindows() {
    children_->Register(ChildWindow::Channels, [this] { return MakeGrid(); });
    children_->Register(ChildWindow::Navigator, [this] { return MakeNavigator(); });
    children_->Register(ChildWindow::OptionalFeatures, [this] { return new OptionalForm(session_, services_); });
    children_->Register(ChildWindow::KeyAssignment, [this] { return new KeyAssign(session_, services_); });
    children_->Register(ChildWindow::Dtmf, [this] { return new DTMFForm(session_, services_); });
    children_->Register(ChildWindow::Corvane, [this] { return new CorvaneForm(session_, services_); });
    children_->Register(ChildWindow::Scan, [this] { return new ScanForm(session_, services_); });
    children_->Register(ChildWindow::TestFrequency, [this] { return new TestChannelForm(session_, services_); });
    children_->Register(ChildWindow::EmbeddedMessage, [this] { return new EmbedInfoForm(session_, services_); });
    children_->Register(ChildWindow::ChannelEdit, [this] { return new ChannelEditForm(session_, services_); });
}

ChildForm* MDIForm1::MakeGrid() {
    auto* grid = new ChannelForm(session_, services_);
    connect(grid, &ChannelForm::ChannelEditRequested, this, [this] {
        children_->OpenChildWindow(ChildWindow::ChannelEdit);
        static_cast<ChannelEditForm&>(children_->Load(ChildWindow::ChannelEdit)).OpenOnEditChannel();
    });
    connect(grid, &ChannelForm::ChannelEditHideRequested, this,
            [this] { children_->CloseByHiding(ChildWindow::ChannelEdit); });
    connect(grid, &ChannelForm::ChannelEditUnloadRequested, this,
            [this] { children_->CloseByUnloading(ChildWindow::ChannelEdit); });
    // A grid that is made again after a cancelled exit must show the document that is there.
    if (isStarted_) {
        session_.Channels.DecodeImageToGrid(session_.Image, session_.LanguageFlag);
    }
    return grid;
}

ChildForm* MDIForm1::MakeNavigator() {
    auto* navigator = new TreeViewForm(session_, services_);
    connect(navigator, &TreeViewForm::WindowChosen, this,
            [this](ChildWindow window) { children_->OpenChildWindow(window); });
    return navigator;
}

void MDIForm1::ConnectFileMenu() {
    menus_->On("MnuFileNew", QKeySequence::New, [this] { ReplaceDocument(&SessionCommands::New); });
    menus_->On("MnuFileOpen", QKeySequence::Open, [this] { ReplaceDocument(&SessionCommands::Open); });
    menus_->On("MnuFileSave", QKeySequence::Save, [this] { commands_->Save(); });
    menus_->On("MnuFileSaveAs", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S), [this] { commands_->SaveAs(); });
    menus_->On("MnuFilePrint", QKeySequence::Print, [this] { ShowPrintList(); });
    menus_->On("MnuFileExit", QKeySequence(Qt::CTRL | Qt::Key_Q), [this] { close(); });
    menus_->On("MnuModelInformation", [this] { ReplaceDocument(&SessionCommands::ChangeModel); });
}

void MDIForm1::ConnectEditMenu() {
    for (const EditEntry& entry : EditEntries) {
        menus_->On(entry.name, [this, window = entry.window] { children_->OpenChildWindow(window); });
    }
}

void MDIForm1::ConnectProgramMenu() {
    menus_->On("MnuProgramRead", [this] { Transfer(&TransferCommands::Read); });
    menus_->On("MnuProgramWrite", [this] { Transfer(&TransferCommands::Write); });
    menus_->On("MnuProgramTestMode", [this] { service_->EnterTestMode(); });
    menus_->On("MnuToolRadioInformation", [this] { service_->ShowInformation(); });
    menus_->On("MnuSetupCommunicationPort", [this] { ShowCommunicationPort(); });
    menus_->On("MnuSetupLanguageFileSetup", [this] { language_->Choose(); });
}

void MDIForm1::ConnectMemoryMapGesture() {
    // The entry MnuProgramMemoryMap never shows: this is the only way.
    connect(new MemoryMapGesture(*centralWidget()), &MemoryMapGesture::Made, this,
            [this] { ReplaceDocument(&SessionCommands::EditMemoryMap); });
}

void MDIForm1::ConnectViewMenu() {
    menus_->On("MnuViewTreeView", [this] { children_->OpenNavigator(); });
    menus_->On("MnuViewToolbar", [this] { toolbar1_->setVisible(menus_->Entry("MnuViewToolbar").isChecked()); });
    menus_->On("MnuViewStatusBar", [this] { statusBar1_->setVisible(menus_->Entry("MnuViewStatusBar").isChecked()); });
}

void MDIForm1::ConnectWindowMenu() {
    menus_->On("MnuWindowCascade", [this] { children_->Arrange(Arrangement::Cascade); });
    menus_->On("MnuWindowHorizontally", [this] { children_->Arrange(Arrangement::TileHorizontally); });
    menus_->On("MnuWindowVertically", [this] { children_->Arrange(Arrangement::TileVertically); });
    menus_->On("MnuWindowArrangeIcon", [this] { children_->Arrange(Arrangement::Icons); });
    menus_->On("MnuWindowCloseAll", [this] { children_->CloseAll(); });
}

void MDIForm1::ConnectHelpMenu() {
    menus_->On("MnuHelpTopics", [this] { ShowHelpPage("general.htm"); });
    menus_->On("MnuHelpAbout", [this] { ShowAbout(); });
    auto* helpKey = new QShortcut(QKeySequence::HelpContents, this);
    connect(helpKey, &QShortcut::activated, this, &MDIForm1::ShowHelpOfActiveWindow);
}

void MDIForm1::ConnectToolbar() {
    toolbar1_->On(1, [this] { ReplaceDocument(&SessionCommands::New); });
    toolbar1_->On(2, [this] { ReplaceDocument(&SessionCommands::Open); });
    toolbar1_->On(3, [this] { commands_->Save(); });
    toolbar1_->On(5, [this] { ShowPrintList(); });
    toolbar1_->On(7, [this] { Transfer(&TransferCommands::Read); });
    toolbar1_->On(9, [this] { Transfer(&TransferCommands::Write); });
    toolbar1_->On(11, [this] { ShowAbout(); });
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

/// Test mode is entered with the document that the radio was compared with, or not at all.
void MDIForm1::ReplaceDocument(void (SessionCommands::*command)()) {
    service_->EndForAnother();
    (commands_.get()->*command)();
}

/// The transfer wants the port for itself.
void MDIForm1::Transfer(void (TransferCommands::*transfer)()) {
    service_->EndForAnother();
    (transfers_.get()->*transfer)();
}

void MDIForm1::ShowCommunicationPort() {
    service_->EndForAnother();
    CommitPendingEdit();
    ComForm dialog(session_, services_, this);
    connect(&dialog, &ComForm::PortChosen, this, [this] { statusBar1_->ShowPort(session_.CommPortNumber); });
    dialog.exec();
}

void MDIForm1::ShowPrintList() {
    CommitPendingEdit();
    frmPrintList(session_, services_, this).exec();
}

void MDIForm1::ShowAbout() {
    CommitPendingEdit();
    AboutForm(session_, this).exec();
}

void MDIForm1::ShowHelpPage(std::string_view page) {
    services_.help.ShowTopic(HelpTopicPath(session_.LanguageFlag, page));
}

void MDIForm1::ShowHelpOfActiveWindow() {
    const ChildForm* active = children_->ActiveForm();
    ShowHelpPage(active != nullptr ? active->HelpPage() : "general.htm");
}

void MDIForm1::closeEvent(QCloseEvent* event) {
    if (service_->KeepsProgramOpen() || !commands_->QueryExit()) {
        event->ignore();
        return;
    }
    StoreSettings(session_, services_.settings);
    tmrStatusBar_->SetEnabled(false);
    event->accept();
    emit Ended();
}

} // namespace zelvor
