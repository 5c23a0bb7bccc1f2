#pragma once

#include <QDialog>

#include "text/Language.h"

namespace zelvor {

/// Name, models and version of the program. Shown modally.
class AboutForm : public QDialog {
    Q_OBJECT

public:
    explicit AboutForm(Language language, QWidget* parent = nullptr);
};

} // namespace zelvor
