#include "gallery/Gallery.h"

#include "slash/SlashMenuController.h"

#include <QApplication>
#include <QTest>

#include <algorithm>
#include <cstdio>
#include <functional>

namespace gallery {

namespace {

using slash::SlashCommand;

/// The menu after its user has done something.
Entry slash(const char* name, std::function<void(QWidget& window, QWidget& field)> use,
            const char* search = "") {
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
                use(*window, *field);
                return Exhibit{menu, {window}, Exhibit::Ground::Page};
            }};
}

auto down(int rows) {
    return [rows](QWidget&, QWidget& field) {
        for (int row = 0; row < rows; ++row) {
            QTest::keyClick(&field, Qt::Key_Down);
        }
    };
}

void pressTwoRows(QWidget& window, QWidget&) {
    QApplication::processEvents();
    for (const SlashCommand command : {SlashCommand::heading1, SlashCommand::heading3}) {
        QTest::mousePress(window.findChild<QWidget*>(slash::id(command)), Qt::LeftButton);
    }
}

} // namespace

std::vector<Entry> slashEntries() {
    return {slash("slash", down(0)), slash("slash-scrolled", down(7)),
            slash("slash-search", down(1), "list"),
            slash("slash-nothing-found", down(0), "nothing has this"),
            slash("slash-pressed", pressTwoRows)};
}

} // namespace gallery
