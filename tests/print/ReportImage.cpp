#include "print/ReportImage.h"

#include "data/TestImages.h"

namespace zelvor::testing {

namespace {

void StoreOptionalFeatures(DataImage& image) {
    StoreHex(image, 0x12C, "0100");     // scrambler on, its backup off
    StoreHex(image, 0x12F, "0208");     // English; 8 steps of 15 s
    StoreHex(image, 0x131, "050201");   // pre-alert 5 s; both codes; Corvane
    StoreHex(image, 0x134, "07010001"); // squelch 7; battery save on, beep off, cancel on
    StoreHex(image, 0x138, "00010003"); // VOX inhibit off, VOX on, gain off, delay 1.5 s
    StoreHex(image, 0x13C, "000101");   // proceed tone off, sensitivity high, clone mode on
    StoreHex(image, 0x140, "3132333435");
}

void StoreKeysAndScan(DataImage& image) {
    StoreHex(image, 0x11D, "000A");
    StoreHex(image, 0x160, "01051F33032C010A00");
}

void StoreDtmf(DataImage& image) {
    StoreHex(image, 0x110, "02010F030001"); // 10 digits/s, 100 ms, 150 ms, 1000 ms, D code, side tone on
    StoreHex(image, 0x116, "0000010201");   // group code off, timer off, continuous, ID code, clear on
    StoreHex(image, 0x120, "3132333435363738");
    StoreHex(image, 0x1F0, "3132412A23");
    StoreHex(image, 0x1FA, "01");
    StoreHex(image, 0x200, "30313233343536373839414243442A23");
    StoreHex(image, 0x210, "35353531323334202020202020202020");
    StoreHex(image, 0x270, "39313120202020202020202020202020");
}

void StoreCorvane(DataImage& image) {
    StoreHex(image, 0x170, "01E803900101000000"); // fleet 100, ID 1999, 400 ms, 2400 bps, timer off, side tone off
    StoreHex(image, 0x1C0,
             "010100"
             "000000"
             "FAA00F"
             "FFFFFF");
    StoreHex(image, 0x1D0,
             "0A0A00"
             "000500"
             "020000"
             "FFFFFF");
}

void StoreFrequenciesAndMessage(DataImage& image) {
    StoreHex(image, 0x280, "0050501500005115");
    StoreHex(image, 0x288, "0050601300006113");
    StoreHex(image, 0x2F8, "2506004500001000"); // 450.00625, 1.00000
    StoreHex(image, 0x300, "4C696E65206F6E65");
    StoreHex(image, 0x320, "5A7765697465205A65696C653A2054FC72207A75");
}

void StoreChannels(DataImage& image) {
    StoreHex(image, 0x010,
             "00255114"
             "00255114"
             "9E02"
             "1328"
             "2BFFB3FA");
    StoreHex(image, 0x020,
             "25060045"
             "FFFFFFFF"
             "FFFF"
             "FFFF"
             "008FB0F8");
    StoreHex(image, 0x030,
             "00000040"
             "00005540"
             "ECA9"
             "C709"
             "549FB1FF");
    StoreHex(image, 0x050,
             "00006013"
             "00006013"
             "FFFF"
             "FFFF"
             "18AFB9F9");
    StoreHex(image, 0x100,
             "75933917"
             "00000000"
             "E803"
             "13A8"
             "66DFBAF8");
    StoreHex(image, 0x17E, "1180"); // Scan Add of channels 1, 5 and 16
}

void StoreModel(DataImage& image) {
    StoreHex(image, 0x1BD, "01F8");
}

} // namespace

DataImage ReportImage() {
    DataImage image;
    StoreModel(image);
    StoreOptionalFeatures(image);
    StoreKeysAndScan(image);
    StoreDtmf(image);
    StoreCorvane(image);
    StoreFrequenciesAndMessage(image);
    StoreChannels(image);
    return image;
}

DataImage ImageWithChannels(int count) {
    DataImage image;
    StoreModel(image);
    for (int k = 1; k <= count; ++k) {
        StoreHex(image, 16 * k, "0025511400255114FFFFFFFF00BFB0F8");
    }
    return image;
}

} // namespace zelvor::testing
