#include "platform/Arguments.h"

#include <QDir>
#include <windows.h>

#include <shellapi.h>

#include "platform/Toolkit.h"

namespace zelvor {

namespace {

bool IsPattern(const QString& word) {
    return !word.startsWith(u'-') && (word.contains(u'*') || word.contains(u'?'));
}

/// Only in the last part of a path, as this system's programs do.
std::vector<std::string> FilesThatFit(const QString& pattern) {
    const QString path = QDir::fromNativeSeparators(pattern);
    const QString folder = path.left(path.lastIndexOf(u'/') + 1);
    const QDir directory(folder.isEmpty() ? QStringLiteral(".") : folder);
    std::vector<std::string> files;
    for (const QString& name : directory.entryList({path.mid(folder.size())}, QDir::Files, QDir::Name)) {
        files.push_back(FromQString(QDir::toNativeSeparators(folder + name)));
    }
    return files;
}

} // namespace

// What main() is given lacks the characters that the system's code page lacks.
std::vector<std::string> ArgumentsOf(int /*argc*/, char** /*argv*/) {
    int count = 0;
    LPWSTR* const words = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int i = 1; words != nullptr && i < count; ++i) {
        const QString word = QString::fromWCharArray(words[i]);
        std::vector<std::string> files = IsPattern(word) ? FilesThatFit(word) : std::vector<std::string>();
        if (files.empty()) {
            files.push_back(FromQString(word));
        }
        arguments.insert(arguments.end(), files.begin(), files.end());
    }
    LocalFree(words);
    return arguments;
}

} // namespace zelvor
