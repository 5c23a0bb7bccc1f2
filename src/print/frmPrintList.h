#pragma once

#include <QDialog>
#include <array>

#include "print/ReportSection.h"

class QCheckBox;
class QPushButton;

namespace zelvor {

class Session;
struct Services;

/// Choice of the sections that the data report is to hold. Shown modally; OK prints them.
class frmPrintList : public QDialog {
    Q_OBJECT

public:
    frmPrintList(Session& session, Services& services, QWidget* parent = nullptr);

private:
    QWidget* MakeItems();
    QWidget* MakeSideButtons();
    QPushButton* MakeSideButton(const char* name, std::string_view text);

    [[nodiscard]] ReportSelection Selection() const;
    void SetAll(bool ticked);
    void OnItemClicked();
    void ShowSetup();
    void Print();
    void TellOfNoPrinter();

    Session& session_;
    Services& services_;
    std::array<QCheckBox*, ReportSectionCount> chkPrintItem_{};
    QPushButton* cmdOK_ = nullptr;
};

} // namespace zelvor
