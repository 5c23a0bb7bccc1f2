#include <QGuiApplication>

#include "cli/CheckCommand.h"
#include "cli/DiffCommand.h"
#include "cli/NewCommand.h"
#include "cli/PortsCommand.h"
#include "cli/ReportCommand.h"
#include "cli/Sections.h"
#include "cli/ShowCommand.h"
#include "cli/program/Describing.h"
#include "platform/Display.h"
#include "platform/QtClock.h"
#include "platform/QtSerialPorts.h"

namespace zelvor::cli {

namespace {

constexpr TextPair ShowText{"Print what data files hold", "输出数据文件的内容"};
constexpr TextPair DiffText{"Print what differs between two data files, or those of two folders",
                            "输出两个数据文件的不同之处，或两个文件夹中同名数据文件的不同之处"};
constexpr TextPair DiffedText{"Data file, or folder of data files (*.dat)",
                              "数据文件，或存放数据文件 (*.dat) 的文件夹"};
constexpr TextPair CheckText{"Look for what would stop or spoil a write to a radio",
                             "检查会阻止或破坏写入对讲机的设置"};
constexpr TextPair NewText{"Make a blank data file", "生成空白数据文件"};
constexpr TextPair ReportText{"Print the data report into a PDF file", "把数据报告打印到 PDF 文件"};
constexpr TextPair PortsText{"List the port numbers with their devices", "列出端口号及其设备"};
constexpr TextPair SectionText{"Only this section; may be given several times", "只要此部分；可多次给出"};
constexpr TextPair ModelText{"Model, such as 4618", "机型，例如 4618"};
constexpr TextPair MarketText{"Market, such as M", "市场，例如 M"};
constexpr TextPair NewOutputText{"The file to make", "要生成的文件"};
constexpr TextPair ReportOutputText{"The PDF file to make", "要生成的 PDF 文件"};
constexpr TextPair PaperText{"Paper of the pages", "纸张"};

void AddShow(CLI::App& app, Language language, Action& action) {
    CLI::App& command = AddCommand(app, "show", language, ShowText);
    const auto request = MakeRequest<ShowRequest>(command, action, Show);
    AddFiles(command, "FILE", request->files, language, DataFilesText);
    AddSections(command, request->sections, SectionNames(), language, SectionText);
    command.add_flag("--json", request->json, std::string(JsonFlagText.In(language)));
}

void AddDiff(CLI::App& app, Language language, Action& action) {
    CLI::App& command = AddCommand(app, "diff", language, DiffText);
    const auto request = MakeRequest<DiffRequest>(command, action, Diff);
    AddFile(command, "A", request->a, language, DiffedText);
    AddFile(command, "B", request->b, language, DiffedText);
    command.add_flag("--json", request->json, std::string(JsonFlagText.In(language)));
}

void AddCheck(CLI::App& app, Language language, Action& action) {
    CLI::App& command = AddCommand(app, "check", language, CheckText);
    const auto request = MakeRequest<std::vector<std::string>>(command, action, Check);
    AddFiles(command, "FILE", *request, language, DataFilesText);
}

void AddNew(CLI::App& app, Language language, Action& action) {
    CLI::App& command = AddCommand(app, "new", language, NewText);
    const auto request = MakeRequest<NewRequest>(command, action, MakeNew);
    AddFile(command, "--model", request->model, language, ModelText).type_name("MODEL");
    AddFile(command, "--market", request->market, language, MarketText).type_name("MARKET");
    AddFile(command, "-o,--output", request->output, language, NewOutputText).type_name("OUT");
}

/// The report needs the toolkit's fonts, and no display.
ExitStatus ReportWithoutDisplay(const ReportRequest& read, FileStore& store, const Console& console) {
    DoWithoutDisplay();
    int argc = 1;
    char name[] = "zelvor-cli";
    char* argv[] = {name, nullptr};
    const QGuiApplication application(argc, argv);
    ReportRequest request = read;
    request.now = QtClock().Now();
    return Report(request, store, console);
}

void AddReport(CLI::App& app, Language language, Action& action) {
    CLI::App& command = AddCommand(app, "report", language, ReportText);
    const auto request = MakeRequest<ReportRequest>(command, action, ReportWithoutDisplay);
    AddFile(command, "FILE", request->file, language, DataFileText);
    AddFile(command, "-o,--output", request->output, language, ReportOutputText).type_name("PDF");
    AddSections(command, request->sections, ReportSectionNames(), language, SectionText);
    const auto choose = [request](const std::string& paper) {
        request->paper = paper == "Letter" ? ReportPaper::Letter : ReportPaper::A4;
    };
    command.add_option_function<std::string>("--paper", choose, std::string(PaperText.In(language)))
        ->type_name("PAPER")
        ->check(CLI::IsMember({"A4", "Letter"}));
}

void AddPorts(CLI::App& app, Language language, Action& action) {
    AddCommand(app, "ports", language, PortsText).callback([&action] {
        action = [](FileStore& /*store*/, const Console& console) {
            QtSerialPorts ports;
            return ListPorts(ports, console);
        };
    });
}

} // namespace

void AddFileCommands(CLI::App& app, Language language, Action& action) {
    AddShow(app, language, action);
    AddDiff(app, language, action);
    AddCheck(app, language, action);
    AddNew(app, language, action);
    AddReport(app, language, action);
    AddPorts(app, language, action);
}

} // namespace zelvor::cli
