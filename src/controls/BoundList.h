#pragma once

#include "controls/FieldList.h"
#include "data/Fields.h"

namespace zelvor {

/// A list bound to its byte of the image: stored when the list is left.
class BoundList : public FieldList {
    Q_OBJECT

public:
    /// Filled with the field's words, none selected. Field and image must outlive it.
    BoundList(const QString& name, const ListField& field, DataImage& image, Language language,
              QWidget* parent = nullptr);

    /// Shows the image's byte. Raises Selected where an entry gets selected, as a user's choice does.
    void Load();
    /// Stores what is shown.
    void Commit();

signals:
    void Committed();

private:
    const ListField& field_;
    DataImage& image_;
};

} // namespace zelvor
