#pragma once

#include <QPointer>
#include <QString>
#include <QStringList>

#include "help/HelpViewer.h"
#include "help/HelpWindow.h"

namespace zelvor {

/// Shows the help's pages in a window of its own, which stays until the user closes it.
class QtHelpViewer : public HelpViewer {
public:
    /// Searches the folders that an installed program and one just built have.
    QtHelpViewer();
    /// The first of the folders that has the page counts.
    explicit QtHelpViewer(QStringList folders);
    QtHelpViewer(const QtHelpViewer&) = delete;
    QtHelpViewer& operator=(const QtHelpViewer&) = delete;
    ~QtHelpViewer() override;

    void Show(const HelpTopic& topic) override;

private:
    [[nodiscard]] QString FolderWith(const QString& page) const;

    QStringList folders_;
    QPointer<HelpWindow> window_;
};

} // namespace zelvor
