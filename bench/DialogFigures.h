#pragma once

#include "Painting.h"

class QMainWindow;

namespace zelvor {
struct ProgramState;
struct Services;
} // namespace zelvor

namespace zelvor::bench {

/// What a dialog takes from its command until it is painted, each once, and what keys take in those that have a field.
/// The ones of the service mode are made as for a radio that has told what they show, and then says nothing.
void MeasureDialogs(QMainWindow& window, const ProgramState& state, Services& services, Times& opened, Times& keys);

} // namespace zelvor::bench
