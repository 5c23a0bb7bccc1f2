#pragma once

#include <QObject>

class QWidget;

namespace zelvor {

class ChildWindows;
class Document;
class DocumentView;
class WindowState;
struct Services;

/// The choice of the language, and the switch of what is on screen where it has changed: the editors close, and the
/// main window and the channel grid get the texts of the new language. Nothing is stored, and the image stays.
class LanguageCommand : public QObject {
    Q_OBJECT

public:
    LanguageCommand(Document& document, WindowState& windows, Services& services, ChildWindows& children,
                    DocumentView& view, QWidget& mainWindow);

    void Choose();

signals:
    /// The texts of menus and tool tips, and those of the toolkit itself, are to be set.
    void Switched();

private:
    /// Whether the dialog has changed the language.
    [[nodiscard]] bool AskLanguage();
    void Switch();

    Document& document_;
    WindowState& windows_;
    Services& services_;
    ChildWindows& children_;
    DocumentView& view_;
    QWidget& mainWindow_;
};

} // namespace zelvor
