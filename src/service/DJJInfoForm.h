#pragma once

#include <QDialog>

#include "text/Language.h"
#include "text/Text.h"

class QGridLayout;

namespace zelvor {

class Document;
struct ServiceState;
struct Services;

/// Radio information: the serial number that the radio told, and model and range of the document in memory.
class DJJInfoForm : public QDialog {
    Q_OBJECT

public:
    DJJInfoForm(const Document& document, const ServiceState& service, Language language, Services& services,
                QWidget* parent = nullptr);

signals:
    /// The window is gone, whichever way it was closed.
    void Unloaded();

protected:
    void closeEvent(QCloseEvent* event) override;
    void reject() override { close(); }

private:
    void AddField(QGridLayout& layout, const char* labelName, Text label, const char* name, const QString& text);
    void ShowHelp();

    const Language language_;
    Services& services_;
};

} // namespace zelvor
