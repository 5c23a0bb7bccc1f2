#pragma once

#include <QProcess>
#include <gtest/gtest.h>

#include <string>

#include "support/TestDirectory.h"

namespace zelvor::cli {

/// The program as a process of its own, in a folder of its own and a locale without a language.
class ZelvorCliProcess : public ::testing::Test {
protected:
    ZelvorCliProcess() {
        process.setWorkingDirectory(QString::fromStdString(folder.Path().string()));
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "LANGUAGE", "XDG_RUNTIME_DIR"}) {
            environment.remove(variable);
        }
        environment.insert("LC_ALL", "C");
        environment.insert("XDG_CONFIG_HOME", QString::fromStdString((folder / "config").string()));
        process.setProcessEnvironment(environment);
    }

    int Run(const QStringList& arguments) {
        process.start(ZELVOR_CLI_PROGRAM, arguments);
        const bool isEnded = process.waitForFinished(30000) && process.exitStatus() == QProcess::NormalExit;
        out = process.readAllStandardOutput().toStdString();
        err = process.readAllStandardError().toStdString();
        return isEnded ? process.exitCode() : -1;
    }

    /// As a shell does it, after what it is told before: redirections and limits need one.
    int RunInShell(const std::string& command, const std::string& before = {}) {
        process.start("sh", {"-c", QString::fromStdString(before + "exec " ZELVOR_CLI_PROGRAM " " + command)});
        const bool isEnded = process.waitForFinished(30000) && process.exitStatus() == QProcess::NormalExit;
        out = process.readAllStandardOutput().toStdString();
        err = process.readAllStandardError().toStdString();
        return isEnded ? process.exitCode() : -1;
    }

    void MakeNew(const QString& name = "a.dat") {
        ASSERT_EQ(Run({"new", "--model", "4618", "--market", "M", "-o", name}), 0) << err;
    }

    zelvor::testing::TestDirectory folder;
    QProcess process;
    std::string out;
    std::string err;
};

} // namespace zelvor::cli
