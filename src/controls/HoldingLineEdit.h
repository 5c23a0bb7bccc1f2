#pragma once

#include "controls/FilteredLineEdit.h"

namespace zelvor {

/// A text box that the user cannot leave for another control of its window while its text is none that it may hold: the
/// focus stays, and a click on the other control does nothing. Menus, other windows and commands take the focus all the
/// same; a menu or another program leaves the text to be finished later, the others have it put right.
///
/// FocusLeft is raised for legal texts only: before the Tab key looks for the next control, so that who listens may
/// enable that one, and once more when the focus goes.
class HoldingLineEdit : public FilteredLineEdit {
    Q_OBJECT

public:
    using Rule = std::function<bool(const QString& text)>;

    explicit HoldingLineEdit(Rule mayHold, QWidget* parent = nullptr);

signals:
    /// The box was to be left with an illegal text. Who listens tells the user and puts the text right.
    void Refused();

protected:
    bool focusNextPrevChild(bool next) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void Leave() override;

private:
    [[nodiscard]] const QWidget& Form() const;
    [[nodiscard]] bool IsLeft(Qt::FocusReason reason) const;
    void Hold();

    const Rule mayHold_;
    bool entered_ = false; // has the focus and was told so
};

} // namespace zelvor
