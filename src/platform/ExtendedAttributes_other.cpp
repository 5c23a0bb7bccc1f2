#include "platform/ExtendedAttributes.h"

namespace zelvor {

bool CopyExtendedAttributes(int /*from*/, int /*to*/) {
    return true;
}

} // namespace zelvor
