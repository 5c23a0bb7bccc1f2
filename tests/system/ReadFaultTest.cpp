// Reads over a pseudo-terminal from a radio that spoils a reply. Replies are counted from 1: 1 acknowledges Entry, 2 is
// the identity, 3 an acknowledgement, then block k is reply 2k + 2 and its acknowledgement reply 2k + 3.

#include "SystemTest.h"

namespace zelvor::test {
namespace {

class ReadFault : public SystemTest, public ::testing::WithParamInterface<std::string> {};

TEST_P(ReadFault, PromptsAndRetryReadsAll) {
    Script([this] {
        ReadUntil(QString::fromStdString(GetParam()));
        Retry();
        ExpectReadCompleted();
        ExpectSampleRead();
    });
}

INSTANTIATE_TEST_SUITE_P(OfAReply, ReadFault,
                         ::testing::Values("drop@1", "cut:5@2", "drop@3", "corrupt@17", "delay:600@17", "hang@17",
                                           "unplug@17", "cut:5@18", "drop@37"),
                         FaultName);

class CancelledRead : public SystemTest, public ::testing::WithParamInterface<std::string> {};

TEST_P(CancelledRead, ClosesAndTheNextReadWorks) {
    Script([this] {
        ReadUntil(QString::fromStdString(GetParam()), {"--unplugged", "100"});
        CancelTransfer();
        LetLateReplyCome(GetParam());
        BeginRead();
        ExpectReadCompleted();
        ExpectSampleRead();
    });
}

INSTANTIATE_TEST_SUITE_P(OfAReply, CancelledRead, ::testing::Values("hang@17", "unplug@17"), FaultName);

// Of scripts/sweep: the session's beginning, and the first, the second, the last block and its repetition. An identity
// is not looked at beyond its length.
std::vector<std::string> SweptFaults() {
    std::vector<std::string> faults = EveryFaultOf({1, 2, 3, 4, 5, 6, 7, 34, 35, 36, 37}, {2, 4, 6, 34, 36}, 600);
    std::erase(faults, "corrupt@2");
    return faults;
}

INSTANTIATE_TEST_SUITE_P(DISABLED_Sweep, ReadFault, ::testing::ValuesIn(SweptFaults()), FaultName);
INSTANTIATE_TEST_SUITE_P(DISABLED_Sweep, CancelledRead, ::testing::ValuesIn(SweptFaults()), FaultName);

class ReadTest : public SystemTest {};

TEST_F(ReadTest, ALateReplyInsideItsTimeIsNoFault) {
    Script([this] {
        do { // a machine that is too busy adds to the delay
            Start({"delay:300@17"});
            BeginRead();
            if (!IsPrompted()) {
                break;
            }
            CancelTransfer();
        } while (true);
        ExpectReadCompleted();
        Radio().WaitForText("fault delay:300@17 fired");
        ExpectSampleRead();
    });
}

TEST_F(ReadTest, ASecondFaultPromptsAgain) {
    Script([this] {
        Start({"drop@1", "drop@2"});
        BeginRead();
        RetryUntil("drop@1");
        Retry();
        RetryUntil("drop@2");
        Retry();
        ExpectReadCompleted();
        ExpectSampleRead();
    });
}

TEST_F(ReadTest, RetryWhileThePortIsAwayPromptsAgain) {
    Script([this] {
        ReadUntil("unplug@5", {"--unplugged", "600000"});
        Retry();
        ExpectPrompt();
        CancelTransfer();
    });
}

TEST_F(ReadTest, ARadioThatIsNotThereLeadsToThePrompt) {
    Script([this] {
        ReadUntil("unplug@1", {"--unplugged", "600000"});
        CancelTransfer();
        // From here on the port cannot even be opened.
        BeginRead();
        ExpectPrompt();
        CancelTransfer();
    });
}

} // namespace
} // namespace zelvor::test
