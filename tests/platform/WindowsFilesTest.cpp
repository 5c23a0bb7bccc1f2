// What files have on Windows alone: programs that keep each other from a file, attributes, names of devices.

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <chrono>
#include <cstdint>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <thread>
#include <vector>
#include <windows.h>

#include <aclapi.h>
#include <sddl.h>

#include "platform/FileSystem.h"
#include "platform/QtFileStore.h"
#include "platform/Toolkit.h"

namespace zelvor {
namespace {

using Bytes = std::vector<std::uint8_t>;

/// What another program lets others do while it has a file open.
class OpenElsewhere {
public:
    OpenElsewhere(const std::wstring& path, DWORD access, DWORD share)
        : handle_(CreateFileW(path.c_str(), access, share, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)) {
        EXPECT_NE(handle_, INVALID_HANDLE_VALUE);
    }
    ~OpenElsewhere() { CloseHandle(handle_); }
    OpenElsewhere(const OpenElsewhere&) = delete;
    OpenElsewhere& operator=(const OpenElsewhere&) = delete;

private:
    HANDLE handle_;
};

class WindowsFilesTest : public testing::Test {
protected:
    WindowsFilesTest() {
        QFile file(folder_.filePath("电台.dat"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("the old file");
    }
    [[nodiscard]] std::string Path(const QString& name = QStringLiteral("电台.dat")) const {
        return FromQString(QDir::toNativeSeparators(folder_.filePath(name)));
    }
    [[nodiscard]] std::wstring WidePath(const QString& name = QStringLiteral("电台.dat")) const {
        return QDir::toNativeSeparators(folder_.filePath(name)).toStdWString();
    }
    [[nodiscard]] QByteArray Content(const QString& name = QStringLiteral("电台.dat")) const {
        QFile file(folder_.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }
    [[nodiscard]] QStringList Names() const {
        return QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    }

    QTemporaryDir folder_;
    QtFileStore store_;
};

TEST_F(WindowsFilesTest, AFileThatNobodyElseMayWriteIsRefusedAndStays) {
    for (const DWORD share : {DWORD(FILE_SHARE_READ), DWORD(FILE_SHARE_READ | FILE_SHARE_DELETE), DWORD(0)}) {
        {
            const OpenElsewhere other(WidePath(), GENERIC_READ, share);
            EXPECT_FALSE(store_.Write(Path(), Bytes{'x', 'y'}, FileTail::Drop)) << share;
        }
        EXPECT_EQ(Content(), "the old file") << share;
        EXPECT_EQ(Names(), QStringList(QStringLiteral("电台.dat"))) << share;
    }
}

TEST_F(WindowsFilesTest, AFileThatOthersMayWriteButNotReplaceIsWrittenInPlace) {
    {
        const OpenElsewhere other(WidePath(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE);
        EXPECT_TRUE(store_.Write(Path(), Bytes{'x', 'y'}, FileTail::Drop));
    }
    EXPECT_EQ(Content(), "xy");
    EXPECT_EQ(Names(), QStringList(QStringLiteral("电台.dat")));
}

TEST_F(WindowsFilesTest, AFileThatIsLookedAtForAMomentIsReplacedAllTheSame) {
    QFile file(folder_.filePath("fresh.tmp"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("fresh");
    file.close();
    auto scanner = std::make_unique<OpenElsewhere>(WidePath(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE);
    std::thread looking([&scanner] {
        std::this_thread::sleep_for(std::chrono::milliseconds(30));
        scanner.reset();
    });
    EXPECT_TRUE(PutInPlace(FilePathOf(Path("fresh.tmp")), FilePathOf(Path())));
    looking.join();
    EXPECT_EQ(Content(), "fresh");
}

TEST_F(WindowsFilesTest, AFileThatIsHeldForLongIsNotReplaced) {
    QFile file(folder_.filePath("fresh.tmp"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("fresh");
    file.close();
    const OpenElsewhere other(WidePath(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE);
    EXPECT_FALSE(PutInPlace(FilePathOf(Path("fresh.tmp")), FilePathOf(Path())));
    EXPECT_EQ(Content(), "the old file");
    EXPECT_EQ(Content("fresh.tmp"), "fresh");
}

TEST_F(WindowsFilesTest, AHiddenFileStaysHidden) {
    ASSERT_TRUE(SetFileAttributesW(WidePath().c_str(), FILE_ATTRIBUTE_HIDDEN));
    ASSERT_TRUE(store_.Write(Path(), Bytes{'x'}, FileTail::Drop));
    EXPECT_NE(GetFileAttributesW(WidePath().c_str()) & FILE_ATTRIBUTE_HIDDEN, 0U);
    EXPECT_EQ(Content(), "x");
}

TEST_F(WindowsFilesTest, AStreamBesideTheContentStays) {
    QFile stream(folder_.filePath(QStringLiteral("电台.dat:Zone.Identifier")));
    if (!stream.open(QIODevice::WriteOnly) || Names() != QStringList(QStringLiteral("电台.dat"))) {
        GTEST_SKIP() << "This file system has no streams";
    }
    stream.write("[ZoneTransfer]");
    stream.close();
    ASSERT_TRUE(store_.Write(Path(), Bytes{'x', 'y'}, FileTail::Drop));
    EXPECT_EQ(Content(), "xy");
    EXPECT_EQ(Content(QStringLiteral("电台.dat:Zone.Identifier")), "[ZoneTransfer]");
}

/// What the file lets whom do, in the system's words.
std::wstring RulesOf(const std::wstring& path) {
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    EXPECT_EQ(GetNamedSecurityInfoW(path.c_str(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr, nullptr,
                                    nullptr, &descriptor),
              DWORD(ERROR_SUCCESS));
    LPWSTR text = nullptr;
    EXPECT_TRUE(ConvertSecurityDescriptorToStringSecurityDescriptorW(descriptor, SDDL_REVISION_1,
                                                                     DACL_SECURITY_INFORMATION, &text, nullptr));
    std::wstring rules = text;
    LocalFree(text);
    LocalFree(descriptor);
    return rules;
}

TEST_F(WindowsFilesTest, AnAccessListOfItsOwnStays) {
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    ASSERT_TRUE(ConvertStringSecurityDescriptorToSecurityDescriptorW(L"D:P(A;;FA;;;OW)(A;;FA;;;BA)(A;;FR;;;WD)",
                                                                     SDDL_REVISION_1, &descriptor, nullptr));
    ASSERT_TRUE(SetFileSecurityW(WidePath().c_str(), DACL_SECURITY_INFORMATION, descriptor));
    LocalFree(descriptor);
    const std::wstring before = RulesOf(WidePath());
    ASSERT_TRUE(store_.Write(Path(), Bytes{'x', 'y'}, FileTail::Drop));
    EXPECT_EQ(RulesOf(WidePath()), before);
    EXPECT_EQ(Content(), "xy");
}

TEST_F(WindowsFilesTest, AReadOnlyFileIsRefused) {
    ASSERT_TRUE(SetFileAttributesW(WidePath().c_str(), FILE_ATTRIBUTE_READONLY));
    EXPECT_FALSE(store_.Write(Path(), Bytes{'x'}, FileTail::Drop));
    EXPECT_EQ(Content(), "the old file");
    SetFileAttributesW(WidePath().c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(WindowsFilesTest, AllNamesOfAFileKeepLeadingToIt) {
    ASSERT_TRUE(CreateHardLinkW(WidePath("other.dat").c_str(), WidePath().c_str(), nullptr));
    ASSERT_TRUE(store_.Write(Path(), Bytes{'x', 'y'}, FileTail::Drop));
    EXPECT_EQ(Content(), "xy");
    EXPECT_EQ(Content("other.dat"), "xy");
    EXPECT_TRUE(LeadToSameFile(Path(), Path("other.dat")));
}

TEST_F(WindowsFilesTest, ALinkStaysAndLeadsToTheNewContent) {
    CreateSymbolicLinkW(WidePath("link.dat").c_str(), WidePath().c_str(), 0);
    if (GetFileAttributesW(WidePath("link.dat").c_str()) == INVALID_FILE_ATTRIBUTES) {
        GTEST_SKIP() << "This user may not make links, or this system makes none";
    }
    ASSERT_TRUE(store_.Write(Path("link.dat"), Bytes{'x', 'y'}, FileTail::Drop));
    EXPECT_EQ(Content(), "xy");
    EXPECT_NE(GetFileAttributesW(WidePath("link.dat").c_str()) & FILE_ATTRIBUTE_REPARSE_POINT, 0U);
}

TEST_F(WindowsFilesTest, DevicesAreNeitherReadNorWritten) {
    for (const char* name : {"NUL", "nul", "COM3", "con", "LPT1", "\\\\.\\COM3", "\\\\.\\NUL"}) {
        EXPECT_EQ(store_.Read(name, 9), std::nullopt) << name;
        EXPECT_FALSE(store_.Write(name, Bytes{'x'}, FileTail::Drop)) << name;
    }
    EXPECT_EQ(Names(), QStringList(QStringLiteral("电台.dat")));
}

TEST_F(WindowsFilesTest, BothSeparatorsAndBothCasesOfLettersLeadToAFile) {
    ASSERT_TRUE(store_.Write(Path("Radio.dat"), Bytes{'r'}, FileTail::Drop));
    std::string slashes = Path("RADIO.DAT");
    for (char& character : slashes) {
        character = character == '\\' ? '/' : character;
    }
    EXPECT_EQ(store_.Read(slashes, 9), Bytes{'r'});
    EXPECT_TRUE(LeadToSameFile(Path("Radio.dat"), slashes));
}

TEST_F(WindowsFilesTest, AMarkedLongPathIsTheSamePath) {
    const std::string marked = "\\\\?\\" + Path();
    EXPECT_TRUE(LeadToSameFile(marked, Path()));
    ASSERT_TRUE(store_.Write(marked, Bytes{'x'}, FileTail::Drop));
    EXPECT_EQ(Content(), "x");
}

} // namespace
} // namespace zelvor
