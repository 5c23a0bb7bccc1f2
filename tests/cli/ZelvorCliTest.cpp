// The program as a process of its own: its streams and exit status, and every command once.

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <filesystem>
#include <random>

#include "cli/ZelvorCliProcess.h"

namespace zelvor::cli {
namespace {

using zelvor::testing::EntriesOf;
using zelvor::testing::FileContent;
using zelvor::testing::PutFile;

class ZelvorCli : public ZelvorCliProcess {};

TEST_F(ZelvorCli, NewSetGetDiffAndCheckWorkTogether) {
    MakeNew();
    EXPECT_EQ(FileContent(folder / "a.dat").size(), 1040U);
    EXPECT_EQ(Run({"set", "a.dat", "optional.beep=Off", "channels.1.rx_mhz=145.125", "-o", "b.dat"}), 0) << err;
    EXPECT_EQ(Run({"get", "b.dat", "optional.beep", "channels.1.rx_mhz"}), 0);
    EXPECT_EQ(out, "optional.beep=Off\nchannels.1.rx_mhz=145.12500\n");
    EXPECT_EQ(Run({"diff", "a.dat", "b.dat"}), 1);
    EXPECT_TRUE(out.starts_with("optional.beep: On -> Off\nchannels.1.rx_mhz:  -> 145.12500\n")) << out;
    EXPECT_EQ(Run({"diff", "b.dat", "b.dat"}), 0);
    EXPECT_EQ(out, "");
    EXPECT_EQ(Run({"check", "a.dat", "b.dat"}), 0);
    EXPECT_EQ(Run({"set", "b.dat", "scan.priority=Fixed"}), 0);
    EXPECT_EQ(Run({"check", "a.dat", "b.dat"}), 1);
    EXPECT_EQ(Run({"check", "gone.dat", "b.dat"}), 3);
    EXPECT_EQ(Run({"new", "--model", "9999", "--market", "M", "-o", "c.dat"}), 2);
    EXPECT_EQ(EntriesOf(folder.Path()), (std::vector<std::string>{"a.dat", "b.dat"}));
}

TEST_F(ZelvorCli, DiffComparesTheFilesOfTwoFolders) {
    for (const char* name : {"2025", "2026", "empty", "2025/old"}) {
        std::filesystem::create_directory(folder / name);
    }
    MakeNew("2025/1.dat");
    MakeNew("2025/2.dat");
    MakeNew("2026/1.dat");
    MakeNew("2026/2.dat");
    PutFile(folder / "2025/fleet.csv", "channel\n");
    EXPECT_EQ(Run({"diff", "2025", "2026"}), 0) << out << err;
    EXPECT_EQ(Run({"diff", "empty", "empty/"}), 0);
    EXPECT_EQ(out + err, "");
    EXPECT_EQ(Run({"set", "2026/2.dat", "optional.beep=Off"}), 0);
    MakeNew("2026/队列.dat");
    EXPECT_EQ(Run({"diff", "2025", "2026"}), 1);
    EXPECT_EQ(out, "2.dat: optional.beep: On -> Off\n队列.dat: only in 2026\n");
    EXPECT_EQ(Run({"diff", "2026", "2025", "--language=zh"}), 1);
    EXPECT_EQ(out, "2.dat: optional.beep: 关 -> 开\n队列.dat: 仅存在于 2026\n");
    EXPECT_EQ(Run({"diff", "2025", "2026", "--json"}), 1);
    EXPECT_EQ(QJsonDocument::fromJson(QByteArray::fromStdString(out))["pairs"].toArray().size(), 2);
    PutFile(folder / "2026/1.dat", "cut");
    EXPECT_EQ(Run({"diff", "2025", "2026"}), 3);
    EXPECT_EQ(out, "2.dat: optional.beep: On -> Off\n队列.dat: only in 2026\n");
    EXPECT_EQ(err, "zelvor-cli: 2026/1.dat: is no data file\n");
    EXPECT_EQ(Run({"diff", "2025", "gone"}), 3);
    EXPECT_EQ(err, "zelvor-cli: gone: cannot be read\n");
    EXPECT_EQ(Run({"diff", "2025/1.dat", "2026"}), 3);
    EXPECT_EQ(err, "zelvor-cli: 2026: cannot be compared with a file, since it is a folder\n");
}

TEST_F(ZelvorCli, TakesFilesOfAnyName) {
    MakeNew("x");
    const std::string content = FileContent(folder / "x");
    std::vector<const char*> names{"{}", "[a]", "[a,b]", "a,b", "%%", "a b", "-x", "队列.dat", "keys"};
#ifdef Q_OS_UNIX
    names.push_back("*"); // Windows has no file of that name
#endif
    for (const char* name : names) {
        PutFile(folder / zelvor::testing::PathOfUtf8(name), content);
        EXPECT_EQ(Run({"set", "optional.beep=Off", "--", name}), 0) << name << ": " << err;
        EXPECT_EQ(Run({"get", "--", name, "optional.beep"}), 0) << name << ": " << err;
        EXPECT_EQ(out, "optional.beep=Off\n") << name;
    }
    PutFile(folder / "a=b", content);
    EXPECT_EQ(Run({"set", "./a=b", "message.line.1=[c=d]", "message.line.2={}"}), 0) << err;
    EXPECT_EQ(Run({"get", "a=b", "message.line.1", "message.line.2"}), 0) << err;
    EXPECT_EQ(out, "message.line.1=[c=d]\nmessage.line.2={}\n");
}

TEST_F(ZelvorCli, SetOfAnIllegalValueEndsWithThreeAndWritesNothing) {
    MakeNew();
    const std::string before = FileContent(folder / "a.dat");
    EXPECT_EQ(Run({"set", "a.dat", "optional.beep=Off", "optional.squelch-level=11"}), 3);
    EXPECT_EQ(err, "zelvor-cli: a.dat: optional.squelch-level: \"11\" is none of: 0 to 9 by 1\n");
    EXPECT_EQ(FileContent(folder / "a.dat"), before);
}

TEST_F(ZelvorCli, ShowKeysAndPortsPrint) {
    MakeNew();
    EXPECT_EQ(Run({"show", "a.dat", "--section", "keys", "--language", "zh"}), 0);
    EXPECT_TRUE(out.starts_with("键设定\n  PF1: ")) << out;
    EXPECT_EQ(Run({"show", "--json", "a.dat", "a.dat"}), 0);
    EXPECT_TRUE(QJsonDocument::fromJson(QByteArray::fromStdString(out)).isObject());
    EXPECT_EQ(Run({"keys"}), 0);
    EXPECT_EQ(std::ranges::count(out, '\n'), 333);
    EXPECT_EQ(Run({"ports"}), 0);
    EXPECT_EQ(std::ranges::count(out, '\n'), 20);
    EXPECT_EQ(err, "");
}

#ifdef Q_OS_UNIX
TEST_F(ZelvorCli, PortsPrintsALinkOfTheUsers) {
    std::filesystem::create_directories(folder / "config/Zelvor/ports");
    std::filesystem::create_symlink("/dev/null", folder / "config/Zelvor/ports/COM7");
    EXPECT_EQ(Run({"ports"}), 0);
    EXPECT_EQ(std::ranges::count(out, '\n'), 20);
    EXPECT_NE(out.find("\n7\t/dev/null\n"), std::string::npos) << out;
    EXPECT_EQ(err, "");
}
#endif

TEST_F(ZelvorCli, ChannelsGoOutAndIn) {
    MakeNew();
    EXPECT_EQ(Run({"set", "a.dat", "channels.3.rx_mhz=146", "channels.16.rx_mhz=150"}), 0) << err;
    EXPECT_EQ(Run({"channels", "export", "a.dat", "-o", "c.csv"}), 0);
    EXPECT_EQ(out, "");
    EXPECT_EQ(Run({"channels", "export", "a.dat"}), 0);
    EXPECT_EQ(out, FileContent(folder / "c.csv"));
    MakeNew("b.dat");
    EXPECT_EQ(Run({"channels", "import", "b.dat", "c.csv"}), 0) << err;
    EXPECT_EQ(FileContent(folder / "b.dat"), FileContent(folder / "a.dat"));
    PutFile(folder / "bad.csv", "channel,power\n3,Mid\n99,Low\n");
    EXPECT_EQ(Run({"channels", "import", "b.dat", "bad.csv"}), 3);
    EXPECT_EQ(err, "zelvor-cli: bad.csv:2:power: \"Mid\" is none of: High, Low\n"
                   "zelvor-cli: bad.csv:3:channel: \"99\" is no channel from 1 to 16\n");
    EXPECT_EQ(FileContent(folder / "b.dat"), FileContent(folder / "a.dat"));
}

TEST_F(ZelvorCli, NeverWritesAReportOrATableOverWhatItReads) {
    MakeNew();
    const std::string before = FileContent(folder / "a.dat");
    std::filesystem::create_directory(folder / "d");
    std::filesystem::create_hard_link(folder / "a.dat", folder / "hard.dat");
    const QString full = QString::fromStdString((folder / "a.dat").string());
    QStringList others{"a.dat", "./a.dat", "d/../a.dat", "hard.dat", full};
#ifdef Q_OS_UNIX
    std::filesystem::create_symlink("a.dat", folder / "link.dat");
    others.append("link.dat");
#endif
    for (const QString& other : others) {
        for (const QStringList& arguments : {QStringList{"report", "a.dat", "-o", other},
                                             {"report", other, "-o", "a.dat"},
                                             {"channels", "export", "a.dat", "-o", other},
                                             {"channels", "import", "hard.dat", "a.dat", "-o", other}}) {
            EXPECT_EQ(Run(arguments), 2) << arguments.join(' ').toStdString();
            EXPECT_TRUE(err.ends_with(": is what the command reads; the output must be another file\n")) << err;
            EXPECT_EQ(std::ranges::count(err, '\n'), 1);
            EXPECT_EQ(FileContent(folder / "a.dat"), before);
        }
    }
#ifdef Q_OS_UNIX
    PutFile(folder / "c.csv", "channel,rx_mhz\n1,145\n");
    EXPECT_EQ(Run({"channels", "import", "a.dat", "c.csv", "-o", "link.dat"}), 0) << err; // in place
    EXPECT_NE(FileContent(folder / "a.dat"), before);
#endif
}

TEST_F(ZelvorCli, ReportNeedsNoDisplay) {
    MakeNew();
    EXPECT_EQ(Run({"report", "a.dat", "-o", "r.pdf", "--section", "scan", "--paper", "Letter"}), 0) << err;
    EXPECT_EQ(out + err, "");
    const std::string pdf = FileContent(folder / "r.pdf");
    EXPECT_TRUE(pdf.starts_with("%PDF-"));
    EXPECT_NE(pdf.find("/MediaBox [0 0 612."), std::string::npos);
    EXPECT_EQ(Run({"report", "gone.dat", "-o", "s.pdf"}), 3);
    EXPECT_FALSE(std::filesystem::exists(folder / "s.pdf"));
}

#ifdef Q_OS_UNIX

TEST_F(ZelvorCli, TellsOfAStandardOutputThatIsFull) {
    MakeNew();
    for (const char* command : {"show a.dat", "show a.dat --json", "keys", "get a.dat optional.beep",
                                "channels export a.dat", "ports", "--help", "show --help", "--version"}) {
        for (const char* place : {" >/dev/full", " >&-"}) {
            EXPECT_EQ(RunInShell(std::string(command) + place), 3) << command << place;
            EXPECT_EQ(err, "zelvor-cli: standard output cannot be written\n") << command << place;
        }
    }
    EXPECT_EQ(RunInShell("diff a.dat /dev/null >/dev/full"), 3);
}

TEST_F(ZelvorCli, ADiskThatTakesNoMoreKeepsTheOldFiles) {
    MakeNew();
    PutFile(folder / "c.csv", "channel,rx_mhz\n1,145\n");
    PutFile(folder / "r.pdf", "old");
    for (int k = 1; k <= 6; ++k) { // so that their table is longer than the limit
        EXPECT_EQ(Run({"set", "a.dat", QString("channels.%1.rx_mhz=145.125").arg(k)}), 0);
    }
    const std::string before = FileContent(folder / "a.dat");
    const std::string limit = "trap '' XFSZ; ulimit -f 1; "; // 512 bytes a file
    for (const char* command :
         {"set a.dat optional.beep=Off", "set a.dat optional.beep=Off -o b.dat", "channels import a.dat c.csv",
          "channels export a.dat -o e.csv", "new --model 4618 --market M -o a.dat", "report a.dat -o r.pdf"}) {
        EXPECT_EQ(RunInShell(command, limit), 3) << command;
        EXPECT_TRUE(err.ends_with(": cannot be written\n")) << command << ": " << err;
    }
    EXPECT_EQ(FileContent(folder / "a.dat"), before);
    EXPECT_EQ(FileContent(folder / "r.pdf"), "old");
    EXPECT_EQ(EntriesOf(folder.Path()), (std::vector<std::string>{"a.dat", "c.csv", "r.pdf"}));
}

#endif

TEST_F(ZelvorCli, RefusesWhatIsNoFileAndLeavesNothingBehind) {
    MakeNew();
    PutFile(folder / "c.csv", "channel,power\n1,\n");
    std::filesystem::create_directory(folder / "d");
    const std::string before = FileContent(folder / "a.dat");
    for (const QString& place : QStringList{"/dev/full", "d", "d/gone/x", "/proc/none/x"}) {
        for (const QStringList& arguments : {QStringList{"set", "a.dat", "optional.beep=Off", "-o", place},
                                             {"set", place, "optional.beep=Off"},
                                             {"new", "--model", "4618", "--market", "M", "-o", place},
                                             {"channels", "export", "a.dat", "-o", place},
                                             {"channels", "import", "a.dat", "c.csv", "-o", place},
                                             {"channels", "import", "a.dat", place},
                                             {"report", "a.dat", "-o", place},
                                             {"show", place},
                                             {"get", place, "optional.beep"},
                                             {"diff", "a.dat", place},
                                             {"check", place},
                                             {"channels", "export", place},
                                             {"report", place, "-o", "r.pdf"}}) {
            EXPECT_EQ(Run(arguments), 3) << arguments.join(' ').toStdString();
            EXPECT_EQ(out, "") << arguments.join(' ').toStdString();
            EXPECT_TRUE(err.starts_with("zelvor-cli: " + place.toStdString() + ": cannot be ")) << err;
        }
    }
    EXPECT_EQ(FileContent(folder / "a.dat"), before);
    EXPECT_EQ(EntriesOf(folder.Path()), (std::vector<std::string>{"a.dat", "c.csv", "d"}));
    EXPECT_EQ(EntriesOf(folder / "d"), std::vector<std::string>());
}

/// All files of a run at once where the command takes them.
TEST_F(ZelvorCli, TakesTwoThousandImagesAtRandom) {
    constexpr unsigned Seed = 2000;
    std::mt19937 random(Seed);
    QStringList files;
    for (int i = 0; i < 2000; ++i) {
        std::string content = "RQ6152\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF";
        for (int j = 0; j < 1024; ++j) {
            content += static_cast<char>(random() & 0xFFU);
        }
        if (i % 10 == 0) {
            content.resize(random() % content.size());
        }
        const std::string name = std::to_string(i) + ".dat";
        PutFile(folder / name, content);
        files.append(QString::fromStdString(name));
    }
    EXPECT_EQ(Run(QStringList{"check"} + files), 3);
    EXPECT_EQ(std::ranges::count(err, '\n'), 200);
    EXPECT_EQ(Run(QStringList{"show"} + files), 3);
    EXPECT_EQ(Run(QStringList{"show", "--json"} + files.mid(0, 500)), 3);
    const QJsonDocument json = QJsonDocument::fromJson(QByteArray::fromStdString(out));
    EXPECT_EQ(json["files"].toArray().size(), 450);
    EXPECT_EQ(Run(QStringList{"set", "optional.beep=Off"} + files.mid(0, 100)), 3);
    EXPECT_EQ(FileContent(folder / "1.dat")[16 + 0x136], 0);
    EXPECT_LT(FileContent(folder / "0.dat").size(), 1040U);
    for (int i = 1; i < 10; ++i) {
        const QString file = files[i];
        EXPECT_EQ(Run({"diff", file, files[i + 10]}), 1) << "seed " << Seed << ", file " << i;
        EXPECT_EQ(Run({"channels", "export", file, "-o", "c.csv"}), 0) << "seed " << Seed << ", file " << i;
        EXPECT_EQ(Run({"channels", "import", file, "c.csv"}), 3) << "seed " << Seed << ", file " << i;
        EXPECT_EQ(Run({"report", file, "-o", "r.pdf"}), 0) << "seed " << Seed << ", file " << i;
    }
}

} // namespace
} // namespace zelvor::cli
