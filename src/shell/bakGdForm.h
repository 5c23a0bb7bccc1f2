#pragma once

#include <QPixmap>

namespace zelvor {

/// Holds the picture that TileMDIBkgd tiles over the main window's client area.
class bakGdForm {
public:
    /// The tile, sharp for the device pixel ratio.
    [[nodiscard]] static QPixmap Picture(double devicePixelRatio);
};

} // namespace zelvor
