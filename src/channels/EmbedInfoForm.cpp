#include "channels/EmbedInfoForm.h"

#include "controls/EnterAsTab.h"
#include "controls/FilteredLineEdit.h"
#include "platform/Toolkit.h"

namespace zelvor {

namespace {

constexpr QSize WindowSize{5100, 2250}; // twips
constexpr int BoxWidth = 4500;          // twips
constexpr int CaptionNumber = 47;

/// Typing ends here, although a field holds 32 characters: a longer line comes from a radio, a file or the clipboard.
constexpr int TypingLimit = 16;

constexpr TextPair LineNames[] = {{"Line 1", "第 1 行"}, {"Line 2", "第 2 行"}};

/// The face that the lines are meant for, by both its names, and what stands in for it elsewhere.
QFont MessageFont(QFont font) {
    font.setFamilies({QStringLiteral("宋体"), QStringLiteral("SimSun"), QStringLiteral("WenQuanYi Zen Hei"),
                      QStringLiteral("Noto Sans CJK SC"), font.family()});
    return font;
}

} // namespace

EmbedInfoForm::EmbedInfoForm(Session& session, Services& services, ChannelWindows& /*windows*/, QWidget* parent)
    : FieldForm(ChildWindow::EmbeddedMessage, "EmbedInfoForm", WindowSize, "picEmbeddedMsg", CaptionNumber, session,
                services, parent) {
    BuildBoxes();
    LoadFields();
    Load();
    setFocusProxy(txtMsg_.front());
}

void EmbedInfoForm::BuildBoxes() {
    constexpr int margin = 20;
    for (int line = 0; line < embedded_message::LineCount; ++line) {
        auto* box = new FilteredLineEdit(Panel());
        box->setObjectName(QStringLiteral("txtMsg(%1)").arg(line));
        box->setAccessibleName(ToQString(LineNames[line].In(TheSession().LanguageFlag)));
        box->setFont(MessageFont(box->font()));
        box->setGeometry(margin, margin + line * 40, PixelsOfTwips(BoxWidth), 28);
        box->SetLengthLimit(TypingLimit, false);
        box->SelectAllOnFocus();
        EnterMovesOn(*box);
        connect(box, &FilteredLineEdit::FocusLeft, this, [this, line] { Commit(line); });
        txtMsg_[static_cast<std::size_t>(line)] = box;
    }
}

void EmbedInfoForm::Load() {
    for (int line = 0; line < embedded_message::LineCount; ++line) {
        const std::u16string text = embedded_message::Load(TheSession().Image, line);
        txtMsg_[static_cast<std::size_t>(line)]->setText(QString::fromStdU16String(text));
    }
}

void EmbedInfoForm::Commit(int line) {
    const QString text = txtMsg_[static_cast<std::size_t>(line)]->text();
    embedded_message::Store(TheSession().Image, line, text.toStdU16String());
}

} // namespace zelvor
