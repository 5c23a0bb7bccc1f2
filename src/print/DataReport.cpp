#include "print/DataReport.h"

#include <array>
#include <utility>

#include "platform/PageDevice.h"
#include "print/ReportHead.h"
#include "print/ReportSections.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

constexpr double DateSize = 11; // points
constexpr double TitleRow = 0;
constexpr double DateRow = 2;
constexpr std::array<double, 2> RuledRows{3.5, 8};

constexpr double HeadRow = 4;
constexpr double HeadLabelColumn = 4;
constexpr double HeadTextColumn = 30;

constexpr std::array Pages{OptionalFeaturesPage, KeyAssignmentPage, ScanInformationPage, DtmfPage,
                           CorvanePage,          TestFrequencyPage, EmbeddedMessagePage};

std::vector<CellText> BuildHead(const DataImage& image, std::string_view fileName, Language language) {
    const ModelVariant& variant = ReportVariantOf(image);
    const std::array<std::pair<Text, std::string>, 3> rows{
        {{Text::ModelType, std::string(variant.reportModel) + ' ' + std::string(variant.reportMarket)},
         {Text::Frequency, std::string(variant.reportRange)},
         {Text::FileName, std::string(fileName)}}};
    std::vector<CellText> head;
    double row = HeadRow;
    for (const auto& [label, text] : rows) {
        head.push_back({HeadLabelColumn, row, std::string(TableText(language, label))});
        head.push_back({HeadTextColumn, row, text});
        ++row;
    }
    return head;
}

void PrintDate(PageDevice& device, const PageGrid& grid, std::string_view text) {
    device.SetFont({.pointSize = DateSize, .bold = true});
    PrintAt(device, grid.LineEnd() - device.TextWidth(text), grid.Y(DateRow), text);
}

void PrintPage(PageDevice& device, const DataReport& report, const std::vector<CellText>& texts, int number) {
    const PageGrid grid(device, PageGrid::Units::Whole);
    PrintTitle(device, grid, TitleRow, ReportTitle.In(report.language));
    PrintDate(device, grid, report.dateAndTime);
    for (const double row : RuledRows) {
        device.DrawLine(grid.X(0), grid.Y(row), grid.LineEnd(), grid.Y(row));
    }
    PrintCells(device, grid, report.head, grid.LineEnd());
    PrintCells(device, grid, texts, grid.PageWidth());
    PrintFoot(device, grid, number);
}

std::string Digits(int number, std::size_t count) {
    const std::string digits = std::to_string(number);
    return digits.size() < count ? std::string(count - digits.size(), '0') + digits : digits;
}

} // namespace

DataReport BuildDataReport(const DataImage& image, ReportSelection selection, std::string_view fileName,
                           Language language, const LocalTime& now) {
    DataReport report{language, DateAndTimeText(now), BuildHead(image, fileName, language), {}};
    for (std::size_t i = 0; i < Pages.size(); ++i) {
        if (selection.test(i)) {
            report.pages.push_back(Pages[i](image, language));
        }
    }
    if (selection.test(static_cast<std::size_t>(ReportSection::ChannelInformation))) {
        for (std::vector<CellText>& page : ChannelInformationPages(image, language)) {
            report.pages.push_back(std::move(page));
        }
    }
    return report;
}

void PrintDataReport(PageDevice& device, const DataReport& report) {
    int number = 0;
    for (const std::vector<CellText>& texts : report.pages) {
        ++number;
        if (!(number == 1 ? device.BeginDocument(ReportTitle.In(report.language)) : device.NewPage())) {
            return;
        }
        PrintPage(device, report, texts, number);
    }
    if (number > 0) {
        device.EndDocument();
    }
}

std::string DateAndTimeText(const LocalTime& now) {
    return Digits(now.year, 4) + '-' + Digits(now.month, 2) + '-' + Digits(now.day, 2) + "  " + Digits(now.hour, 2) +
           ':' + Digits(now.minute, 2) + ':' + Digits(now.second, 2);
}

} // namespace zelvor
