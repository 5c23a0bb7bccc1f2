#pragma once

#include <QObject>
#include <QPointer>

class QAbstractButton;
class QKeyEvent;
class QWidget;

namespace zelvor {

/// Access keys of a form's buttons: while the focus is in the form they come before those of the menu bar. By itself
/// the toolkit takes a letter that both have for ambiguous: it does neither at the first press, and takes turns after
/// it.
class AccessKeys : public QObject {
    Q_OBJECT

public:
    explicit AccessKeys(QWidget& form);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] QAbstractButton* ButtonOf(const QKeyEvent& key) const;
    bool Claim(QKeyEvent& key);
    bool Press(QObject& focus);

    QWidget& form_;
    QPointer<QAbstractButton> claimed_; // from the override of a shortcut to the key press that follows it
};

} // namespace zelvor
