// Both printed reports, and what zelvor-cli shows and compares, of images of any bytes.

#include <sstream>

#include "FuzzImages.h"
#include "Require.h"
#include "cli/CheckCommand.h"
#include "cli/DiffCommand.h"
#include "cli/ShowCommand.h"
#include "data/DataFile.h"
#include "fakes/FakeFileStore.h"
#include "fakes/FakePageDevice.h"
#include "print/DataReport.h"
#include "service/TuningReport.h"
#include "text/Utf8.h"

namespace zelvor::fuzz {
namespace {

constexpr int RowCount = 60;
constexpr int ColumnCount = 130;

bool IsUtf8(std::string_view text) {
    return Utf8Of(Utf16Of(text)) == text;
}

void CheckCells(const std::vector<CellText>& texts) {
    for (const CellText& cell : texts) {
        Require(IsUtf8(cell.text), "a printed text is UTF-8");
        Require(cell.row >= 0 && cell.row < RowCount, "a printed text is on a row of the page");
        Require(cell.column >= 0 && cell.column < ColumnCount, "a printed text is in a column of the page");
    }
}

/// Nothing but the end of a text may be cut: each begins on the page.
void CheckPages(const FakePageDevice& device, double width, double height) {
    for (const FakePage& page : device.Pages()) {
        Require(!page.texts.empty(), "no page is empty");
        for (const FakePageText& text : page.texts) {
            Require(text.x >= 0 && text.x <= width && text.y >= 0 && text.y <= height, "a text begins on its page");
            Require(text.stretch > 0, "letters have a width");
        }
    }
}

/// What can be printed on, from A5 to a metre of width, and a printer that may fail.
struct Paper {
    double width;
    double height;
    int failingPage; // 0 for none
};

void CheckReport(const DataImage& image, ReportSelection selection, std::string_view fileName, Language language,
                 const Paper& paper) {
    const DataReport report = BuildDataReport(image, selection, fileName, language, {});
    Require(report.pages.empty() == selection.none(), "what is chosen has pages");
    CheckCells(report.head);
    for (const std::vector<CellText>& page : report.pages) {
        CheckCells(page);
    }
    FakePageDevice device;
    device.SetPageSize(paper.width, paper.height);
    device.FailAtPage(paper.failingPage);
    PrintDataReport(device, report);
    const std::size_t printed =
        device.Failures() > 0 ? static_cast<std::size_t>(paper.failingPage) - 1 : report.pages.size();
    Require(device.Pages().size() == printed, "every page is printed, up to one that the printer fails at");
    CheckPages(device, paper.width, paper.height);
}

void CheckTuningReport(const DataImage& image, std::string_view fileName, Language language) {
    CheckCells(BuildTuningReport(image, {}, fileName, language));
}

void CheckCommands(const DataImage& image, const DataImage& other, Language language) {
    FakeFileStore store;
    for (const auto& [path, content] : {std::pair("a.dat", &image), std::pair("b.dat", &other)}) {
        const DataFileBytes bytes = EncodeDataFile(*content);
        store.Put(path, std::string(bytes.begin(), bytes.end()));
    }
    std::ostringstream out;
    std::ostringstream errors;
    const cli::Console console{out, errors, language};
    for (const bool json : {false, true}) {
        Require(cli::Show({.files = {"a.dat"}, .sections = {}, .json = json}, store, console) == cli::ExitStatus::Done,
                "every data file is shown");
    }
    Require(cli::Check({"a.dat"}, store, console) <= cli::ExitStatus::No, "every data file is checked");
    for (const bool json : {false, true}) {
        const cli::ExitStatus compared = cli::Diff({.a = "a.dat", .b = "b.dat", .json = json}, store, console);
        Require((compared == cli::ExitStatus::Done) == (image == other), "files are alike where their images are");
    }
    Require(IsUtf8(out.str()), "what is shown is UTF-8");
    for (const char c : out.str()) {
        Require(c < 0 || c >= ' ' || c == '\n', "nothing that is shown controls a terminal");
    }
    Require(errors.str().empty(), "nothing is complained of");
}

} // namespace
} // namespace zelvor::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    using namespace zelvor;
    using namespace zelvor::fuzz;
    FuzzInput input(bytes, count);
    const std::uint8_t kind = input.TakeByte();
    const Language language = (kind & 1) != 0 ? Language::Chinese : Language::English;
    const ReportSelection selection(input.TakeByte());
    const std::string fileName = Utf8Of(Utf16Of(input.TakeText(input.TakeByte())));
    const Paper paper{7000.0 + 200 * input.TakeByte(), 7000.0 + 200 * input.TakeByte(), input.TakeByte() % 12};
    const DataImage other = TakeImage(input);
    const DataImage image = input.TakeBool() ? TakeWholeImage(input) : TakeImage(input);
    if ((kind & 2) != 0) {
        CheckCommands(image, other, language);
    } else {
        CheckReport(image, selection, fileName, language, paper);
        CheckTuningReport(image, fileName, language);
    }
    return 0;
}
