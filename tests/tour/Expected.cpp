#include "tour/Expected.h"

#include "tour/Checks.h"

namespace zelvor::tour {

namespace {

constexpr int RecordSize = 16;
constexpr int OptionsByte = 12; // of a record

} // namespace

const std::vector<Row>& SampleRows() {
    static const std::vector<Row> rows{
        {1, {"145.12500", "145.12500", "None", "None", "High", "Wide", "Yes", "None", "Off"}},
        {2, {"145.25000", "144.65000", "88.5", "88.5", "High", "Wide", "Yes", "None", "Off"}},
        {3, {"145.37500", "144.77500", "100.0", "100.0", "High", "Wide", "Yes", "None", "Off"}},
        {4, {"145.50000", "145.50000", "67.0", "250.3", "Low", "Wide", "No", "None", "Off"}},
        {5, {"151.82000", "151.82000", "D023N", "D023N", "High", "Narrow", "Yes", "None", "Off"}},
        {6, {"151.88000", "151.88000", "D023I", "D023I", "Low", "Narrow", "No", "None", "Off"}},
        {7, {"151.94000", "151.94000", "D754N", "D754N", "High", "Narrow", "Yes", "None", "Off"}},
        {8, {"154.57000", "154.57000", "D754I", "D754I", "High", "Wide", "No", "None", "Off"}},
        {9, {"154.60000", "159.20000", "None", "127.3", "High", "Wide", "Yes", "None", "Off"}},
        {10, {"156.80000", "156.80000", "None", "None", "High", "Wide", "Yes", "None", "Off"}},
        {11, {"160.65000", "156.05000", "None", "None", "High", "Wide", "No", "DTMF", "On"}},
        {12, {"161.65000", "", "None", "None", "Low", "Wide", "Yes", "None", "Off"}},
        {13, {"162.40000", "", "None", "None", "Low", "Narrow", "Yes", "None", "Off"}},
        {14, {"162.55000", "", "162.2", "None", "Low", "Wide", "No", "None", "Off"}},
        {15, {"136.00000", "136.00000", "None", "None", "High", "Wide", "No", "None", "Off"}},
        {16, {"174.00000", "174.00000", "241.8", "D411N", "High", "Narrow", "Yes", "None", "Off"}},
    };
    return rows;
}

const std::vector<Row>& SampleRowsInChinese() {
    static const std::vector<Row> rows{
        {1, {"145.12500", "145.12500", "无", "无", "高", "宽带", "有", "无", "关"}},
        {4, {"145.50000", "145.50000", "67.0", "250.3", "低", "宽带", "无", "无", "关"}},
        {5, {"151.82000", "151.82000", "D023N", "D023N", "高", "窄带", "有", "无", "关"}},
        {11, {"160.65000", "156.05000", "无", "无", "高", "宽带", "无", "DTMF", "开"}},
        {13, {"162.40000", "", "无", "无", "低", "窄带", "有", "无", "关"}},
    };
    return rows;
}

const std::vector<Row>& WrittenRowsInChinese() {
    static const std::vector<Row> rows{
        {1, {"145.12500", "145.12500", "无", "无", "高", "宽带", "有", "无", "关"}},
        {5, {"151.82000", "151.82000", "D023N", "D023N", "高", "窄带", "有", "无", "关"}},
        {11, {"160.65000", "156.05000", "无", "无", "高", "宽带", "无", "无", "开"}},
        {12, {"145.00500", "146.50000", "88.5", "D230N", "高", "宽带", "有", "无", "关"}},
        {14, {"162.55000", "", "162.2", "无", "低", "宽带", "无", "无", "关"}},
        {16, {"174.00000", "174.00000", "241.8", "D411N", "高", "窄带", "有", "无", "关"}},
    };
    return rows;
}

const std::vector<Row>& WrittenRowsInEnglish() {
    static const std::vector<Row> rows{
        {1, {"145.12500", "145.12500", "None", "None", "High", "Wide", "Yes", "None", "Off"}},
        {11, {"160.65000", "156.05000", "None", "None", "High", "Wide", "No", "None", "On"}},
        {12, {"145.00500", "146.50000", "88.5", "D230N", "High", "Wide", "Yes", "None", "Off"}},
        {14, {"162.55000", "", "162.2", "None", "Low", "Wide", "No", "None", "Off"}},
    };
    return rows;
}

const Edit& EnglishEdit() {
    static const Edit edit{
        .channel = 12,
        .receive = "145.0031",
        .transmit = "146.5",
        .decode = "88.5",
        .encode = "d23",
        .row = {12, {"145.00500", "146.50000", "88.5", "D230N", "High", "Wide", "Yes", "None", "Off"}},
        .record = Hex("00 05 50 14  00 00 65 14  75 03 98 28  00 BF B0 F8"),
    };
    return edit;
}

const Edit& ChineseEdit() {
    static const Edit edit{
        .channel = 14,
        .receive = "151.82",
        .transmit = "155.1",
        .decode = "n",
        .encode = "100.04",
        .row = {14, {"151.82000", "155.10000", "67.0", "100.0", "高", "宽带", "无", "无", "关"}},
        .record = Hex("00 20 18 15  00 00 51 15  9E 02 E8 03  00 BF B0 F8"),
    };
    return edit;
}

QByteArray SampleRecords() {
    return Hex("00 25 51 14  00 25 51 14  FF FF FF FF  00 B1 B0 F8"
               "00 50 52 14  00 50 46 14  75 03 75 03  00 B1 B0 F8"
               "00 75 53 14  00 75 47 14  E8 03 E8 03  08 B1 B0 F8"
               "00 00 55 14  00 00 55 14  9E 02 C7 09  00 91 B0 F8"
               "00 20 18 15  00 20 18 15  13 28 13 28  10 A1 B0 F8"
               "00 80 18 15  00 80 18 15  13 A8 13 A8  00 81 B0 F8"
               "00 40 19 15  00 40 19 15  EC 29 EC 29  00 A1 B0 F9"
               "00 70 45 15  00 70 45 15  EC A9 EC A9  01 B1 B0 F9"
               "00 00 46 15  00 00 92 15  FF FF F9 04  00 F1 B0 F8"
               "00 00 68 15  00 00 68 15  FF FF FF FF  00 B1 B0 F8"
               "00 50 06 16  00 50 60 15  FF FF FF FF  02 B1 B1 FA"
               "00 50 16 16  FF FF FF FF  FF FF FF FF  00 91 B0 F8"
               "00 00 24 16  FF FF FF FF  FF FF FF FF  00 81 B0 F8"
               "00 50 25 16  FF FF FF FF  56 06 FF FF  00 91 B0 F8"
               "00 00 60 13  00 00 60 13  FF FF FF FF  00 B1 B0 F8"
               "00 00 40 17  00 00 40 17  72 09 09 29  00 A1 B0 FF");
}

QByteArray WrittenRecords(QByteArray records) {
    for (qsizetype place = OptionsByte; place < records.size(); place += RecordSize) {
        records[place] = 0;
    }
    return records;
}

QByteArray RecordsAfterEnglishEdit() {
    const Edit& edit = EnglishEdit();
    return WrittenRecords(SampleRecords()).replace((edit.channel - 1) * RecordSize, RecordSize, edit.record);
}

QByteArray WrittenHead() {
    return Hex("FF FF FF FF FF FF FF FF FF FF FF 00 FF FF 03 FF");
}

QByteArray TuningRegion() {
    QByteArray bytes;
    for (int byte = 0x40; byte <= 0x77; ++byte) {
        bytes.append(static_cast<char>(byte));
    }
    return bytes;
}

QByteArray UnwrittenEnd() {
    QByteArray bytes;
    for (int byte = 0x00; byte <= 0xBF; ++byte) {
        bytes.append(static_cast<char>(byte));
    }
    return bytes;
}

} // namespace zelvor::tour
