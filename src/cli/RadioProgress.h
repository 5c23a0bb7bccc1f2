#pragma once

#include <ostream>
#include <string_view>

namespace zelvor::cli {

/// Where an exchange with the radio shows how far it is. This one shows nothing.
class RadioProgress {
public:
    RadioProgress() = default;
    RadioProgress(const RadioProgress&) = delete;
    RadioProgress& operator=(const RadioProgress&) = delete;
    virtual ~RadioProgress() = default;

    virtual void Show(std::string_view /*what*/, int /*value*/, int /*maximum*/) {}
    /// Before a message, and at the end of the exchange.
    virtual void Clear() {}
};

/// A line of a terminal, written over again and again.
class RadioProgressBar : public RadioProgress {
public:
    explicit RadioProgressBar(std::ostream& terminal) : terminal_(terminal) {}

    void Show(std::string_view what, int value, int maximum) override;
    void Clear() override;

private:
    std::ostream& terminal_;
    bool isShown_ = false;
};

} // namespace zelvor::cli
