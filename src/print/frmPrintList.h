#pragma once

#include <QDialog>
#include <QString>
#include <array>
#include <string>

#include "print/ReportSection.h"
#include "text/Language.h"

class QCheckBox;
class QLabel;
class QPushButton;

namespace zelvor {

class Document;
struct PageTarget;
struct Services;

/// Choice of the sections that the data report is to hold, with a line that says where it goes. Shown modally; OK
/// prints them. The dialog stays usable while the printing system is asked.
class frmPrintList : public QDialog {
    Q_OBJECT

public:
    frmPrintList(const Document& document, Language language, Services& services, QWidget* parent = nullptr);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* MakeItems();
    QWidget* MakeSideButtons();
    QLabel* MakeOutputLine();
    QPushButton* MakeSideButton(const char* name, std::string_view text);

    [[nodiscard]] ReportSelection Selection() const;
    void SetAll(bool ticked);
    void OnItemClicked();
    void ShowOutput();
    void ShowTarget(const PageTarget& target);
    void ShowOutputText(const QString& text, const QString& toolTip = {});
    void ElideOutputText();
    void AskBeforeSetup();
    void ShowSetup(bool isAnswered);
    void AskBeforePrint();
    void Print(const PageTarget& target);
    void TellOfNoPrinter();

    const Document& document_;
    const Language language_;
    Services& services_;
    std::array<QCheckBox*, ReportSectionCount> chkPrintItem_{};
    QLabel* lblOutput_ = nullptr;
    QString outputText_; // of which lblOutput_ shows what there is room for
    QPushButton* cmdOK_ = nullptr;
    bool isAsking_ = false;  // the set-up or a print waits for the printing system
    std::string agreedFile_; // the set-up dialog has asked whether this one may be replaced
};

} // namespace zelvor
