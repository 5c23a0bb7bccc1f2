#include "cli/NewCommand.h"

#include "cli/RadioFile.h"
#include "data/BlankImage.h"
#include "data/MemoryMap.h"
#include "data/ModelCatalogue.h"

namespace zelvor::cli {

namespace {

constexpr TextPair NoSuchVariant{"there is no such model and market; these are:",
                                 "没有这种机型与市场的组合；可用的有："};

const ModelVariant* FindByName(const NewRequest& request) {
    for (const ModelVariant& variant : ModelCatalogue()) {
        if (variant.infoModel == request.model && variant.reportMarket == request.market) {
            return &variant;
        }
    }
    return nullptr;
}

void ListVariants(const Console& console) {
    console.Complain(console.Say(NoSuchVariant));
    for (const ModelVariant& variant : ModelCatalogue()) {
        console.Complain("  --model " + variant.infoModel + " --market " + variant.reportMarket + "  (" +
                         variant.infoBand + ')');
    }
}

} // namespace

ExitStatus MakeNew(const NewRequest& request, FileStore& store, const Console& console) {
    const ModelVariant* variant = FindByName(request);
    if (variant == nullptr) {
        ListVariants(console);
        return ExitStatus::Usage;
    }
    DataImage image;
    image.Set(address::Family, variant->family);
    image.Set(address::Market, variant->market);
    InitAllFrameData(image);
    return WriteBytes(store, request.output, EncodeDataFile(image), console) ? ExitStatus::Done : ExitStatus::File;
}

} // namespace zelvor::cli
