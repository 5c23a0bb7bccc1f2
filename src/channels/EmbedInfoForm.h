#pragma once

#include <array>

#include "channels/ChannelWindows.h"
#include "controls/ChildForm.h"
#include "data/EmbeddedMessage.h"

namespace zelvor {

class FilteredLineEdit;
struct Services;

/// The embedded message: its two lines, each stored when its box is left.
class EmbedInfoForm : public ChildForm {
    Q_OBJECT

public:
    EmbedInfoForm(Session& session, Services& services, ChannelWindows& windows, QWidget* parent = nullptr);
    /// A line that is still being edited is dropped.
    ~EmbedInfoForm() override;

    void CloseFromFrame() override;
    [[nodiscard]] std::string_view HelpPage() const override { return "embmsg.htm"; }

private:
    void BuildBoxes();
    void BuildButtons();
    void Load();
    void Commit(int line);

    Session& session_;
    Services& services_;
    std::array<FilteredLineEdit*, embedded_message::LineCount> txtMsg_{};
};

} // namespace zelvor
