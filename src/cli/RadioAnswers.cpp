#include "cli/RadioAnswers.h"

#include "cli/RadioProgress.h"
#include "cli/RadioTexts.h"

namespace zelvor::cli {

namespace {

constexpr TextPair TryingAgain{"{port}: no connection; beginning again, {retry} of {retries}",
                               "{port}：没有连接；重新开始，第 {retry} 次，共 {retries} 次"};

} // namespace

void RadioAnswers::Begin() {
    retries_ = 0;
    hasRefusedModel_ = false;
}

MessageAnswer RadioAnswers::Show(const Message& message) {
    switch (message.buttons) {
    case MessageButtons::RetryCancel:
        return AnswerPrompt();
    case MessageButtons::OkCancel:
        return AnswerModel();
    case MessageButtons::Ok:
    case MessageButtons::YesNo:
    case MessageButtons::YesNoCancel:
        break;
    }
    return DefaultOf(message);
}

MessageAnswer RadioAnswers::AnswerPrompt() {
    if (OnPrompt) {
        OnPrompt();
    }
    progress_.Clear();
    if (hasGivenUp_ || retries_ >= request_.retries) {
        return MessageAnswer::Cancel;
    }
    ++retries_;
    console_.Complain(Filled(console_.Say(TryingAgain), {{"{port}", PortName(request_.port)},
                                                         {"{retry}", std::to_string(retries_)},
                                                         {"{retries}", std::to_string(request_.retries)}}));
    return MessageAnswer::Retry;
}

MessageAnswer RadioAnswers::AnswerModel() {
    hasRefusedModel_ = !request_.overwritesModel;
    return hasRefusedModel_ ? MessageAnswer::Cancel : MessageAnswer::Ok;
}

} // namespace zelvor::cli
