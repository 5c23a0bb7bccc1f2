#pragma once

#include "channels/ChildFormFixture.h"
#include "channels/ScanForm.h"

namespace zelvor {

/// A scan window over a scan block in which every byte is legal: Fixed, channel 5, 0.50 and 1.20, Priority, 3 and 299
/// s. Channels 1, 5 and 12 are programmed.
class ScanFormTest : public ChildFormTest<ScanForm> {
protected:
    void SetUp() override {
        Put(0x160, {1, 5, 1, 15, 2, 3, 0, 0x2B, 1});
        Program({1, 5, 12});
    }
    void Program(std::initializer_list<int> channels) {
        for (const int channel : channels) {
            document.Image.Set(channel * 16, 0x00);
        }
    }
    std::vector<int> Block() const { return From(0x160, 9); }
    std::string Chosen(const char* name) { return List(name).currentText().toStdString(); }

    void ExpectError() {
        services.messages.Expect({"Error", "Channel must be selected\nfrom the programmed Channel's",
                                  MessageIcon::Critical, MessageButtons::Ok, MessageAnswer::Ok},
                                 MessageAnswer::Ok);
    }
    void ExpectErrorInChinese() {
        services.messages.Expect(
            {"错误", "必须从已编程的信道中\n选择信道。", MessageIcon::Critical, MessageButtons::Ok, MessageAnswer::Ok},
            MessageAnswer::Ok);
    }
};

} // namespace zelvor
