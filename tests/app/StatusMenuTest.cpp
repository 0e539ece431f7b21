#include "app/StatusMenu.h"

#include <QAction>
#include <gtest/gtest.h>

namespace {

struct Entry {
    QString title;
    bool enabled = true;
    QString keys;

    bool operator==(const Entry&) const = default;
};

void PrintTo(const Entry& entry, std::ostream* out) {
    *out << '"' << entry.title.toStdString() << "\" enabled " << entry.enabled << " keys \""
         << entry.keys.toStdString() << '"';
}

const Entry separator{QStringLiteral("—"), false, {}};

std::vector<Entry> entriesOf(const QMenu& menu) {
    std::vector<Entry> entries;
    for (const QAction* action : menu.actions()) {
        entries.push_back(action->isSeparator()
                              ? separator
                              : Entry{action->text(), action->isEnabled(),
                                      action->shortcut().toString(QKeySequence::PortableText)});
    }
    return entries;
}

} // namespace

TEST(StatusMenu, HasTwelveEntriesInOrder) {
    app::StatusMenu menu;
    const std::vector<Entry> expected{
        {QStringLiteral("Corvane Quillet"), false, {}},
        separator,
        {QStringLiteral("Status: Ready"), false, {}},
        separator,
        {QStringLiteral("Check Accessibility..."), true, {}},
        separator,
        {QStringLiteral("Settings..."), true, QStringLiteral("Ctrl+,")},
        separator,
        {QStringLiteral("Auf Updates pr\u00fcfen \u2026"), true, {}},
        {QStringLiteral("Feedback senden \u2026"), true, {}},
        separator,
        {QStringLiteral("Quit Corvane Quillet"), true, QStringLiteral("Ctrl+Q")},
    };
    EXPECT_EQ(entriesOf(menu.menu()), expected);
}

TEST(StatusMenu, FindsTheStatusLineByItsTagAlone) {
    app::StatusMenu menu;
    ASSERT_NE(menu.itemWithTag(100), nullptr);
    EXPECT_EQ(menu.itemWithTag(100), menu.menu().actions().at(2));
    EXPECT_EQ(menu.itemWithTag(0), nullptr);
}
