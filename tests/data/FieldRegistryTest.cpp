#include "data/FieldRegistry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "data/BlankImage.h"

namespace zelvor {
namespace {

/// For good: a key that is missing here breaks somebody's script.
const std::vector<std::string> Keys{
    "optional.time-out-timer",
    "optional.time-out-pre-alert",
    "optional.squelch-level",
    "optional.mic-sensitivity",
    "optional.battery-save",
    "optional.beep",
    "optional.voice-annunciation",
    "optional.scrambler-activation",
    "optional.scrambler-backup",
    "optional.ptt-id-type",
    "optional.ptt-id",
    "optional.begin-of-tx",
    "optional.end-of-tx",
    "optional.vox-function",
    "optional.vox-gain-level",
    "optional.vox-delay-time",
    "optional.cancel-operation",
    "optional.vox-proceed-tone",
    "optional.vox-inhibit-on-receive",
    "optional.clone-mode",
    "keys.pf1",
    "keys.pf2",
    "scan.priority",
    "scan.priority-channel",
    "scan.look-back-time-a",
    "scan.look-back-time-b",
    "scan.revert-channel",
    "scan.dropout-delay-time",
    "scan.tx-dwell-time",
    "dtmf.speed",
    "dtmf.first-digit-time",
    "dtmf.first-digit-delay",
    "dtmf.star-and-hash-tone",
    "dtmf.d-code-assignment",
    "dtmf.side-tone",
    "dtmf.id-code",
    "dtmf.group-code",
    "dtmf.auto-reset-timer",
    "dtmf.call-alert",
    "dtmf.transpond",
    "dtmf.clear-to-transpond",
    "dtmf.stun-code",
    "dtmf.stun-type",
    "dtmf.autodial-memory.1",
    "dtmf.autodial-memory.2",
    "dtmf.autodial-memory.3",
    "dtmf.autodial-memory.4",
    "dtmf.autodial-memory.5",
    "dtmf.autodial-memory.6",
    "dtmf.autodial-memory.7",
    "dtmf.autodial-memory.8",
    "corvane.own-fleet",
    "corvane.own-id",
    "corvane.baud-rate",
    "corvane.data-tx-modulation-delay",
    "corvane.message-mode-timer",
    "corvane.ptt-id-side-tone",
    "corvane.fleet-list.1.fleet",
    "corvane.fleet-list.1.id",
    "corvane.fleet-list.2.fleet",
    "corvane.fleet-list.2.id",
    "corvane.fleet-list.3.fleet",
    "corvane.fleet-list.3.id",
    "corvane.fleet-list.4.fleet",
    "corvane.fleet-list.4.id",
    "corvane.fleet-list.5.fleet",
    "corvane.fleet-list.5.id",
    "corvane.fleet-list.6.fleet",
    "corvane.fleet-list.6.id",
    "corvane.fleet-list.7.fleet",
    "corvane.fleet-list.7.id",
    "corvane.fleet-list.8.fleet",
    "corvane.fleet-list.8.id",
    "test.1.receive",
    "test.1.transmit",
    "test.2.receive",
    "test.2.transmit",
    "test.3.receive",
    "test.3.transmit",
    "test.4.receive",
    "test.4.transmit",
    "test.5.receive",
    "test.5.transmit",
    "test.6.receive",
    "test.6.transmit",
    "test.7.receive",
    "test.7.transmit",
    "test.8.receive",
    "test.8.transmit",
    "test.9.receive",
    "test.9.transmit",
    "test.10.receive",
    "test.10.transmit",
    "test.11.receive",
    "test.11.transmit",
    "test.12.receive",
    "test.12.transmit",
    "test.13.receive",
    "test.13.transmit",
    "test.14.receive",
    "test.14.transmit",
    "test.15.receive",
    "test.15.transmit",
    "test.16.receive",
    "test.16.transmit",
    "message.line.1",
    "message.line.2",
};

TEST(FieldRegistry, ListsTheFieldsOfAllSectionsByTheirKeys) {
    std::vector<std::string> keys;
    for (const Field& field : AllFields()) {
        keys.push_back(field.Key());
    }
    EXPECT_EQ(keys, Keys);
}

TEST(FieldRegistry, HasEveryKeyOnceMadeOfPlainLettersDigitsAndHyphens) {
    std::set<std::string> seen;
    for (const Field& field : AllFields()) {
        const std::string key = field.Key();
        EXPECT_TRUE(seen.insert(key).second) << key;
        EXPECT_EQ(key.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789-."), std::string::npos) << key;
        EXPECT_EQ(key.find(".."), std::string::npos) << key;
        EXPECT_EQ(key.find("--"), std::string::npos) << key;
        EXPECT_NE(key.back(), '.') << key;
        EXPECT_NE(key.back(), '-') << key;
    }
}

TEST(FieldRegistry, BeginsEveryKeyWithItsSection) {
    for (const FieldSection section : FieldSections) {
        EXPECT_FALSE(FieldsOf(section).empty());
        for (const Field& field : FieldsOf(section)) {
            EXPECT_TRUE(field.Key().starts_with(std::string(NameOf(section)) + '.')) << field.Key();
        }
    }
}

TEST(FieldRegistry, FindsEveryFieldByItsKeyAndNoOther) {
    for (const std::string& key : Keys) {
        ASSERT_NE(FindField(key), nullptr) << key;
        EXPECT_EQ(FindField(key)->Key(), key);
    }
    EXPECT_EQ(FindField("optional"), nullptr);
    EXPECT_EQ(FindField("optional.time-out"), nullptr);
    EXPECT_EQ(FindField("Optional.Beep"), nullptr);
    EXPECT_EQ(FindField(""), nullptr);
}

TEST(FieldRegistry, GivesNoByteToTwoFields) {
    std::map<int, std::string> owners;
    for (const Field& field : AllFields()) {
        EXPECT_GE(field.Size(), 1) << field.Key();
        for (int address = field.Address(); address < field.Address() + field.Size(); ++address) {
            EXPECT_GE(address, 0x110) << field.Key();
            EXPECT_LT(address, 0x340) << field.Key();
            const auto [owner, isNew] = owners.insert({address, field.Key()});
            EXPECT_TRUE(isNew) << field.Key() << " and " << owner->second << " at " << address;
        }
    }
}

TEST(FieldRegistry, HasALabelOfEveryFieldInBothLanguages) {
    for (const Field& field : AllFields()) {
        EXPECT_NE(field.Label(Language::English), "") << field.Key();
        EXPECT_NE(field.Label(Language::Chinese), "") << field.Key();
    }
    EXPECT_EQ(FindField("optional.time-out-timer")->Label(Language::English), "Time Out Timer(TOT)[s]");
    EXPECT_EQ(FindField("optional.ptt-id")->Label(Language::Chinese), "PTT ID");
    EXPECT_EQ(FindField("dtmf.autodial-memory.3")->Label(Language::English), "Autodial Memory 3");
    EXPECT_EQ(FindField("corvane.fleet-list.8.fleet")->Label(Language::Chinese), "队列表 8 队列");
    EXPECT_EQ(FindField("test.16.transmit")->Label(Language::English), "Channel 16 TX Frequency[MHz]");
    EXPECT_EQ(FindField("message.line.2")->Label(Language::English), "Line 2");
}

DataImage BlankOfVhf() {
    DataImage image;
    image.Set(0x1BD, 1);
    image.Set(0x1BE, 0xF8);
    InitAllFrameData(image);
    return image;
}

TEST(FieldRegistry, BringsABlankFieldBackFromAnyBytes) {
    const DataImage blank = BlankOfVhf();
    for (const Field& field : AllFields()) {
        if (field.Key().starts_with("test.")) {
            continue; // by the model
        }
        for (const std::uint8_t fill : {0x00, 0x5A, 0xFF}) {
            DataImage image;
            image.Fill(fill);
            field.StoreBlank(image);
            for (int i = 0; i < field.Size(); ++i) {
                EXPECT_EQ(image.At(field.Address() + i), blank.At(field.Address() + i)) << field.Key();
            }
        }
    }
}

TEST(FieldRegistry, ParsesWhatABlankFieldShowsIntoTheSameBytes) {
    const DataImage blank = BlankOfVhf();
    for (const Language language : {Language::English, Language::Chinese}) {
        for (const Field& field : AllFields()) {
            DataImage image = blank;
            EXPECT_TRUE(field.Parse(field.Show(blank, language), image)) << field.Key();
            EXPECT_TRUE(image == blank) << field.Key();
        }
    }
}

std::string Hex(int number) {
    std::ostringstream text;
    text << std::hex << std::uppercase;
    text.width(3);
    text.fill('0');
    text << number;
    return "0x" + text.str();
}

std::string Joined(const std::vector<std::string>& texts) {
    std::string joined;
    for (const std::string& text : texts) {
        joined += (joined.empty() ? "" : ", ") + ('`' + text + '`');
    }
    return joined;
}

std::string LegalText(const LegalValues& legal) {
    constexpr const char* characters[] = {"digits", "DTMF digits", "characters"};
    std::vector<std::string> parts;
    if (!legal.words.empty()) {
        parts.push_back(Joined(legal.words));
    }
    if (legal.range) {
        parts.push_back('`' + legal.range->first + "` to `" + legal.range->last + "` by " + legal.range->step);
    }
    if (legal.characters) {
        parts.push_back(std::to_string(legal.characters->least) + " to " + std::to_string(legal.characters->most) +
                        ' ' + characters[static_cast<std::size_t>(legal.characters->kind)]);
    }
    if (legal.mayBeEmpty) {
        parts.emplace_back("nothing");
    }
    std::string text;
    for (const std::string& part : parts) {
        text += (text.empty() ? "" : "; ") + part;
    }
    return text;
}

/// The document's table, a line a field.
std::string Table() {
    const DataImage blank = BlankOfVhf();
    std::string table = "| Key | Address | Bytes | Blank | Legal |\n|---|---|---|---|---|\n";
    for (const Field& field : AllFields()) {
        const std::string shown = field.Show(blank, Language::English);
        const bool ofModel = field.Key().starts_with("test.");
        table += "| `" + field.Key() + "` | " + Hex(field.Address()) + " | " + std::to_string(field.Size()) + " | " +
                 (ofModel         ? "by the model"
                  : shown.empty() ? "nothing"
                                  : '`' + shown + '`') +
                 " | " + LegalText(field.Legal(Language::English)) + " |\n";
    }
    return table;
}

TEST(FieldRegistry, IsWhatTheDocumentOfTheMemoryTells) {
    std::ifstream file(DATA_DOCUMENT);
    ASSERT_TRUE(file.is_open()) << DATA_DOCUMENT;
    const std::string document{std::istreambuf_iterator<char>(file), {}};
    EXPECT_NE(document.find(Table()), std::string::npos) << "Put this table into " << DATA_DOCUMENT << ":\n" << Table();
}

} // namespace
} // namespace zelvor
