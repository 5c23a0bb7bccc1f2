#pragma once

#include <QWidget>

#include "features/RadioShapes.h"
#include "text/Language.h"

namespace zelvor {

/// A picture of the radio that shows where a programmable key is. Drawn at the size it has, and so sharp on every
/// screen.
class RadioPicture : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int number READ Number)

public:
    /// Shows the picture for PF1.
    RadioPicture(Language language, QWidget* parent);

    void Mark(RadioKey key);
    /// The number of the picture that is shown: 103 for PF1, 105 for PF2.
    [[nodiscard]] int Number() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Language language_;
    RadioKey marked_ = RadioKey::Pf1;
};

} // namespace zelvor
