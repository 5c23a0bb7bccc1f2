#pragma once

#include "text/Language.h"

/// Texts of the message boxes of a transfer; their titles are common ones.
namespace zelvor::clonetexts {

inline constexpr TextPair ReadingCompleted{"Reading Completed", "读取完毕"};
inline constexpr TextPair WritingCompleted{"Writing Completed", "写入完毕"};
inline constexpr TextPair ModelTypeWrong{"Model type is wrong.Overwrite?", "机型类型错误。是否改写？"};
inline constexpr TextPair CheckConnections{"please check all connections and communication port settings.",
                                           "检查所有连接及通信端口设置。"};

} // namespace zelvor::clonetexts
