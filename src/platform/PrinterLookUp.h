#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <chrono>
#include <functional>
#include <future>
#include <optional>
#include <vector>

#include "platform/InstalledPrinters.h"

namespace zelvor {

/// Asks the printing system for its printers without holding the window: in a thread, for which nobody waits longer
/// than some seconds, nor at the program's end.
class PrinterLookUp {
public:
    using Printers = std::vector<InstalledPrinter>;
    using Ask = std::function<Printers()>;
    using Told = std::function<void(const std::optional<Printers>& printers)>;

    static constexpr std::chrono::milliseconds Patience{5000};

    explicit PrinterLookUp(Ask ask = AskForPrinters, std::chrono::milliseconds patience = Patience);

    /// Tells the printers that there are now, or nothing where there is no answer in time. Always from the event loop,
    /// and not after the end of this object. Who starts while another waits gets the same answer.
    void Start(Told told);

private:
    void Launch();
    void Poll();
    void Tell(const std::optional<Printers>& printers);

    Ask ask_;
    std::chrono::milliseconds patience_;
    std::future<Printers> answer_; // of the thread, where one is out
    bool isLate_ = false;          // nobody waits for that answer any more
    std::vector<Told> waiting_;
    QElapsedTimer waited_;
    QTimer poll_;
};

} // namespace zelvor
