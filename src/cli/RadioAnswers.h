#pragma once

#include <functional>

#include "cli/Console.h"
#include "cli/RadioMachine.h"
#include "platform/MessageBoxes.h"

namespace zelvor::cli {

/// Answers what an exchange asks its user: the connection prompt with Retry as often as is wanted and then with Cancel,
/// another model as the command line says. What an exchange only tells is passed over.
class RadioAnswers : public MessageBoxes {
public:
    RadioAnswers(const RadioRequest& request, RadioProgress& progress, const Console& console)
        : request_(request), progress_(progress), console_(console) {}

    /// Another exchange begins, with all its retries.
    void Begin();
    /// Answers Cancel from now on, and says nothing.
    void GiveUp() { hasGivenUp_ = true; }
    [[nodiscard]] bool HasGivenUp() const { return hasGivenUp_; }
    MessageAnswer Show(const Message& message) override;
    /// Whether the exchange was ended because the radio is another model.
    [[nodiscard]] bool HasRefusedModel() const { return hasRefusedModel_; }

    /// Called by each connection prompt, before it is answered.
    std::function<void()> OnPrompt;

private:
    [[nodiscard]] MessageAnswer AnswerPrompt();
    [[nodiscard]] MessageAnswer AnswerModel();

    const RadioRequest request_;
    RadioProgress& progress_;
    const Console& console_;
    int retries_ = 0; // so far
    bool hasRefusedModel_ = false;
    bool hasGivenUp_ = false;
};

} // namespace zelvor::cli
