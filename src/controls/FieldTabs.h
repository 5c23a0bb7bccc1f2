#pragma once

#include <QTabWidget>

namespace zelvor {

/// Pages of fields. A click on a tab takes the focus, so that the control that has it is left first; the Tab key stays
/// on the visible page. Enter on the tabs moves on like Tab.
class FieldTabs : public QTabWidget {
    Q_OBJECT

public:
    explicit FieldTabs(const QString& name, QWidget* parent = nullptr);

    /// Adds an empty page.
    QWidget* AddPage(const QString& caption);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace zelvor
