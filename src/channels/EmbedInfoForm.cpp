#include "channels/EmbedInfoForm.h"

#include <QFrame>
#include <QPushButton>

#include "controls/EnterAsTab.h"
#include "controls/FilteredLineEdit.h"
#include "controls/PendingEdit.h"
#include "platform/HelpTopic.h"
#include "platform/HelpViewer.h"
#include "platform/Services.h"
#include "platform/Toolkit.h"

namespace zelvor {

namespace {

constexpr QSize WindowSize{5100, 2250}; // twips
constexpr int BoxWidth = 4500;          // twips

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

EmbedInfoForm::EmbedInfoForm(Session& session, Services& services, ChannelWindows&, QWidget* parent)
    : ChildForm(ChildWindow::EmbeddedMessage, "EmbedInfoForm", WindowSize, parent), session_(session),
      services_(services) {
    BuildBoxes();
    BuildButtons();
    SetCaption(ToQString(session_.LoadText(47)));
    Load();
    setFocusProxy(txtMsg_.front());
}

EmbedInfoForm::~EmbedInfoForm() {
    DropPendingEdit(*this);
}

void EmbedInfoForm::BuildBoxes() {
    constexpr int margin = 20;
    auto* picEmbeddedMsg = new QFrame(Content());
    picEmbeddedMsg->setObjectName("picEmbeddedMsg");
    picEmbeddedMsg->setGeometry(0, 0, PixelsOfTwips(WindowSize.width()), 96);
    for (int line = 0; line < embedded_message::LineCount; ++line) {
        auto* box = new FilteredLineEdit(picEmbeddedMsg);
        box->setObjectName(QStringLiteral("txtMsg(%1)").arg(line));
        box->setAccessibleName(ToQString(LineNames[line].In(session_.LanguageFlag)));
        box->setFont(MessageFont(box->font()));
        box->setGeometry(margin, margin + line * 40, PixelsOfTwips(BoxWidth), 28);
        box->SetLengthLimit(TypingLimit, false);
        box->SelectAllOnFocus();
        EnterMovesOn(*box);
        connect(box, &FilteredLineEdit::FocusLeft, this, [this, line] { Commit(line); });
        txtMsg_[static_cast<std::size_t>(line)] = box;
    }
}

void EmbedInfoForm::BuildButtons() {
    const auto button = [this](const char* name, int x, int textNumber) {
        auto* made = new QPushButton(ToQString(session_.LoadText(textNumber)), Content());
        made->setObjectName(name);
        made->setGeometry(x, 104, 100, 30);
        made->setAutoDefault(true);
        return made;
    };
    const auto* cmdClose = button("cmdClose", 112, 75);
    const auto* cmdHelp = button("cmdHelp", 220, 76);
    connect(cmdClose, &QPushButton::clicked, this, &EmbedInfoForm::CloseFromFrame);
    connect(cmdHelp, &QPushButton::clicked, this,
            [this] { services_.help.ShowTopic(HelpTopicPath(session_.LanguageFlag, HelpPage())); });
}

void EmbedInfoForm::Load() {
    for (int line = 0; line < embedded_message::LineCount; ++line) {
        const std::u16string text = embedded_message::Load(session_.Image, line);
        txtMsg_[static_cast<std::size_t>(line)]->setText(QString::fromStdU16String(text));
    }
}

void EmbedInfoForm::Commit(int line) {
    const QString text = txtMsg_[static_cast<std::size_t>(line)]->text();
    embedded_message::Store(session_.Image, line, text.toStdU16String());
}

void EmbedInfoForm::CloseFromFrame() {
    CommitPendingEdit();
    emit UnloadRequested();
}

} // namespace zelvor
