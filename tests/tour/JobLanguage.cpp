// The language, switched at run time.

#include "tour/Checks.h"
#include "tour/Job.h"
#include "tour/Program.h"
#include "tour/Screenshots.h"
#include "tour/WindowOnTop.h"
#include "tour/WindowThread.h"

namespace zelvor::tour {

namespace {

struct Child {
    const char* menuEntry;
    const char* window;
};
constexpr Child Children[] = {
    {"MnuEditOptionalFeatures", "OptionalForm"}, {"MnuEditKeyAssignment", "KeyAssign"},
    {"MnuEditScanInformation", "ScanForm"},      {"MnuEditDTMF", "DTMFForm"},
    {"MnuEditCorvane", "CorvaneForm"},           {"MnuEditTestFrequency", "TestChannelForm"},
    {"MnuEditEmbeddedMessage", "EmbedInfoForm"},
};

} // namespace

void Job::SwitchLanguage() {
    const QByteArray before = program_->Image();
    for (const Child& child : Children) {
        OpenChild(child.menuEntry, child.window);
    }
    screenshots_.Take("all-windows");
    ChooseLanguage(words_, round_.otherWords);
    for (const Child& child : Children) {
        Check(std::string(child.window) + " is closed",
              windows_.Ask([&child] { return WidgetOnTop(child.window) == nullptr; }));
    }
    for (const Row& row : round_.otherRows) {
        CheckRow(row);
    }
    screenshots_.Take("other-language");
    ChooseLanguage(round_.otherWords, words_);
    for (const Row& row : round_.rows) {
        CheckRow(row);
    }
    CheckBytes("the document after two changes of the language", program_->Image(), before);
    Done("Setup > Language File Setup: to the other language with all windows open, and back");
}

void Job::ChooseLanguage(const Words& now, const Words& wanted) {
    user_.ChooseByMouse("MnuSetup", "MnuSetupLanguageFileSetup");
    boxes_.ExpectDialog("LanguageForm", now.languageCaption);
    user_.TabTo("ComLanguage");
    user_.Press(wanted.language == "english" ? Qt::Key_Up : Qt::Key_Down);
    screenshots_.Take("language");
    user_.Click("CmdOK");
    boxes_.WaitUntilGone("LanguageForm");
    CheckEqual("title of the main window", program_->Title(), wanted.titleHead + "Zelvor.dat]");
}

} // namespace zelvor::tour
