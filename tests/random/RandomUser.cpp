#include "random/RandomUser.h"

#include <QApplication>
#include <array>
#include <cstdlib>
#include <iostream>
#include <utility>

#include "random/DisplayHands.h"
#include "random/ResidentMemory.h"
#include "random/ToolkitHands.h"
#include "random/WayOut.h"
#include "tour/WindowOnTop.h"

namespace zelvor::random {

namespace {

constexpr int ActsBetweenChecks = 15;
constexpr int MostChecksWithNobody = 3;
constexpr int ComplaintExit = 98;
constexpr int CheckPause = 400; // milliseconds

struct Stroke {
    Qt::Key key = Qt::Key_unknown;
    Qt::KeyboardModifiers modifiers;
    const char* name = "";
};
constexpr Qt::KeyboardModifiers None = Qt::NoModifier;
constexpr Qt::KeyboardModifiers Ctrl = Qt::ControlModifier;
constexpr Qt::KeyboardModifiers Alt = Qt::AltModifier;
constexpr std::array<Stroke, 22> Shortcuts{{
    {Qt::Key_N, Ctrl, "Ctrl+N"},     {Qt::Key_O, Ctrl, "Ctrl+O"},
    {Qt::Key_S, Ctrl, "Ctrl+S"},     {Qt::Key_S, Ctrl | Qt::ShiftModifier, "Ctrl+Shift+S"},
    {Qt::Key_P, Ctrl, "Ctrl+P"},     {Qt::Key_Q, Ctrl, "Ctrl+Q"},
    {Qt::Key_F1, None, "F1"},        {Qt::Key_F1, None, "F1"},
    {Qt::Key_F4, Ctrl, "Ctrl+F4"},   {Qt::Key_Tab, Ctrl, "Ctrl+Tab"},
    {Qt::Key_F, Ctrl, "Ctrl+F"},     {Qt::Key_F3, None, "F3"},
    {Qt::Key_Plus, Ctrl, "Ctrl++"},  {Qt::Key_Minus, Ctrl, "Ctrl+-"},
    {Qt::Key_Left, Alt, "Alt+Left"}, {Qt::Key_Home, Alt, "Alt+Home"},
    {Qt::Key_A, Ctrl, "Ctrl+A"},     {Qt::Key_C, Ctrl, "Ctrl+C"},
    {Qt::Key_V, Ctrl, "Ctrl+V"},     {Qt::Key_X, Ctrl, "Ctrl+X"},
    {Qt::Key_Z, Ctrl, "Ctrl+Z"},     {Qt::Key_Down, Alt, "Alt+Down"},
}};
constexpr std::array<Stroke, 23> EditKeys{{
    {Qt::Key_Tab, None, "Tab"},
    {Qt::Key_Tab, None, "Tab"},
    {Qt::Key_Backtab, None, "Backtab"},
    {Qt::Key_Return, None, "Return"},
    {Qt::Key_Return, None, "Return"},
    {Qt::Key_Enter, None, "Enter"},
    {Qt::Key_Escape, None, "Escape"},
    {Qt::Key_Escape, None, "Escape"},
    {Qt::Key_Space, None, "Space"},
    {Qt::Key_Space, None, "Space"},
    {Qt::Key_Up, None, "Up"},
    {Qt::Key_Down, None, "Down"},
    {Qt::Key_Down, None, "Down"},
    {Qt::Key_Left, None, "Left"},
    {Qt::Key_Right, None, "Right"},
    {Qt::Key_Home, None, "Home"},
    {Qt::Key_End, None, "End"},
    {Qt::Key_PageUp, None, "PageUp"},
    {Qt::Key_PageDown, None, "PageDown"},
    {Qt::Key_Backspace, None, "Backspace"},
    {Qt::Key_Delete, None, "Delete"},
    {Qt::Key_Menu, None, "Menu"},
    {Qt::Key_Alt, None, "Alt"},
}};
/// Without a slash, so that they name no file elsewhere.
constexpr std::array<const char*, 20> Texts{
    "1",    "0",     "9",    "16",   "255", "145.125", "470.00000", "999",     "A",          "Off",
    "67.0", "D023N", "*12#", "ABCD", "-5",  "Q 3 x z", "12345678",  "squelch", "0123456789", "FF"};
/// Names that a file dialog is given.
constexpr std::array<const char*, 6> Paths{"one.dat", "two.dat", "short.dat", "missing.dat", "folder", "three"};

const Stroke& SomeOf(const auto& strokes, std::uint32_t number) {
    return strokes[number % strokes.size()];
}

} // namespace

RandomUser::RandomUser(SessionPlan plan, const std::atomic<bool>& isOver)
    : plan_(std::move(plan)), isOver_(isOver), draws_(plan_.seed) {}

RandomUser::~RandomUser() = default;

void RandomUser::Run() {
    if (plan_.hands == "display") {
        hands_ = std::make_unique<DisplayHands>();
    } else {
        hands_ = std::make_unique<ToolkitHands>(isOver_);
    }
    radio_ = std::make_unique<PluggedRadio>(plan_.radioProgram, plan_.home, Draws(plan_.seed + 1));
    Pause(CheckPause);
    for (number_ = 1; number_ <= plan_.acts && !isOver_; ++number_) {
        Do(draws_.Next());
        if (number_ % ActsBetweenChecks == 0) {
            CheckWindows();
        }
        if (number_ == ActsBeforeMemory) {
            TellResidentMemory();
        }
    }
    TellResidentMemory();
    LeaveProgram(windows_, isOver_);
    radio_.reset();
}

void RandomUser::Do(const Draw& draw) {
    switch (draw.act) {
    case Act::ClickControl:
    case Act::ClickAnywhere:
    case Act::DoubleClick:
    case Act::RightClick:
    case Act::Drag:
    case Act::Wheel:
    case Act::AnswerBox:
    case Act::MapGesture:
    case Act::ArrangeWindow:
        UseMouse(draw);
        break;
    case Act::ChooseEntry:
        ChooseSomeEntry(draw);
        break;
    case Act::Shortcut:
        PressSomeShortcut(draw);
        break;
    case Act::EditKey:
        PressSomeKey(draw);
        break;
    case Act::Type:
        TypeSomething(draw);
        break;
    case Act::EnterPath:
        EnterSomePath(draw);
        break;
    case Act::CloseWindow:
        Log(draw, {});
        hands_->CloseWindow();
        break;
    case Act::PlugRadio:
        Log(draw, radio_->Turn());
        break;
    case Act::AskRadioThenTurnAway:
        AskTheRadioThenTurnAway(draw);
        break;
    }
    Pause(draw.pauseMilliseconds);
}

std::optional<Target> RandomUser::TargetOf(const Draw& draw) {
    return windows_.Ask([draw]() -> std::optional<Target> {
        const auto [first, second, third, fourth] = draw.numbers;
        switch (draw.act) {
        case Act::ClickAnywhere:
            return SomePlace(first, second);
        case Act::AnswerBox:
            return SomeAnswer(first);
        case Act::MapGesture:
            return MapCorner();
        default:
            return SomeControl(first, second, third);
        }
    });
}

void RandomUser::UseMouse(const Draw& draw) {
    const std::optional<Target> target = TargetOf(draw);
    Log(draw, target ? target->name : "nothing there");
    if (!target) {
        return;
    }
    const std::uint32_t way = draw.numbers[3];
    constexpr int dragSpread = 300;
    const QPoint by(static_cast<int>(way % dragSpread) - dragSpread / 2,
                    static_cast<int>(way / dragSpread % dragSpread) - dragSpread / 2);
    switch (draw.act) {
    case Act::DoubleClick:
        hands_->DoubleClick(target->spot);
        break;
    case Act::RightClick:
        hands_->Click(target->spot, Qt::RightButton, None);
        break;
    case Act::Drag:
        hands_->Drag(target->spot, by);
        break;
    case Act::Wheel:
        hands_->Wheel(target->spot, way % 2 == 0);
        break;
    case Act::MapGesture:
        hands_->Click(target->spot, Qt::LeftButton, Ctrl | Alt);
        break;
    case Act::ArrangeWindow:
        hands_->Arrange(target->spot, way);
        break;
    default:
        hands_->Click(target->spot, Qt::LeftButton, None);
    }
}

void RandomUser::Choose(const MenuKeys& entry) {
    Press(entry.menu, Alt);
    Press(entry.entry);
}

void RandomUser::ChooseSomeEntry(const Draw& draw) {
    if (windows_.Ask(IsDialogInFront)) { // there are no menus: mostly it is left
        draw.numbers[1] % 3 == 0 ? EnterSomePath(draw) : PressEscape(draw);
        return;
    }
    const auto entry = windows_.Ask([number = draw.numbers[0]] { return SomeEntry(number); });
    Log(draw, entry ? entry->name : "nothing there");
    if (entry) {
        Choose(*entry);
    }
}

void RandomUser::PressEscape(const Draw& draw) {
    Log(draw, "Escape");
    Press(Qt::Key_Escape);
}

void RandomUser::PressSomeShortcut(const Draw& draw) {
    const Stroke& stroke = SomeOf(Shortcuts, draw.numbers[0]);
    Log(draw, stroke.name);
    Press(stroke.key, stroke.modifiers);
}

void RandomUser::PressSomeKey(const Draw& draw) {
    const Stroke& stroke = SomeOf(EditKeys, draw.numbers[0]);
    constexpr std::uint32_t most = 6;
    const std::uint32_t times = draw.numbers[1] % 4 == 0 ? 1 + draw.numbers[2] % most : 1;
    Log(draw, stroke.name + std::string(" x") + std::to_string(times));
    for (std::uint32_t i = 0; i < times; ++i) {
        Press(stroke.key, stroke.modifiers);
    }
}

void RandomUser::TypeSomething(const Draw& draw) {
    const char* text = Texts.at(draw.numbers[0] % Texts.size());
    Log(draw, text);
    hands_->Type(text);
}

void RandomUser::EnterSomePath(const Draw& draw) {
    if (!windows_.Ask(IsFileDialogInFront)) {
        PressSomeKey(draw);
        return;
    }
    const char* path = Paths.at(draw.numbers[0] % Paths.size());
    Log(draw, path);
    Press(Qt::Key_A, Ctrl);
    hands_->Type(path);
    Press(Qt::Key_Return);
}

void RandomUser::AskTheRadioThenTurnAway(const Draw& draw) {
    constexpr std::array exchanges{"MnuToolRadioInformation", "MnuProgramTestMode", "MnuProgramRead",
                                   "MnuProgramWrite"};
    constexpr std::array turns{"MnuHelpTopics", "MnuHelpTopics", "MnuFileOpen", "MnuFileExit", "MnuHelpAbout"};
    const char* exchange = exchanges.at(draw.numbers[0] % exchanges.size());
    const char* turn = turns.at(draw.numbers[1] % turns.size());
    const auto entry = windows_.Ask([=] { return EntryNamed(exchange); });
    const auto next = windows_.Ask([=] { return EntryNamed(turn); });
    if (!entry || !next || windows_.Ask(IsDialogInFront)) {
        PressEscape(draw);
        return;
    }
    Log(draw, std::string(exchange) + ", " + turn);
    Choose(*entry);
    if (draw.numbers[2] % 2 == 0) {
        Press(Qt::Key_Return); // OK of a transfer
    }
    Choose(*next);
}

void RandomUser::Log(const Draw& draw, const std::string& details) const {
    std::cout << number_ << ' ' << NameOf(draw.act) << ": " << details << std::endl;
}

void RandomUser::Pause(int milliseconds) const {
    windows_.Pause(std::chrono::milliseconds(milliseconds));
}

void RandomUser::CheckWindows() {
    if (isOver_) {
        return;
    }
    if (const std::string complaint = windows_.Ask(Complaint); !complaint.empty()) {
        std::cerr << complaint << std::endl;
        std::_Exit(ComplaintExit);
    }
    // An exchange that is just turning into its window has the main window disabled and nothing else up.
    int times = 0;
    while (!isOver_ && windows_.Ask(IsNobodyThere)) {
        if (++times > MostChecksWithNobody) {
            std::cerr << "No window takes a click any more. " << windows_.Ask(tour::WindowsInAWord) << std::endl;
            std::_Exit(ComplaintExit);
        }
        Pause(CheckPause);
    }
}

} // namespace zelvor::random
