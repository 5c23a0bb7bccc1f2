#pragma once

#include <algorithm>
#include <vector>

namespace zelvor {

/// Who listens to an object. An observer may come and go at any time, also while it is being told something. It belongs
/// to the one object that it was added to: a copy has no observers, and assigning to an object leaves its own.
template<typename Observer>
class ObserverList {
public:
    ObserverList() = default;
    ~ObserverList() = default;
    ObserverList(const ObserverList& /*other*/) {}
    ObserverList& operator=(const ObserverList& /*other*/) { return *this; }

    void Add(Observer& observer) { observers_.push_back(&observer); }
    void Remove(Observer& observer) { std::erase(observers_, &observer); }

    /// Calls a member function of each, in the order of their coming.
    template<typename... Parameters, typename... Arguments>
    void Tell(void (Observer::*what)(Parameters...), const Arguments&... arguments) const {
        const std::vector<Observer*> told = observers_;
        for (Observer* observer : told) {
            if (std::find(observers_.begin(), observers_.end(), observer) != observers_.end()) {
                (observer->*what)(arguments...);
            }
        }
    }

private:
    std::vector<Observer*> observers_;
};

} // namespace zelvor
