#pragma once

namespace zelvor::bench {

/// objectName of the widget whose painting ends the start: each start-up program defines its own.
extern const char* const AwaitedWidget;

} // namespace zelvor::bench
