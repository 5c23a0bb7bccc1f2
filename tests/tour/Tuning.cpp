#include "tour/Tuning.h"

#include "tour/Expected.h"

namespace zelvor::tour {

namespace {

constexpr int FirstAddress = 0x180;

} // namespace

const Tuning& EnglishTuning() {
    static const Tuning tuning{
        .edit = {.narrow = false,
                 .item = {1, "TunningForm1", "RF High Power"},
                 .page = 2,
                 .key = Qt::Key_Up,
                 .presses = 3,
                 .before = "69",
                 .after = "72",
                 .command = "(Set item 1 Low to 72)",
                 .address = 0x185,
                 .value = 0x48},
        .single = {7, "TunningForm4", "DTMF Fine Deviation(Wide)"},
        .points = {8, "TunningForm3", "Sensitivity"},
        .measured = {12, "TunningForm2", "Battery Warning Level"},
        .region = TuningRegion(),
    };
    return tuning;
}

const Tuning& ChineseTuning() {
    static const Tuning tuning{
        .edit = {.narrow = true,
                 .item = {4, "TunningForm4", "最大频差(窄带)"},
                 .page = 1,
                 .key = Qt::Key_Down,
                 .presses = 2,
                 .before = "79",
                 .after = "77",
                 .command = "(Set item 4 Narrow to 77)",
                 .address = 0x18F,
                 .value = 0x4D},
        .single = {11, "TunningForm4", "MSK频偏差(宽带)"},
        .points = {1, "TunningForm1", "RF高功率"},
        .measured = {13, "TunningForm2", "VOX1"},
        .region = Tuned(EnglishTuning()),
    };
    return tuning;
}

QByteArray Tuned(const Tuning& tuning) {
    QByteArray region = tuning.region;
    region[tuning.edit.address - FirstAddress] = tuning.edit.value;
    return region;
}

} // namespace zelvor::tour
