#include "FirstPaint.h"

const char* const zelvor::bench::AwaitedWidget = "ChannelGrid";
