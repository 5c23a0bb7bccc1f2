#include "print/ReportOutput.h"

#include "platform/MessageBoxes.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

constexpr TextPair ToPrinter{"Output: printer ", "输出：打印机 "};
constexpr TextPair ToFile{"Output: PDF file ", "输出：PDF 文件 "};
constexpr TextPair ToNothing{"Output: no printer", "输出：没有打印机"};
constexpr TextPair WithoutAnswer{"Output: no answer from the printing system", "输出：打印系统没有应答"};
constexpr TextPair Asking{"Output: asking the printing system…", "输出：正在询问打印系统…"};

constexpr TextPair WarningTitle{"Warning", "警告"};
constexpr TextPair NoAnswerText{
    "No answer from the printing system.\nTry again later, or choose a PDF file in Print setup.",
    "打印系统没有应答。\n请稍后再试，或在打印设置中选择 PDF 文件。"};
constexpr TextPair FileInsteadText{"No answer from the printing system.\nPrint to a PDF file instead?",
                                   "打印系统没有应答。\n是否改为打印到 PDF 文件？"};
constexpr TextPair FileExists{"The file already exists:", "文件已存在:"};
constexpr TextPair ReplaceIt{"Replace it?", "是否替换？"};

std::string_view BaseNameOf(std::string_view path) {
    return path.substr(path.find_last_of("/\\") + 1);
}

bool AgreesToReplace(const std::string& file, MessageBoxes& messages, Language language) {
    const std::string text =
        std::string(FileExists.In(language)) + '\n' + file + '\n' + std::string(ReplaceIt.In(language));
    return messages.Show({.title = std::string(WarningTitle.In(language)),
                          .text = text,
                          .icon = MessageIcon::Exclamation,
                          .buttons = MessageButtons::YesNo,
                          .defaultButton = MessageAnswer::No}) == MessageAnswer::Yes;
}

} // namespace

std::string OutputText(const PageTarget& target, Language language) {
    switch (target.kind) {
    case PageTarget::Kind::None:
        return std::string(ToNothing.In(language));
    case PageTarget::Kind::NoAnswer:
        return std::string(WithoutAnswer.In(language));
    case PageTarget::Kind::Printer:
        return std::string(ToPrinter.In(language)) + target.name;
    case PageTarget::Kind::File:
        return std::string(ToFile.In(language)) + std::string(BaseNameOf(target.name));
    }
    return {};
}

std::string AskingText(Language language) {
    return std::string(Asking.In(language));
}

bool MayPrintTo(const PageTarget& target, MessageBoxes& messages, Language language, std::string_view agreedFile) {
    switch (target.kind) {
    case PageTarget::Kind::None:
        return false;
    case PageTarget::Kind::NoAnswer:
        messages.Show({.title = std::string(WarningTitle.In(language)),
                       .text = std::string(NoAnswerText.In(language)),
                       .icon = MessageIcon::Exclamation});
        return false;
    case PageTarget::Kind::Printer:
        return true;
    case PageTarget::Kind::File:
        return !target.replacesFile || target.name == agreedFile || AgreesToReplace(target.name, messages, language);
    }
    return false;
}

bool WantsFileForWantOfAnswer(MessageBoxes& messages, Language language) {
    return messages.Show({.title = std::string(WarningTitle.In(language)),
                          .text = std::string(FileInsteadText.In(language)),
                          .icon = MessageIcon::Exclamation,
                          .buttons = MessageButtons::YesNo}) == MessageAnswer::Yes;
}

} // namespace zelvor
