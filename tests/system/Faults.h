#pragma once

#include <initializer_list>
#include <string>
#include <vector>

namespace zelvor::test {

/// Every fault of every one of these replies, as zelvor-radio takes it; those that are more than a byte are cut, too.
/// The delay is milliseconds that are beyond the time-out.
[[nodiscard]] inline std::vector<std::string> EveryFaultOf(std::initializer_list<int> replies,
                                                           std::initializer_list<int> longReplies, int delay) {
    std::vector<std::string> faults;
    for (const int reply : replies) {
        for (const std::string& kind : {std::string("drop"), std::string("corrupt"), std::string("hang"),
                                        std::string("unplug"), "delay:" + std::to_string(delay)}) {
            faults.push_back(kind + "@" + std::to_string(reply));
        }
    }
    for (const int reply : longReplies) {
        faults.push_back("cut:1@" + std::to_string(reply));
    }
    return faults;
}

} // namespace zelvor::test
