#pragma once

namespace zelvor {

/// Gives the file behind one descriptor exactly the extended attributes and access lists of the other. False where one
/// of them cannot be read or set; true on a file system without any.
[[nodiscard]] bool CopyExtendedAttributes(int from, int to);

} // namespace zelvor
