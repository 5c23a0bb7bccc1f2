#include "platform/QtLanguage.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace zelvor {

QtLanguage::~QtLanguage() {
    Use(Language::English);
}

void QtLanguage::Use(Language language) {
    if (QCoreApplication::instance()) {
        QCoreApplication::removeTranslator(&translator_);
    }
    if (language == Language::Chinese &&
        translator_.load(QStringLiteral("qtbase_zh_CN"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&translator_);
    }
}

} // namespace zelvor
