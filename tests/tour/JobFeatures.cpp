// The windows of the Edit menu that set what all channels share.

#include <QApplication>

#include "tour/Checks.h"
#include "tour/FieldHands.h"
#include "tour/Job.h"
#include "tour/Program.h"
#include "tour/Screenshots.h"
#include "tour/WindowOnTop.h"
#include "tour/WindowThread.h"

namespace zelvor::tour {

namespace {

// For questions to the window thread.

bool HasFocus(const QString& window) {
    const QWidget* found = WidgetOnTop(window);
    return found && found->isAncestorOf(QApplication::focusWidget());
}

QString TitleOf(const QString& window) {
    const QWidget* found = WidgetOnTop(window);
    return found ? found->windowTitle() : QString("(no window)");
}

} // namespace

void Job::OpenChild(const QString& menuEntry, const QString& window) {
    user_.ChooseByMouse("MnuEdit", menuEntry);
    windows_.WaitUntil("the window " + window.toStdString(), [&] { return HasFocus(window); });
}

void Job::CloseChild(const QString& window) {
    user_.ClickOn("cmdClose of " + window.toStdString(), [&] { return PartOf(window, "cmdClose"); });
    windows_.WaitUntil("the window " + window.toStdString() + " to close",
                       [&] { return WidgetOnTop(window) == nullptr; });
}

void Job::EditFeatures() {
    for (const FeatureWindow& feature : round_.features) {
        EditFeature(feature);
        Done("Edit > " + feature.title.trimmed().toStdString() + ": " + std::to_string(feature.edits.size()) +
             " steps by the keys, and what they do to the document");
    }
}

void Job::EditFeature(const FeatureWindow& feature) {
    OpenChild(feature.menuEntry, feature.window);
    CheckEqual("title of " + feature.window.toStdString(), windows_.Ask([&] { return TitleOf(feature.window); }),
               feature.title);
    ShowHelpOf(feature.helpPage);
    FieldHands hands(windows_, user_);
    for (const FieldEdit& edit : feature.edits) {
        if (edit.kind == FieldEdit::Kind::Page) {
            screenshots_.Take(feature.picture); // of the page that is left
        }
        hands.Do(edit);
        CheckBytes("what " + edit.control.toStdString() + " leaves in the document",
                   program_->Image().mid(edit.address, edit.bytes.size()), edit.bytes, edit.address);
    }
    screenshots_.Take(feature.picture);
    CloseChild(feature.window);
}

} // namespace zelvor::tour
