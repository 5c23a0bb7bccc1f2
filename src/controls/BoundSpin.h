#pragma once

#include "controls/SpinText.h"
#include "data/Fields.h"

namespace zelvor {

/// A spin text bound to its number of the image: brought into form and stored when the box is left.
class BoundSpin : public SpinText {
    Q_OBJECT

public:
    /// name is that of both parts behind "txt" and "upd". Field and image must outlive it. What is peculiar to the
    /// field's stepping or typing is given in `rules`; range, texts and limit come from the field.
    BoundSpin(const QString& name, const NumberField& field, DataImage& image, Language language,
              SpinTextRules rules = {}, QWidget* parent = nullptr);

    /// Shows what the image holds, legal or not.
    void Load();
    /// Brings the text into form and stores it.
    void Commit();
    /// Shows and stores a value.
    void PutAndStore(int value);

signals:
    /// The box was left and its value stored.
    void Committed(int value);

private:
    const NumberField& field_;
    DataImage& image_;
    const Language language_;
};

} // namespace zelvor
