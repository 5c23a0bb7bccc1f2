#pragma once

#include <QDialog>

namespace zelvor {

class Session;

/// Name, models and version of the program. Shown modally.
class AboutForm : public QDialog {
    Q_OBJECT

public:
    explicit AboutForm(const Session& session, QWidget* parent = nullptr);
};

} // namespace zelvor
