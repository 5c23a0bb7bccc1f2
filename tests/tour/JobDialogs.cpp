// The dialogs that only show something or choose something.

#include <QApplication>
#include <QLineEdit>
#include <QRadioButton>

#include "tour/Checks.h"
#include "tour/Job.h"
#include "tour/Program.h"
#include "tour/Screenshots.h"
#include "tour/WindowOnTop.h"
#include "tour/WindowThread.h"

namespace zelvor::tour {

namespace {

// Questions to the window thread.

const QRadioButton* FirstPort() {
    return qobject_cast<QRadioButton*>(WidgetOnTop("optPort(0)"));
}

QWidget* Navigator() {
    return WidgetOnTop("TreeViewForm");
}

/// A window that edits the document, and a text that it shows of the sample radio.
struct Editor {
    const char* menuEntry; // empty: opened by the grid's button
    const char* window;
    const char* box;
    const char* text;
    const char* closeButton;
    const char* screenshot;
};
constexpr Editor Editors[] = {
    {"", "ChannelEditForm", "", "", "cmdOK", "channel-edit"},
    {"MnuEditScanInformation", "ScanForm", "txtPriorityCH", "1", "cmdClose", "scan-information"},
    {"MnuEditTestFrequency", "TestChannelForm", "", "", "cmdClose", "test-frequency"},
    {"MnuEditEmbeddedMessage", "EmbedInfoForm", "txtMsg(0)", "Sample radio", "cmdClose", "embedded-message"},
};

QString TextOf(const Editor& editor) {
    const auto* box = qobject_cast<QLineEdit*>(PartOf(editor.window, editor.box));
    return box ? box->text() : QString("(no box)");
}

} // namespace

void Job::ShowEditors() {
    for (const Editor& editor : Editors) {
        if (*editor.menuEntry == '\0') {
            user_.ClickOn("Channel Edit", [] { return PartOf("ChannelForm", "cmdChannelEdit"); });
        } else {
            user_.ChooseByMouse("MnuEdit", editor.menuEntry);
        }
        windows_.WaitUntil(editor.window, [&editor] { return WidgetOnTop(editor.window) != nullptr; });
        if (*editor.box != '\0') {
            CheckEqual(editor.box, windows_.Ask([&editor] { return TextOf(editor); }), editor.text);
        }
        screenshots_.Take(editor.screenshot);
        user_.ClickOn(editor.closeButton, [&editor] { return PartOf(editor.window, editor.closeButton); });
        windows_.WaitUntil("the window to close", [&editor] { return WidgetOnTop(editor.window) == nullptr; });
    }
    Done("channel edit, scan, test frequency and embedded message windows open and close");
}

void Job::ShowMenu() {
    user_.OpenMenu("MnuProgram");
    screenshots_.Take("program-menu");
    user_.CloseMenu();
    Done("menu Program opens and closes");
}

void Job::ShowAbout() {
    user_.ChooseByMouse("MnuHelp", "MnuHelpAbout");
    boxes_.ExpectDialog("AboutForm", words_.aboutCaption);
    CheckEqual("text of AboutForm", windows_.Ask([] { return TextOnTop("LblAbout"); }), words_.aboutText);
    screenshots_.Take("about");
    user_.Click("cmdClose");
    boxes_.WaitUntilGone("AboutForm");
    Done("Help > About Zelvor");
}

void Job::ShowModel() {
    user_.ChooseByMouse("MnuModel", "MnuModelInformation");
    boxes_.ExpectDialog("ModelTypeForm", words_.modelCaption);
    CheckEqual("model chosen", windows_.Ask([] { return TextOnTop("cboModelType"); }), "4618 (VHF)");
    CheckEqual("range chosen", windows_.Ask([] { return TextOnTop("cboFreq"); }), "136-174 MHz(M)");
    screenshots_.Take("model-information");
    user_.Click("cmdCancel");
    boxes_.WaitUntilGone("ModelTypeForm");
    CheckTitle("Zelvor.dat");
    Done("Model > Model Information: 4618, 136-174 MHz(M)");
}

void Job::ShowPorts() {
    user_.ChooseByMouse("MnuSetup", "MnuSetupCommunicationPort");
    boxes_.ExpectDialog("ComForm", words_.portCaption);
    CheckEqual("label of port 1", windows_.Ask([] { return FirstPort() ? FirstPort()->text() : QString(); }),
               words_.portLabel);
    Check("port 1 is there and chosen",
          windows_.Ask([] { return FirstPort()->isEnabled() && FirstPort()->isChecked(); }));
    screenshots_.Take("communication-port");
    user_.Click("cmdOK");
    boxes_.WaitUntilGone("ComForm");
    Done("Setup > Communication Port: the radio's port is there");
}

void Job::ShowNavigator() {
    user_.ChooseByMouse("MnuView", "MnuViewTreeView");
    windows_.WaitUntil("the navigator", [] { return Navigator() != nullptr; });
    screenshots_.Take("navigator");
    user_.DoubleClickNode(words_.channelNode);
    windows_.WaitUntil("the channel grid to get the keys", [] {
        const QWidget* focus = QApplication::focusWidget();
        return focus && focus->objectName() == "ChannelGrid";
    });
    user_.ChooseByMouse("MnuView", "MnuViewTreeView");
    windows_.WaitUntil("the navigator to get the keys", [] {
        const QWidget* focus = QApplication::focusWidget();
        return focus && focus->objectName() == "treView";
    });
    user_.ClickOn("the navigator's Close", [] {
        const QWidget* navigator = Navigator();
        return navigator ? navigator->findChild<QWidget*>("cmdClose") : nullptr;
    });
    windows_.WaitUntil("the navigator to close", [] { return Navigator() == nullptr; });
    Done("View > Tree View: a double click leads to the channel grid");
}

} // namespace zelvor::tour
