#include "cli/CheckCommand.h"

#include "cli/RadioFile.h"
#include "data/ImageChecks.h"

namespace zelvor::cli {

namespace {

constexpr TextPair HintMark{"hint: ", "提示："};
constexpr TextPair StopMark{"stops a write: ", "将阻止写入："};

std::string_view MarkOf(FaultWeight weight, const Console& console) {
    switch (weight) {
    case FaultWeight::Hint:
        return console.Say(HintMark);
    case FaultWeight::StopsWrite:
        return console.Say(StopMark);
    case FaultWeight::Spoils:
        break;
    }
    return {};
}

ExitStatus Tell(const std::string& path, const ImageFinding& finding, const Console& console) {
    const FaultWeight weight = WeightOf(finding.fault);
    console.out << Printable(path) << ": ";
    if (finding.field) {
        console.out << finding.field->Key() << ": ";
    }
    console.out << MarkOf(weight, console) << TextOf(finding.fault, console.language) << '\n';
    return weight == FaultWeight::Hint ? ExitStatus::Done : ExitStatus::No;
}

} // namespace

ExitStatus Check(const std::vector<std::string>& files, FileStore& store, const Console& console) {
    ExitStatus status = ExitStatus::Done;
    for (const std::string& path : files) {
        const std::optional<RadioFile> file = ReadRadioFile(store, path, console);
        if (!file) {
            status = Worse(status, ExitStatus::File);
            continue;
        }
        for (const ImageFinding& finding : CheckImage(file->image)) {
            status = Worse(status, Tell(path, finding, console));
        }
    }
    return status;
}

} // namespace zelvor::cli
