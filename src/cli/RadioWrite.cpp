#include "cli/RadioWrite.h"

#include <optional>
#include <vector>

#include "cli/RadioCable.h"
#include "cli/RadioComparison.h"
#include "cli/RadioFile.h"
#include "cli/RadioTexts.h"
#include "data/Document.h"
#include "data/ImageChecks.h"
#include "data/ModelCatalogue.h"
#include "link/CloneFrames.h"

namespace zelvor::cli {

namespace {

constexpr TextPair NothingWritten{"nothing was written; the radio is as it was", "没有写入任何数据；对讲机保持原样"};
constexpr TextPair PartlyWritten{"the radio may be partly written: do not use it before it is written as a whole",
                                 "对讲机可能只写入了一部分：完整写入之前请勿使用"};
constexpr TextPair NotReadBack{"all was written and acknowledged, but could not be read back and compared",
                               "已全部写入并得到确认，但无法回读比较"};
constexpr TextPair WrongAfterWrite{"the radio does not hold what was written, bytes: {count}",
                                   "对讲机中的内容与所写的不同，字节数：{count}"};
constexpr TextPair NeedsBackup{"without a backup of the radio nothing is written; --no-backup writes without one",
                               "没有对讲机的备份就不写入；用 --no-backup 可不备份而写入"};
constexpr TextPair Restore{"what the radio held before is in {backup}; this puts it back: {command}",
                           "对讲机原有的内容在 {backup}；恢复命令：{command}"};
constexpr TextPair NoBackup{"there is no backup of what the radio held before; this writes once more: {command}",
                            "没有对讲机原有内容的备份；重新写入的命令：{command}"};
constexpr TextPair Written{"{port}: written", "{port}：已写入"};
constexpr TextPair WrittenAndVerified{"{port}: written and verified", "{port}：已写入并校验"};

/// One run of the command. Each step tells what went wrong, and how the command then ends.
class RadioWrite {
public:
    RadioWrite(const WriteRequest& request, const RadioFile& file, RadioMachine& machine, const Console& console)
        : request_(request), file_(file), console_(console), cable_(machine, request.radio, console) {}

    [[nodiscard]] ExitStatus Run();

private:
    using Failure = std::optional<ExitStatus>;

    [[nodiscard]] Failure Check();
    [[nodiscard]] Failure KeepRadio();
    [[nodiscard]] Failure Write();
    [[nodiscard]] Failure Verify();
    void TellWayBack() const;
    [[nodiscard]] std::string WriteCommand(const std::string& path, bool overwritesModel) const;
    void Tell(std::string_view text) const { console_.Complain(text); }
    void Tell(const TextPair& text) const { Tell(console_.Say(text)); }

    const WriteRequest& request_;
    const RadioFile& file_;
    const Console& console_;
    RadioCable cable_;
    std::optional<DataImage> before_; // what the radio held
    std::string backup_;              // where that is kept
};

ExitStatus RadioWrite::Run() {
    for (const auto step : {&RadioWrite::Check, &RadioWrite::KeepRadio, &RadioWrite::Write, &RadioWrite::Verify}) {
        if (const Failure failure = (this->*step)()) {
            return *failure;
        }
    }
    Tell(Filled(console_.Say(request_.verifies ? WrittenAndVerified : Written),
                {{"{port}", PortName(request_.radio.port)}}));
    return ExitStatus::Done;
}

RadioWrite::Failure RadioWrite::Check() {
    if (cable_.IsReadBackup(file_.path)) {
        return std::nullopt;
    }
    bool mayWrite = true;
    for (const ImageFinding& finding : CheckImage(file_.image)) {
        if (WeightOf(finding.fault) == FaultWeight::StopsWrite) {
            const std::string key = finding.field ? finding.field->Key() + ": " : std::string();
            Tell(Printable(file_.path) + ": " + key + TextOf(finding.fault, console_.language));
            mayWrite = false;
        }
    }
    return mayWrite ? std::nullopt : Failure(ExitStatus::Unsafe);
}

RadioWrite::Failure RadioWrite::KeepRadio() {
    if (!request_.keepsBackup) {
        return std::nullopt;
    }
    const std::optional<DataImage> radio = cable_.Read();
    if (!radio) {
        Tell(NothingWritten);
        return ExitStatus::NoRadio;
    }
    const std::optional<std::string> path = cable_.Keep(*radio, BackupDirection::Read);
    if (!path) {
        Tell(NeedsBackup);
        return ExitStatus::File;
    }
    before_ = radio;
    backup_ = *path;
    return std::nullopt;
}

RadioWrite::Failure RadioWrite::Write() {
    Document document;
    document.Image = file_.image;
    cable_.Keep(document.Image, BackupDirection::Write);
    const TransferReport report = cable_.Write(document);
    if (report.end == TransferEnd::Done) {
        return std::nullopt;
    }
    cable_.TellFailure(report);
    const ExitStatus status = report.end == TransferEnd::ModelDiffers ? ExitStatus::Unsafe : ExitStatus::NoRadio;
    if (!report.reachedData) {
        Tell(NothingWritten);
        return status;
    }
    Tell(PartlyWritten);
    TellWayBack();
    return status;
}

RadioWrite::Failure RadioWrite::Verify() {
    if (!request_.verifies) {
        return std::nullopt;
    }
    const std::optional<DataImage> radio = cable_.ReadBack();
    if (!radio) {
        Tell(NotReadBack);
        TellWayBack();
        return ExitStatus::NoRadio;
    }
    cable_.Keep(*radio, BackupDirection::Read);
    const std::vector<WrongByte> wrong = CompareAfterWrite(*radio, file_.image, before_);
    if (wrong.empty()) {
        return std::nullopt;
    }
    for (const WrongByte& byte : wrong) {
        console_.out << WrongByteText(byte) << '\n';
    }
    Tell(Filled(console_.Say(WrongAfterWrite), {{"{count}", std::to_string(wrong.size())}}));
    TellWayBack();
    return ExitStatus::No;
}

/// The radio may tell the file's model by now.
void RadioWrite::TellWayBack() const {
    if (!before_) {
        Tell(Filled(console_.Say(NoBackup), {{"{command}", WriteCommand(file_.path, request_.radio.overwritesModel)}}));
        return;
    }
    const bool overwritesModel = request_.radio.overwritesModel || IsModelWrong(IdentityOf(file_.image), *before_);
    Tell(Filled(console_.Say(Restore),
                {{"{backup}", Printable(backup_)}, {"{command}", WriteCommand(backup_, overwritesModel)}}));
}

std::string RadioWrite::WriteCommand(const std::string& path, bool overwritesModel) const {
    return "zelvor-cli write --port " + std::to_string(request_.radio.port) +
           (overwritesModel ? " --overwrite-model " : " ") + ShellWord(path);
}

} // namespace

ExitStatus WriteRadio(const WriteRequest& request, RadioMachine& machine, const Console& console) {
    const std::optional<RadioFile> file = ReadRadioFile(machine.store, request.file, console);
    return file ? RadioWrite(request, *file, machine, console).Run() : ExitStatus::File;
}

} // namespace zelvor::cli
