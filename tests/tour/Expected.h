#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

namespace zelvor::tour {

/// A row of the channel grid, columns 1 to 9.
struct Row {
    int channel;
    std::vector<QString> cells;
};

/// What is typed into one channel that receives only, and what must come of it.
struct Edit {
    int channel;
    QString receive; // as typed
    QString transmit;
    QString decode;
    QString encode;
    Row row;
    QByteArray record; // 16 bytes, in the image and in the radio
};

/// The grid after a read of the sample radio, all rows.
[[nodiscard]] const std::vector<Row>& SampleRows();
/// Some of them in Chinese.
[[nodiscard]] const std::vector<Row>& SampleRowsInChinese();
/// Rows of the grid after a read of the radio that EnglishEdit was written to, in either language.
[[nodiscard]] const std::vector<Row>& WrittenRowsInChinese();
[[nodiscard]] const std::vector<Row>& WrittenRowsInEnglish();

[[nodiscard]] const Edit& EnglishEdit();
[[nodiscard]] const Edit& ChineseEdit();

/// Records 1 to 16 of the sample radio as it comes.
[[nodiscard]] QByteArray SampleRecords();
/// Records as a write leaves them: byte 12 of each is 0.
[[nodiscard]] QByteArray WrittenRecords(QByteArray records);
/// The sample radio's records once EnglishEdit was written to it.
[[nodiscard]] QByteArray RecordsAfterEnglishEdit();

/// What a write puts at 0x000 to 0x00F, whatever the document holds.
[[nodiscard]] QByteArray WrittenHead();
/// The sample radio's tuning region, 0x180 to 0x1B7, and its last 192 bytes.
[[nodiscard]] QByteArray TuningRegion();
[[nodiscard]] QByteArray UnwrittenEnd();

} // namespace zelvor::tour
