// Writes of a blank document to a radio that spoils a reply. Reply 1 acknowledges Entry, 2 is the identity, 3 an
// acknowledgement, and reply n + 3 acknowledges packet n.

#include "SystemTest.h"

namespace zelvor::test {
namespace {

class WriteFault : public SystemTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(WriteFault, PromptsAndRetryWritesAll) {
    Script([this] {
        WriteUntil(GetParam());
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
        WriteUntil("corrupt@20");
        CancelTransfer();
        BeginWrite();
        ExpectWriteCompleted();
        ExpectBlankWritten();
    });
}

TEST_F(WriteTest, ACancelledReadDoesNotHinderAWrite) {
    Script([this] {
        ReadUntil("drop@1");
        CancelTransfer();
        BeginWrite();
        ExpectWriteCompleted();
        ExpectBlankWritten();
    });
}

} // namespace
} // namespace zelvor::test
