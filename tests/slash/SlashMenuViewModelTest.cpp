#include "slash/SlashMenuViewModel.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using slash::SlashCommand;
using slash::SlashMenuViewModel;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

namespace {

struct SlashMenu : testing::Test {
    std::vector<SlashCommand> chosen;
    SlashMenuViewModel model{[this](SlashCommand command) { chosen.push_back(command); }};

    std::vector<SlashCommand> search(const QString& text) {
        model.searchText = text;
        return model.filteredCommands();
    }
};

} // namespace

TEST_F(SlashMenu, SearchesTitlesAndDescriptionsIgnoringCaseAndShortcutsExactly) {
    using enum SlashCommand;
    EXPECT_THAT(search(QString()), ElementsAreArray(slash::allSlashCommands));
    EXPECT_THAT(search(QStringLiteral("HEAD")), ElementsAre(heading1, heading2, heading3));
    EXPECT_THAT(search(QStringLiteral("list")), ElementsAre(bulletList, numberedList, checklist));
    EXPECT_THAT(search(QStringLiteral("todo")), ElementsAre(checklist));
    EXPECT_THAT(search(QStringLiteral("#")), ElementsAre(heading1, heading2, heading3));
    EXPECT_THAT(search(QStringLiteral("1.")), ElementsAre(numberedList));
    EXPECT_THAT(search(QStringLiteral("-")), ElementsAre(bulletList, divider));
    EXPECT_THAT(search(QStringLiteral("table ")), IsEmpty());
}

TEST_F(SlashMenu, ASearchLeavesTheHighlightWhereItIsAndThenNothingIsChosen) {
    model.selectedIndex = 5;
    search(QStringLiteral("head"));
    EXPECT_EQ(model.selectedIndex.get(), 5);
    model.selectCurrent();
    EXPECT_THAT(chosen, IsEmpty());
    model.moveUp();
    EXPECT_EQ(model.selectedIndex.get(), 2);
}

TEST_F(SlashMenu, TheHighlightStopsAtBothEndsAndRestsWhileNothingMatches) {
    model.moveUp();
    EXPECT_EQ(model.selectedIndex.get(), 0);
    for (int step = 0; step < 20; ++step) {
        model.moveDown();
    }
    EXPECT_EQ(model.selectedIndex.get(), 10);
    search(QStringLiteral("nothing has this"));
    model.moveUp();
    model.moveDown();
    EXPECT_EQ(model.selectedIndex.get(), 10);
}

