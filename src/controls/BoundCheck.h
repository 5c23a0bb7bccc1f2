#pragma once

#include <QCheckBox>

#include "data/Fields.h"

namespace zelvor {

class EditWatch;

/// A check box bound to its byte of the image: stored as 0 or 1 when the box is left. Enter moves on like Tab.
class BoundCheck : public QCheckBox {
    Q_OBJECT

public:
    /// Captioned with the field's label. Field and image must outlive it.
    BoundCheck(const QString& name, const CheckField& field, DataImage& image, Language language,
               QWidget* parent = nullptr);

    /// Shows the image's byte. Raises toggled where that changes the mark, as a user's click does.
    void Load();
    /// Stores what is shown.
    void Commit();

signals:
    /// The focus went to another control; another window in front, and the menu bar, are no such thing.
    void FocusLeft();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    EditWatch* watch_;
    const CheckField& field_;
    DataImage& image_;
};

} // namespace zelvor
