#pragma once

#include <QDialog>

#include "data/Session.h"

class QGridLayout;

namespace zelvor {

struct Services;

/// Radio information: the serial number that the radio told, and model and range of the document in memory.
class DJJInfoForm : public QDialog {
    Q_OBJECT

public:
    DJJInfoForm(Session& session, Services& services, QWidget* parent = nullptr);

signals:
    /// The window is gone, whichever way it was closed.
    void Unloaded();

protected:
    void closeEvent(QCloseEvent* event) override;
    void reject() override { close(); }

private:
    void AddField(QGridLayout& layout, const char* labelName, Text label, const char* name, const QString& text);
    [[nodiscard]] QString SerialNumber() const;
    void ShowHelp();

    Session& session_;
    Services& services_;
};

} // namespace zelvor
