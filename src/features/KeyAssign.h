#pragma once

#include "controls/FieldForm.h"

namespace zelvor {

class BoundList;
class RadioPicture;

/// The functions of the radio's two programmable keys, with a picture that marks the key whose function is being set.
class KeyAssign : public FieldForm {
    Q_OBJECT

public:
    KeyAssign(Document& document, const WindowState& windows, Services& services, QWidget* parent = nullptr);

    [[nodiscard]] std::string_view HelpPage() const override { return "keyassign.htm"; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    RadioPicture* Pickey_;
    BoundList* pf1_ = nullptr;
    BoundList* pf2_ = nullptr;
};

} // namespace zelvor
