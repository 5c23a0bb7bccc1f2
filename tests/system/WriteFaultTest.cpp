// Writes of a blank document to a radio that spoils a reply. Reply 1 acknowledges Entry, 2 is the identity, 3 an
// acknowledgement, and reply n + 3 acknowledges packet n.

#include "SystemTest.h"

namespace zelvor::test {
namespace {

class WriteFault : public SystemTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(WriteFault, PromptsAndRetryWritesAll) {
    Script([this] {
        Start({GetParam()});
        BeginWrite();
        ExpectPrompt();
        Radio().WaitForText(QByteArray("fault ") + GetParam() + " fired");
        Retry();
        ExpectWriteCompleted();
        ExpectBlankWritten();
    });
}

INSTANTIATE_TEST_SUITE_P(OfAReply, WriteFault,
                         ::testing::Values("drop@1", "cut:5@2", "corrupt@20", "delay:400@20", "hang@20", "unplug@20",
                                           "drop@52"),
                         FaultName);

class WriteTest : public SystemTest {};

TEST_F(WriteTest, CancelClosesAndTheNextWriteWorks) {
    Script([this] {
        Start({"corrupt@20"});
        BeginWrite();
        ExpectPrompt();
        CancelTransfer();
        BeginWrite();
        ExpectWriteCompleted();
        ExpectBlankWritten();
    });
}

TEST_F(WriteTest, ACancelledReadDoesNotHinderAWrite) {
    Script([this] {
        Start({"drop@1"});
        BeginRead();
        ExpectPrompt();
        CancelTransfer();
        BeginWrite();
        ExpectWriteCompleted();
        ExpectBlankWritten();
    });
}

} // namespace
} // namespace zelvor::test
