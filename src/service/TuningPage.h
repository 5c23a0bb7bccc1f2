#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QProgressBar;
class QSlider;

namespace zelvor {

class UpDown;

/// One page of a tuning dialog: a value from 0 to 255 as slider, bar, text and up-down, over the page's frequencies.
/// What is shown changes only by Show; what the user asks for is told by the signals.
class TuningPage : public QWidget {
    Q_OBJECT

public:
    static constexpr int Highest = 255;

    struct Texts {
        QString receive; // labels and displays
        QString transmit;
        QString receiveFrequency;
        QString transmitFrequency;
        QString value; // accessible name of the four controls
        QString valueTip;
    };

    /// index: of the control arrays, such as "SldValue(2)".
    TuningPage(int index, const Texts& texts, QWidget* parent = nullptr);

    /// Sets the four controls.
    void Show(int value);
    void SetSliderEnabled(bool enabled);

signals:
    /// The slider stands at another value.
    void SliderMoved(int value);
    /// The text (by an arrow key) or the up-down (by a button) was stepped to a value.
    void TextStepped(int value);
    void SpinStepped(int value);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildFrequencies(const QString& suffix, const Texts& texts);
    void BuildControls(const QString& suffix, const Texts& texts);
    [[nodiscard]] int Next(bool up) const;

    QSlider* SldValue_;
    QLineEdit* txtTuneValue_;
    UpDown* updValue_;
    QProgressBar* PrgValue_;
    int shown_ = 0;
};

/// The text box of a tuning value, which looks like a display: what is typed into it is thrown away, and no context
/// menu opens on it.
[[nodiscard]] QLineEdit* MakeTuneValueBox(const QString& name, QWidget* parent);
/// The bar of a tuning value.
[[nodiscard]] QProgressBar* MakeTuneValueBar(const QString& name, QWidget* parent);

} // namespace zelvor
