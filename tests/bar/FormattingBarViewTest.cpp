#include "BarFixture.h"

#include "ui/Theme.h"

#include <QAbstractButton>
#include <QApplication>

namespace {

struct Control {
    const char* name;
    const char* tooltip;
    int width;
    /// Whether a divider follows.
    bool endsGroup = false;
};

constexpr Control controls[] = {
    {"bold", "Bold", 30},
    {"italic", "Italic", 30},
    {"underline", "Underline", 30},
    {"strikethrough", "Strikethrough", 30, true},
    {"paintpalette.fill", "Text Color", 32, true},
    {"textformat.size", "Heading", 40},
    {"chevron.left.forwardslash.chevron.right", "Monospaced", 30},
    {"link", "Link", 30, true},
    {"list.bullet", "Bullet List", 30},
    {"list.dash", "Dashed List", 30},
    {"list.number", "Numbered List", 30},
    {"checklist", "Checklist", 30, true},
    {"decrease.indent", "Decrease Indent", 30},
    {"increase.indent", "Increase Indent", 30, true},
    {"textformat.size.smaller", "Decrease Text Size", 30},
    {"textformat.size.larger", "Increase Text Size", 30, true},
    {"textformat", "Remove Formatting", 30},
};

using FormattingBarView = BarFixture;

TEST_F(FormattingBarView, LaysOutEveryControlAndDividerToThePointAndNamesThem) {
    show(2);
    const QWidget& bar = window();
    EXPECT_EQ(place(bar, "FormattingBarView"), QRect(10, 3, 640, 38));
    const auto dividers = bar.findChildren<QWidget*>(QStringLiteral("divider"));
    auto divider = dividers.begin();
    int x = 10 + 10;
    for (const Control& control : controls) {
        EXPECT_EQ(place(bar, control.name), QRect(x, 9, control.width, 26)) << control.name;
        const auto* button = bar.findChild<QWidget*>(QString::fromLatin1(control.name));
        EXPECT_EQ(button->toolTip(), QString::fromLatin1(control.tooltip));
        EXPECT_EQ(button->focusPolicy(), Qt::NoFocus);
        x += control.width + 2;
        if (control.endsGroup) {
            ASSERT_NE(divider, dividers.end());
            EXPECT_EQ(QRect((*divider)->mapTo(&bar, QPoint()), (*divider)->size()),
                      QRect(x, 10, 9, 24));
            x += 9 + 2;
            ++divider;
        }
    }
    EXPECT_EQ(divider, dividers.end());
    EXPECT_EQ(x - 2, 10 + 640 - 10);
    EXPECT_EQ(bar.findChildren<QAbstractButton*>().size(), 17);
    EXPECT_TRUE(bar.testAttribute(Qt::WA_AlwaysShowToolTips));
}

TEST_F(FormattingBarView, TheColourButtonRunsThroughTheRainbow) {
    show(2);
    const QRect button = place(window(), "paintpalette.fill");
    // The test's symbols are full squares of 14 points in the middle of the button.
    const int left = button.left() + 9;
    const int y = button.center().y();
    EXPECT_EQ(pixel(window(), {left + 2, y}), pixel(window(), {left + 2, y - 3}));
    double hue = -1;
    for (int x = left; x < left + 14; ++x) {
        const double next = pixel(window(), {x, y}).hueF();
        EXPECT_GT(next, hue) << "at " << x - left;
        hue = next;
    }
    const auto hueOf = [](ui::Color color) {
        return ui::color({color}, QApplication::palette()).hueF();
    };
    EXPECT_NEAR(pixel(window(), {left, y}).hueF(), hueOf(ui::Color::Red), 0.05);
    EXPECT_NEAR(hue, hueOf(ui::Color::Purple), 0.05);
}

} // namespace
