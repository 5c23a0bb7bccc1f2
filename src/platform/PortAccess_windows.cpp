#include "platform/PortAccess.h"

namespace zelvor {

PortFailure AccessFailure(const std::string&) {
    return {};
}

} // namespace zelvor
