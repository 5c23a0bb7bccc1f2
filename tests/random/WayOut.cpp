#include "random/WayOut.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <cstdlib>
#include <iostream>

#include "tour/WindowOnTop.h"
#include "tour/WindowThread.h"

namespace zelvor::random {

namespace {

constexpr int MostSteps = 400;
constexpr std::chrono::milliseconds StepPause(150);

/// Of the boxes that leaving the program brings: it is left without saving, and nothing new is begun.
QAbstractButton* ButtonOut() {
    const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) {
        return nullptr;
    }
    const bool offersToSave = box->button(QMessageBox::Cancel) && box->button(QMessageBox::No);
    for (const auto button :
         {offersToSave ? QMessageBox::No : QMessageBox::Cancel, QMessageBox::Yes, QMessageBox::Ok}) {
        if (box->button(button) != nullptr) {
            return box->button(button);
        }
    }
    return nullptr;
}

/// Answers the box, else closes the window in front.
void TakeAStep(const std::atomic<bool>& isOver) {
    if (isOver) {
        return;
    }
    if (QWidget* popup = QApplication::activePopupWidget()) {
        popup->close();
    } else if (QAbstractButton* button = ButtonOut()) {
        button->click();
    } else if (QWidget* window = tour::WindowOnTop()) {
        window->close();
    }
}

} // namespace

void LeaveProgram(const tour::WindowThread& windows, const std::atomic<bool>& isOver) {
    for (int steps = 0; !isOver; ++steps) {
        tour::WindowThread::Post([&isOver] { TakeAStep(isOver); });
        windows.Pause(StepPause);
        if (steps == MostSteps) {
            std::cerr << "The program cannot be left. " << tour::WindowsInAWord() << std::endl;
            std::_Exit(StuckExit);
        }
    }
}

} // namespace zelvor::random
