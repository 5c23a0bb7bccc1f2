#pragma once

#include <QFile>
#include <QStringList>
#include <array>
#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <unistd.h>

namespace zelvor {

/// The files of a folder that anybody opens.
class OpenedFiles {
public:
    explicit OpenedFiles(const QString& folder) : watch_(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
        EXPECT_GE(inotify_add_watch(watch_, QFile::encodeName(folder).constData(), IN_OPEN), 0);
    }
    ~OpenedFiles() { close(watch_); }
    OpenedFiles(const OpenedFiles&) = delete;
    OpenedFiles& operator=(const OpenedFiles&) = delete;

    [[nodiscard]] QStringList Take() const {
        alignas(inotify_event) std::array<char, 4096> events{};
        QStringList names;
        for (ssize_t length = 0; (length = read(watch_, events.data(), events.size())) > 0;) {
            for (ssize_t at = 0; at < length;) {
                const auto* event = reinterpret_cast<const inotify_event*>(events.data() + at);
                if ((event->mask & IN_ISDIR) == 0) {
                    names.append(QFile::decodeName(event->name));
                }
                at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
            }
        }
        return names;
    }

private:
    int watch_;
};

} // namespace zelvor
