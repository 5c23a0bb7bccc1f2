#include <cerrno>
#include <copyfile.h>

#include "platform/ExtendedAttributes.h"

namespace zelvor {

bool CopyExtendedAttributes(int from, int to) {
    return fcopyfile(from, to, nullptr, COPYFILE_XATTR | COPYFILE_ACL) == 0 || errno == ENOTSUP;
}

} // namespace zelvor
