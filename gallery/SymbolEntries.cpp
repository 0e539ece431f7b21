#include "gallery/Gallery.h"

#include "ui/Label.h"
#include "ui/Modifiers.h"
#include "ui/Stack.h"
#include "ui/TitledWindow.h"

#include <QDir>

namespace gallery {

namespace {

constexpr int columns = 8;
constexpr QSize cell(232, 96);

/// A symbol at the sizes in which views use it, and at two that show how it is drawn.
ui::Element sample(const QString& name, ui::Weight weight) {
    const auto at = [&](double pointSize) {
        return ui::symbol(name, {.pointSize = pointSize, .weight = weight});
    };
    return ui::vstack({.spacing = 2}, ui::hstack({.spacing = 6}, at(14), at(16), at(32), at(64)),
                      ui::text(name, {.pointSize = 10})) |
           ui::frame({.width = cell.width(), .height = cell.height()});
}

Exhibit sheet(ui::Weight weight) {
    const QStringList files = QDir(QStringLiteral(":/symbols")).entryList();
    std::vector<ui::Element> rows;
    for (int first = 0; first < files.size(); first += columns) {
        std::vector<ui::Element> row;
        for (const QString& file : files.mid(first, columns)) {
            row.push_back(sample(file.chopped(4), weight));
        }
        rows.push_back(ui::stack(Qt::Horizontal, {.spacing = 0}, std::move(row)));
    }
    const QSize size(columns * cell.width(), static_cast<int>(rows.size()) * cell.height());
    auto window = std::make_shared<ui::TitledWindow>(QStringLiteral("Symbols"), size);
    window->setContent(ui::stack(Qt::Vertical, {.spacing = 0, .alignment = ui::Alignment::Leading},
                                 std::move(rows)));
    window->show();
    return {window, {window.get()}};
}

} // namespace

std::vector<Entry> symbolEntries() {
    const auto entry = [](const char* name, ui::Weight weight) {
        return Entry{QString::fromLatin1(name),
                     [weight](fakes::FakePlatform&, const QString&) { return sheet(weight); }};
    };
    return {
        entry("symbols-regular", ui::Weight::Regular), entry("symbols-medium", ui::Weight::Medium),
        entry("symbols-semibold", ui::Weight::Semibold), entry("symbols-bold", ui::Weight::Bold)};
}

} // namespace gallery
