#include "print/frmPrintList.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>
#include <cmath>

#include "controls/DialogButtons.h"
#include "controls/FitToScreen.h"
#include "data/Document.h"
#include "help/HelpViewer.h"
#include "platform/Clock.h"
#include "platform/MessageBoxes.h"
#include "platform/PageDevice.h"
#include "platform/Services.h"
#include "platform/Toolkit.h"
#include "print/DataReport.h"
#include "print/ReportOutput.h"
#include "text/StringTable.h"

namespace zelvor {

namespace {

// Unlike those of the string table, the Chinese ones have access keys.
constexpr TextPair SelectAll{"Select &All", "全部选定(&A)"};
constexpr TextPair ClearAll{"C&lear All", "全部清除(&L)"};
constexpr TextPair PrintSetup{"P&rint setup", "打印设置(&R)"};

constexpr int ButtonsGap = 8; // above OK, Cancel and Help

/// Intended: in Chinese whatever the language is.
constexpr std::string_view NoPrinterTitle = "打印列表";
constexpr std::string_view NoPrinterText =
    "打印之前必须已经安装打印机。\n"
    "要安装打印机，请单击\"开始\"，指向\"设置\",选定\"打印机\"，然后再双击\"添加打印机\"。";

} // namespace

frmPrintList::frmPrintList(const Document& document, Language language, Services& services, QWidget* parent)
    : QDialog(parent), document_(document), language_(language), services_(services) {
    setObjectName("frmPrintList");
    setModal(true);
    setWindowTitle(ToQString(TableText(language_, Text::PrintOutList)));

    auto* choice = new QHBoxLayout;
    choice->addWidget(MakeItems(), 1);
    choice->addWidget(MakeSideButtons());

    const DialogButtons buttons = MakeDialogButtons(*this, language_);
    cmdOK_ = buttons.cmdOK;
    connect(buttons.cmdOK, &QPushButton::clicked, this, &frmPrintList::AskBeforePrint);
    connect(buttons.cmdCancel, &QPushButton::clicked, this, &frmPrintList::reject);
    connect(buttons.cmdHelp, &QPushButton::clicked, this, [this] { services_.help.Show({language_, "print.htm"}); });

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(choice);
    layout->addWidget(MakeOutputLine());
    layout->addSpacing(ButtonsGap);
    layout->addLayout(buttons.row);
    FitToScreen(*this);
    OnItemClicked();
    ShowOutput();
}

QWidget* frmPrintList::MakeItems() {
    auto* panel = new QWidget(this);
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(0, 0, 0, 0);
    for (int index = 0; index < ReportSectionCount; ++index) {
        const std::string_view title = SectionTitle(static_cast<ReportSection>(index), language_);
        auto* item = new QCheckBox(ToQString(title), panel);
        item->setObjectName(QString("chkPrintItem(%1)").arg(index));
        connect(item, &QCheckBox::toggled, this, &frmPrintList::OnItemClicked);
        column->addWidget(item);
        chkPrintItem_[static_cast<std::size_t>(index)] = item;
    }
    return panel;
}

QWidget* frmPrintList::MakeSideButtons() {
    auto* cmdSelectAll = MakeSideButton("cmdSelectAll", SelectAll.In(language_));
    auto* cmdClearAll = MakeSideButton("cmdClearAll", ClearAll.In(language_));
    auto* cmdPrintSetup = MakeSideButton("cmdPrintSetup", PrintSetup.In(language_));
    connect(cmdSelectAll, &QPushButton::clicked, this, [this] { SetAll(true); });
    connect(cmdClearAll, &QPushButton::clicked, this, [this] { SetAll(false); });
    connect(cmdPrintSetup, &QPushButton::clicked, this, &frmPrintList::AskBeforeSetup);

    auto* panel = new QWidget(this);
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(0, 0, 0, 0);
    for (QPushButton* button : {cmdSelectAll, cmdClearAll, cmdPrintSetup}) {
        column->addWidget(button);
    }
    column->addStretch();
    return panel;
}

QLabel* frmPrintList::MakeOutputLine() {
    lblOutput_ = new QLabel(this);
    lblOutput_->setObjectName("lblOutput");
    lblOutput_->setTextFormat(Qt::PlainText);
    lblOutput_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // a long name does not widen the dialog
    const std::string longest = OutputText({PageTarget::Kind::NoAnswer, {}}, language_);
    const double width = QFontMetricsF(lblOutput_->font()).horizontalAdvance(ToQString(longest));
    lblOutput_->setMinimumWidth(static_cast<int>(std::ceil(width))); // a rounded one may cost letters
    return lblOutput_;
}

QPushButton* frmPrintList::MakeSideButton(const char* name, std::string_view text) {
    auto* button = new QPushButton(ToQString(text), this);
    button->setObjectName(name);
    button->setAutoDefault(true);
    return button;
}

ReportSelection frmPrintList::Selection() const {
    ReportSelection selection;
    for (std::size_t i = 0; i < chkPrintItem_.size(); ++i) {
        selection.set(i, chkPrintItem_[i]->isChecked());
    }
    return selection;
}

void frmPrintList::SetAll(bool ticked) {
    for (QCheckBox* item : chkPrintItem_) {
        item->setChecked(ticked);
    }
}

void frmPrintList::OnItemClicked() {
    cmdOK_->setEnabled(Selection().any());
}

void frmPrintList::ShowOutput() {
    ShowOutputText(ToQString(AskingText(language_)));
    services_.pages.FindTarget([form = QPointer(this)](const PageTarget& target) {
        if (form && !form->isAsking_) {
            form->ShowTarget(target);
        }
    });
}

void frmPrintList::ShowTarget(const PageTarget& target) {
    ShowOutputText(ToQString(OutputText(target, language_)), ToQString(target.name));
}

void frmPrintList::ShowOutputText(const QString& text, const QString& toolTip) {
    outputText_ = text;
    lblOutput_->setAccessibleName(text);
    lblOutput_->setToolTip(toolTip.toHtmlEscaped());
    ElideOutputText();
}

void frmPrintList::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    ElideOutputText();
}

