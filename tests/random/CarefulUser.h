#pragma once

#include <QString>
#include <atomic>
#include <chrono>
#include <string>

#include "random/Draws.h"
#include "random/EntryModel.h"
#include "random/PluggedRadio.h"
#include "random/SessionPlan.h"
#include "tour/Boxes.h"
#include "tour/FieldHands.h"
#include "tour/User.h"
#include "tour/WindowThread.h"

namespace zelvor::random {

/// A user who knows what he enters, on a thread of its own: enters values at random in all windows, with the language,
/// windows, files and radios changing, reads and writes radios that fail, and looks whether file and radio hold exactly
/// what he has entered. Prints a line for every act before it is done, and leaves the program at the end.
class CarefulUser {
public:
    /// isOver is set when the program has ended its event loop.
    CarefulUser(SessionPlan plan, const std::atomic<bool>& isOver);

    /// Throws a tour::Failure where something is not as it was entered.
    void Run();

private:
    void Do(std::uint32_t number);
    void EnterSomething();
    void SwitchLanguage();
    void CloseWindow();
    /// Saves, and compares the file with what was entered.
    void Save();
    /// Opens the file that was saved last, and leaves the document unsaved.
    void OpenSaved();

    void Read();
    void Write();
    /// Whether it was completed. A prompt is answered by Retry, at last by Cancel.
    [[nodiscard]] bool Transfer(const char* menuEntry);
    [[nodiscard]] bool AnswerPrompts();
    void PlugOtherRadio();

    void Choose(const char* menuEntry);
    void Open(const EntryWindow& window);
    void Log(const std::string& act) const;

    const SessionPlan plan_;
    const std::atomic<bool>& isOver_;
    tour::WindowThread windows_{std::chrono::hours(2)};
    tour::User user_{windows_};
    tour::Boxes boxes_{windows_, user_};
    tour::FieldHands hands_{windows_, user_};
    Draws draws_;
    PluggedRadio radio_;
    QByteArray radioMemory_;
    EntryModel model_;
    QString file_;
    int files_ = 0;
    int number_ = 0;
};

} // namespace zelvor::random
