#include "text/StringTable.h"

#include <array>
#include <cstddef>

namespace zelvor {
namespace {

constexpr int EntryCount = 253;
constexpr int FirstCommonEntry = 1900;
constexpr int CommonEntryCount = 14;

/// Entry n stands at place n - 1. Its numbers are 1000 + n for the Chinese and 2000 + n for the English text.
/// Leading blanks belong to window titles, "&" marks the access key, and 239 and 240 end in an apostrophe in English.
constexpr std::array<TextPair, EntryCount> Entries{{
    {"&File", "文件(&F)"},                                                  // 1
    {"&New", "新建(&N)"},                                                   // 2
    {"&Open", "打开(&O)"},                                                  // 3
    {"&Save", "保存(&S)"},                                                  // 4
    {"Save &As", "另存为(&A)"},                                             // 5
    {"&Print", "打印(&P)"},                                                 // 6
    {"Print Pre&view", "打印预览(&V)"},                                     // 7
    {"E&xit", "退出(&X)"},                                                  // 8
    {"&Model", "机型(&M)"},                                                 // 9
    {"&Model Information", "机型信息(&M)"},                                 // 10
    {"&Edit", "编辑(&E)"},                                                  // 11
    {"&Channel Information", "信道信息(&C)"},                               // 12
    {"&Optional Features", "可选功能(&O)"},                                 // 13
    {"&Key Assignment", "键设定(&K)"},                                      // 14
    {"&Scan Information", "扫描信息(&S)"},                                  // 15
    {"&DTMF", "DTMF(双音多频)(&D)"},                                        // 16
    {"&Corvane", "Corvane(科瓦讯)(&F)"},                                    // 17
    {"&Test Frequency", "测试频率(&T)"},                                    // 18
    {"Embedded &Message", "嵌入信息(&M)"},                                  // 19
    {"&Program", "编程(&P)"},                                               // 20
    {"&Read from Radio", "从对讲机读取数据(&R)"},                           // 21
    {"&Write to Radio", "向对讲机写入数据(&W)"},                            // 22
    {"&Test Mode", "测试模式(&T)"},                                         // 23
    {"&Memory Map", "内存指针图(&M)"},                                      // 24
    {"&Tools", "工具(&T)"},                                                 // 25
    {"&Radio Information", "对讲机信息(&R)"},                               // 26
    {"&Setup", "设置(&S)"},                                                 // 27
    {"&Communication Port", "通信端口(&C)"},                                // 28
    {"&Language File Setup", "语言文件设置(&L)"},                           // 29
    {"&View", "视图(&V)"},                                                  // 30
    {"Tree &View", "树视图(&V)"},                                           // 31
    {"&Toolbar", "工具栏(&T)"},                                             // 32
    {"&Status bar", "状态栏(&S)"},                                          // 33
    {"&Window", "窗口(&W)"},                                                // 34
    {"&Cascade", "层叠(&C)"},                                               // 35
    {"Tile Windows &Horizontally", "横向平铺窗口(&H)"},                     // 36
    {"Tile Windows &Vertically", "纵向平铺窗口(&V)"},                       // 37
    {"&Arrange Icons", "排列图标(&A)"},                                     // 38
    {"Close All &Windows", "关闭所有窗口(&W)"},                             // 39
    {"Channel Information [ Channel - 1 ]", "信道信息 [信道-1]"},           // 40
    {" Optional Features", " 可选功能"},                                    // 41
    {" Key Assignment", " 键设定"},                                         // 42
    {" Scan Information", " 扫描信息"},                                     // 43
    {" DTMF", " DTMF(双音多频)"},                                           // 44
    {" Corvane", " Corvane(科瓦讯)"},                                       // 45
    {" Test Frequency", " 测试频率"},                                       // 46
    {" Embedded Message", " 嵌入信息"},                                     // 47
    {" Channel Edit", " 信道编辑"},                                         // 48
    {"&Help", "帮助(&H)"},                                                  // 49
    {"&Help Topics", "帮助主题(&H)"},                                       // 50
    {"&About Zelvor", "关于 Zelvor(&A)"},                                   // 51
    {"New", "新建"},                                                        // 52
    {"Open", "打开"},                                                       // 53
    {"Save", "保存"},                                                       // 54
    {"Print", "打印"},                                                      // 55
    {"Read", "读取"},                                                       // 56
    {"Write", "写入"},                                                      // 57
    {"About", "关于"},                                                      // 58
    {"Channel &Edit", "信道编辑(&E)"},                                      // 59
    {"Channel", "信道"},                                                    // 60
    {"Receive Frequency", "接收频率"},                                      // 61
    {"Transmit Frequency", "发射频率"},                                     // 62
    {"QT/DQT Decode", "QT/DQT解码"},                                        // 63
    {"QT/DQT Encode", "QT/DQT编码"},                                        // 64
    {"Option Signalling", "可选信令"},                                      // 65
    {"SP Unmute", "SP不发音"},                                              // 66
    {"TX Power", "发射功率"},                                               // 67
    {"Wide/Narrow", "宽带/窄带"},                                           // 68
    {"Busy Channel Lockout", "繁忙信道锁定"},                               // 69
    {"Autodial Memory", "自动拨号存储器"},                                  // 70
    {"Beat Shift", "拍频偏移"},                                             // 71
    {"Scan Add", "扫描添加"},                                               // 72
    {"Priority Channel", "优先信道"},                                       // 73
    {"Compander", "压扩器"},                                                // 74
    {"&Close", "关闭(&C)"},                                                 // 75
    {"&Help", "帮助(&H)"},                                                  // 76
    {"None", "无"},                                                         // 77
    {"Free Area(Bytes):", "空位(Bytes):"},                                  // 78
    {"Carrier", "载波"},                                                    // 79
    {"Carrier + Opt.Sig.", "载波+可选信令"},                                // 80
    {"Carrier or Opt.Sig.", "载波或可选信令"},                              // 81
    {"QT/DQT + Opt.Sig.", "QT/DQT+可选信令"},                               // 82
    {"QT/DQT or Opt.Sig.", "QT/DQT或可选信令"},                             // 83
    {"Option Signalling", "可选信令"},                                      // 84
    {"Off", "关"},                                                          // 85
    {"Wide", "宽带"},                                                       // 86
    {"Narrow", "窄带"},                                                     // 87
    {"Yes", "有"},                                                          // 88
    {"On", "开"},                                                           // 89
    {"High", "高"},                                                         // 90
    {"Low", "低"},                                                          // 91
    {"No", "无"},                                                           // 92
    {"Model Information", "机型信息"},                                      // 93
    {"Model Type", "机型类型"},                                             // 94
    {"Frequency", "频率"},                                                  // 95
    {"&OK", "确定(&O)"},                                                    // 96
    {"&Cancel", "取消(&C)"},                                                // 97
    {"Optional Features", "可选功能"},                                      // 98
    {"Time Out Timer(TOT)[s]", "超时定时器(TOT)[秒]"},                      // 99
    {"TOT Pre-Alert[s]", "超时定时器预警[秒]"},                             // 100
    {"Squelch Level", "静噪电平"},                                          // 101
    {"Mic Sensitivity", "麦克风灵敏度"},                                    // 102
    {"Voice Annunciation", "语音通知"},                                     // 103
    {"Battery Save", "电池省电"},                                           // 104
    {"Beep", "哔音"},                                                       // 105
    {"Scrambler Activation", "扰频器激活"},                                 // 106
    {"Scrambler Backup", "扰频器备份"},                                     // 107
    {"PTT ID Type", "PTT ID类型"},                                          // 108
    {"Begin of TX", "发射开始"},                                            // 109
    {"End of TX", "发射结束"},                                              // 110
    {"VOX", "VOX(声控发射)"},                                               // 111
    {"VOX Function", "VOX功能"},                                            // 112
    {"VOX Gain Level", "VOX增益电平"},                                      // 113
    {"VOX Delay Time[s]", "VOX延迟时间[秒]"},                               // 114
    {"Cancel Operation", "取消操作"},                                       // 115
    {"VOX Proceed Tone", "VOX可进行音调"},                                  // 116
    {"VOX inhibit on Receive", "接收时禁止VOX"},                            // 117
    {"Mode", "模式"},                                                       // 118
    {"Clone Mode", "复制模式"},                                             // 119
    {"Normal", "常规"},                                                     // 120
    {"English", "英文"},                                                    // 121
    {"Chinese", "中文"},                                                    // 122
    {"DTMF", "DTMF(双音多频)"},                                             // 123
    {"Corvane", "Corvane(科瓦讯)"},                                         // 124
    {"Both", "两者"},                                                       // 125
    {"BOT", "发射开始"},                                                    // 126
    {"EOT", "发射结束"},                                                    // 127
    {"Language File Setup", "语言文件设置"},                                // 128
    {"Language Mode", "语言模式"},                                          // 129
    {"Autodial", "自动拨号"},                                               // 130
    {"Key Lock", "按键锁定"},                                               // 131
    {"Key Lock with Backup", "按键锁定及备份"},                             // 132
    {"Monitor", "监听"},                                                    // 133
    {"Monitor Momentary", "监听瞬时"},                                      // 134
    {"Scan", "扫描"},                                                       // 135
    {"Scan+Temporary Delete", "扫描+暂时删除"},                             // 136
    {"Scrambler", "扰频器"},                                                // 137
    {"Squelch Off", "取消静噪"},                                            // 138
    {"Squelch Off Momentary", "瞬时取消静噪"},                              // 139
    {"Temporary Delete", "暂时删除"},                                       // 140
    {"Key Assignment", "键设定"},                                           // 141
    {"Scan Information", "扫描信息"},                                       // 142
    {"Priority", "优先"},                                                   // 143
    {"Priority Channel", "优先信道"},                                       // 144
    {"Look Back Time A [s]", "回扫时间 A [s]"},                             // 145
    {"Look Back Time B [s]", "回扫时间 B [s]"},                             // 146
    {"Revert Channel", "返回信道"},                                         // 147
    {"Dropout Delay Time [s]", "扫描接收恢复延迟时间[s]"},                  // 148
    {"Tx Dwell Time [s]", "扫描发射恢复延迟时间[s]"},                       // 149
    {"Selected", "选定"},                                                   // 150
    {"Fixed", "固定"},                                                      // 151
    {"Priority", "优先"},                                                   // 152
    {"Priority + Talk Back ", "优先＋当前通话"},                            // 153
    {"Selected + Talk Back", "选定＋当前通话"},                             // 154
    {"Encode", "编码"},                                                     // 155
    {"Decode", "解码"},                                                     // 156
    {"Autodial Memory", "自动拨号存储器"},                                  // 157
    {"DTMF Speed [digit/s]", "DTMF速率[数字/秒]"},                          // 158
    {"First Digit Time [ms]", "首位数码时间[毫秒]"},                        // 159
    {"First Digit Delay [ms]", "首位数码延迟[毫秒]"},                       // 160
    {"* and # Tone [ms]", "*和#音[毫秒]"},                                  // 161
    {"D Code Assignment", "D键设定"},                                       // 162
    {"DTMF Side Tone", "DTMF侧音"},                                         // 163
    {"ID Code", "ID码"},                                                    // 164
    {"Group Code", "组呼码"},                                               // 165
    {"Auto Reset Timer [s]", "自动复位定时器[秒]"},                         // 166
    {"Call Alert", "呼叫告警"},                                             // 167
    {"Transpond", "自动应答"},                                              // 168
    {"Clear to Transpond", "清除自动应答"},                                 // 169
    {"Stun Code", "遥毙码"},                                                // 170
    {"Stun Type", "遥毙类型"},                                              // 171
    {"No.", "编号"},                                                        // 172
    {"Continuous", "连续"},                                                 // 173
    {"Alert", "告警"},                                                      // 174
    {"D Code", "D 码"},                                                     // 175
    {"Corvane", "科瓦讯"},                                                  // 176
    {"Fleet List", "队列表"},                                               // 177
    {"Fleet(own)", "队列(自身)"},                                           // 178
    {"ID(own)", "ID(自身)"},                                                // 179
    {"Corvane Baud Rate [bps]", "科瓦讯波特率[bps]"},                       // 180
    {"Data TX Modulation Delay Timer [ms]", "2数据发射调制延迟时间[毫秒]"}, // 181
    {"Message Mode Timer [s]", "信息模式定时器[秒]"},                       // 182
    {"PTT ID Side Tone", "PTT ID 侧音"},                                    // 183
    {"All", "全部"},                                                        // 184
    {"Test Frequency", "测试频率"},                                         // 185
    {"Read data from radio", "从对讲机读取数据"},                           // 186
    {"Write data to radio", "向对讲机写入数据"},                            // 187
    {"Communication Port", "通信端口"},                                     // 188
    {"COM", "通信口"},                                                      // 189
    {"Radio Information", "对讲机信息"},                                    // 190
    {"Frequency", "频率"},                                                  // 191
    {"Serial Number", "序号"},                                              // 192
    {"Version", "版本"},                                                    // 193
    {"Tree View", "树视图"},                                                // 194
    {" Channel Information", " 信道信息"},                                  // 195
    {"Memory Map", "内存指针图"},                                           // 196
    {"Test Mode", "测试模式"},                                              // 197
    {"Test Channel", "测试信道"},                                           // 198
    {"Test Signalling", "测试信令"},                                        // 199
    {"Channel No.", "信道编号"},                                            // 200
    {"Signalling", "信令"},                                                 // 201
    {"RX", "接收"},                                                         // 202
    {"TX", "发射"},                                                         // 203
    {"&Wide", "宽带(W)"},                                                   // 204
    {"&Narrow", "窄带(N)"},                                                 // 205
    {"&Tuning Mode", "调谐模式(T)"},                                        // 206
    {"&Print", "打印(P)"},                                                  // 207
    {"RF High Power", "RF高功率"},                                          // 208
    {"RF Low Power", "RF低功率"},                                           // 209
    {"DQT Balance", "DQT平衡"},                                             // 210
    {"Max Deviation", "最大偏差"},                                          // 211
    {"QT Fine Deviation", "QT细偏差"},                                      // 212
    {"DQT Fine Deviation", "DQT细偏差"},                                    // 213
    {"DTMF Fine Deviation", "DTMF细偏差"},                                  // 214
    {"Sensitivity", "灵敏度"},                                              // 215
    {"Squelch(Tight)", "最紧静噪"},                                         // 216
    {"Squelch(Open)", "静噪打开"},                                          // 217
    {"MSK Fine Deviation", "MSK频偏差"},                                    // 218
    {"Battery Warning Level", "电池告警电平"},                              // 219
    {"DTMF Tone 9", "DTMF 音调 9"},                                         // 220
    {"DQT Balance(Wide)", "DQT平衡(宽带)"},                                 // 221
    {"DQT Balance(Narrow)", "DQT平衡(窄带)"},                               // 222
    {"Max Deviation(Wide)", "最大频差(宽带)"},                              // 223
    {"Max Deviation(Narrow)", "最大频差(窄带)"},                            // 224
    {"QT Fine Deviation(Wide)", "QT细频差(宽带)"},                          // 225
    {"QT Fine Deviation(Narrow)", "QT细频差(窄带)"},                        // 226
    {"DQT Fine Deviation(Wide)", "DQT细频差(宽带)"},                        // 227
    {"DQT Fine Deviation(Narrow)", "DQT细频差(窄带)"},                      // 228
    {"DTMF Fine Deviation(Wide)", "DTMF细频差(宽带)"},                      // 229
    {"DTMF Fine Deviation(Narrow)", "DTMF细频差(窄带)"},                    // 230
    {"Squelch(Tight)(Wide)", "最紧静噪(宽带)"},                             // 231
    {"Squelch(Tight)(Narrow)", "最紧静噪(窄带)"},                           // 232
    {"Squelch(Open)(Wide)", "静噪打开(宽带)"},                              // 233
    {"Squelch(Open)(Narrow)", "静噪打开(窄带)"},                            // 234
    {"MSK Fine Deviation(Wide)", "MSK频偏差(宽带)"},                        // 235
    {"MSK Fine Deviation(Narrow)", "MSK频偏差(窄带)"},                      // 236
    {"Start", "开始"},                                                      // 237
    {"Test", "测试"},                                                       // 238
    {"Low'", "较低"},                                                       // 239
    {"High'", "较高"},                                                      // 240
    {"Center", "中心"},                                                     // 241
    {"P&rint setup", "打印设置"},                                           // 242
    {"C&lear All", "全部清除"},                                             // 243
    {"Select &All", "全部选定"},                                            // 244
    {"Print Out List", "打印列表"},                                         // 245
    {"Radio Type", "对讲机类型"},                                           // 246
    {"File Name", "文件名"},                                                // 247
    {"All Tuning Data", "所有调谐数据"},                                    // 248
    {"Disabled", "已关闭"},                                                 // 249
    {"Enabled", "已开启"},                                                  // 250
    {"RX Frequency[MHz]", "接收频率[MHz]"},                                 // 251
    {"TX Frequency[MHz]", "发射频率[MHz]"},                                 // 252
    {"Own", "自身"},                                                        // 253
}};

/// Entries of one language, from number 1900.
constexpr std::array<std::string_view, CommonEntryCount> CommonEntries{
    "QT/DQT",         // 1900
    "DTMF",           // 1901
    "Corvane",        // 1902
    "VOX1",           // 1903
    "VOX10",          // 1904
    "RSSI",           // 1905
    "100Hz SW",       // 1906
    "QT 67.0Hz",      // 1907
    "QT 151.4Hz",     // 1908
    "QT 250.3Hz",     // 1909
    "DQT D023N",      // 1910
    "DQT D754I",      // 1911
    "DTMF DEC(159D)", // 1912
    "DTMF ENC(159D)", // 1913
};

static_assert(!Entries.back().english.empty() && !CommonEntries.back().empty());

} // namespace

std::string_view TableText(Language language, int n) {
    if (n >= 1 && n <= EntryCount) {
        return Entries[static_cast<std::size_t>(n - 1)].In(language);
    }
    if (n >= FirstCommonEntry && n < FirstCommonEntry + CommonEntryCount) {
        return CommonEntries[static_cast<std::size_t>(n - FirstCommonEntry)];
    }
    return {};
}

} // namespace zelvor
