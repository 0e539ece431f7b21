#include "macos/cocoa/AppKitTest.h"
#include "macos/fakes/cocoa/ServicesFake.h"
#include "platform/macos/SystemSymbols.h"
#include "platform/macos/WorkspaceApplicationIcons.h"

#include <QTemporaryDir>

using platform::SymbolWeight;

namespace {

class NativeImagesTest : public AppKitTest {
protected:
    NativeImagesTest() {
        services = {};
        services.symbols = {{QStringLiteral("bold"), {0.75, 1.1}}};
    }

    cocoaFake::Services& services = cocoaFake::services();
    platform::SystemSymbols symbols;
};

TEST_F(NativeImagesTest, ASymbolIsTheSystemsOwnAtItsOwnSizeInTheWeightAskedFor) {
    const std::vector<std::pair<SymbolWeight, double>> weights{{SymbolWeight::Regular, 0},
                                                               {SymbolWeight::Medium, 0.23},
                                                               {SymbolWeight::Semibold, 0.3},
                                                               {SymbolWeight::Bold, 0.4}};
    for (const auto& [weight, number] : weights) {
        symbols.mask(QStringLiteral("bold"), {14, weight}, 2);
        EXPECT_EQ(services.configurations.back(), (std::pair{14.0, number}));
    }
    const QImage mask = symbols.mask(QStringLiteral("bold"), {14, SymbolWeight::Bold}, 2);
    EXPECT_EQ(services.configurations.size(), weights.size()); // kept
    EXPECT_EQ(mask.format(), QImage::Format_Alpha8);
    EXPECT_EQ(mask.size(), QSize(21, 31)); // 10.5 by 15.4 points at two pixels each
    EXPECT_EQ(mask.devicePixelRatio(), 2);
    EXPECT_EQ(qAlpha(mask.pixel(10, 30)), 255);
    EXPECT_EQ(qAlpha(mask.pixel(11, 0)), 0);
}

TEST_F(NativeImagesTest, WhatTheSystemDoesNotKnowIsDrawnByTheProgramItselfOrNotAtAll) {
    const QImage drawing = symbols.mask(QStringLiteral("checklist"), {14, {}}, 1);
    EXPECT_FALSE(drawing.isNull());
    EXPECT_EQ(drawing, platform::DrawnSymbols().mask(QStringLiteral("checklist"), {14, {}}, 1));
    EXPECT_TRUE(symbols.mask(QStringLiteral("no such symbol"), {14, {}}, 1).isNull());
    for (const double size : {0.0, -3.0, 1e9, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_TRUE(symbols.mask(QStringLiteral("bold"), {size, {}}, 1).isNull()) << size;
    }
}

TEST_F(NativeImagesTest, AnApplicationsPictureIsTheWorkspacesIconInItsOwnColours) {
    const QTemporaryDir bundle;
    platform::WorkspaceApplicationIcons icons;
    services.ink = QColor(200, 100, 50, 255);
    const QImage picture = icons.picture({bundle.path()}, 24, 1.5);
    EXPECT_EQ(picture.size(), QSize(36, 36));
    EXPECT_EQ(picture.deviceIndependentSize(), QSizeF(24, 24));
    EXPECT_EQ(picture.pixelColor(17, 35), services.ink);
    EXPECT_EQ(picture.pixelColor(18, 0).alpha(), 0);

    const int asked = services.iconsAsked;
    icons.picture({bundle.path()}, 24, 1.5);
    EXPECT_TRUE(icons.picture({QStringLiteral("/no/such/file")}, 24, 1).isNull());
    EXPECT_TRUE(icons.picture({bundle.path()}, 0, 1).isNull());
    EXPECT_TRUE(icons.picture({bundle.path()}, 24, 1e9).isNull());
    EXPECT_EQ(services.iconsAsked, asked);
}

} // namespace
