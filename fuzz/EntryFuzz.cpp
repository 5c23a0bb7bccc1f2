// Radio information, and the way into test mode, with a radio that answers with any bytes at any time.

#include <algorithm>
#include <memory>

#include "FuzzImages.h"
#include "Require.h"
#include "SpoiltExchange.h"
#include "data/Document.h"
#include "data/MemoryMap.h"
#include "service/EntryEngine.h"
#include "service/RadioInformation.h"
#include "service/ServiceState.h"
#include "text/Utf8.h"

namespace zelvor::fuzz {
namespace {

constexpr int LongestSession = 20'000; // milliseconds, of 37 exchanges that each take nearly their time-out

class EntryFuzz : private SpoiltExchange, private EntryObserver {
public:
    explicit EntryFuzz(FuzzInput& input) : SpoiltExchange(input) {
        isInformation_ = input.TakeBool();
        document_.Image = TakeImage(input);
        radio_.Memory = input.TakeBool() ? document_.Image : TakeImage(input);
    }

    void Run() {
        const DataImage image = document_.Image;
        const DataImage memory = radio_.Memory;
        Start();
        const int actions = input_.TakeByte() % 4;
        for (int i = 0; i < actions; ++i) {
            Act();
        }
        Require(RunsToItsEnd(clock_, LongestSession * 300, [this] { return ends_ > 0; }), "an entry ends");
        Require(clock_.TickCount() <= LongestSession * (5 + user_.Retries()), "an entry ends in time");
        clock_.Advance(LongestSession);
        Require(ends_ == 1, "an entry ends once");
        Require(!port_->IsOpen(), "the port is closed behind an entry");
        Require(isOpened_ || user_.HasGivenUp() || wasRefused_ || wasAborted_,
                "an entry that nobody gives up leads to its window");
        Require(radio_.Memory == memory, "an entry leaves the radio as it is");
        for (int address = 0; address < 0x400; ++address) {
            const bool isTuning = address >= address::Tuning && address < address::Identity;
            Require(document_.Image.At(address) == image.At(address) || (isTuning && !isInformation_),
                    "an entry stores tuning data only, and radio information nothing");
        }
    }

private:
    void Start() {
        ends_ = 0;
        if (isInformation_) {
            engine_.StartInformation();
        } else {
            engine_.StartTestMode();
        }
    }

    /// What the user does meanwhile.
    void Act() {
        clock_.Advance(input_.TakeByte());
        switch (input_.TakeByte() % 4) {
        case 0:
            engine_.SetLanguage(Language::Chinese);
            break;
        case 1:
            Start();
            break;
        case 2:
            engine_.Abort();
            wasAborted_ = true;
            ends_ = 1;
            break;
        default:
            break;
        }
    }

    void OnInformation(const std::string& record) override {
        const std::vector<std::uint8_t> bytes(record.begin(), record.end());
        Require(bytes.size() == 34, "a manufacturing record has 34 bytes");
        const std::string serial = SerialNumberOf(bytes);
        Require(Utf8Of(Utf16Of(serial)) == serial, "a serial number is UTF-8");
        const std::vector<std::uint8_t>& identity = engine_.Identity();
        Require(identity.size() == 8, "the record comes behind an identity");
        static_cast<void>(InformationModelOf(identity[6], identity[5]));
    }
    void OnExchangeDone() override {}
    void OnInformationReady() override { End(isInformation_); }
    void OnTestModeReady() override {
        End(!isInformation_ && engine_.IsEntryDone());
        for (const TestFrequencyTexts& texts : service_.TestFrequencyText) {
            Require(texts.receive.size() == 9 || texts.receive == "0", "a test channel has its frequency");
        }
    }
    void OnExchangeEnded() override {
        ++ends_;
        wasRefused_ = wasRefused_ || !user_.HasGivenUp();
    }
    void OnProgress(int replies, int all) override { Require(replies >= 0 && replies <= all, "progress has an end"); }

    void End(bool isWanted) {
        Require(isWanted, "the window that opens is the one that was asked for");
        Require(!port_->IsOpen(), "a window opens on a closed port");
        ++ends_;
        isOpened_ = true;
    }

    Document document_;
    ServiceState service_;
    EntryEngine engine_{document_, service_, {link_, *port_, clock_, user_, Language::English}, *this};
    bool isInformation_ = false;
    int ends_ = 0;
    bool isOpened_ = false;
    bool wasRefused_ = false; // the test frequencies differ
    bool wasAborted_ = false;
};

} // namespace
} // namespace zelvor::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    zelvor::fuzz::FuzzInput input(bytes, count);
    zelvor::fuzz::EntryFuzz(input).Run();
    return 0;
}
