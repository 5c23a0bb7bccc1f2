#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "fakes/FakeFileStore.h"
#include "platform/QtFileStore.h"
#include "support/TestDirectory.h"

namespace zelvor {
namespace {

using testing::FileContent;
using testing::PathOfUtf8;
using testing::PutFile;
using testing::TestDirectory;
using testing::Utf8;

using Bytes = std::vector<std::uint8_t>;

struct FakeMachine {
    FakeFileStore store;

    [[nodiscard]] static std::string Path(const char* name) { return "/folder/" + std::string(name); }
    void Put(const char* name, const std::string& content) { store.Put(Path(name), content); }
    void MakeFolder(const char* name) { store.MakeFolder(Path(name)); }
    [[nodiscard]] std::string Content(const char* name) const { return store.Content(Path(name)); }
    [[nodiscard]] std::string RefusedPath() {
        store.Refuse("/nowhere/a.dat");
        return "/nowhere/a.dat";
    }
};

struct RealMachine {
    TestDirectory directory;
    QtFileStore store;

    [[nodiscard]] std::string Path(const char* name) const { return Utf8(directory / PathOfUtf8(name)); }
    void Put(const char* name, const std::string& content) const { PutFile(PathOfUtf8(Path(name)), content); }
    void MakeFolder(const char* name) const { std::filesystem::create_directory(PathOfUtf8(Path(name))); }
    [[nodiscard]] std::string Content(const char* name) const { return FileContent(PathOfUtf8(Path(name))); }
    [[nodiscard]] std::string RefusedPath() const { return Path("no folder/a.dat"); }
};

template<class Machine>
class FileStoreContract : public ::testing::Test {
protected:
    Machine machine_;
};

using Machines = ::testing::Types<FakeMachine, RealMachine>;
TYPED_TEST_SUITE(FileStoreContract, Machines);

TYPED_TEST(FileStoreContract, ReadsNoMoreThanItIsAskedFor) {
    this->machine_.Put("a.dat", "abcdef");
    EXPECT_EQ(this->machine_.store.Read(this->machine_.Path("a.dat"), 100), (Bytes{'a', 'b', 'c', 'd', 'e', 'f'}));
    EXPECT_EQ(this->machine_.store.Read(this->machine_.Path("a.dat"), 6), (Bytes{'a', 'b', 'c', 'd', 'e', 'f'}));
    EXPECT_EQ(this->machine_.store.Read(this->machine_.Path("a.dat"), 2), (Bytes{'a', 'b'}));
    EXPECT_EQ(this->machine_.store.Read(this->machine_.Path("a.dat"), 0), Bytes());
}

TYPED_TEST(FileStoreContract, ReadsALongFileUpToWhatItIsAskedFor) {
    std::string content;
    for (int i = 0; i < 20'000; ++i) {
        content += static_cast<char>('a' + i % 23);
    }
    const Bytes bytes(content.begin(), content.end());
    this->machine_.Put("long.dat", content);
    EXPECT_EQ(this->machine_.store.Read(this->machine_.Path("long.dat"), 1'000'000), bytes);
    EXPECT_EQ(this->machine_.store.Read(this->machine_.Path("long.dat"), 20'000), bytes);
    EXPECT_EQ(this->machine_.store.Read(this->machine_.Path("long.dat"), 10'000),
              Bytes(bytes.begin(), bytes.begin() + 10'000));
}

TYPED_TEST(FileStoreContract, TellsAnEmptyFileFromNone) {
    this->machine_.Put("empty.dat", "");
    EXPECT_EQ(this->machine_.store.Read(this->machine_.Path("empty.dat"), 100), Bytes());
    EXPECT_EQ(this->machine_.store.Read(this->machine_.Path("none.dat"), 100), std::nullopt);
}

TYPED_TEST(FileStoreContract, MakesAFileUnderANameInAnyScript) {
    ASSERT_TRUE(this->machine_.store.Write(this->machine_.Path("对讲机 1.dat"), Bytes{'x', 'y'}, FileTail::Drop));
    EXPECT_EQ(this->machine_.Content("对讲机 1.dat"), "xy");
    EXPECT_EQ(this->machine_.store.Read(this->machine_.Path("对讲机 1.dat"), 9), (Bytes{'x', 'y'}));
}

TYPED_TEST(FileStoreContract, ReplacesAShorterFile) {
    for (const FileTail tail : {FileTail::Drop, FileTail::Keep}) {
        this->machine_.Put("a.dat", "a");
        ASSERT_TRUE(this->machine_.store.Write(this->machine_.Path("a.dat"), Bytes{'x', 'y'}, tail));
        EXPECT_EQ(this->machine_.Content("a.dat"), "xy");
    }
}

TYPED_TEST(FileStoreContract, KeepsOrDropsTheTailOfALongerFile) {
    this->machine_.Put("a.dat", "abcdef");
    ASSERT_TRUE(this->machine_.store.Write(this->machine_.Path("a.dat"), Bytes{'x', 'y'}, FileTail::Keep));
    EXPECT_EQ(this->machine_.Content("a.dat"), "xycdef");
    ASSERT_TRUE(this->machine_.store.Write(this->machine_.Path("a.dat"), Bytes{'z'}, FileTail::Drop));
    EXPECT_EQ(this->machine_.Content("a.dat"), "z");
}

TYPED_TEST(FileStoreContract, SaysWhereNothingCanBeReadOrWritten) {
    const std::string path = this->machine_.RefusedPath();
    EXPECT_EQ(this->machine_.store.Read(path, 100), std::nullopt);
    EXPECT_FALSE(this->machine_.store.Write(path, Bytes{'x'}, FileTail::Drop));
    EXPECT_FALSE(this->machine_.store.Write("", Bytes{'x'}, FileTail::Drop));
}

TYPED_TEST(FileStoreContract, ListsTheFilesOfAFolderAndNotItsFolders) {
    const auto names = [this](const std::string& folder) {
        std::optional<std::vector<std::string>> found = this->machine_.store.NamesIn(folder);
        if (found) {
            std::ranges::sort(*found);
        }
        return found;
    };
    this->machine_.MakeFolder("2025");
    this->machine_.MakeFolder("2025/empty");
    this->machine_.Put("2025/对讲机 1.dat", "a");
    this->machine_.Put("2025/b.csv", "");
    this->machine_.Put("2026.dat", "x");
    EXPECT_EQ(names(this->machine_.Path("2025")), (std::vector<std::string>{"b.csv", "对讲机 1.dat"}));
    EXPECT_EQ(names(this->machine_.Path("2025/")), names(this->machine_.Path("2025")));
    EXPECT_EQ(names(this->machine_.Path("2025/empty")), std::vector<std::string>());
    EXPECT_EQ(names(this->machine_.Path("2026.dat")), std::nullopt);
    EXPECT_EQ(names(this->machine_.Path("none")), std::nullopt);
    EXPECT_EQ(names(""), std::nullopt);
}

} // namespace
} // namespace zelvor
