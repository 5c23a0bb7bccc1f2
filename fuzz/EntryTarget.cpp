// Radio information, and the way into test mode, with a radio that answers with any bytes at any time.

#include "EntryFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    zelvor::fuzz::FuzzInput input(bytes, count);
    zelvor::fuzz::EntryFuzz({input, input, input}).Run();
    return 0;
}
