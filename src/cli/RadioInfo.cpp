#include "cli/RadioInfo.h"

#include "cli/RadioCable.h"
#include "cli/RadioProgress.h"
#include "data/Document.h"
#include "data/MemoryMap.h"
#include "service/EntryEngine.h"
#include "service/RadioInformation.h"
#include "service/ServiceState.h"
#include "text/StringTable.h"

namespace zelvor::cli {

namespace {

constexpr TextPair Reading{"Reading radio information", "正在读取对讲机信息"};

// Milliseconds of a round of the event loop; all that happens, happens in it and at once.
constexpr int Round = 2;

/// One exchange by an EntryEngine, from its beginning to its end, without a window.
class RadioInfo : private EntryObserver {
public:
    RadioInfo(RadioCable& cable, const RadioMachine& machine, const Console& console)
        : link_(cable.Link()), machine_(machine), console_(console), engine_(document_, service_, link_, *this) {}
    RadioInfo(const RadioInfo&) = delete;
    RadioInfo& operator=(const RadioInfo&) = delete;
    ~RadioInfo() override = default;

    [[nodiscard]] TransferEnd Read();
    void Print() const;

private:
    void OnInformation(const std::string& record) override { record_.assign(record.begin(), record.end()); }
    void OnExchangeDone() override {}
    void OnInformationReady() override;
    void OnTestModeReady() override {}
    void OnProgress(int replies, int all) override { machine_.progress.Show(console_.Say(Reading), replies, all); }
    void OnExchangeEnded() override { isOver_ = true; }

    void PrintLine(Text label, std::string_view value) const;
    [[nodiscard]] std::uint8_t IdentityByte(int address) const;

    const RadioLink link_;
    const RadioMachine& machine_;
    const Console& console_;
    Document document_;    // of no use to this exchange
    ServiceState service_; // likewise
    EntryEngine engine_;
    std::vector<std::uint8_t> record_;
    TransferEnd end_ = TransferEnd::NoRadio;
    bool isOver_ = false;
};

TransferEnd RadioInfo::Read() {
    engine_.StartInformation();
    while (!isOver_) {
        link_.clock.WaitProcessingEvents(Round);
        if (!isOver_ && machine_.isInterrupted()) {
            engine_.Abort();
            end_ = TransferEnd::Interrupted;
            isOver_ = true;
        }
    }
    machine_.progress.Clear();
    return end_;
}

void RadioInfo::OnInformationReady() {
    end_ = TransferEnd::Done;
    isOver_ = true;
}

void RadioInfo::Print() const {
    const InformationModel model = InformationModelOf(IdentityByte(address::Family), IdentityByte(address::Market));
    const std::string serial = SerialNumberOf(record_);
    PrintLine(Text::ModelType, model.model);
    PrintLine(Text::FrequencyOfRadio, model.range);
    PrintLine(Text::SerialNumber, std::string_view(serial).substr(serial.find_first_not_of(' ')));
    PrintLine(Text::Version, InformationVersion);
}

void RadioInfo::PrintLine(Text label, std::string_view value) const {
    console_.out << TableText(console_.language, label) << ": " << Printable(value) << '\n';
}

/// The exchange goes on with an identity that was cut short.
std::uint8_t RadioInfo::IdentityByte(int address) const {
    const auto place = static_cast<std::size_t>(address - address::Identity);
    return place < engine_.Identity().size() ? engine_.Identity()[place] : 0xFF;
}

} // namespace

ExitStatus InfoOfRadio(const RadioRequest& request, RadioMachine& machine, const Console& console) {
    RadioCable cable(machine, request, console);
    cable.BeginExchange();
    RadioInfo info(cable, machine, console);
    if (const TransferEnd end = info.Read(); end != TransferEnd::Done) {
        cable.TellFailure({.end = end, .failure = cable.Failure()});
        return ExitStatus::NoRadio;
    }
    info.Print();
    return ExitStatus::Done;
}

} // namespace zelvor::cli
