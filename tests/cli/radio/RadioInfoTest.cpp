#include "cli/RadioInfo.h"

#include <gtest/gtest.h>
#include <sstream>

#include "cli/RadioProgress.h"
#include "fakes/FakeFolder.h"
#include "service/ServiceRig.h"

namespace zelvor::cli {
namespace {

class RadioInfoTest : public ::testing::Test, protected ServiceRig {
protected:
    ExitStatus Info(int retries = 0) {
        RadioMachine machine{ports, clock, store, backups, progress_, [this] { return isInterrupted_; }};
        const Console console{out_, err_, language_};
        return InfoOfRadio({.port = 3, .retries = retries}, machine, console);
    }

    std::ostringstream out_;
    std::ostringstream err_;
    bool isInterrupted_ = false;
    Language language_ = Language::English;

private:
    RadioProgress progress_;
};

// The record's byte 13 and its bytes 17 to 24.
constexpr const char* Record = "00 01 02 03 04 05 06 07 08 09 0A 0B 0C 41 0E 0F 10 31 30 30 32 34 36 31 38 19 1A 1B 1C "
                               "1D 1E 1F 20 21";

TEST_F(RadioInfoTest, PrintsWhatTheRadioSaysOfItself) {
    replies["02"] = "50 35 36 31 38 21 F8 FF";
    replies["4E 52 4B"] = Record;
    EXPECT_EQ(Info(), ExitStatus::Done);
    EXPECT_EQ(out_.str(),
              "Model Type: 5618\nFrequency: UHF: 450-490 MHz(M)\nSerial Number: A 10024618\nVersion: V1.0\n");
    EXPECT_EQ(err_.str(), "");
    EXPECT_EQ(sent, (Commands{"50 52 4F 47 52 41 4D", "02", "06", "4E 52 4B", "06", "50", "06", "45"}));
}

TEST_F(RadioInfoTest, SpeaksChinese) {
    replies["02"] = "50 34 36 31 38 01 F8 FF";
    replies["4E 52 4B"] = Record;
    language_ = Language::Chinese;
    EXPECT_EQ(Info(), ExitStatus::Done);
    EXPECT_EQ(out_.str(), "机型类型: 4618\n频率: VHF: 136-174 MHz(M)\n序号: A 10024618\n版本: V1.0\n");
}

TEST_F(RadioInfoTest, HasNoAnswerFromASilentRadio) {
    replies["50 52 4F 47 52 41 4D"] = "";
    EXPECT_EQ(Info(1), ExitStatus::NoRadio);
    EXPECT_EQ(out_.str(), "");
    EXPECT_EQ(err_.str(), "zelvor-cli: COM3: no connection; beginning again, 1 of 1\n"
                          "zelvor-cli: COM3 is open, but the radio does not answer as it should.\n");
}

TEST_F(RadioInfoTest, EndsAtEveryFaultWithNoRadioAndGetsOverItWithARetry) {
    replies["4E 52 4B"] = Record;
    for (int reply = 1; reply <= 8; ++reply) {
        for (const Fault fault : {Fault::Drop, Fault::Late}) {
            SCOPED_TRACE(reply);
            out_.str("");
            Spoil(Replies() + reply, fault);
            EXPECT_EQ(Info(0), ExitStatus::NoRadio);
            EXPECT_EQ(out_.str(), "");
            clock.Advance(2000);
            Spoil(Replies() + reply, fault);
            EXPECT_EQ(Info(1), ExitStatus::Done);
            EXPECT_NE(out_.str().find("Serial Number: A 10024618\n"), std::string::npos);
        }
    }
    EXPECT_EQ(FaultsFired(), 32);
}

TEST_F(RadioInfoTest, EndsWhenTheUserInterruptsIt) {
    isInterrupted_ = true;
    EXPECT_EQ(Info(), ExitStatus::NoRadio);
    EXPECT_EQ(err_.str(), "zelvor-cli: interrupted\n");
    EXPECT_EQ(out_.str(), "");
}

TEST_F(RadioInfoTest, SaysThatAPortIsMissing) {
    ports.Missing(3);
    EXPECT_EQ(Info(), ExitStatus::NoRadio);
    EXPECT_EQ(err_.str(),
              "zelvor-cli: COM3 is missing. Plug in the cable; \"zelvor-cli ports\" lists what there is.\n");
}

} // namespace
} // namespace zelvor::cli
