#pragma once

#include <functional>

class QWidget;

namespace zelvor {

class ChildWindows;
class DocumentView;
class Session;
struct Services;

/// The choice of the language, and the switch of what is on screen where it has changed: the editors close, and the
/// main window and the channel grid get the texts of the new language. Nothing is stored, and the image stays.
class LanguageCommand {
public:
    /// The windows that the switch has to do with. applyMainWindowTexts sets the texts of menus and tool tips, and
    /// those of the toolkit itself.
    struct Windows {
        ChildWindows& children;
        DocumentView& view;
        QWidget& mainWindow;
        std::function<void()> applyMainWindowTexts;
    };

    LanguageCommand(Session& session, Services& services, Windows windows);

    void Choose();

private:
    /// Whether the dialog has changed the language.
    [[nodiscard]] bool AskLanguage();
    void Switch();

    Session& session_;
    Services& services_;
    Windows windows_;
};

} // namespace zelvor
