#include "cli/NewCommand.h"

#include "cli/CliFixture.h"

namespace zelvor::cli {
namespace {

class NewTest : public CliTest {};

TEST_F(NewTest, WritesTheBlankImageOfAVariant) {
    EXPECT_EQ(MakeNew({"4618", "M", "n.dat"}, store, console), ExitStatus::Done);
    EXPECT_EQ(store.Content("n.dat"), ContentOf(Blank()));
    EXPECT_EQ(Out() + Err(), "");
}

TEST_F(NewTest, KnowsEveryVariantOfTheCatalogue) {
    const std::vector<std::array<const char*, 3>> variants{
        {"4618", "M", "01F8"},  {"5618", "M", "21F8"},  {"5618", "C", "33F8"},  {"5618", "C2", "43F8"},
        {"5618", "C5", "63F8"}, {"5618", "C6", "53F8"}, {"5618", "C7", "73F8"}, {"4613", "M", "01F9"},
        {"4613", "K", "00F9"},  {"5613", "K", "20F9"},  {"5613", "K2", "70F9"}, {"5613", "M", "21F9"},
        {"5613", "M2", "71F9"}, {"4617", "M", "01FC"},  {"5617", "M", "21FC"},  {"5617", "M3", "41FC"}};
    for (const auto& [model, market, bytes] : variants) {
        EXPECT_EQ(MakeNew({model, market, "n.dat"}, store, console), ExitStatus::Done) << model << market;
        DataImage expected = ImageIn("n.dat");
        testing::StoreHex(expected, 0x1BD, bytes);
        EXPECT_TRUE(ImageIn("n.dat") == expected) << model << market;
    }
}

TEST_F(NewTest, OfAPairThatDoesNotExistListsThoseThatDo) {
    EXPECT_EQ(MakeNew({"4618", "K", "n.dat"}, store, console), ExitStatus::Usage);
    EXPECT_FALSE(store.Has("n.dat"));
    const std::string said = Err();
    EXPECT_TRUE(said.starts_with("zelvor-cli: there is no such model and market; these are:\n"
                                 "zelvor-cli:   --model 4618 --market M  (VHF: 136-174 MHz(M))\n"));
    EXPECT_EQ(std::ranges::count(said, '\n'), 17);
}

TEST_F(NewTest, TellsOfAFileThatCannotBeWritten) {
    store.Refuse("n.dat");
    EXPECT_EQ(MakeNew({"4618", "M", "n.dat"}, store, console), ExitStatus::File);
    EXPECT_EQ(Err(), "zelvor-cli: n.dat: cannot be written\n");
}

} // namespace
} // namespace zelvor::cli
