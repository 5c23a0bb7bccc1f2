#pragma once

#include <QIcon>

namespace zelvor {

enum class IconShape { Application, New, Open, Save, Print, Read, Write, About };

/// A picture of our own, drawn at the size asked for and so sharp on every screen.
[[nodiscard]] QIcon MakeIcon(IconShape shape);

} // namespace zelvor
