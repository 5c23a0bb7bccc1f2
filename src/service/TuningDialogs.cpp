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
    int caption;
};

struct Row {
    DialogOfWidth wide;
    DialogOfWidth narrow;
};

constexpr Row Both(Size size, int caption) {
    return {{size, caption}, {size, caption}};
}

// By TuneItem.
constexpr std::array<Row, TuneItemCount> Rows{{
    Both(Size::SixPages, 208),
    Both(Size::SixPages, 209),
    {{Size::FourPages, 221}, {Size::OnePage, 222}},
    {{Size::FourPages, 223}, {Size::OnePage, 224}},
    {{Size::FourPages, 225}, {Size::OnePage, 226}},
    {{Size::FourPages, 227}, {Size::OnePage, 228}},
    {{Size::OnePage, 229}, {Size::OnePage, 230}},
    Both(Size::FourPages, 215),
    {{Size::FourPages, 231}, {Size::OnePage, 232}},
    {{Size::FourPages, 233}, {Size::OnePage, 234}},
    {{Size::OnePage, 235}, {Size::OnePage, 236}},
    Both(Size::Measured, 219),
    Both(Size::Measured, 1903),
    Both(Size::Measured, 1904),
    Both(Size::Measured, 1905),
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

int PageNameOf(TunePoint point) {
    switch (point) {
    case TunePoint::Low:
        return 91;
    case TunePoint::LowPrime:
        return 239;
    case TunePoint::Center:
        return 241;
    case TunePoint::HighPrime:
        return 240;
    case TunePoint::High:
        return 90;
    case TunePoint::Test:
    case TunePoint::Narrow:
        break;
    }
    return 238;
}

} // namespace zelvor
