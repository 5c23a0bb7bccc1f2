#pragma once

namespace zelvor {

/// For a program that shows no window and has texts drawn all the same: the toolkit then needs no display. Before its
/// application object is made.
void DoWithoutDisplay();

} // namespace zelvor
