#include <random>

#include "service/DJJInfoForm.h"
#include "service/ServiceWindows.h"

namespace zelvor {
namespace {

constexpr int Images = 2000;

class ServiceWindowsRandomTest : public ServiceWindowTest {
protected:
    /// Anything at all in the document and in what the radio told.
    void Fill(unsigned seed) {
        std::mt19937 random(seed);
        const auto byte = [&] { return static_cast<std::uint8_t>(random() & 0xFFU); };
        for (int index = 0; index < 1024; ++index) {
            rig.document.Image.SetIndex(index, byte());
        }
        if (seed % 2 == 0) { // a model that is known
            SetModel(1, 0xF8);
        }
        for (std::uint8_t& value : rig.service.RadioInfoRecord) {
            value = byte();
        }
        rig.service.TestChannelNo = 1 + static_cast<int>(seed % 16);
        for (TestFrequencyTexts& texts : rig.service.TestFrequencyText) {
            texts = {std::to_string(random() % 1000), std::to_string(random() % 1000) + ".5"};
        }
        TuneValues& values = rig.service.Values;
        for (auto value :
             {&TuneValues::TestPointHighPower, &TuneValues::TestPointLowPower, &TuneValues::TestPointDqtBalance,
              &TuneValues::TestPointMaxDeviation, &TuneValues::TestPointQtFine, &TuneValues::TestPointDqtFine,
              &TuneValues::TestPointSensitivity, &TuneValues::TestPointSquelchOpen,
              &TuneValues::TestPointSquelchTight}) {
            values.*value = byte();
        }
        rig.language = seed % 3 == 0 ? Language::Chinese : Language::English;
    }
};

TEST_F(ServiceWindowsRandomTest, AnyDocumentAndRadioOpensTheInformation) {
    for (unsigned seed = 1; seed <= Images; ++seed) {
        Fill(seed);
        DJJInfoForm form(rig.document, rig.service, rig.language, rig.services);
        EXPECT_EQ(form.findChild<QLabel*>("LabSN")->text().size(), 11) << "seed " << seed;
    }
}

TEST_F(ServiceWindowsRandomTest, AnyDocumentAndRadioOpensEveryTuningDialog) {
    for (unsigned seed = 1; seed <= Images; ++seed) {
        Fill(seed);
        rig.service.TuneItem = 1 + static_cast<int>(seed % 15);
        rig.service.NarrowMode = seed / 15 % 2 != 0;
        QPointer<TuningForm> form =
            MakeTuningForm(rig.document, rig.link, rig.service, rig.language, rig.services, nullptr);
        for (QSlider* slider : form->findChildren<QSlider*>()) {
            slider->setValue(static_cast<int>(seed * 37 % 256));
        }
        rig.clock.Advance(100);
        for (const QLineEdit* box : form->findChildren<QLineEdit*>(QRegularExpression("txtTuneValue.*"))) {
            const int value = box->text().toInt();
            EXPECT_TRUE(value >= 0 && value <= 255) << "seed " << seed;
        }
        form->close();
        LetLeave();
        RemoveClosed();
        EXPECT_TRUE(form.isNull()) << "seed " << seed;
        EXPECT_FALSE(rig.IsPortOpen()) << "seed " << seed;
        rig.TakeSent();
    }
}

} // namespace
} // namespace zelvor
