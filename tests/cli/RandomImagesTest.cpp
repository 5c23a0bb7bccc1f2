// Every command on what no program has written: nothing may crash or hang, each answer must have its status, and what
// is refused must leave its file alone.

#include <QJsonDocument>

#include <random>

#include "cli/ChannelCommands.h"
#include "cli/CheckCommand.h"
#include "cli/CliFixture.h"
#include "cli/DiffCommand.h"
#include "cli/FieldCommands.h"
#include "cli/ShowCommand.h"
#include "data/ImageSections.h"

namespace zelvor::cli {
namespace {

constexpr unsigned Seed = 20261122;
constexpr int Runs = 2000;

class RandomImages : public CliTest {
protected:
    /// A data file with any content.
    std::string Random() { return ContentOf(testing::RandomImage(random)); }

    std::mt19937 random{Seed};
};

TEST_F(RandomImages, AreShownCheckedAndComparedInBothLanguages) {
    for (int run = 0; run < Runs; ++run) {
        const std::string where = "seed " + std::to_string(Seed) + ", run " + std::to_string(run);
        store.Put("a.dat", Random());
        store.Put("b.dat", Random());
        const Console& anyConsole = run % 2 == 0 ? console : chinese;
        EXPECT_EQ(Show({.files = {"a.dat"}, .sections = {}}, store, anyConsole), ExitStatus::Done) << where;
        const std::string shown = Out();
        EXPECT_EQ(std::ranges::count_if(shown, [](char c) { return c >= 0 && c < ' ' && c != '\n'; }), 0) << where;
        EXPECT_EQ(Check({"a.dat"}, store, anyConsole), ExitStatus::No) << where;
        EXPECT_EQ(Diff({"a.dat", "b.dat"}, store, anyConsole), ExitStatus::No) << where;
        EXPECT_EQ(Diff({"a.dat", "a.dat"}, store, anyConsole), ExitStatus::Done) << where;
        Out();
        if (run % 20 == 0) {
            EXPECT_EQ(Show({.files = {"a.dat"}, .sections = {}, .json = true}, store, anyConsole), ExitStatus::Done);
            EXPECT_TRUE(QJsonDocument::fromJson(QByteArray::fromStdString(Out())).isObject()) << where;
            EXPECT_EQ(Diff({"a.dat", "b.dat", true}, store, anyConsole), ExitStatus::No);
            EXPECT_TRUE(QJsonDocument::fromJson(QByteArray::fromStdString(Out())).isObject()) << where;
        }
        EXPECT_EQ(Err(), "") << where;
    }
}

TEST_F(RandomImages, TakeLegalValuesAndNothingElseChanges) {
    for (int run = 0; run < Runs; ++run) {
        const std::string content = Random();
        store.Put("a.dat", content);
        EXPECT_EQ(Set(ReadSetArguments({"a.dat", "optional.beep=Off", "dtmf.id-code=123"}, {}), store, console),
                  ExitStatus::Done);
        std::string expected = content;
        expected[16 + 0x136] = 0;
        expected.replace(16 + 0x120, 10, "123\xFF\xFF\xFF\xFF\xFF\xFF\xFF");
        EXPECT_EQ(store.Content("a.dat"), expected) << "seed " << Seed << ", run " << run;
        EXPECT_EQ(Set(ReadSetArguments({"a.dat", "optional.beep=On", "dtmf.id-code=12"}, {}), store, console),
                  ExitStatus::File);
        EXPECT_EQ(store.Content("a.dat"), expected) << "seed " << Seed << ", run " << run;
    }
}

TEST_F(RandomImages, GiveEveryFieldALine) {
    std::vector<std::string> keys;
    for (const ImageSection& section : ImageSections()) {
        for (const Field& field : section.fields) {
            keys.push_back(field.Key());
        }
    }
    for (int run = 0; run < Runs / 100; ++run) {
        store.Put("a.dat", Random());
        EXPECT_EQ(Get({"a.dat", keys}, store, console), ExitStatus::Done);
        const std::string text = Out();
        EXPECT_EQ(static_cast<std::size_t>(std::ranges::count(text, '\n')), keys.size())
            << "seed " << Seed << ", run " << run;
    }
}

TEST_F(RandomImages, TablesOfTheirChannelsAreRefusedAsAWholeOrChangeNothing) {
    for (int run = 0; run < Runs; ++run) {
        const std::string content = Random();
        store.Put("a.dat", content);
        EXPECT_EQ(ExportChannels({"a.dat", "c.csv"}, store, console), ExitStatus::Done);
        const ExitStatus status = ImportChannels({"a.dat", "c.csv", {}}, store, console);
        EXPECT_EQ(status == ExitStatus::Done, Err().empty());
        EXPECT_EQ(store.Content("a.dat"), content) << "seed " << Seed << ", run " << run;
    }
}

TEST_F(RandomImages, CutShortAreNoDataFiles) {
    for (int size = 0; size < 1040; size += 13) {
        store.Put("a.dat", Random().substr(0, static_cast<std::size_t>(size)));
        store.Put("c.csv", "channel\n");
        const std::string told = "zelvor-cli: a.dat: is no data file\n";
        const auto expectRefused = [&](ExitStatus status) {
            EXPECT_EQ(status, ExitStatus::File) << size;
            EXPECT_EQ(Err(), told) << size;
            EXPECT_EQ(Out(), "") << size;
            EXPECT_EQ(store.Content("a.dat").size(), static_cast<std::size_t>(size));
        };
        Put("b.dat", Blank());
        expectRefused(Show({.files = {"a.dat"}, .sections = {}}, store, console));
        expectRefused(Check({"a.dat"}, store, console));
        expectRefused(Get({"a.dat", {"optional.beep"}}, store, console));
        expectRefused(Set(ReadSetArguments({"a.dat", "optional.beep=On"}, {}), store, console));
        expectRefused(Diff({"b.dat", "a.dat"}, store, console));
        expectRefused(ExportChannels({"a.dat", {}}, store, console));
        expectRefused(ImportChannels({"a.dat", "c.csv", {}}, store, console));
    }
}

} // namespace
} // namespace zelvor::cli
