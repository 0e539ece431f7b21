#include "SettingsFixture.h"

#include "ui/LazyList.h"

#include <QScrollBar>
#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

const QString everywhere = QStringLiteral("Enable for all applications");
const QString explanation = QStringLiteral("Select which apps should show the formatting bar:");
const QString search = QStringLiteral("Search apps...");

class AppsSettings : public SettingsFixture {
protected:
    void install(const QString& name) {
        const QString folder = QStringLiteral("/Applications");
        fake_.applicationBundles.add(folder, name + QStringLiteral(".app"),
                                     {QStringLiteral("org.example.") + name, name, name});
    }
    /// The Apps tab with its list.
    void openList() {
        store_.useAllApps = false;
        open();
        openTab(QStringLiteral("Apps"));
    }
    ui::LazyList& list() const { return *window_->findChild<ui::LazyList*>(); }
    /// The names of the rows that exist, from the top.
    std::vector<std::string> rows() const {
        std::vector<std::string> names;
        const ui::LazyList& all = list();
        for (int index = 0; index < 5000; ++index) {
            if (const QWidget* row = all.row(index)) {
                names.push_back(row->accessibleName().toStdString());
            }
        }
        return names;
    }
    QStringList allowed() const { return store_.allowedApps; }
};

} // namespace

TEST_F(AppsSettings, ShowTheListOnlyWhileTheUserChooses) {
    install(QStringLiteral("Mail"));
    open();
    openTab(QStringLiteral("Apps"));
    const QStringList choosing{explanation, search, QStringLiteral("1 app(s) selected")};
    const auto shown = [&] {
        return std::ranges::count_if(choosing, [&](const QString& name) { return shows(name); });
    };
    EXPECT_EQ(shown(), 0);
    EXPECT_FALSE(list().isVisible());
    const int top = place(everywhere).top();
    click(everywhere);
    EXPECT_FALSE(store_.useAllApps);
    EXPECT_EQ(shown(), 3);
    EXPECT_THAT(rows(), ElementsAre("Mail"));
    EXPECT_EQ(place(everywhere).top(), top);
    click(everywhere);
    EXPECT_EQ(shown(), 0);
    EXPECT_EQ(allowed(), QStringList{QStringLiteral("com.apple.Notes")});
}

TEST_F(AppsSettings, AreLookedForEachTimeTheWindowIsShown) {
    install(QStringLiteral("Mail"));
    openList();
    install(QStringLiteral("Maps"));
    window_->close();
    window_->show();
    EXPECT_THAT(rows(), ElementsAre("Mail"));
    fake_.runLoop.finishBackgroundWork();
    EXPECT_THAT(rows(), ElementsAre("Mail", "Maps"));
    EXPECT_TRUE(list().isVisible()); // the tab that was open still is
}

TEST_F(AppsSettings, OfFiveThousandOnlyThoseInSightHaveRows) {
    for (int number = 0; number < 5000; ++number) {
        install(QStringLiteral("App %1").arg(number, 4, 10, QLatin1Char('0')));
    }
    openList();
    EXPECT_LT(rows().size(), 10U);
    EXPECT_EQ(rows().front(), "App 0000");
    list().setFocus();
    press({Qt::Key_End});
    EXPECT_EQ(rows().back(), "App 4999");
    press({Qt::Key_Space});
    EXPECT_EQ(allowed().back(), QStringLiteral("org.example.App 4999"));
    for (int i = 0; i < 3; ++i) {
        press({Qt::Key_PageUp});
    }
    press({Qt::Key_Home});
    EXPECT_EQ(rows().front(), "App 0000");
    QScrollBar& bar = *list().verticalScrollBar();
    for (int value = 0; value <= bar.maximum(); value += 997) {
        bar.setValue(value);
        ASSERT_LT(rows().size(), 10U) << value;
    }
    click(search);
    type(QStringLiteral("12"));
    EXPECT_EQ(bar.value(), 0);
    EXPECT_EQ(rows().front(), "App 0012");
}

