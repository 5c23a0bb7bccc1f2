#include "ProgramsFiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "data/Document.h"
#include "data/TestImages.h"

namespace zelvor::testing {
namespace {

namespace fs = std::filesystem;

std::string FileOf(std::string_view magic, std::size_t size, char fill) {
    std::string content(magic);
    content.resize(size, fill);
    return content;
}

TEST(DataFile, BringsADocumentBackUnchanged) {
    const TestDirectory directory;
    const fs::path path = directory / "radio.dat";
    Document document;
    document.Image = SampleImage();
    ASSERT_TRUE(WriteDataFile(path, document.Image));
    document.TakeSnapshot();
    const DataFileRead read = ReadDataFile(path);
    ASSERT_EQ(read.error, DataFileError::None);
    document.Image = read.image;
    EXPECT_FALSE(document.IsDocumentChanged());
    EXPECT_EQ(read.image.ToAddressOrder(), SampleImage().ToAddressOrder());
}

TEST(DataFile, IsRefusedForAnyLengthBut1040) {
    const TestDirectory directory;
    const fs::path path = directory / "radio.dat";
    for (const std::size_t size : {0U, 1U, 5U, 6U, 16U, 1024U, 1039U, 1041U, 2080U, 100000U}) {
        PutFile(path, FileOf("RQ6152", size, '\x11'));
        EXPECT_EQ(ReadDataFile(path).error, DataFileError::WrongType) << size;
    }
    PutFile(path, FileOf("RQ6152", 1040, '\x11'));
    EXPECT_EQ(ReadDataFile(path).error, DataFileError::None);
}

TEST(DataFile, IsRefusedForAHugeLengthWithoutBeingReadThrough) {
    const TestDirectory directory;
    const fs::path path = directory / "radio.dat";
    PutFile(path, FileOf("RQ6152", 1040, '\x11'));
    fs::resize_file(path, 1ULL << 36U);
    EXPECT_EQ(ReadDataFile(path).error, DataFileError::WrongType);
}

TEST(DataFile, IsRefusedForAnyOtherHead) {
    const TestDirectory directory;
    const fs::path path = directory / "radio.dat";
    for (const std::string_view magic : {"rq6152", "RQ6153", "RQ615 ", " RQ6152", "RR6152", "Rq6152", "QR6152"}) {
        PutFile(path, FileOf(magic, 1040, '\xFF'));
        EXPECT_EQ(ReadDataFile(path).error, DataFileError::WrongType) << magic;
    }
    for (std::size_t i = 0; i < 6; ++i) {
        std::string content = FileOf("RQ6152", 1040, '\xFF');
        content[i] = static_cast<char>(content[i] ^ 0x01);
        PutFile(path, content);
        EXPECT_EQ(ReadDataFile(path).error, DataFileError::WrongType) << i;
    }
}

TEST(DataFile, IsReadWhateverItsReservedBytesAndExtensionAndSavedWithFFThere) {
    const TestDirectory directory;
    const fs::path path = directory / "radio.txt";
    std::string content = FileOf("RQ6152", 1040, '\x00');
    content[16 + 0x133] = '\x01';
    PutFile(path, content);
    const DataFileRead read = ReadDataFile(path);
    ASSERT_EQ(read.error, DataFileError::None);
    EXPECT_EQ(read.image.At(0x133), 0x01);
    EXPECT_EQ(read.image.At(0x000), 0x00);
    ASSERT_TRUE(WriteDataFile(path, read.image));
    content.replace(6, 10, 10, '\xFF');
    EXPECT_EQ(FileContent(path), content);
}

TEST(DataFile, LoadsAnImageOfAnUnknownModel) {
    const TestDirectory directory;
    const fs::path path = directory / "radio.dat";
    PutFile(path, FileOf("RQ6152", 1040, '\x5A'));
    const DataFileRead read = ReadDataFile(path);
    ASSERT_EQ(read.error, DataFileError::None);
    EXPECT_EQ(read.image.At(0x1BE), 0x5A);
}

TEST(DataFile, CannotBeReadWhereThereIsNoFile) {
    const TestDirectory directory;
    EXPECT_EQ(ReadDataFile(directory / "missing.dat").error, DataFileError::Unreadable);
    EXPECT_EQ(ReadDataFile(directory / "missing" / "radio.dat").error, DataFileError::Unreadable);
    EXPECT_EQ(ReadDataFile(directory.Path()).error, DataFileError::Unreadable);
    EXPECT_EQ(ReadDataFile("").error, DataFileError::Unreadable);
}

TEST(DataFile, ReplacesAShorterOrEqualFileByItself) {
    const TestDirectory directory;
    const fs::path path = directory / "radio.dat";
    for (const std::size_t size : {0U, 100U, 1039U, 1040U}) {
        PutFile(path, std::string(size, 'x'));
        ASSERT_TRUE(WriteDataFile(path, SampleImage())) << size;
        EXPECT_EQ(fs::file_size(path), 1040U);
        EXPECT_EQ(ReadDataFile(path).image, SampleImage());
        EXPECT_EQ(EntriesOf(directory.Path()), (std::vector<std::string>{"radio.dat"}));
    }
}

TEST(DataFile, KeepsTheTailOfALongerFile) {
    const TestDirectory directory;
    const fs::path path = directory / "radio.dat";
    for (const std::size_t tail : {1U, 1040U, 65536U, 200001U}) {
        std::string content(1040 + tail, '\x00');
        for (std::size_t i = 0; i < content.size(); ++i) {
            content[i] = static_cast<char>(i * 31 + i / 251);
        }
        PutFile(path, content);
        ASSERT_TRUE(WriteDataFile(path, SampleImage()));
        const std::string written = FileContent(path);
        ASSERT_EQ(written.size(), 1040 + tail);
        EXPECT_EQ(written.substr(1040), content.substr(1040));
        const DataFileBytes head = EncodeDataFile(SampleImage());
        EXPECT_TRUE(std::equal(head.begin(), head.end(), written.begin(),
                               [](std::uint8_t a, char b) { return a == static_cast<std::uint8_t>(b); }));
    }
}

TEST(DataFile, IsWrittenUnderANameInAnyScript) {
    const TestDirectory directory;
    const fs::path path = directory / fs::path(u8"对讲机 1.dat");
    ASSERT_TRUE(WriteDataFile(path, SampleImage()));
    EXPECT_EQ(ReadDataFile(path).image, SampleImage());
}

TEST(DataFile, IsNotWrittenIntoADirectoryThatIsMissing) {
    const TestDirectory directory;
    EXPECT_FALSE(WriteDataFile(directory / "missing" / "radio.dat", SampleImage()));
    EXPECT_FALSE(WriteDataFile("", SampleImage()));
    EXPECT_TRUE(EntriesOf(directory.Path()).empty());
}

TEST(DataFile, IsNotWrittenWhereAFileStandsInPlaceOfTheDirectory) {
    const TestDirectory directory;
    PutFile(directory / "plain", "content");
    EXPECT_FALSE(WriteDataFile(directory / "plain" / "radio.dat", SampleImage()));
    EXPECT_EQ(FileContent(directory / "plain"), "content");
    EXPECT_EQ(EntriesOf(directory.Path()), (std::vector<std::string>{"plain"}));
}

TEST(DataFile, IsNotWrittenWhereADirectoryStandsInItsPlace) {
    const TestDirectory directory;
    fs::create_directory(directory / "radio.dat");
    EXPECT_FALSE(WriteDataFile(directory / "radio.dat", SampleImage()));
    EXPECT_TRUE(fs::is_directory(directory / "radio.dat"));
    EXPECT_TRUE(EntriesOf(directory / "radio.dat").empty());
    EXPECT_EQ(EntriesOf(directory.Path()), (std::vector<std::string>{"radio.dat"}));
}

TEST(DataFile, DoesNotReplaceAReadOnlyFile) {
    const TestDirectory directory;
    const fs::path path = directory / "radio.dat";
    PutFile(path, "old");
    fs::permissions(path, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    EXPECT_FALSE(WriteDataFile(path, SampleImage()));
    EXPECT_EQ(FileContent(path), "old");
    EXPECT_EQ(EntriesOf(directory.Path()), (std::vector<std::string>{"radio.dat"}));
    fs::permissions(path, fs::perms::owner_all);
}

} // namespace
} // namespace zelvor::testing
