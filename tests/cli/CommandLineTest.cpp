// The program's command line: help, complaints and languages.

#include <algorithm>

#include "cli/ZelvorCliProcess.h"

namespace zelvor::cli {
namespace {

using zelvor::testing::EntriesOf;

class CommandLine : public ZelvorCliProcess {};

TEST_F(CommandLine, HelpAndVersionGoToStandardOutputInTheLanguage) {
    EXPECT_EQ(Run({"--help"}), 0);
    const std::string help = out;
    EXPECT_NE(help.find("Usage: zelvor-cli"), std::string::npos);
    for (const char* command : {"show", "keys", "get", "set", "diff", "check", "channels", "new", "report", "ports"}) {
        EXPECT_NE(help.find(std::string("\n  ") + command + ' '), std::string::npos) << command;
        EXPECT_EQ(Run({command, "--help"}), 0) << command;
        EXPECT_EQ(err, "");
    }
    EXPECT_EQ(Run({"--version"}), 0);
    EXPECT_TRUE(out.starts_with("zelvor-cli 1."));
    EXPECT_EQ(Run({"--language", "zh", "--help"}), 0);
    EXPECT_NE(out.find("数据文件"), std::string::npos);
}

TEST_F(CommandLine, AWrongCommandLineEndsWithTwoAndALineThatSaysSo) {
    for (const QStringList& arguments : {QStringList{},
                                         {"nonsense"},
                                         {"show"},
                                         {"show", "a.dat", "--section", "none"},
                                         {"get", "a.dat"},
                                         {"diff", "a.dat"},
                                         {"channels"},
                                         {"channels", "import", "a.dat"},
                                         {"new", "--model", "4618"},
                                         {"report", "a.dat"},
                                         {"report", "a.dat", "-o", "r.pdf", "--paper", "A3"},
                                         {"report", "a.dat", "-o", "r.pdf", "--paper", "0"},
                                         {"report", "a.dat", "-o", "r.pdf", "--paper", "1"},
                                         {"report", "a.dat", "-o", "r.pdf", "--paper=-1"},
                                         {"report", "a.dat", "-o", "r.pdf", "--paper", ""},
                                         {"report", "a.dat", "-o", "r.pdf", "--paper", "a4"},
                                         {"report", "a.dat", "-o", "r.pdf", "--section", "identity"},
                                         {"ports", "stray"},
                                         {"--language", "fr", "keys"},
                                         {"check", "--json", "a.dat"}}) {
        EXPECT_EQ(Run(arguments), 2) << arguments.join(' ').toStdString();
        EXPECT_EQ(out, "") << arguments.join(' ').toStdString();
        EXPECT_TRUE(err.starts_with("zelvor-cli: ")) << err;
        EXPECT_TRUE(err.ends_with("\nzelvor-cli: Try \"zelvor-cli --help\".\n")) << err;
        EXPECT_EQ(std::ranges::count(err, '\n'), 2) << err;
    }
    EXPECT_EQ(EntriesOf(folder.Path()), std::vector<std::string>());
}

TEST_F(CommandLine, AComplaintNamesTheWordThatIsWrongInTheLanguage) {
    const auto expectComplaint = [this](const QStringList& arguments, const std::string& english,
                                        const std::string& chinese) {
        EXPECT_EQ(Run(arguments), 2) << arguments.join(' ').toStdString();
        EXPECT_EQ(err, "zelvor-cli: " + english + "\nzelvor-cli: Try \"zelvor-cli --help\".\n");
        EXPECT_EQ(Run(QStringList{"--language", "zh"} + arguments), 2) << arguments.join(' ').toStdString();
        EXPECT_EQ(err, "zelvor-cli: " + chinese + "\nzelvor-cli: 请试 \"zelvor-cli --help\"。\n");
    };
    expectComplaint({}, "a command is required", "缺少命令或参数：命令");
    expectComplaint({"channels"}, "a command is required", "缺少命令或参数：命令");
    expectComplaint({"nosuch"}, "there is no command nosuch", "没有命令 nosuch");
    expectComplaint({"nosuch", "a.dat"}, "there is no command nosuch", "没有命令 nosuch");
    expectComplaint({"--", "nosuch", "a.dat"}, "there is no command nosuch", "没有命令 nosuch");
    expectComplaint({"channels", "nosuch"}, "there is no command nosuch", "没有命令 nosuch");
    expectComplaint({"--foo", "show"}, "there is no option --foo here", "此处没有选项 --foo");
    expectComplaint({"diff", "--foo", "a.dat"}, "there is no option --foo here", "此处没有选项 --foo");
    expectComplaint({"check", "a.dat", "--foo"}, "there is no option --foo here", "此处没有选项 --foo");
    expectComplaint({"ports", "a", "b"}, "not expected: a b", "多余的参数：a b");
    expectComplaint({"show"}, "FILE is required", "缺少命令或参数：FILE");
    expectComplaint({"set"}, "FILE... KEY=VALUE is required", "缺少命令或参数：FILE... KEY=VALUE");
    expectComplaint({"report", "a.dat"}, "--output is required", "缺少命令或参数：--output");
    expectComplaint({"info", "--port"}, "--port needs a value", "选项 --port 缺少值");
    expectComplaint({"info", "--port", "21"}, "--port: 21 is outside the range 1 to 20",
                    "不允许的值：--port：21 超出范围 1 至 20");
    expectComplaint({"report", "a.dat", "-o", "r.pdf", "--paper", "A3"}, "--paper: A3 is none of {A4,Letter}",
                    "不允许的值：--paper: A3 不属于 {A4,Letter}");
    expectComplaint({"report", "a.dat", "-o", "r.pdf", "--paper", "A4", "--paper", "A4"},
                    "--paper may be given once only", "--paper 只能给出一次");
}

TEST_F(CommandLine, HelpIsAllInTheLanguageAndTellsWhatAnOptionTakes) {
    EXPECT_EQ(Run({"report", "--help"}), 0);
    EXPECT_NE(out.find("--paper PAPER:{A4,Letter} "), std::string::npos) << out;
    EXPECT_EQ(out.find("->"), std::string::npos) << out;
    for (const QStringList& arguments : {QStringList{"--help"}, {"report", "--help"}, {"channels", "--help"}}) {
        EXPECT_EQ(Run(QStringList{"--language=zh"} + arguments), 0);
        EXPECT_NE(out.find("\n选项:\n"), std::string::npos) << out;
        for (const char* english :
             {"Options", "OPTIONS", "Subcommands", "SUBCOMMAND", "Positionals", "Usage", "REQUIRED"}) {
            EXPECT_EQ(out.find(english), std::string::npos) << out;
        }
    }
    EXPECT_NE(out.find("\n命令:\n"), std::string::npos) << out;
}

TEST_F(CommandLine, OfTwoLanguagesTheLastOneCounts) {
    EXPECT_EQ(Run({"--language", "en", "check", "gone.dat", "--language=zh"}), 3);
    EXPECT_EQ(err, "zelvor-cli: gone.dat: 无法读取\n");
    EXPECT_EQ(Run({"--language", "zh", "--language", "en", "check", "gone.dat"}), 3);
    EXPECT_EQ(err, "zelvor-cli: gone.dat: cannot be read\n");
}

#ifdef Q_OS_UNIX

TEST_F(CommandLine, TheLocaleIsTheLanguageUnlessOneIsNamed) {
    QProcessEnvironment environment = process.processEnvironment();
    environment.insert("LC_ALL", "zh_CN.UTF-8");
    process.setProcessEnvironment(environment);
    EXPECT_EQ(Run({"check", "gone.dat"}), 3);
    EXPECT_EQ(err, "zelvor-cli: gone.dat: 无法读取\n");
    EXPECT_EQ(Run({"--language=en", "check", "gone.dat"}), 3);
    EXPECT_EQ(err, "zelvor-cli: gone.dat: cannot be read\n");
    EXPECT_EQ(Run({"show"}), 2);
    EXPECT_TRUE(err.starts_with("zelvor-cli: 缺少命令或参数：")) << err;
}

TEST_F(CommandLine, TheVariableLanguageCountsInALocaleThatHasALanguage) {
    const auto said = [this](const char* locale) {
        QProcessEnvironment environment = process.processEnvironment();
        for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
            environment.remove(name);
        }
        environment.insert("LC_ALL", locale);
        environment.insert("LANGUAGE", "zh");
        process.setProcessEnvironment(environment);
        EXPECT_EQ(Run({"check", "gone.dat"}), 3);
        return err;
    };
    EXPECT_EQ(said("C"), "zelvor-cli: gone.dat: cannot be read\n");
    EXPECT_EQ(said("POSIX"), "zelvor-cli: gone.dat: cannot be read\n");
    EXPECT_EQ(said(""), "zelvor-cli: gone.dat: cannot be read\n");
    EXPECT_EQ(said("de_DE.UTF-8"), "zelvor-cli: gone.dat: 无法读取\n");
}

#endif

} // namespace
} // namespace zelvor::cli
