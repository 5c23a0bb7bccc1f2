#include "shell/Icons.h"

#include <QImage>
#include <QPixmap>
#include <gtest/gtest.h>
#include <vector>

#include "shell/bakGdForm.h"

namespace zelvor {
namespace {

const std::vector<IconShape> Shapes{IconShape::Application, IconShape::New,  IconShape::Open,  IconShape::Save,
                                    IconShape::Print,       IconShape::Read, IconShape::Write, IconShape::About};

QImage Picture(IconShape shape, int side, double ratio = 1, QIcon::Mode mode = QIcon::Normal) {
    return MakeIcon(shape).pixmap(QSize(side, side), ratio, mode).toImage();
}

TEST(IconsTest, EveryPictureDiffersFromEveryOther) {
    for (std::size_t i = 0; i < Shapes.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            EXPECT_NE(Picture(Shapes[i], 24), Picture(Shapes[j], 24)) << i << " " << j;
        }
    }
}

int PaintedPercent(const QImage& picture) {
    int painted = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            painted += picture.pixelColor(x, y).alpha() > 0 ? 1 : 0;
        }
    }
    return painted * 100 / (picture.width() * picture.height());
}

TEST(IconsTest, PicturesFillTheirSquareAndLeaveItsCornersFree) {
    for (const IconShape shape : Shapes) {
        const QImage picture = Picture(shape, 48);
        EXPECT_EQ(picture.pixelColor(0, 0).alpha(), 0);
        EXPECT_GT(PaintedPercent(picture), 30) << static_cast<int>(shape);
    }
}

TEST(IconsTest, PicturesAreDrawnAnewForASharperScreen) {
    const QImage sharp = Picture(IconShape::Read, 24, 2);
    EXPECT_EQ(sharp.size(), QSize(48, 48));
    EXPECT_NE(sharp, Picture(IconShape::Read, 24).scaled(48, 48));
}

TEST(IconsTest, ADisabledPictureIsPaler) {
    const QImage normal = Picture(IconShape::Save, 24);
    const QImage disabled = Picture(IconShape::Save, 24, 1, QIcon::Disabled);
    EXPECT_LT(disabled.pixelColor(12, 12).alpha(), normal.pixelColor(12, 12).alpha());
}

TEST(IconsTest, TheBackgroundTileIsOpaqueAndSharp) {
    const QPixmap tile = bakGdForm::Picture(2);
    EXPECT_EQ(tile.deviceIndependentSize(), QSizeF(32, 32));
    EXPECT_EQ(tile.size(), QSize(64, 64));
    EXPECT_EQ(tile.toImage().pixelColor(20, 20).alpha(), 255);
}

} // namespace
} // namespace zelvor
