#pragma once

#include <array>

#include "simulator/CloneResponder.h"
#include "simulator/EntryWord.h"
#include "simulator/ServiceResponder.h"

namespace zelvor {

/// The whole radio over a memory that the caller owns and that must outlive it: programming mode and tuning mode, one
/// at a time.
///
/// "PROGRAM" and "TUNING " start a session in every state, so that a session broken off anywhere can be tried again;
/// inside the data of a write packet the same bytes are data.
class RadioResponder : public Responder {
public:
    explicit RadioResponder(DataImage& memory) : clone_(memory), service_(memory) {}
    RadioResponder(const RadioResponder&) = delete;
    RadioResponder& operator=(const RadioResponder&) = delete;

    [[nodiscard]] std::optional<Reaction> Take(std::uint8_t byte) override;
    [[nodiscard]] std::optional<LineTime> Patience() const override { return mode_->Patience(); }
    [[nodiscard]] std::optional<Reaction> LineSilent() override;
    void Restart() override;

    [[nodiscard]] const CloneResponder& Clone() const { return clone_; }
    [[nodiscard]] const ServiceResponder& Service() const { return service_; }

private:
    struct Entry {
        EntryWord word;
        ModeResponder* mode = nullptr;
    };

    [[nodiscard]] Reaction Begin(const Entry& entry);
    void ForgetEntries();

    CloneResponder clone_;
    ServiceResponder service_;
    ModeResponder* mode_ = &clone_; // the one that gets the commands; it skips them until its entry has come
    std::array<Entry, 2> entries_{{{EntryWord("PROGRAM"), &clone_}, {EntryWord("TUNING "), &service_}}};
};

} // namespace zelvor
