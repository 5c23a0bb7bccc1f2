#include "data/ChannelPriority.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zelvor {
namespace {

class Heard : public ChannelPriorityObserver {
public:
    void OnPriorityMode() override { events.push_back("mode"); }
    void OnPriorityChannel(int n) override { events.push_back(std::to_string(n)); }
    std::vector<std::string> events;
};

TEST(ChannelPriority, StartsWithoutAChannelAndWithoutAComplaint) {
    const ChannelPriority priority;
    EXPECT_FALSE(priority.PriorityFixedMode());
    EXPECT_FALSE(priority.PriorityChannelError());
    EXPECT_EQ(priority.PriorityChannelNo(), 0);
}

TEST(ChannelPriority, FixedNeedsAChannelInTheImage) {
    for (int byte = 0; byte < 256; ++byte) {
        DataImage image;
        image.Set(0x161, static_cast<std::uint8_t>(byte));
        ChannelPriority priority;
        priority.SetMode(true, image);
        EXPECT_TRUE(priority.PriorityFixedMode());
        EXPECT_EQ(priority.PriorityChannelError(), byte < 1 || byte > 16) << byte;
        priority.SetMode(false, image);
        EXPECT_FALSE(priority.PriorityFixedMode());
        EXPECT_FALSE(priority.PriorityChannelError());
    }
}

TEST(ChannelPriority, AnotherModeThanFixedHasNoChannel) {
    ChannelPriority priority;
    priority.Mark(4);
    priority.SetMode(true, DataImage());
    EXPECT_EQ(priority.PriorityChannelNo(), 4);
    priority.SetMode(false, DataImage());
    EXPECT_EQ(priority.PriorityChannelNo(), 0);
}

TEST(ChannelPriority, AMarkEndsTheComplaintAndItsLossMakesNone) {
    ChannelPriority priority;
    priority.SetMode(true, DataImage());
    ASSERT_TRUE(priority.PriorityChannelError());
    priority.Mark(0);
    EXPECT_TRUE(priority.PriorityChannelError());
    priority.Mark(3);
    EXPECT_FALSE(priority.PriorityChannelError());
    priority.Mark(0);
    EXPECT_FALSE(priority.PriorityChannelError());
    EXPECT_EQ(priority.PriorityChannelNo(), 0);
}

TEST(ChannelPriority, AnEmptyEntryIsAComplaintInFixedOnly) {
    ChannelPriority priority;
    priority.Enter(0);
    EXPECT_FALSE(priority.PriorityChannelError());
    priority.SetMode(true, DataImage());
    priority.Enter(16);
    EXPECT_FALSE(priority.PriorityChannelError());
    EXPECT_EQ(priority.PriorityChannelNo(), 16);
    priority.Enter(0);
    EXPECT_TRUE(priority.PriorityChannelError());
    EXPECT_EQ(priority.PriorityChannelNo(), 0);
}

TEST(ChannelPriority, TellsOfEveryModeMarkAndEntry) {
    ChannelPriority priority;
    Heard heard;
    priority.Add(heard);
    priority.SetMode(true, DataImage());
    priority.Mark(3);
    priority.Enter(12);
    priority.SetError(true);
    EXPECT_EQ(heard.events, (std::vector<std::string>{"mode", "3", "12"}));
    priority.Remove(heard);
    priority.Mark(0);
    EXPECT_EQ(heard.events.size(), 3U);
}

} // namespace
} // namespace zelvor
