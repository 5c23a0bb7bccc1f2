#pragma once

#include <QString>
#include <string>

class QWidget;

namespace zelvor::tour {

// Questions to the window thread.

/// What a user deals with: the help window, else the modal dialog, else the window that the main one is disabled for,
/// else the main window; null where there is none.
[[nodiscard]] QWidget* WindowOnTop();
[[nodiscard]] bool IsOnTop(const QString& window);
/// The visible widget of that name in the window on top, and there in the active child window where that has one; null
/// where there is none.
[[nodiscard]] QWidget* WidgetOnTop(const QString& name);
/// A part, by its name, of a visible window that lies in the window on top: several child windows have a cmdClose.
[[nodiscard]] QWidget* PartOf(const QString& window, const QString& part);

/// The text of a label, box, list, button or progress bar in the window on top; "(no ...)" where it is not there.
[[nodiscard]] QString TextOnTop(const QString& name);
/// Text of a table's cell in the window on top, row and column counted from 1.
[[nodiscard]] QString CellOnTop(const QString& table, int row, int column);
[[nodiscard]] QString TitleOnTop();

/// What is on the screen and has the keys, in a line for the report of a failure.
[[nodiscard]] std::string WindowsInAWord();

} // namespace zelvor::tour
