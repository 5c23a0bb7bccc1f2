#pragma once

#include <array>

#include "channels/ChannelWindows.h"
#include "controls/FieldForm.h"
#include "data/EmbeddedMessage.h"

namespace zelvor {

class FilteredLineEdit;

/// The embedded message: its two lines, each stored when its box is left.
class EmbedInfoForm : public FieldForm {
    Q_OBJECT

public:
    EmbedInfoForm(Session& session, Services& services, ChannelWindows& windows, QWidget* parent = nullptr);

    [[nodiscard]] bool OpensAtOrigin() const override { return false; }
    [[nodiscard]] std::string_view HelpPage() const override { return "embmsg.htm"; }

private:
    void BuildBoxes();
    void Load();
    void Commit(int line);

    std::array<FilteredLineEdit*, embedded_message::LineCount> txtMsg_{};
};

} // namespace zelvor
