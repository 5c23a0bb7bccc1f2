#include "service/TuningDialogs.h"

#include <array>

namespace zelvor {

namespace {

enum class Size { SixPages, Measured, FourPages, OnePage };

constexpr std::string_view FormName(Size size) {
    switch (size) {
    case Size::SixPages:
        return "TunningForm1";
    case Size::Measured:
        return "TunningForm2";
    case Size::FourPages:
        return "TunningForm3";
    case Size::OnePage:
        break;
    }
    return "TunningForm4";
}

struct DialogOfWidth {
    Size size;
    Text caption;
};

struct Row {
    DialogOfWidth wide;
    DialogOfWidth narrow;
};

constexpr Row Both(Size size, Text caption) {
    return {{size, caption}, {size, caption}};
}

// By TuneItem.
constexpr std::array<Row, TuneItemCount> Rows{{
    Both(Size::SixPages, Text::RfHighPower),
    Both(Size::SixPages, Text::RfLowPower),
    {{Size::FourPages, Text::DqtBalanceWide}, {Size::OnePage, Text::DqtBalanceNarrow}},
    {{Size::FourPages, Text::MaxDeviationWide}, {Size::OnePage, Text::MaxDeviationNarrow}},
    {{Size::FourPages, Text::QtFineDeviationWide}, {Size::OnePage, Text::QtFineDeviationNarrow}},
    {{Size::FourPages, Text::DqtFineDeviationWide}, {Size::OnePage, Text::DqtFineDeviationNarrow}},
    {{Size::OnePage, Text::DtmfFineDeviationWide}, {Size::OnePage, Text::DtmfFineDeviationNarrow}},
    Both(Size::FourPages, Text::Sensitivity),
    {{Size::FourPages, Text::SquelchTightWide}, {Size::OnePage, Text::SquelchTightNarrow}},
    {{Size::FourPages, Text::SquelchOpenWide}, {Size::OnePage, Text::SquelchOpenNarrow}},
    {{Size::OnePage, Text::MskFineDeviationWide}, {Size::OnePage, Text::MskFineDeviationNarrow}},
    Both(Size::Measured, Text::BatteryWarningLevel),
    Both(Size::Measured, Text::Vox1),
    Both(Size::Measured, Text::Vox10),
    Both(Size::Measured, Text::Rssi),
}};

} // namespace

TuningDialog TuningDialogOf(int tuneItem, bool narrow) {
    const Row& row = Rows[static_cast<std::size_t>(tuneItem - 1)];
    const DialogOfWidth& dialog = narrow ? row.narrow : row.wide;
    TuningDialog result{FormName(dialog.size), dialog.caption, TuningKind::Points, {}, tuneItem};
    switch (dialog.size) {
    case Size::SixPages:
        result.points = {TunePoint::Test,   TunePoint::Low,       TunePoint::LowPrime,
                         TunePoint::Center, TunePoint::HighPrime, TunePoint::High};
        break;
    case Size::FourPages:
        result.points = {TunePoint::Test, TunePoint::Low, TunePoint::Center, TunePoint::High};
        break;
    case Size::OnePage:
        result.kind = TuningKind::Single;
        result.points = {narrow ? TunePoint::Narrow : TunePoint::Test};
        break;
    case Size::Measured:
        result.kind = TuningKind::Measured;
        result.points = {TunePoint::Test};
        break;
    }
    return result;
}

TuningPlan PlanOf(const TuningDialog& dialog) {
    const TuneItemRow& item = TuneItemOf(dialog.tuneItem);
    TuningPlan plan{dialog.kind, item.code, {}};
    for (const TunePoint point : dialog.points) {
        plan.pointCodes.push_back(item.Cell(point).code);
    }
    return plan;
}

Text PageNameOf(TunePoint point) {
    switch (point) {
    case TunePoint::Low:
        return Text::Low;
    case TunePoint::LowPrime:
        return Text::LowPrime;
    case TunePoint::Center:
        return Text::Center;
    case TunePoint::HighPrime:
        return Text::HighPrime;
    case TunePoint::High:
        return Text::High;
    case TunePoint::Test:
    case TunePoint::Narrow:
        break;
    }
    return Text::Test;
}

} // namespace zelvor
