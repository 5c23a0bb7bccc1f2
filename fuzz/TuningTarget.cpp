// The tuning dialogs of all items, with a user who does anything at any time and a radio that answers with any bytes.

#include "TuningFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    zelvor::fuzz::FuzzInput input(bytes, count);
    zelvor::fuzz::TuningFuzz({input, input, input}).Run();
    return 0;
}
