#include "data/ObserverList.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace zelvor {
namespace {

class Listener {
public:
    explicit Listener(std::vector<int>& heard, std::function<void()> act = {}) : heard_(heard), act_(std::move(act)) {}
    void OnValue(int value) {
        heard_.push_back(value);
        if (act_) {
            act_();
        }
    }

private:
    std::vector<int>& heard_;
    std::function<void()> act_;
};

TEST(ObserverList, TellsEachInTheOrderOfTheirComing) {
    std::vector<int> heard;
    ObserverList<Listener> list;
    Listener first(heard, [&heard] { heard.push_back(-1); });
    Listener second(heard, [&heard] { heard.push_back(-2); });
    list.Add(first);
    list.Add(second);
    list.Tell(&Listener::OnValue, 5);
    EXPECT_EQ(heard, (std::vector<int>{5, -1, 5, -2}));
    list.Remove(first);
    list.Tell(&Listener::OnValue, 6);
    EXPECT_EQ(heard, (std::vector<int>{5, -1, 5, -2, 6, -2}));
}

TEST(ObserverList, WhoLeavesWhileItTellsHearsNoMoreAndWhoComesHearsTheNext) {
    std::vector<int> ofFirst;
    std::vector<int> ofSecond;
    std::vector<int> ofThird;
    ObserverList<Listener> list;
    Listener second(ofSecond);
    Listener third(ofThird);
    Listener first(ofFirst, [&] {
        list.Remove(second);
        list.Add(third);
    });
    list.Add(first);
    list.Add(second);
    list.Tell(&Listener::OnValue, 1);
    EXPECT_EQ(ofFirst, std::vector<int>{1});
    EXPECT_TRUE(ofSecond.empty());
    EXPECT_TRUE(ofThird.empty());
    list.Remove(first);
    list.Tell(&Listener::OnValue, 2);
    EXPECT_EQ(ofThird, std::vector<int>{2});
}

TEST(ObserverList, AnObserverBelongsToOneObject) {
    std::vector<int> heard;
    Listener listener(heard);
    ObserverList<Listener> list;
    list.Add(listener);
    const ObserverList<Listener> copy(list);
    copy.Tell(&Listener::OnValue, 1);
    EXPECT_TRUE(heard.empty());
    list = ObserverList<Listener>();
    list.Tell(&Listener::OnValue, 2);
    EXPECT_EQ(heard, std::vector<int>{2});
}

} // namespace
} // namespace zelvor
