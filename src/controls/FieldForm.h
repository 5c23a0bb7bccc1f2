#pragma once

#include "controls/ChildForm.h"
#include "data/Document.h"
#include "data/Fields.h"

class QGridLayout;
class QLabel;

namespace zelvor {

struct Services;

/// A child window that edits fields of the image: a panel with the fields, and the buttons Close and Help below it.
/// Its controls store their own fields when they are left; closing stores the one that is still being edited.
class FieldForm : public ChildForm {
    Q_OBJECT

public:
    [[nodiscard]] bool OpensAtOrigin() const override { return true; }

protected:
    FieldForm(ChildWindow window, std::string_view objectName, QSize contentTwips, std::string_view panelName,
              Text caption, Document& document, const WindowState& windows, Services& services, QWidget* parent);

    /// The panel, and what lies on it, fill the window above the buttons. It has no layout of its own.
    [[nodiscard]] QWidget* Panel() const { return panel_; }
    [[nodiscard]] Document& TheDocument() const { return document_; }
    [[nodiscard]] const WindowState& TheWindows() const { return windows_; }
    [[nodiscard]] Language CurrentLanguage() const { return windows_.LanguageFlag; }
    [[nodiscard]] Services& TheServices() const { return services_; }
    [[nodiscard]] QString LoadText(Text name) const;

    /// Ends the building of the window: adds the buttons, which the tab key reaches after the fields, and lets every
    /// bound control of the panel show the image: spin texts first, then lists and then check boxes, each kind in the
    /// order of making.
    void LoadFields();
    /// Makes a control the one that gets the focus when the window is opened.
    void StartAt(QWidget& first);
    /// The Close button: the same as closing by the frame, unless a control of the window may refuse to be left.
    virtual void CloseFromButton() { emit UnloadRequested(); }

    void showEvent(QShowEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    void BuildButtons();

    Document& document_;
    const WindowState& windows_;
    Services& services_;
    QWidget* panel_;
    QWidget* first_ = nullptr;
    bool started_ = false; // the window was shown
};

/// Rows of a label and its control, or of a check box alone, one below the other in a container (a panel, a frame or a
/// page of tabs). Names each control after its label for assistive technology.
class FieldRows {
public:
    /// margin: round the rows; spacing: between them; in pixels.
    FieldRows(QWidget& container, Language language, int margin = 12, int spacing = 6);

    /// Returns the label, named and captioned, with the control as its buddy.
    QLabel* Add(const QString& labelName, const FieldWord& label, QWidget* control);
    /// The same with a text that is made for the occasion.
    QLabel* Add(const QString& labelName, const QString& label, QWidget* control);
    /// A control without a label, over the whole width: a check box, a frame.
    void Add(QWidget* control);
    /// Two controls without labels, each over half of the width.
    void AddPair(QWidget* left, QWidget* right);
    /// What is left of the height stays empty below the rows.
    void End();

private:
    QGridLayout* layout_;
    Language language_;
};

} // namespace zelvor
