#pragma once

#include <array>
#include <string_view>

namespace zelvor {

/// The help's pages, in the order of its contents list.
inline constexpr std::array<std::string_view, 18> HelpContents{
    "general.htm",   "treeview.htm",  "chinfo.htm",     "chedit.htm",    "scaninfo.htm", "optfeatures.htm",
    "keyassign.htm", "dtmf.htm",      "corvane.htm",    "testfreq.htm",  "embmsg.htm",   "modelinfo.htm",
    "commport.htm",  "readradio.htm", "writeradio.htm", "radioinfo.htm", "print.htm",    "language.htm",
};

} // namespace zelvor
