#include "cli/RadioRead.h"

#include "cli/RadioCable.h"
#include "cli/RadioFile.h"
#include "cli/RadioTexts.h"

namespace zelvor::cli {

namespace {

constexpr TextPair InBackup{"what was read is in the backup {backup}", "所读内容在备份 {backup} 中"};

} // namespace

ExitStatus ReadRadio(const ReadRequest& request, RadioMachine& machine, const Console& console) {
    RadioCable cable(machine, request.radio, console);
    const std::optional<DataImage> image = cable.Read();
    if (!image) {
        return ExitStatus::NoRadio;
    }
    const std::optional<std::string> backup = cable.Keep(*image, BackupDirection::Read);
    if (WriteBytes(machine.store, request.output, EncodeDataFile(*image), console)) {
        return ExitStatus::Done;
    }
    if (backup) {
        console.Complain(Filled(console.Say(InBackup), {{"{backup}", Printable(*backup)}}));
    }
    return ExitStatus::File;
}

} // namespace zelvor::cli
