#include "link/PreWriteChecks.h"

#include <initializer_list>
#include <string>

#include "data/Document.h"
#include "data/ImageChecks.h"
#include "text/CommonTexts.h"

namespace zelvor {

namespace {

constexpr TextPair HeadLine{"The following setting is incorrect.", "以下设置错误。"};
constexpr TextPair PriorityChannel{"\"Priority Channel\"", "\"优先信道\""};
constexpr TextPair OwnFleet{"\"Fleet(Own)\"", "\"队列（自身）\""};
constexpr TextPair OwnId{"\"ID(Own)\"", "\"ID（自身）\""};
constexpr TextPair BeginOfTxCode{"\"Begin of TX code\"", "\"发射开始代码\""};
constexpr TextPair EndOfTxCode{"\"End of TX code\"", "\"发射结束代码\""};
constexpr std::string_view LineBreak = "\r\n";

// Values of TxCodeErrorKind.
constexpr int BeginCode = 1;
constexpr int EndCode = 2;
constexpr int BothCodes = 3;

enum class EmptyLine { No, Yes };

Message ErrorBox(Language language, EmptyLine emptyLine, std::initializer_list<TextPair> names) {
    std::string text(HeadLine.In(language));
    if (emptyLine == EmptyLine::Yes) {
        text += LineBreak;
    }
    for (const TextPair& name : names) {
        text += LineBreak;
        text += name.In(language);
    }
    return {.title = std::string(commontexts::Error.In(language)),
            .text = text,
            .icon = MessageIcon::Critical,
            .buttons = MessageButtons::Ok,
            .defaultButton = MessageAnswer::Ok};
}

std::optional<Message> TxCodeBox(Language language, int kind) {
    // The boxes that name the begin code have no empty line. Intended.
    switch (kind) {
    case BeginCode:
        return ErrorBox(language, EmptyLine::No, {BeginOfTxCode});
    case EndCode:
        return ErrorBox(language, EmptyLine::Yes, {EndOfTxCode});
    case BothCodes:
        return ErrorBox(language, EmptyLine::No, {BeginOfTxCode, EndOfTxCode});
    default:
        return std::nullopt;
    }
}

} // namespace

std::optional<Message> CheckBeforeWrite(Document& document, Language language) {
    if (document.Priority.PriorityChannelError()) {
        return ErrorBox(language, EmptyLine::Yes, {PriorityChannel});
    }
    if (document.Flags.OwnIdError) {
        return ErrorBox(language, EmptyLine::Yes, {OwnFleet, OwnId});
    }
    if (!document.Flags.TxCodeError) {
        return std::nullopt;
    }
    if (!AnyChannelSendsCode(document.Image)) {
        document.Flags.TxCodeError = false;
        return std::nullopt;
    }
    return TxCodeBox(language, document.Flags.TxCodeErrorKind);
}

} // namespace zelvor
