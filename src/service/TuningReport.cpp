#include "service/TuningReport.h"

#include <array>

#include "data/Document.h"
#include "platform/Clock.h"
#include "platform/MessageBoxes.h"
#include "platform/PageDevice.h"
#include "platform/Services.h"
#include "print/ReportHead.h"
#include "print/ReportOutput.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

constexpr TextPair ConfirmationTitle{"Confirmation", "确认"};
constexpr TextPair ConfirmationText{"All tuning data print out.", "打印输出所有调谐数据。"};

constexpr int QuestionWait = 200; // milliseconds

constexpr double TitleRow = 2;

// Head: a label and its text a row.
constexpr double HeadLabelColumn = 4;
constexpr double HeadTextColumn = 30;
constexpr double HeadRow = 4;

constexpr double SectionRow = 10;
constexpr double ColumnHeadRow = 12;
constexpr double FirstItemRow = 13;

constexpr std::string_view NoValue = "---";

/// A column of the table.
struct Column {
    double column;
    Text head;
    TunePoint point;
};
constexpr std::array<Column, TunePointCount> Columns{{{25, Text::Test, TunePoint::Test},
                                                      {35, Text::Low, TunePoint::Low},
                                                      {45, Text::LowPrime, TunePoint::LowPrime},
                                                      {55, Text::Center, TunePoint::Center},
                                                      {65, Text::HighPrime, TunePoint::HighPrime},
                                                      {75, Text::High, TunePoint::High},
                                                      {95, Text::Narrow, TunePoint::Narrow}}};

void AddHead(std::vector<CellText>& texts, const DataImage& image, std::string_view fileName, Language language) {
    const ModelVariant& variant = ReportVariantOf(image);
    const std::array<std::string_view, 4> values{variant.reportModel, variant.reportMarket, variant.reportRange,
                                                 fileName};
    constexpr std::array labels{Text::ModelType, Text::RadioType, Text::Frequency, Text::FileName};
    for (std::size_t i = 0; i < labels.size(); ++i) {
        const double row = HeadRow + static_cast<double>(i);
        texts.push_back({HeadLabelColumn, row, std::string(TableText(language, labels[i]))});
        texts.push_back({HeadTextColumn, row, std::string(values[i])});
    }
}

} // namespace

std::vector<CellText> BuildTuningReport(const DataImage& image, const TuneValues& values, std::string_view fileName,
                                        Language language) {
    std::vector<CellText> texts;
    AddHead(texts, image, fileName, language);
    texts.push_back({0, SectionRow, std::string(TableText(language, Text::AllTuningData))});
    for (const Column& column : Columns) {
        texts.push_back({column.column, ColumnHeadRow, std::string(TableText(language, column.head))});
    }
    for (int number = 1; number <= TuneItemCount; ++number) {
        const TuneItemRow& item = TuneItemOf(number);
        const double row = FirstItemRow + number - 1;
        texts.push_back({0, row, std::string(TableText(language, item.name))});
        for (const Column& column : Columns) {
            const bool exists = item.Cell(column.point).Exists();
            texts.push_back(
                {column.column, row,
                 exists ? std::to_string(TuneValueOf(item, column.point, image, values)) : std::string(NoValue)});
        }
    }
    return texts;
}

namespace {

void PrintPage(const Document& document, const TuneValues& values, Language language, PageDevice& device) {
    if (!device.BeginDocument(ReportTitle.In(language))) {
        return;
    }
    const PageGrid grid(device, PageGrid::Units::Exact);
    PrintTitle(device, grid, TitleRow, ReportTitle.In(language));
    PrintCells(device, grid, BuildTuningReport(document.Image, values, document.FileName(), language),
               grid.PageWidth());
    PrintFoot(device, grid, 1);
    device.EndDocument();
}

} // namespace

void PrintTuningReport(const Document& document, const TuneValues& values, Language language, Services& services,
                       const std::function<bool()>& isStillWanted) {
    services.clock.WaitProcessingEvents(QuestionWait);
    if (!isStillWanted()) {
        return;
    }
    const MessageAnswer answer = services.messages.Show({.title = std::string(ConfirmationTitle.In(language)),
                                                         .text = std::string(ConfirmationText.In(language)),
                                                         .icon = MessageIcon::Question,
                                                         .buttons = MessageButtons::OkCancel,
                                                         .defaultButton = MessageAnswer::Cancel});
    if (answer != MessageAnswer::Ok) {
        return;
    }
    services.pages.FindTarget([&document, &values, language, &services, isStillWanted](const PageTarget& target) {
        if (isStillWanted() && MayPrintTo(target, services.messages, language)) {
            PrintPage(document, values, language, services.pages);
        }
    });
}

} // namespace zelvor
