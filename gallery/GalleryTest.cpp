#include "gallery/Gallery.h"
#include "fakes/FakePlatform.h"

#include <gtest/gtest.h>

#include <ostream>
#include <set>

namespace gallery {

/// What the names of the tests carry.
void PrintTo(const Entry& view, std::ostream* out) {
    *out << view.name.toStdString();
}

namespace {

class EveryView : public testing::TestWithParam<Entry> {};

/// More than the few colours of an empty window and its edges.
std::size_t coloursOf(const QImage& image) {
    std::set<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            colours.insert(image.pixel(x, y));
        }
    }
    return colours.size();
}

// Whatever is logged on the way fails the test.
TEST_P(EveryView, IsDrawnLightAndDark) {
    std::vector<QImage> pictures;
    for (const Appearance appearance : {Appearance::Light, Appearance::Dark}) {
        setAppearance(appearance);
        const auto rooms = makeRooms();
        pictures.push_back(picture(GetParam().putUp(*rooms, {})));
        EXPECT_GT(coloursOf(pictures.back()), 40U);
    }
    setAppearance(Appearance::Light);
    EXPECT_EQ(pictures.front().size(), pictures.back().size());
    EXPECT_NE(pictures.front(), pictures.back());
}

INSTANTIATE_TEST_SUITE_P(Gallery, EveryView, testing::ValuesIn(entries()), [](const auto& view) {
    return QString(view.param.name).replace(QLatin1Char('-'), QLatin1Char('_')).toStdString();
});

} // namespace
} // namespace gallery
