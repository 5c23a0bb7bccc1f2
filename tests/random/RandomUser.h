#pragma once

#include <atomic>
#include <chrono>
#include <memory>
#include <optional>
#include <string>

#include "random/Draws.h"
#include "random/Hands.h"
#include "random/PluggedRadio.h"
#include "random/SessionPlan.h"
#include "random/Targets.h"
#include "tour/WindowThread.h"

namespace zelvor::random {

/// The user at random, on a thread of its own. Prints a line for every act before it is done. When all are done it
/// leaves the program, patiently, as a user would.
class RandomUser {
public:
    /// isOver is set when the program has ended its event loop.
    RandomUser(SessionPlan plan, const std::atomic<bool>& isOver);
    ~RandomUser();

    void Run();

private:
    void Do(const Draw& draw);
    // Each logs what it does before it does it.
    void UseMouse(const Draw& draw);
    void ChooseSomeEntry(const Draw& draw);
    void PressEscape(const Draw& draw);
    void PressSomeShortcut(const Draw& draw);
    void PressSomeKey(const Draw& draw);
    void TypeSomething(const Draw& draw);
    void EnterSomePath(const Draw& draw);
    /// Begins an exchange with the radio, and does something else at once.
    void AskTheRadioThenTurnAway(const Draw& draw);

    [[nodiscard]] std::optional<Target> TargetOf(const Draw& draw);
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) { hands_->Key(key, modifiers); }
    void Choose(const MenuKeys& entry);

    void Log(const Draw& draw, const std::string& details) const;
    void Pause(int milliseconds) const;
    void CheckWindows();

    const SessionPlan plan_;
    const std::atomic<bool>& isOver_;
    tour::WindowThread windows_{std::chrono::hours(1)};
    std::unique_ptr<Hands> hands_;
    std::unique_ptr<PluggedRadio> radio_;
    Draws draws_;
    int number_ = 0;
};

} // namespace zelvor::random
