#include <QDialogButtonBox>
#include <QFile>
#include <QLibraryInfo>
#include <QPushButton>
#include <gtest/gtest.h>

#include "platform/QtLanguage.h"
#include "support/QtPrinting.h"

namespace zelvor {
namespace {

QString CancelText() {
    QDialogButtonBox box(QDialogButtonBox::Cancel);
    return box.button(QDialogButtonBox::Cancel)->text();
}

TEST(QtLanguage, TurnsTheToolkitsButtonsToChineseAndBack) {
    if (!QFile::exists(QLibraryInfo::path(QLibraryInfo::TranslationsPath) + QStringLiteral("/qtbase_zh_CN.qm"))) {
        GTEST_SKIP() << "The toolkit's translations are not installed";
    }
    {
        QtLanguage language;
        EXPECT_EQ(CancelText(), "Cancel");
        language.Use(Language::Chinese);
        EXPECT_EQ(CancelText(), "取消");
        language.Use(Language::Chinese);
        EXPECT_EQ(CancelText(), "取消");
        language.Use(Language::English);
        EXPECT_EQ(CancelText(), "Cancel");
        language.Use(Language::Chinese);
    }
    EXPECT_EQ(CancelText(), "Cancel");
}

} // namespace
} // namespace zelvor
