#include "shell/ChildWindowRows.h"

#include <array>

#include "channels/ChannelCaption.h"
#include "channels/ChannelEditForm.h"
#include "channels/ChannelForm.h"
#include "channels/EmbedInfoForm.h"
#include "channels/ScanForm.h"
#include "channels/TestChannelForm.h"
#include "data/Document.h"
#include "features/CorvaneForm.h"
#include "features/DTMFForm.h"
#include "features/KeyAssign.h"
#include "features/OptionalForm.h"
#include "shell/ChildWindows.h"
#include "shell/TreeViewForm.h"

namespace zelvor {

namespace {

template<typename Form>
ChildForm* Make(const ChildWindowParts& parts) {
    return new Form(parts.document, parts.windows, parts.services);
}

ChildForm* MakeGrid(const ChildWindowParts& parts) {
    auto* grid = new ChannelForm(parts.document, parts.windows, parts.services);
    ChildWindows* children = &parts.children;
    QObject::connect(grid, &ChannelForm::ChannelEditRequested, children, [children] {
        children->OpenChildWindow(ChildWindow::ChannelEdit);
        static_cast<ChannelEditForm&>(children->Load(ChildWindow::ChannelEdit)).OpenOnEditChannel();
    });
    QObject::connect(grid, &ChannelForm::ChannelEditHideRequested, children,
                     [children] { children->CloseByHiding(ChildWindow::ChannelEdit); });
    QObject::connect(grid, &ChannelForm::ChannelEditUnloadRequested, children,
                     [children] { children->CloseByUnloading(ChildWindow::ChannelEdit); });
    // A grid that is made again after a cancelled exit must show the document that is there.
    if (parts.isStarted) {
        parts.document.Channels.DecodeImageToGrid(parts.document.Image, parts.windows.LanguageFlag);
    }
    return grid;
}

ChildForm* MakeNavigator(const ChildWindowParts& parts) {
    auto* navigator = new TreeViewForm(parts.document, parts.windows, parts.services);
    QObject::connect(navigator, &TreeViewForm::WindowChosen, &parts.children, &ChildWindows::OpenChildWindow);
    return navigator;
}

std::string GridCaption(const WindowState& windows) {
    return ChannelCaption(windows.LanguageFlag, windows.Cursor.CurrentChannel());
}

template<Text Name>
std::string Caption(const WindowState& windows) {
    return std::string(windows.LoadText(Name));
}

constexpr std::array<ChildWindowRow, ChildWindowCount> Rows{{
    {.window = ChildWindow::Channels,
     .menu = {{.name = "MnuEditChannelInformation", .text = Text::MenuChannelInformation}},
     .node = {{.key = "C1", .text = Text::ChannelInformationTitle}},
     .listCaption = GridCaption,
     .staysOpen = true,
     .make = MakeGrid},
    {.window = ChildWindow::OptionalFeatures,
     .menu = {{.name = "MnuEditOptionalFeatures", .text = Text::MenuOptionalFeatures, .separator = "MnuEditBlank1"}},
     .node = {{.key = "C2", .text = Text::OptionalFeaturesTitle}},
     .listCaption = Caption<Text::OptionalFeaturesTitle>,
     .make = Make<OptionalForm>},
    {.window = ChildWindow::KeyAssignment,
     .menu = {{.name = "MnuEditKeyAssignment", .text = Text::MenuKeyAssignment}},
     .node = {{.key = "C3", .text = Text::KeyAssignmentTitle}},
     .listCaption = Caption<Text::KeyAssignmentTitle>,
     .make = Make<KeyAssign>},
    {.window = ChildWindow::Scan,
     .menu = {{.name = "MnuEditScanInformation", .text = Text::MenuScanInformation}},
     .node = {{.key = "C4", .text = Text::ScanInformationTitle}},
     .listCaption = Caption<Text::ScanInformationTitle>,
     .make = Make<ScanForm>},
    {.window = ChildWindow::Dtmf,
     .menu = {{.name = "MnuEditDTMF", .text = Text::MenuDtmf, .separator = "MnuEditBlank2"}},
     .node = {{.key = "C5", .text = Text::DtmfTitle}},
     .listCaption = Caption<Text::DtmfTitle>,
     .make = Make<DTMFForm>},
    {.window = ChildWindow::Corvane,
     .menu = {{.name = "MnuEditCorvane", .text = Text::MenuCorvane}},
     .node = {{.key = "C6", .text = Text::CorvaneTitle}},
     .listCaption = Caption<Text::CorvaneTitle>,
     .make = Make<CorvaneForm>},
    {.window = ChildWindow::TestFrequency,
     .menu = {{.name = "MnuEditTestFrequency", .text = Text::MenuTestFrequency, .separator = "MnuEditBlank3"}},
     .node = {{.key = "C7", .text = Text::TestFrequencyTitle}},
     .listCaption = Caption<Text::TestFrequencyTitle>,
     .make = Make<TestChannelForm>},
    {.window = ChildWindow::EmbeddedMessage,
     .menu = {{.name = "MnuEditEmbeddedMessage", .text = Text::MenuEmbeddedMessage}},
     .node = {{.key = "C8", .text = Text::EmbeddedMessageTitle}},
     .listCaption = Caption<Text::EmbeddedMessageTitle>,
     .make = Make<EmbedInfoForm>},
    {.window = ChildWindow::Navigator, .make = MakeNavigator},
    {.window = ChildWindow::ChannelEdit, .listCaption = Caption<Text::ChannelEditTitle>, .make = Make<ChannelEditForm>},
}};

constexpr bool AreInOrder() {
    for (std::size_t i = 0; i < Rows.size(); ++i) {
        if (Rows[i].window != static_cast<ChildWindow>(i)) {
            return false;
        }
    }
    return true;
}
static_assert(AreInOrder());

} // namespace

std::span<const ChildWindowRow> ChildWindowRows() {
    return Rows;
}

const ChildWindowRow& RowOf(ChildWindow window) {
    return Rows[static_cast<std::size_t>(window)];
}

} // namespace zelvor
