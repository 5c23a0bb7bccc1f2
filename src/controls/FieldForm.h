#pragma once

#include "controls/ChildForm.h"

class QGridLayout;
class QLabel;

namespace zelvor {

struct Services;

/// A child window that edits fields of the image: a panel with the fields, and the buttons Close and Help below it.
/// Its controls store their own fields when they are left; closing stores the one that is still being edited, and
/// unloading the window drops it.
class FieldForm : public ChildForm {
    Q_OBJECT

public:
    ~FieldForm() override;

    void CloseFromFrame() override;

protected:
    /// caption: number of the title in the string table.
    FieldForm(ChildWindow window, std::string_view objectName, QSize contentTwips, std::string_view panelName,
              int caption, Session& session, Services& services, QWidget* parent);

    /// The panel, and what lies on it, fill the window above the buttons. It has no layout of its own.
    [[nodiscard]] QWidget* Panel() const { return panel_; }
    [[nodiscard]] Session& TheSession() const { return session_; }
    [[nodiscard]] Services& TheServices() const { return services_; }
    [[nodiscard]] QString LoadText(int n) const;

private:
    void BuildButtons();

    Session& session_;
    Services& services_;
    QWidget* panel_;
};

/// Rows of a label and its control, or of a check box alone, one below the other in a container (a panel, a frame or a
/// page of tabs). Names each control after its label for assistive technology.
class FieldRows {
public:
    FieldRows(QWidget& container, Language language);

    /// Returns the label, named and captioned, with the control as its buddy.
    QLabel* Add(const QString& labelName, int label, QWidget* control);
    /// A control without a label, over the whole width: a check box, a frame.
    void Add(QWidget* control);
    /// What is left of the height stays empty below the rows.
    void End();

private:
    QGridLayout* layout_;
    Language language_;
};

} // namespace zelvor
