// Reads and writes, with every reply spoilt in every way.

#include "CloneFuzz.h"
#include "data/MemoryMap.h"
#include "sweep/Sweep.h"

namespace zelvor::sweep {
namespace {

using fuzz::CloneFuzz;

const Bytes IdentityRequest{0x02};
const Bytes End{'E'};

struct TransferRules {
    using Session = CloneFuzz;

    int mode; // of transfer::
    Bytes course;

    [[nodiscard]] Bytes Course() const { return course; }
    [[nodiscard]] std::unique_ptr<CloneFuzz> Make(const fuzz::ExchangeInputs& inputs) const {
        return std::make_unique<CloneFuzz>(inputs, mode);
    }
    /// Nobody looks at what answers the End, nor at the first byte of an identity.
    [[nodiscard]] std::optional<bool> IsNoticed(const fuzz::SpoiltRadio::Reply& reply, Spoiling spoiling) const {
        const bool isUntested = reply.command == IdentityRequest && spoiling == Spoiling::Wrong;
        return reply.command == End || isUntested ? false : IsUsuallyNoticed(spoiling);
    }
};

struct ReadRules : TransferRules {
    static constexpr int Timeout = 500;

    /// In English; a blank document, and a programmed radio of its model.
    ReadRules() : TransferRules{transfer::Reading, {0, 0, 1}} {}

    void ExpectDone(const CloneFuzz& run, const CloneFuzz& /*undisturbed*/, const Case& /*spoilt*/,
                    const fuzz::SpoiltRadio::Reply& /*reply*/) const {
        EXPECT_TRUE(run.IsCompleted());
        EXPECT_EQ(run.Image(), run.MemoryBefore());
    }

    /// Replies 1 to 3 begin the session, then block k is reply 2k + 2, and an acknowledgement follows each. What has
    /// come of the image stays in it. One block may hold anything: the reply that was spoilt, or the first one behind
    /// the garbage.
    void ExpectGivenUp(const CloneFuzz& run, const CloneFuzz& /*undisturbed*/, const Case& spoilt) const {
        EXPECT_FALSE(run.IsCompleted());
        const bool isBehind = spoilt.spoiling == Spoiling::Garbage;
        const int come = std::max(0, (spoilt.reply - (isBehind ? 2 : 3)) / 2); // whole blocks
        const bool isAnything = isBehind || spoilt.spoiling == Spoiling::Wrong;
        for (int address = 0; address < 0x400; ++address) {
            const int block = 1 + address / 64;
            const bool isIdentity = address == address::Market || address == address::Family;
            if (isIdentity || (isAnything && block == come + 1)) {
                continue;
            }
            EXPECT_EQ(run.Image().At(address), (block <= come ? run.MemoryBefore() : run.ImageBefore()).At(address))
                << address;
        }
    }
};

struct WriteRules : TransferRules {
    static constexpr int Timeout = 200;

    /// In English; a programmed document, and a blank radio of its model.
    WriteRules() : TransferRules{transfer::Writing, {0, 1, 0}} {}

    void ExpectDone(const CloneFuzz& run, const CloneFuzz& undisturbed, const Case& /*spoilt*/,
                    const fuzz::SpoiltRadio::Reply& /*reply*/) const {
        EXPECT_TRUE(run.IsCompleted());
        EXPECT_EQ(run.Radio().Memory, undisturbed.Radio().Memory);
        EXPECT_EQ(run.Image(), undisturbed.Image());
    }

    /// Reply n + 3 acknowledges packet n: the radio has this one, and the next where garbage was behind the reply.
    void ExpectGivenUp(const CloneFuzz& run, const CloneFuzz& undisturbed, const Case& spoilt) const {
        EXPECT_FALSE(run.IsCompleted());
        const int sent = std::max(0, spoilt.reply - (spoilt.spoiling == Spoiling::Garbage ? 2 : 3));
        for (int address = 0; address < 0x400; ++address) {
            const bool isSent = PacketOf(address) > 0 && PacketOf(address) <= sent;
            const DataImage& expected = isSent ? undisturbed.Radio().Memory : run.MemoryBefore();
            EXPECT_EQ(run.Radio().Memory.At(address), expected.At(address)) << address;
        }
    }

    /// The packet, from 1, that brings an address; 0 where none does.
    [[nodiscard]] static int PacketOf(int address) {
        if (address < 0x180) {
            return 1 + address / 16;
        }
        if (address >= 0x1B8 && address < 0x200) {
            return 25 + (address - 0x1B8) / 16;
        }
        return address >= 0x200 && address < 0x340 ? 30 + (address - 0x200) / 16 : 0;
    }
};

TEST(CloneSweep, Read) {
    Count count("read");
    SweepAll(ReadRules(), count);
}

TEST(CloneSweep, Write) {
    Count count("write");
    SweepAll(WriteRules(), count);
}

} // namespace
} // namespace zelvor::sweep
