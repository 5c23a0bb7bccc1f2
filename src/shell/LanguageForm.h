#pragma once

#include <QDialog>

#include "text/Language.h"

class QComboBox;

namespace zelvor {

class WindowState;
struct Services;

/// Choice of the program's language. Shown modally; OK sets LanguageFlag, and any other end leaves it.
class LanguageForm : public QDialog {
    Q_OBJECT

public:
    LanguageForm(WindowState& windows, Services& services, QWidget* parent = nullptr);

    void accept() override;
    /// For who shows the dialog: whether there is anything to switch.
    [[nodiscard]] bool LanguageChanged() const;

private:
    void BuildControls();

    WindowState& windows_;
    Services& services_;
    const Language oldLanguage_;
    QComboBox* comLanguage_ = nullptr;
};

} // namespace zelvor
