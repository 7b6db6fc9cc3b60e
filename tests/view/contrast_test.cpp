#include "view/contrast.h"

#include <array>
#include <gtest/gtest.h>

namespace orvane {

TEST(ContrastOfColours, AsTheGuidelinesHaveIt)
{
    EXPECT_NEAR(Contrast(Qt::white, Qt::black), 21, 1e-9);
    EXPECT_NEAR(Contrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.005);
}

TEST(ContrastOfColours, InkThatCanBeReadStaysAndOtherGivesWayToOneOfItsHue)
{
    const QColor Brown(110, 52, 12);
    const std::array Paper{QColor(0xEF, 0xE6, 0xD3), QColor(0xE8, 0xDC, 0xC3)};
    const std::array Night{QColor(20, 26, 36), QColor(46, 52, 64)};
    EXPECT_EQ(Readable(Brown, Paper), Brown);
    const QColor Light = Readable(Brown, Night);
    for (const QColor& Each : Night)
        EXPECT_GE(Contrast(Light, Each), LeastContrast);
    EXPECT_GT(Light.red(), Light.blue()) << "still a brown";
    const std::array Both{QColor(Qt::white), QColor(Qt::black)};
    EXPECT_GT(Contrast(Readable(Brown, Both), Qt::black), 4) << "the best there is";
}

} // namespace orvane
