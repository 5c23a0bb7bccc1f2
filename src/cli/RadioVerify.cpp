#include "cli/RadioVerify.h"

#include "cli/RadioCable.h"
#include "cli/RadioComparison.h"
#include "cli/RadioFile.h"
#include "cli/RadioTexts.h"

namespace zelvor::cli {

namespace {

constexpr TextPair Differs{"{port}: the radio differs from {file}, bytes: {count}",
                           "{port}：对讲机与 {file} 不同，字节数：{count}"};

} // namespace

ExitStatus VerifyRadio(const VerifyRequest& request, RadioMachine& machine, const Console& console) {
    const std::optional<RadioFile> file = ReadRadioFile(machine.store, request.file, console);
    if (!file) {
        return ExitStatus::File;
    }
    RadioCable cable(machine, request.radio, console);
    const std::optional<DataImage> image = cable.Read();
    if (!image) {
        return ExitStatus::NoRadio;
    }
    cable.Keep(*image, BackupDirection::Read);
    const std::vector<WrongByte> wrong = CompareWithFile(*image, file->image);
    for (const WrongByte& byte : wrong) {
        console.out << WrongByteText(byte) << '\n';
    }
    if (wrong.empty()) {
        return ExitStatus::Done;
    }
    console.Complain(Filled(console.Say(Differs), {{"{port}", PortName(request.radio.port)},
                                                   {"{file}", Printable(file->path)},
                                                   {"{count}", std::to_string(wrong.size())}}));
    return ExitStatus::No;
}

} // namespace zelvor::cli
