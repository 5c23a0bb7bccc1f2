#include "platform/FontCheck.h"

#include <QFontInfo>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <cstdio>

namespace zelvor {

namespace {

constexpr auto NoFontText =
    "zelvor: no font is installed, so texts are shown as empty boxes. Please install a font, for example the packages "
    "fonts-dejavu-core and fonts-wqy-zenhei.\n"
    "zelvor: 系统没有安装字体，文字将显示为空框。请安装字体，例如软件包 fonts-dejavu-core 和 fonts-wqy-zenhei。\n";

} // namespace

bool HasFont() {
    // The toolkit's list of families names aliases also where nothing stands behind them.
    return !QFontInfo(QGuiApplication::font()).family().isEmpty();
}

void TellWhereThereIsNoFont() {
    if (HasFont()) {
        return;
    }
    QLoggingCategory::setFilterRules(QStringLiteral("qt.text.font*=false\nqt.qpa.fonts*=false"));
    static_cast<void>(std::fputs(NoFontText, stderr)); // where this fails there is nobody to tell
}

} // namespace zelvor
