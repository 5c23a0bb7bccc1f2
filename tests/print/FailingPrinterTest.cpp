#include <gtest/gtest.h>
#include <random>

#include "data/TestImages.h"
#include "fakes/FakePageDevice.h"
#include "print/DataReport.h"
#include "print/ReportImage.h"

namespace zelvor {
namespace {

DataReport FullReport(const DataImage& image) {
    return BuildDataReport(image, ReportSelection(0xFF), "Zelvor.dat", Language::English, {});
}

TEST(FailingPrinter, EndsTheReportAtWhateverPageItFails) {
    const DataReport report = FullReport(testing::ReportImage());
    for (int page = 1; page <= 9; ++page) {
        FakePageDevice device;
        device.FailAtPage(page);
        PrintDataReport(device, report);
        EXPECT_EQ(device.Failures(), 1) << page;
        EXPECT_EQ(device.Pages().size(), static_cast<std::size_t>(page - 1));
        EXPECT_TRUE(device.Documents().empty());
    }
}

TEST(FailingPrinter, PrintsTheNextReportWhenItWorksAgain) {
    const DataReport report = FullReport(testing::ReportImage());
    FakePageDevice device;
    device.FailAtPage(4);
    PrintDataReport(device, report);
    device.FailAtPage(0);
    PrintDataReport(device, report);
    EXPECT_EQ(device.Documents().size(), 1U);
    EXPECT_EQ(device.Pages().size(), 3U + 9U);
}

TEST(FailingPrinter, ThatIsNoneAtAllPrintsNothing) {
    FakePageDevice device;
    device.SetAvailable(false);
    PrintDataReport(device, FullReport(testing::ReportImage()));
    EXPECT_TRUE(device.Pages().empty());
}

TEST(RandomDocuments, PrintWithAPageForEachSectionAndFourChannels) {
    constexpr unsigned Seed = 20240531;
    std::mt19937 random(Seed);
    for (int run = 0; run < 2000; ++run) {
        const DataImage image = testing::RandomImage(random);
        std::size_t channels = 0;
        for (int k = 1; k <= 16; ++k) {
            channels += image.At(16 * k) != 0xFF ? 1 : 0;
        }
        FakePageDevice device;
        PrintDataReport(device, BuildDataReport(image, ReportSelection(0xFF), "Zelvor.dat",
                                                run % 2 == 0 ? Language::English : Language::Chinese, {}));
        ASSERT_EQ(device.Pages().size(), 7 + (channels + 3) / 4) << "seed " << Seed << ", run " << run;
        for (const FakePage& page : device.Pages()) {
            for (const FakePageText& text : page.texts) {
                ASSERT_GE(text.x, 0) << "seed " << Seed << ", run " << run << ": " << text.text;
                ASSERT_LT(text.x, 10800) << "seed " << Seed << ", run " << run << ": " << text.text;
            }
        }
    }
}

} // namespace
} // namespace zelvor
