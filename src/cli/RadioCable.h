#pragma once

#include <optional>
#include <string>

#include "cli/RadioAnswers.h"
#include "cli/RadioHeldPort.h"
#include "cli/RadioMachine.h"
#include "cli/RadioTransfer.h"
#include "link/LinkState.h"
#include "platform/Backups.h"

namespace zelvor::cli {

/// The radio that a command talks to, from its first exchange to its last: the port is held between them.
class RadioCable {
public:
    RadioCable(RadioMachine& machine, const RadioRequest& request, const Console& console);

    /// What the radio holds; nothing, and told, where it cannot be read to its end.
    [[nodiscard]] std::optional<DataImage> Read();
    /// The same, of what was just written.
    [[nodiscard]] std::optional<DataImage> ReadBack();
    [[nodiscard]] TransferReport Write(Document& document);
    /// For another exchange.
    [[nodiscard]] RadioLink Link();
    void BeginExchange();
    [[nodiscard]] PortFailure Failure() const { return port_.Failure(); }

    /// The backup's path; nothing, and told, where it cannot be kept.
    std::optional<std::string> Keep(const DataImage& image, BackupDirection direction);
    /// Whether the file is a backup of what was read from a radio.
    [[nodiscard]] bool IsReadBackup(const std::string& path) const;

    /// Says why an exchange has not come to its end.
    void TellFailure(const TransferReport& report) const;

private:
    [[nodiscard]] std::optional<DataImage> ReadImage(const TextPair& what);
    [[nodiscard]] TransferReport Transfer(Document& document, int mode, const TextPair& what);

    RadioMachine& machine_;
    const RadioRequest request_;
    const Console& console_;
    Backups backups_;
    LinkState state_;
    RadioHeldPort port_;
    RadioAnswers answers_;
};

} // namespace zelvor::cli