void frmPrintList::ElideOutputText() {
    lblOutput_->setText(lblOutput_->fontMetrics().elidedText(outputText_, Qt::ElideMiddle, lblOutput_->width()));
}

void frmPrintList::AskBeforeSetup() {
    if (isAsking_) {
        return;
    }
    isAsking_ = true;
    ShowOutputText(ToQString(AskingText(language_)));
    services_.pages.AskForPrinters([form = QPointer(this)](bool isAnswered) {
        if (form) {
            form->ShowSetup(isAnswered);
        }
    });
}

void frmPrintList::ShowSetup(bool isAnswered) {
    const QPointer form(this);
    const bool isWanted = isVisible() && (isAnswered || WantsFileForWantOfAnswer(services_.messages, language_));
    const bool isChosen = isWanted && services_.pages.ShowSetup(document_.FileName());
    if (!form) {
        return;
    }
    isAsking_ = false;
    if (isChosen) {
        services_.pages.FindTarget([form](const PageTarget& target) {
            if (form) {
                form->agreedFile_ = target.replacesFile ? target.name : std::string();
            }
        });
    }
    ShowOutput();
}

void frmPrintList::AskBeforePrint() {
    if (isAsking_) {
        return;
    }
    isAsking_ = true;
    ShowOutputText(ToQString(AskingText(language_)));
    services_.pages.FindTarget([form = QPointer(this)](const PageTarget& target) {
        if (form) {
            form->Print(target);
        }
    });
}

/// A refused replacement and a printing system without an answer leave the dialog up: the user may choose another way.
void frmPrintList::Print(const PageTarget& target) {
    const QPointer form(this);
    ShowTarget(target);
    if (!isVisible()) {
        return;
    }
    if (target.kind == PageTarget::Kind::None) {
        TellOfNoPrinter();
    } else if (MayPrintTo(target, services_.messages, language_, agreedFile_)) {
        PrintDataReport(services_.pages, BuildDataReport(document_.Image, Selection(), document_.FileName(), language_,
                                                         services_.clock.Now()));
    } else {
        if (form) {
            isAsking_ = false;
        }
        return;
    }
    if (form) {
        accept();
    }
}

void frmPrintList::TellOfNoPrinter() {
    services_.messages.Show({.title = std::string(NoPrinterTitle),
                             .text = std::string(NoPrinterText),
                             .icon = MessageIcon::Exclamation,
                             .buttons = MessageButtons::Ok});
}

} // namespace zelvor
