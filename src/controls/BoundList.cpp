#include "controls/BoundList.h"

#include "platform/Toolkit.h"

namespace zelvor {

BoundList::BoundList(const QString& name, const ListField& field, DataImage& image, Language language, QWidget* parent)
    : FieldList(parent), field_(field), image_(image) {
    setObjectName(name);
    QStringList entries;
    for (const FieldWord& word : field.words) {
        entries.append(ToQString(word.In(language)));
    }
    SetEntries(entries);
    connect(this, &FieldList::FocusLeft, this, &BoundList::Commit);
}

void BoundList::Load() {
    setCurrentIndex(EntryOf(field_, image_.At(field_.address)));
}

void BoundList::Commit() {
    if (const auto byte = ByteOf(field_, currentIndex())) {
        image_.Set(field_.address, *byte);
    }
    emit Committed();
}

} // namespace zelvor
