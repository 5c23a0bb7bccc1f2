#pragma once

#include <QTranslator>

#include "text/Language.h"

namespace zelvor {

/// The toolkit's own texts, such as the buttons of its boxes, in the program's language. English where the toolkit's
/// translations are not installed.
class QtLanguage {
public:
    QtLanguage() = default;
    QtLanguage(const QtLanguage&) = delete;
    QtLanguage& operator=(const QtLanguage&) = delete;
    ~QtLanguage();

    void Use(Language language);

private:
    QTranslator translator_;
};

} // namespace zelvor
