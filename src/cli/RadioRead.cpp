#include "cli/RadioRead.h"

#include "cli/RadioCable.h"
#include "cli/RadioFile.h"
#include "cli/RadioTexts.h"
#include "data/Document.h"

namespace zelvor::cli {

namespace {

constexpr TextPair InBackup{"what was read is in the backup {backup}", "所读内容在备份 {backup} 中"};

} // namespace

ExitStatus ReadRadio(const ReadRequest& request, RadioMachine& machine, const Console& console) {
    RadioCable cable(machine, request.radio, console);
    Document document;
    const TransferReport report = cable.Read(document);
    if (report.end != TransferEnd::Done) {
        cable.TellFailure(report);
        return ExitStatus::NoRadio;
    }
    const std::optional<std::string> backup = cable.Keep(document.Image, BackupDirection::Read);
    if (WriteBytes(machine.store, request.output, EncodeDataFile(document.Image), console)) {
        return ExitStatus::Done;
    }
    if (backup) {
        console.Complain(Filled(console.Say(InBackup), {{"{backup}", Printable(*backup)}}));
    }
    return ExitStatus::File;
}

} // namespace zelvor::cli
