#include "data/Document.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "data/BlankImage.h"

namespace zelvor {
namespace {

const std::string Separator(1, static_cast<char>(std::filesystem::path::preferred_separator));

TEST(Document, StartsWithoutAFileAndWithoutAComplaint) {
    const Document document;
    EXPECT_EQ(document.FileName(), "Zelvor.dat");
    EXPECT_FALSE(document.HasFile());
    EXPECT_FALSE(document.Priority.PriorityChannelError() || document.Flags.OwnIdError || document.Flags.TxCodeError);
}

TEST(Document, IsCleanAfterASnapshot) {
    Document document;
    InitAllFrameData(document.Image);
    EXPECT_TRUE(document.IsDocumentChanged());
    document.TakeSnapshot();
    EXPECT_FALSE(document.IsDocumentChanged());
}

TEST(Document, CountsAChangeOfAnyByteButThePttIdType) {
    for (int address = 0; address < 1024; ++address) {
        Document document;
        InitAllFrameData(document.Image);
        document.TakeSnapshot();
        document.Image.Set(address, static_cast<std::uint8_t>(document.Image.At(address) ^ 0x10));
        EXPECT_EQ(document.IsDocumentChanged(), address != 0x133) << address;
    }
}

TEST(Document, KeepsTheCopyOfThePttIdTypeInTheSnapshot) {
    Document document;
    document.Image.Set(0x133, 0);
    document.TakeSnapshot();
    document.Image.Set(0x133, 1);
    document.Image.Set(0x010, 0x25);
    EXPECT_TRUE(document.IsDocumentChanged());
    EXPECT_EQ(document.Snapshot().At(0x133), 1);
    EXPECT_EQ(document.Snapshot().At(0x010), 0xFF);
}

TEST(Document, HasAFileWhereItsNameHoldsADirectory) {
    Document document;
    document.Rename(Separator + "home" + Separator + "radio 1" + Separator + "对讲机.dat");
    EXPECT_TRUE(document.HasFile());
    EXPECT_EQ(document.BaseName(), "对讲机.dat");
    document.Rename("fleet.v2.dat");
    EXPECT_FALSE(document.HasFile());
    EXPECT_EQ(document.BaseName(), "fleet.v2.dat");
    document.Rename(Separator + "radios" + Separator);
    EXPECT_TRUE(document.HasFile());
    EXPECT_EQ(document.BaseName(), "");
    document.RenameToDefault();
    EXPECT_EQ(document.FileName(), "Zelvor.dat");
}

TEST(Document, ClearsAllItsComplaintsAtOnceButNotTheirKind) {
    Document document;
    document.Priority.SetError(true);
    document.Flags = {.OwnIdError = true, .TxCodeError = true, .TxCodeErrorKind = 3};
    document.ClearWriteFlags();
    EXPECT_FALSE(document.Priority.PriorityChannelError());
    EXPECT_FALSE(document.Flags.OwnIdError);
    EXPECT_FALSE(document.Flags.TxCodeError);
    EXPECT_EQ(document.Flags.TxCodeErrorKind, 3);
}

} // namespace
} // namespace zelvor
