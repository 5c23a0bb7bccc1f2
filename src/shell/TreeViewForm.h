#pragma once

#include <cstdint>

#include "controls/ChildForm.h"

class QPushButton;
class QTreeWidget;

namespace zelvor {

class Document;
struct Services;

/// The navigator: a tree with the model as its root and a node per child window.
class TreeViewForm : public ChildForm {
    Q_OBJECT

public:
    TreeViewForm(const Document& document, const WindowState& windows, Services& services, QWidget* parent = nullptr);

    [[nodiscard]] std::string_view HelpPage() const override { return "treeview.htm"; }
    [[nodiscard]] bool IsToolWindow() const override { return true; }

signals:
    /// The node of a window was activated.
    void WindowChosen(ChildWindow window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildControls();
    void BuildTree();
    QPushButton* MakeButton(const char* name, Text text, int left);
    void OnNodeClick();
    void OnDoubleClick(const QPoint& position);
    void ActivateSelectedNode();

    const Document& document_;
    const WindowState& windows_;
    Services& services_;
    QTreeWidget* treView_ = nullptr;
    bool NodeClicked = false;
    std::int64_t NodeClickTick = 0;
};

} // namespace zelvor
