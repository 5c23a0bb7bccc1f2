#include "cli/RadioCable.h"

#include "cli/RadioProgress.h"
#include "cli/RadioTexts.h"
#include "data/Document.h"
#include "link/CloneFrames.h"
#include "platform/FileStore.h"

namespace zelvor::cli {

namespace {

constexpr TextPair Reading{"Reading", "正在读取"};
constexpr TextPair ReadingBack{"Reading back", "正在回读"};
constexpr TextPair Writing{"Writing", "正在写入"};

constexpr TextPair Interrupted{"interrupted", "已中断"};
constexpr TextPair ModelDiffers{
    "the radio is another model than the file is for; --overwrite-model writes all the same",
    "对讲机的机型与文件不同；用 --overwrite-model 仍可写入"};
constexpr TextPair NotKept{"a backup could not be kept in this folder", "无法在此文件夹中保存备份"};

} // namespace

RadioCable::RadioCable(RadioMachine& machine, const RadioRequest& request, const Console& console)
    : machine_(machine), request_(request), console_(console), backups_(machine.store, machine.backups, machine.clock),
      port_(machine.ports.Make("MSComm1")), answers_(request, machine.progress, console) {
    state_.CommPortNumber = request.port;
}

std::optional<DataImage> RadioCable::Read() {
    return ReadImage(Reading);
}

std::optional<DataImage> RadioCable::ReadBack() {
    return ReadImage(ReadingBack);
}

std::optional<DataImage> RadioCable::ReadImage(const TextPair& what) {
    Document document;
    const TransferReport report = Transfer(document, transfer::Reading, what);
    if (report.end != TransferEnd::Done) {
        TellFailure(report);
        return std::nullopt;
    }
    return document.Image;
}

TransferReport RadioCable::Write(Document& document) {
    return Transfer(document, transfer::Writing, Writing);
}

TransferReport RadioCable::Transfer(Document& document, int mode, const TextPair& what) {
    state_.TransferMode = mode;
    return RadioTransfer(document, Link(), port_, answers_, machine_, console_.Say(what)).Run();
}

RadioLink RadioCable::Link() {
    return {state_, port_, machine_.clock, answers_, console_.language};
}

void RadioCable::BeginExchange() {
    answers_.Begin();
    answers_.OnPrompt = [this] { port_.LetGo(); };
}

std::optional<std::string> RadioCable::Keep(const DataImage& image, BackupDirection direction) {
    std::optional<std::string> path = backups_.Keep(image, direction);
    if (!path) {
        console_.Complain(backups_.FolderPath(), NotKept);
    }
    return path;
}

bool RadioCable::IsReadBackup(const std::string& path) const {
    const auto name = BackupName::Parse(path.substr(path.find_last_of("/\\") + 1));
    return name && name->direction == BackupDirection::Read && path == backups_.PathOf(*name);
}

void RadioCable::TellFailure(const TransferReport& report) const {
    switch (report.end) {
    case TransferEnd::Done:
        break;
    case TransferEnd::NoRadio:
        console_.Complain(NoConnectionText(report.failure, request_.port, console_.language));
        break;
    case TransferEnd::Interrupted:
        console_.Complain(console_.Say(Interrupted));
        break;
    case TransferEnd::ModelDiffers:
        console_.Complain(console_.Say(ModelDiffers));
        break;
    }
}

} // namespace zelvor::cli
