#pragma once

#include "controls/HoldingLineEdit.h"
#include "data/Fields.h"

namespace zelvor {

/// The box of one of both codes. It stores a legal code when it is left, and brings the last good one back in place of
/// an illegal one. Enter moves on like Tab.
class DtmfCodeBox : public HoldingLineEdit {
    Q_OBJECT

public:
    /// Field and image must outlive it.
    DtmfCodeBox(const QString& name, const TextField& field, DataImage& image, QWidget* parent = nullptr);

    void Load();

signals:
    /// An illegal code was entered. The last good one comes back after the signal.
    void Invalid();
    /// A legal code was stored.
    void Committed();

private:
    void Refuse();
    void Commit();
    void Store();

    const TextField& field_;
    DataImage& image_;
    QString lastGood_;
};

} // namespace zelvor
