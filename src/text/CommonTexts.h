#pragma once

#include "text/Language.h"

/// Texts that windows of several folders show.
namespace zelvor::commontexts {

// Titles of message boxes.
inline constexpr TextPair Error{"Error", "错误"};
inline constexpr TextPair Warning{"Warning", "警告"};

} // namespace zelvor::commontexts
