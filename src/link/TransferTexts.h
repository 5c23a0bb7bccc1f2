#pragma once

#include <string>

#include "platform/SerialPort.h"
#include "text/Language.h"

/// What the dialog of a transfer tells in its status line.
namespace zelvor::transfertexts {

inline constexpr TextPair Ready{"Connect the radio, switch it on and press OK.",
                                "请连接对讲机并打开电源，然后按“确定”。"};
inline constexpr TextPair Connecting{"Connecting to the radio...", "正在连接对讲机..."};
inline constexpr TextPair Reading{"Reading...", "正在读取..."};
inline constexpr TextPair Writing{"Writing...", "正在写入..."};
inline constexpr TextPair Completed{"Completed.", "完毕。"};
inline constexpr TextPair Retrying{"Beginning again in 1.7 seconds. The window does not react until then.",
                                   "1.7 秒后重新开始，在此之前窗口没有反应。"};

/// The port is open and the radio silent, or not to be understood.
[[nodiscard]] std::string NoAnswer(int portNumber, Language language);
/// Why the port cannot be opened, and what to do.
[[nodiscard]] std::string CannotOpen(const PortFailure& failure, int portNumber, Language language);

} // namespace zelvor::transfertexts
