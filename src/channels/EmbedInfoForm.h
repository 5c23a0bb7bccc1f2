#pragma once

#include <array>

#include "controls/FieldForm.h"
#include "data/EmbeddedMessage.h"

class QGridLayout;
class QLabel;

namespace zelvor {

class FilteredLineEdit;

/// The embedded message: its two lines, each stored when its box is left. Beside a line's caption stands how much may
/// still be typed, and what of the line cannot be stored.
class EmbedInfoForm : public FieldForm {
    Q_OBJECT

public:
    EmbedInfoForm(Document& document, const WindowState& windows, Services& services, QWidget* parent = nullptr);

    [[nodiscard]] bool OpensAtOrigin() const override { return false; }
    [[nodiscard]] std::string_view HelpPage() const override { return "embmsg.htm"; }

private:
    void BuildLines();
    void BuildLine(int line, QGridLayout& layout);
    void ShowHint(int line);
    void Load();
    void Commit(int line);

    std::array<FilteredLineEdit*, embedded_message::LineCount> txtMsg_{};
    std::array<QLabel*, embedded_message::LineCount> lblMsgHint_{};
};

} // namespace zelvor
