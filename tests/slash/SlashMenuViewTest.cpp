#include "SlashMenuFixture.h"

#include "ui/Theme.h"

#include <QApplication>

using slash::SlashCommand;
using ui::Color;

namespace {

class SlashMenuView : public SlashMenuFixture {
protected:
    SlashMenuView() { show(); }

    static QColor color(Color color, double opacity = 1) {
        return ui::color({color, opacity}, QApplication::palette());
    }

    static QColor over(const QColor& ground, QColor color) {
        const auto mix = [alpha = color.alphaF()](float below, float above) {
            return below + (above - below) * alpha;
        };
        return QColor::fromRgbF(mix(ground.redF(), color.redF()),
                                mix(ground.greenF(), color.greenF()),
                                mix(ground.blueF(), color.blueF()));
    }

    static testing::AssertionResult alike(const QColor& first, const QColor& second) {
        const auto near = [](int a, int b) { return std::abs(a - b) <= 1; };
        return near(first.red(), second.red()) && near(first.green(), second.green()) &&
                       near(first.blue(), second.blue())
                   ? testing::AssertionSuccess()
                   : testing::AssertionFailure()
                         << first.name().toStdString() << " and " << second.name().toStdString();
    }

    QRect partOf(SlashCommand command, const char* name) const {
        const auto* found = row(command)->findChild<QWidget*>(QString::fromLatin1(name));
        return found == nullptr ? QRect() : place(*found);
    }
};

} // namespace

TEST_F(SlashMenuView, RowsAreLaidOutAsDescribed) {
    const QRect bar = place(part("searchBar"));
    EXPECT_EQ(bar.topLeft(), QPoint(0, 0));
    EXPECT_EQ(bar.width(), 320);
    EXPECT_EQ(place(part("search")).top(), 12);
    EXPECT_EQ(place(part("search")).bottom(), bar.bottom() - 12);
    EXPECT_EQ(place(part("search")).right(), bar.right() - 12);

    const QRect first = place(*row(SlashCommand::heading1));
    const QRect second = place(*row(SlashCommand::heading2));
    EXPECT_EQ(first.topLeft(), QPoint(8, bar.height() + 1 + 8)); // below the divider
    EXPECT_EQ(first.right(), 320 - 8 - 1);
    EXPECT_EQ(second.top(), first.bottom() + 1 + 2);

    const QRect icon = partOf(SlashCommand::heading1, "icon");
    const QRect title = partOf(SlashCommand::heading1, "title");
    const QRect description = partOf(SlashCommand::heading1, "description");
    EXPECT_EQ(icon.size(), QSize(24, 24));
    EXPECT_EQ(icon.left(), first.left() + 12);
    EXPECT_EQ(title.left(), icon.right() + 1 + 12);
    EXPECT_EQ(description.left(), title.left());
    EXPECT_EQ(title.top(), first.top() + 8);
    EXPECT_EQ(description.top(), title.bottom() + 1 + 2);
    EXPECT_EQ(description.bottom(), first.bottom() - 8);
    EXPECT_NEAR(icon.center().y(), first.center().y(), 1);

    for (const SlashCommand command : slash::allSlashCommands) {
        const QRect badge = partOf(command, "badge");
        EXPECT_EQ(badge.isNull(), slash::shortcut(command).isEmpty());
        if (!badge.isNull()) {
            EXPECT_EQ(badge.right(), place(*row(command)).right() - 12);
            const auto* text =
                row(command)->findChild<QWidget*>(QStringLiteral("badge"))->findChild<QWidget*>();
            EXPECT_EQ(badge.size(), text->size() + QSize(12, 4));
        }
    }
}

TEST_F(SlashMenuView, TheHighlightedRowIsWhiteOnTheAccent) {
    press(Qt::Key_Down);
    const QImage image = picture();
    const auto at = [&](QPoint point) { return image.pixelColor(point); };
    const auto ground = [&](SlashCommand command) {
        return at(place(*row(command)).center() + QPoint(0, -18));
    };
    const QColor accent = color(Color::Accent);
    const QColor window = color(Color::WindowBackground);
    EXPECT_TRUE(alike(ground(SlashCommand::heading2), accent));
    EXPECT_TRUE(alike(ground(SlashCommand::heading1), window));
    // The fakes' symbols fill their squares.
    EXPECT_TRUE(alike(at(partOf(SlashCommand::heading2, "icon").center()), Qt::white));
    EXPECT_TRUE(alike(at(partOf(SlashCommand::heading1, "icon").center()), color(Color::Accent)));
    const auto badge = [&](SlashCommand command) {
        return at(partOf(command, "badge").topLeft() + QPoint(3, 3));
    };
    EXPECT_TRUE(alike(badge(SlashCommand::heading2), over(accent, color(Color::White, 0.2))));
    EXPECT_TRUE(alike(badge(SlashCommand::heading1), over(window, color(Color::QuaternaryLabel))));

    // The corners are cut, the outline lies over everything, the search bar on its own colour.
    EXPECT_EQ(at({0, 0}).alpha(), 0);
    EXPECT_EQ(at({319, 359}).alpha(), 0);
    const QColor line = color(Color::Separator);
    EXPECT_TRUE(alike(at({0, 180}), over(window, line)));
    EXPECT_TRUE(alike(at({160, 0}), over(color(Color::TextBackground), line)));
    EXPECT_TRUE(alike(at({160, 4}), color(Color::TextBackground)));

    // No row is highlighted while the highlight is beyond those that match.
    press(Qt::Key_Down, 5);
    type("list");
    const QImage searched = picture();
    for (const SlashCommand command :
         {SlashCommand::bulletList, SlashCommand::numberedList, SlashCommand::checklist}) {
        EXPECT_TRUE(
            alike(searched.pixelColor(place(*row(command)).center() + QPoint(0, -18)), window));
    }
}
