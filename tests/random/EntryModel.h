#pragma once

#include <QByteArray>
#include <QString>
#include <set>
#include <utility>

#include "random/Draws.h"
#include "random/EntryFields.h"
#include "tour/FieldEdits.h"

namespace zelvor::random {

/// Something that a user enters.
struct Entry {
    EntryWindow window;
    tour::FieldEdit edit;
};

/// The memory as it has to be by what was entered. Where a value belongs, and which bytes it has, is told here (and in
/// EntryFields.cpp) once more, so that it does not come from what is looked at.
class EntryModel {
public:
    explicit EntryModel(QByteArray image) : image_(std::move(image)) {}

    /// In address order.
    [[nodiscard]] const QByteArray& Image() const { return image_; }

    /// Draws something that can be entered now, and takes it as entered.
    [[nodiscard]] Entry Enter(Draws& draws);
    /// What the model does not tell (the flags of a channel that was edited) is taken from the document.
    void TakeUntold(const QByteArray& image);

    /// What a write to a radio does to the document.
    void PrepareForWrite();
    /// A radio's memory behind a write.
    [[nodiscard]] QByteArray WrittenTo(const QByteArray& radio) const;

private:
    [[nodiscard]] Entry EnterField(Draws& draws);
    [[nodiscard]] Entry EnterTestFrequency(Draws& draws);
    [[nodiscard]] Entry EnterChannelFrequency(Draws& draws);

    [[nodiscard]] bool CanBeUsed(const EntryField& field) const;
    [[nodiscard]] tour::FieldEdit EditOf(const EntryField& field, Draws& draws);
    [[nodiscard]] tour::FieldEdit NumberOf(const EntryField& field, Draws& draws);
    [[nodiscard]] tour::FieldEdit CharactersOf(const EntryField& field, Draws& draws);
    void Store(int address, const QByteArray& bytes) { image_.replace(address, bytes.size(), bytes); }
    [[nodiscard]] int At(int address) const { return static_cast<unsigned char>(image_[address]); }

    QByteArray image_;
    std::set<int> untold_; // addresses
};

} // namespace zelvor::random
