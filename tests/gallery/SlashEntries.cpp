#include "gallery/Gallery.h"

#include "slash/SlashMenuController.h"

#include <QApplication>
#include <QTest>

#include <algorithm>
#include <cstdio>

namespace gallery {

namespace {

/// The menu with its highlight moved down some rows.
Entry slash(const char* name, int rowsDown, const char* search = "") {
    return {QString::fromLatin1(name), [=](fakes::FakePlatform&, const QString& text) {
                auto menu = std::make_shared<slash::SlashMenuController>();
                menu->onCommandSelected = [](slash::SlashCommand command) {
                    std::puts(qPrintable(slash::rawValue(command)));
                    std::fflush(stdout);
                };
                menu->show({60, -60});
                const auto windows = QApplication::topLevelWidgets();
                QWidget* window =
                    *std::ranges::find(windows, QStringLiteral("slashMenu"), &QObject::objectName);
                auto* field = window->findChild<QWidget*>(QStringLiteral("search"));
                QTest::keyClicks(field, text.isEmpty() ? QString::fromLatin1(search) : text);
                for (int row = 0; row < rowsDown; ++row) {
                    QTest::keyClick(field, Qt::Key_Down);
                }
                return Exhibit{menu, {window}, Exhibit::Ground::Page};
            }};
}

} // namespace

std::vector<Entry> slashEntries() {
    return {slash("slash", 0), slash("slash-scrolled", 7), slash("slash-search", 1, "list"),
            slash("slash-nothing-found", 0, "nothing has this")};
}

} // namespace gallery
