// The memory map, which no menu shows.

#include <QMainWindow>

#include "tour/Checks.h"
#include "tour/Job.h"
#include "tour/Program.h"
#include "tour/Screenshots.h"
#include "tour/WindowOnTop.h"
#include "tour/WindowThread.h"

namespace zelvor::tour {

namespace {

constexpr int ByteAddress = 0x210; // of autodial memory 2
constexpr int ByteRow = 34;        // of the table
constexpr int FromCorner = 12;     // pixels

/// For a question to the window thread: the top right corner of the area of the child windows.
std::optional<User::Place> Corner() {
    const auto* window = qobject_cast<QMainWindow*>(WindowOnTop());
    if (!window) {
        return std::nullopt;
    }
    const QWidget* area = window->centralWidget();
    return User::Place{window->windowHandle(), area->mapTo(window, QPoint(area->width() - FromCorner, FromCorner))};
}

} // namespace

void Job::OpenMemoryMap() {
    user_.ClickAt("the corner of the main window", Corner, Qt::ControlModifier | Qt::AltModifier);
    boxes_.ExpectDialog("CPUForm", words_.memoryCaption);
    CheckEqual("address at first", windows_.Ask([] { return TextOnTop("lblAddr"); }), "0000");
    for (int row = 1; row < ByteRow; ++row) {
        user_.Press(Qt::Key_Down);
    }
    CheckEqual("address of the row", windows_.Ask([] { return TextOnTop("lblAddr"); }), "0210");
}

void Job::TypeMemoryByte(const QString& digits) {
    user_.Type(digits);
    user_.Press(Qt::Key_Return);
    CheckEqual("the byte typed", windows_.Ask([] { return CellOnTop("msgMemory", ByteRow, 1); }), digits);
    CheckEqual("address behind it", windows_.Ask([] { return TextOnTop("lblAddr"); }), "0211");
}

void Job::EditMemoryMap() {
    OpenChild("MnuEditKeyAssignment", "KeyAssign");
    const QByteArray before = program_->Image();
    OpenMemoryMap();
    TypeMemoryByte("EE");
    user_.Click("cmdCancel");
    boxes_.WaitUntilGone("CPUForm");
    CheckBytes("the document after Cancel", program_->Image(), before);
    Check("KeyAssign is closed", windows_.Ask([] { return WidgetOnTop("KeyAssign") == nullptr; }));

    OpenMemoryMap();
    TypeMemoryByte(round_.memoryByte);
    screenshots_.Take("memory-map");
    user_.Click("cmdOK");
    boxes_.WaitUntilGone("CPUForm");
    CheckBytes("the document after OK", program_->Image(),
               QByteArray(before).replace(ByteAddress, 1, QByteArray::fromHex(round_.memoryByte.toLatin1())));
    Done("Ctrl+Alt and a click in the corner: the memory map changes one byte");
}

} // namespace zelvor::tour
