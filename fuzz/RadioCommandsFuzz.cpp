// What zelvor-cli does with a radio, which answers with any bytes at any time.

#include <algorithm>
#include <sstream>

#include "FuzzImages.h"
#include "Require.h"
#include "SpoiltRadio.h"
#include "cli/RadioInfo.h"
#include "cli/RadioProgress.h"
#include "cli/RadioRead.h"
#include "cli/RadioVerify.h"
#include "cli/RadioWrite.h"
#include "data/DataFile.h"
#include "fakes/FakeFileStore.h"
#include "fakes/FakeFolder.h"

namespace zelvor::fuzz {
namespace {

constexpr const char* Path = "a.dat";
constexpr int LongestCommand = 10 * 60'000; // milliseconds, of three transfers with three tries each

std::string ContentOf(const DataImage& image) {
    const DataFileBytes bytes = EncodeDataFile(image);
    return {bytes.begin(), bytes.end()};
}

class RadioCommandsFuzz {
public:
    explicit RadioCommandsFuzz(FuzzInput& input) : input_(input), kind_(input.TakeByte()) {
        const std::uint8_t interrupt = input.TakeByte();
        asksLeft_ = interrupt == 0 ? Never : interrupt * 40;
        request_ = {.port = 1, .retries = kind_ / 8 % 4, .overwritesModel = (kind_ & 0x20) != 0};
        image_ = TakeImage(input);
        radio_.Memory = input.TakeBool() ? image_ : TakeImage(input);
    }

    void Run() {
        const std::string content = ContentOf(image_);
        const DataImage memory = radio_.Memory;
        store_.Put(Path, content);
        const bool isWrite = kind_ % 4 == 1;
        const cli::ExitStatus status = RunCommand();
        Require(status != cli::ExitStatus::Usage, "a command ends in one of its ways");
        Require(clock_.TickCount() <= LongestCommand, "a command ends in time");
        Require(ports_.Port("MSComm1") == nullptr || !ports_.Port("MSComm1")->IsOpen(),
                "the port is closed behind a command");
        Require(store_.Content(Path) == content, "a command leaves the file that it is given");
        Require(isWrite || radio_.Memory == memory, "nothing but a write changes the radio");
        for (int address = 0; address < 0x400; ++address) {
            const bool isWritten = address < 0x180 || (address >= 0x1B8 && address < 0x340);
            Require(isWritten || radio_.Memory.At(address) == memory.At(address), "a write keeps to its bytes");
        }
        CheckRead(status, memory);
        CheckBackups(memory);
        const bool isBad = status == cli::ExitStatus::NoRadio || status == cli::ExitStatus::Unsafe;
        Require(!isBad || !errors_.str().empty(), "what went wrong is told");
    }

private:
    static constexpr int Never = -1;
    static constexpr const char* Output = "read.dat";

    cli::ExitStatus RunCommand() {
        cli::RadioMachine machine{ports_, clock_, store_, backups_, progress_, [this] { return IsInterrupted(); }};
        const cli::Console console{out_, errors_, (kind_ & 0x80) != 0 ? Language::Chinese : Language::English};
        switch (kind_ % 4) {
        case 0:
            return cli::ReadRadio({request_, Output}, machine, console);
        case 1:
            return cli::WriteRadio({request_, Path, true, (kind_ & 0x40) == 0}, machine, console);
        case 2:
            return cli::VerifyRadio({request_, Path}, machine, console);
        default:
            return cli::InfoOfRadio(request_, machine, console);
        }
    }

    bool IsInterrupted() {
        asksLeft_ -= asksLeft_ > 0 ? 1 : 0;
        return asksLeft_ == 0;
    }

    void CheckRead(cli::ExitStatus status, const DataImage& memory) {
        const bool isDone = kind_ % 4 == 0 && status == cli::ExitStatus::Done;
        Require(store_.Has(Output) == isDone, "a file is written where a read is done, and only then");
        Require(!isDone || store_.Content(Output).size() == DataFileSize, "a read writes a whole file");
        Require(!isDone || IsReadToItsEnd(), "a read that is done has asked for all blocks");
        Require(!isDone || !radio_.IsUnspoilt() || store_.Content(Output) == ContentOf(memory),
                "a read without a fault brings the radio's memory");
    }

    /// The last commands of a read: the last block, once more, and the End.
    [[nodiscard]] bool IsReadToItsEnd() const {
        const std::vector<std::uint8_t> block{'R', 0x03, 0xC0, 0x40};
        const std::vector<std::vector<std::uint8_t>> last{block, {0x06}, block, {0x06}, {'E'}};
        const auto& commands = radio_.Commands();
        return commands.size() > last.size() && std::equal(last.rbegin(), last.rend(), commands.rbegin());
    }

    /// Nothing is written to a radio whose memory is not kept.
    void CheckBackups(const DataImage& memory) {
        const std::vector<std::string> names = backups_.FileNames();
        for (const std::string& name : names) {
            Require(store_.Content(backups_.PathOf(name)).size() == DataFileSize, "a backup is a whole file");
        }
        Require(radio_.Memory == memory || !names.empty(), "a write keeps a backup first");
    }

    FuzzInput& input_;
    FakeClock clock_;
    FakeSerialPorts ports_;
    SpoiltRadio radio_{input_, clock_, ports_};
    FakeFileStore store_;
    FakeFolder backups_{store_};
    cli::RadioProgress progress_;
    std::ostringstream out_;
    std::ostringstream errors_;
    std::uint8_t kind_;
    int asksLeft_ = Never; // of whether the user has interrupted
    cli::RadioRequest request_;
    DataImage image_;
};

} // namespace
} // namespace zelvor::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    zelvor::fuzz::FuzzInput input(bytes, count);
    zelvor::fuzz::RadioCommandsFuzz(input).Run();
    return 0;
}
