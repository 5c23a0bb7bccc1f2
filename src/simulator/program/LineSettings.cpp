#include "simulator/program/LineSettings.h"

namespace zelvor {

std::string LineSettingsText(const LineSettings& settings) {
    const std::string baud = settings.baud == 0 ? "unusual rate" : std::to_string(settings.baud);
    return baud + "," + settings.parity + "," + std::to_string(settings.dataBits) + "," +
           std::to_string(settings.stopBits);
}

} // namespace zelvor
