// Reading a radio that answers with any bytes at any time.

#include "CloneFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    zelvor::fuzz::FuzzInput input(bytes, count);
    zelvor::fuzz::CloneFuzz({input, input, input}, zelvor::transfer::Reading).Run();
    return 0;
}
