#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

class QWidget;

namespace zelvor::bench {

/// Of each window under its name, in milliseconds.
using Times = std::map<std::string, std::vector<double>>;

inline constexpr double NanosecondsPerMillisecond = 1e6;

/// Milliseconds until all that is to be painted in the window is painted and handed over.
[[nodiscard]] double UntilPainted(QWidget& window, const std::function<void()>& work);

/// What keys take in the part of the window that has the focus: the tab key, Down and a digit, again and again.
void MeasureKeys(QWidget& window, std::vector<double>& times);

} // namespace zelvor::bench
