#pragma once

#include <QWidget>

namespace zelvor {

/// The pictures of a lamp, by their numbers.
namespace lamp {
inline constexpr int Idle = 101;     // receiving, or at rest
inline constexpr int Transmit = 102; // keyed
inline constexpr int Chosen = 106;   // of wide and narrow
inline constexpr int Running = 107;  // measuring
} // namespace lamp

/// What assistive technology says of a lamp.
struct LampWords {
    QString name;
    QString idle; // it shines with the idle picture,
    QString on;   // with any other,
    QString off;  // or is dark
};

/// A round indicator light, drawn at any size.
class Lamp : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int picture READ Picture)
    Q_PROPERTY(bool lit READ IsLit)

public:
    /// Dark.
    Lamp(const QString& objectName, LampWords words, QWidget* parent);

    /// Shines with a picture, or is dark.
    void Light(int picture);
    void Darken();
    [[nodiscard]] int Picture() const { return picture_; }
    [[nodiscard]] bool IsLit() const { return lit_; }

    [[nodiscard]] QSize sizeHint() const override { return {20, 20}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void Describe();

    const LampWords words_;
    int picture_ = lamp::Idle;
    bool lit_ = false;
};

} // namespace zelvor
