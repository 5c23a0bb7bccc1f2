#include "platform/PrinterLookUp.h"

#include <QTest>
#include <atomic>
#include <future>
#include <gtest/gtest.h>
#include <memory>
#include <thread>

namespace zelvor {
namespace {

using namespace std::chrono_literals;

constexpr auto LongPatience = 60s; // for what answers; nothing waits that long
constexpr auto ShortPatience = 50ms;

/// A printing system that answers when it is let. It outlives those who hang in it.
class Spooler {
public:
    PrinterLookUp::Ask Ask() {
        return [state = state_] {
            const int number = ++state->asked;
            state->mayAnswer.get_future().wait();
            return PrinterLookUp::Printers{{.name = "Printer " + std::to_string(number)}};
        };
    }
    [[nodiscard]] int Asked() const { return state_->asked; }
    /// Answers the question that is open, or the next one.
    void Answer() { state_->mayAnswer.set_value(); }
    void Rewind() { state_->mayAnswer = {}; }

private:
    struct State {
        std::atomic<int> asked = 0;
        std::promise<void> mayAnswer;
    };
    std::shared_ptr<State> state_ = std::make_shared<State>();
};

/// What was told, in the order of the telling.
using Answers = std::vector<std::optional<PrinterLookUp::Printers>>;

PrinterLookUp::Told Into(Answers& answers) {
    return [&answers](const std::optional<PrinterLookUp::Printers>& printers) { answers.push_back(printers); };
}

testing::AssertionResult AreTold(const Answers& answers, std::size_t count) {
    return QTest::qWaitFor([&] { return answers.size() >= count; }, 20'000) && answers.size() == count
               ? testing::AssertionSuccess()
               : testing::AssertionFailure() << answers.size() << " answers";
}

TEST(PrinterLookUp, TellsThePrintersFromTheEventLoop) {
    const auto window = std::this_thread::get_id();
    auto asker = std::make_shared<std::promise<std::thread::id>>();
    PrinterLookUp lookUp(
        [asker] {
            asker->set_value(std::this_thread::get_id());
            return PrinterLookUp::Printers{{.name = "Office", .isDefault = true, .isLandscape = true}};
        },
        LongPatience);
    Answers answers;
    std::thread::id teller;
    lookUp.Start([&](const std::optional<PrinterLookUp::Printers>& printers) {
        teller = std::this_thread::get_id();
        answers.push_back(printers);
    });
    EXPECT_TRUE(answers.empty());
    ASSERT_TRUE(AreTold(answers, 1));
    EXPECT_EQ(teller, window);
    EXPECT_NE(asker->get_future().get(), window);
    ASSERT_TRUE(answers[0].has_value());
    ASSERT_EQ(answers[0]->size(), 1U);
    EXPECT_EQ(answers[0]->front().name, "Office");
    EXPECT_TRUE(answers[0]->front().isDefault);
    EXPECT_TRUE(answers[0]->front().isLandscape);
}

TEST(PrinterLookUp, TellsNothingWhereThereIsNoAnswerInTime) {
    Spooler spooler;
    PrinterLookUp lookUp(spooler.Ask(), ShortPatience);
    Answers answers;
    lookUp.Start(Into(answers));
    ASSERT_TRUE(AreTold(answers, 1));
    EXPECT_FALSE(answers[0].has_value());
    spooler.Answer();
}

TEST(PrinterLookUp, LetsTheEventLoopRunWhileItWaits) {
    Spooler spooler;
    PrinterLookUp lookUp(spooler.Ask(), LongPatience);
    Answers answers;
    lookUp.Start(Into(answers));
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&ticks] { ++ticks; });
    timer.start(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return ticks >= 10; }));
    EXPECT_TRUE(answers.empty());
    spooler.Answer();
    ASSERT_TRUE(AreTold(answers, 1));
    EXPECT_TRUE(answers[0].has_value());
}

TEST(PrinterLookUp, AsksOnceForAllWhoWaitAtTheSameTime) {
    Spooler spooler;
    PrinterLookUp lookUp(spooler.Ask(), LongPatience);
    Answers answers;
    lookUp.Start(Into(answers));
    lookUp.Start(Into(answers));
    spooler.Answer();
    ASSERT_TRUE(AreTold(answers, 2));
    EXPECT_EQ(answers[1]->front().name, "Printer 1");
    EXPECT_EQ(spooler.Asked(), 1);
}

TEST(PrinterLookUp, AsksAnewEachTime) {
    Spooler spooler;
    PrinterLookUp lookUp(spooler.Ask(), LongPatience);
    Answers answers;
    for (std::size_t time = 1; time <= 3; ++time) {
        spooler.Answer();
        lookUp.Start(Into(answers));
        ASSERT_TRUE(AreTold(answers, time));
        EXPECT_EQ(answers.back()->front().name, "Printer " + std::to_string(time));
        spooler.Rewind();
    }
}

// A printing system that hangs does not get a thread for every attempt.
TEST(PrinterLookUp, DoesNotAskTwiceAtATime) {
    Spooler spooler;
    PrinterLookUp lookUp(spooler.Ask(), ShortPatience);
    Answers answers;
    for (std::size_t attempt = 1; attempt <= 3; ++attempt) {
        lookUp.Start(Into(answers));
        ASSERT_TRUE(AreTold(answers, attempt));
        EXPECT_FALSE(answers.back().has_value());
    }
    EXPECT_EQ(spooler.Asked(), 1);
    spooler.Answer();
}

TEST(PrinterLookUp, TakesNoAnswerToAnEarlierQuestion) {
    std::promise<void> first;
    const auto asked = std::make_shared<std::atomic<int>>(0);
    PrinterLookUp lookUp(
        [asked, hang = first.get_future().share()] {
            const int number = ++*asked;
            if (number == 1) {
                hang.wait();
            }
            return PrinterLookUp::Printers{{.name = "Printer " + std::to_string(number)}};
        },
        500ms);
    Answers answers;
    lookUp.Start(Into(answers));
    ASSERT_TRUE(AreTold(answers, 1));
    EXPECT_FALSE(answers[0].has_value());
    first.set_value();
    lookUp.Start(Into(answers));
    ASSERT_TRUE(AreTold(answers, 2));
    ASSERT_TRUE(answers[1].has_value());
    EXPECT_EQ(answers[1]->front().name, "Printer 2");
}

TEST(PrinterLookUp, StartsTheNextQuestionWhileItTells) {
    PrinterLookUp lookUp([] { return PrinterLookUp::Printers{}; }, LongPatience);
    Answers answers;
    lookUp.Start([&](const std::optional<PrinterLookUp::Printers>&) { lookUp.Start(Into(answers)); });
    ASSERT_TRUE(AreTold(answers, 1));
    EXPECT_TRUE(answers[0]->empty());
}

TEST(PrinterLookUp, EndsAtOnceWhileItsThreadHangs) {
    Spooler spooler;
    Answers answers;
    {
        PrinterLookUp lookUp(spooler.Ask(), ShortPatience);
        lookUp.Start(Into(answers));
    }
    QTest::qWait(2 * static_cast<int>(ShortPatience.count()));
    EXPECT_TRUE(answers.empty());
    spooler.Answer();
}

} // namespace
} // namespace zelvor
