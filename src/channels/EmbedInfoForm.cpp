#include "channels/EmbedInfoForm.h"

#include <QGridLayout>
#include <QLabel>
#include <algorithm>

#include "controls/EnterAsTab.h"
#include "controls/FilteredLineEdit.h"
#include "platform/LayoutUnits.h"
#include "platform/Toolkit.h"

namespace zelvor {

namespace {

constexpr QSize WindowSize{5100, 2820}; // twips
constexpr int BoxWidth = 4500;          // twips

/// Typing ends here, although a field holds 32 characters: a longer line comes from a radio, a file or the clipboard.
constexpr int TypingLimit = 16;

// Pixels.
constexpr int SideMargin = 20;
constexpr int TopMargin = 12;
constexpr int BoxHeight = 28;
constexpr int CaptionHeight = 20; // also of signs from another font
constexpr int CaptionSpacing = 1;
constexpr int LineSpacing = 8;

constexpr TextPair LineNames[] = {{"Line 1", "第 1 行"}, {"Line 2", "第 2 行"}};

constexpr TextPair RoomLeft{"%1 left", "还可输入 %1 个字符"};
constexpr TextPair CannotBeStored{"“%1” cannot be stored, %2 left", "“%1”无法存储，还可输入 %2 个字符"};
constexpr TextPair TooLong[] = {{"32 at most, the rest goes into line 2", "最多 32 个字符，其余写入第 2 行"},
                                {"32 at most, the rest is lost", "最多 32 个字符，其余丢失"}};
constexpr TextPair HintTip{
    "Typing ends at 16 characters; a pasted line may have 32. A character that cannot be stored "
    "ends what is stored of the line.",
    "最多键入 16 个字符，粘贴的一行可有 32 个字符。遇到无法存储的字符，只存储该行中它之前的部分。"};

/// The face that the lines are meant for, by both its names, and what stands in for it elsewhere.
QFont MessageFont(QFont font) {
    font.setFamilies({QStringLiteral("宋体"), QStringLiteral("SimSun"), QStringLiteral("WenQuanYi Zen Hei"),
                      QStringLiteral("Noto Sans CJK SC"), font.family()});
    return font;
}

/// The character at a place of a text, or its number where it cannot be seen.
QString CharacterAt(const QString& text, qsizetype place) {
    const char32_t character = static_cast<char32_t>(text.mid(place, 2).toUcs4().value(0));
    return QChar::isPrint(character)
               ? QString::fromUcs4(&character, 1)
               : QStringLiteral("U+%1").arg(static_cast<uint>(character), 4, 16, QLatin1Char('0')).toUpper();
}

} // namespace

EmbedInfoForm::EmbedInfoForm(Document& document, const WindowState& windows, Services& services, QWidget* parent)
    : FieldForm(ChildWindow::EmbeddedMessage, "EmbedInfoForm", WindowSize, "picEmbeddedMsg", Text::EmbeddedMessageTitle,
                document, windows, services, parent) {
    BuildLines();
    LoadFields();
    Load();
    setFocusProxy(txtMsg_.front());
}

void EmbedInfoForm::BuildLines() {
    auto* layout = new QGridLayout(Panel());
    layout->setContentsMargins(LaidOut(SideMargin), LaidOut(TopMargin), LaidOut(SideMargin), 0);
    layout->setVerticalSpacing(CaptionSpacing);
    layout->setColumnStretch(1, 1);
    for (int line = 0; line < embedded_message::LineCount; ++line) {
        BuildLine(line, *layout);
    }
    layout->setRowStretch(layout->rowCount(), 1);
}

void EmbedInfoForm::BuildLine(int line, QGridLayout& layout) {
    const QString name = ToQString(LineNames[line].In(CurrentLanguage()));
    auto* box = new FilteredLineEdit(Panel());
    box->setObjectName(QStringLiteral("txtMsg(%1)").arg(line));
    box->setAccessibleName(name);
    box->setFont(MessageFont(box->font()));
    box->setFixedSize(PixelsOfTwips(BoxWidth), LaidOut(BoxHeight));
    box->SetLengthLimit(TypingLimit, false);
    box->SelectAllOnFocus();
    EnterMovesOn(*box);
    auto* caption = new QLabel(name, Panel());
    caption->setObjectName(QStringLiteral("lblMsg(%1)").arg(line));
    caption->setBuddy(box);
    auto* hint = new QLabel(Panel());
    hint->setObjectName(QStringLiteral("lblMsgHint(%1)").arg(line));
    hint->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    hint->setTextFormat(Qt::PlainText);
    hint->setToolTip(ToQString(HintTip.In(CurrentLanguage())));
    txtMsg_[static_cast<std::size_t>(line)] = box;
    lblMsgHint_[static_cast<std::size_t>(line)] = hint;
    const int row = layout.rowCount();
    layout.setRowMinimumHeight(row, line == 0 ? 0 : LaidOut(LineSpacing));
    layout.setRowMinimumHeight(row + 1, LaidOut(CaptionHeight));
    layout.addWidget(caption, row + 1, 0);
    layout.addWidget(hint, row + 1, 1);
    layout.addWidget(box, row + 2, 0, 1, 2);
    connect(box, &QLineEdit::textChanged, this, [this, line] { ShowHint(line); });
    connect(box, &FilteredLineEdit::FocusLeft, this, [this, line] { Commit(line); });
    ShowHint(line);
}

void EmbedInfoForm::ShowHint(int line) {
    const auto in = [this](const TextPair& text) { return ToQString(text.In(CurrentLanguage())); };
    FilteredLineEdit& box = *txtMsg_[static_cast<std::size_t>(line)];
    QLabel& hint = *lblMsgHint_[static_cast<std::size_t>(line)];
    const QString text = box.text();
    const auto storable = static_cast<qsizetype>(embedded_message::StorableLength(text.toStdU16String()));
    const QString left = QString::number(std::max<qsizetype>(0, TypingLimit - text.size()));
    const bool isCut = storable < std::min<qsizetype>(text.size(), embedded_message::FieldSize);
    const bool isTooLong = !isCut && text.size() > embedded_message::FieldSize;
    hint.setText(isCut       ? in(CannotBeStored).arg(CharacterAt(text, storable), left)
                 : isTooLong ? in(TooLong[line])
                             : in(RoomLeft).arg(left));
    hint.setForegroundRole(isCut || isTooLong ? QPalette::WindowText : QPalette::PlaceholderText);
    box.setAccessibleDescription(hint.text());
}

void EmbedInfoForm::Load() {
    for (int line = 0; line < embedded_message::LineCount; ++line) {
        const std::u16string text = embedded_message::Load(TheDocument().Image, line);
        txtMsg_[static_cast<std::size_t>(line)]->setText(QString::fromStdU16String(text));
    }
}

void EmbedInfoForm::Commit(int line) {
    const QString text = txtMsg_[static_cast<std::size_t>(line)]->text();
    embedded_message::Store(TheDocument().Image, line, text.toStdU16String());
}

} // namespace zelvor
