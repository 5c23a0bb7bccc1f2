#pragma once

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

namespace zelvor::tour {

/// The window thread as the script's thread sees it. The script runs beside it, so that a modal dialog, which keeps the
/// window thread in an event loop of its own, stops nothing: what is posted is served by whichever loop runs.
class WindowThread {
public:
    using Clock = std::chrono::steady_clock;

    /// After the limit every wait fails.
    explicit WindowThread(std::chrono::seconds limit) : end_(Clock::now() + limit) {}

    /// Has the work done on the window thread, in the order of posting; does not wait for it. It may open a modal
    /// dialog.
    static void Post(std::function<void()> work);

    /// The question's answer, found out on the window thread. It must not open a modal dialog.
    template<typename Question>
    auto Ask(Question question) -> std::invoke_result_t<Question>;

    /// Waits until the condition, asked on the window thread, holds.
    void WaitUntil(const std::string& what, const std::function<bool()>& condition,
                   std::chrono::milliseconds patience = std::chrono::seconds(10));

    /// Waits without asking anything.
    void Pause(std::chrono::milliseconds duration) const;

private:
    void FailIfLate(const std::string& what, Clock::time_point patienceEnd) const;

    Clock::time_point end_;
};

template<typename Question>
auto WindowThread::Ask(Question question) -> std::invoke_result_t<Question> {
    using Answer = std::invoke_result_t<Question>;
    // Shared: the script may give up while the question is still waiting.
    const auto task = std::make_shared<std::packaged_task<Answer()>>(std::move(question));
    std::future<Answer> answer = task->get_future();
    Post([task] { (*task)(); });
    while (answer.wait_for(std::chrono::milliseconds(50)) != std::future_status::ready) {
        FailIfLate("an answer of the window thread", Clock::time_point::max());
    }
    return answer.get();
}

} // namespace zelvor::tour
