// Reading a radio that answers with any bytes at any time.

#include "ClonePromises.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    using namespace zelvor;
    using namespace zelvor::fuzz;
    FuzzInput input(bytes, count);
    CloneFuzz transfer({input, input, input}, transfer::Reading);
    const DataImage before = transfer.Image();
    const DataImage memory = transfer.Radio().Memory;
    transfer.Run();
    CheckRead(transfer, before, memory);
    return 0;
}
