#include "slash/views/SlashMenuView.h"

#include "slash/views/SlashCommandRow.h"
#include "ui/AccessibleRole.h"
#include "ui/Button.h"
#include "ui/Conditional.h"
#include "ui/Label.h"
#include "ui/Modifiers.h"
#include "ui/ScrollView.h"
#include "ui/Stack.h"

#include <algorithm>

namespace slash {

namespace {

/// A command's row, which is there while its command matches the search.
struct Row {
    explicit Row(SlashCommand shown)
        : command(shown) {}

    SlashCommand command;
    ui::Binding<bool> isPresent = ui::state(true);
    ui::Binding<bool> isSelected = ui::state(false);
    QWidget* widget = nullptr;
};

void assign(core::Published<bool>& value, bool next) {
    if (value.get() != next) {
        value = next;
    }
}

ui::Element rowElement(Row& row, const std::shared_ptr<SlashMenuViewModel>& viewModel) {
    ui::Element element =
        ui::button(SlashCommandRow{row.command, row.isSelected},
                   [viewModel, command = row.command] { viewModel->onSelect(command); }) |
        ui::accessibilityRole(QAccessible::ListItem) |
        ui::accessibilityLabel(rawValue(row.command)) | ui::shownWhile(row.isPresent) |
        ui::identifier(id(row.command));
    row.widget = &element.widget();
    row.widget->setAccessibleDescription(description(row.command));
    ui::setAccessiblySelected(*row.widget, row.isSelected->get());
    ui::keep(*row.widget, row.isSelected->observe([widget = row.widget](bool selected) {
        ui::setAccessiblySelected(*widget, selected);
    }));
    return element;
}

/// Brings the rows up to date; answers the highlighted one, if there is one.
const Row* update(std::vector<Row>& rows, const QString& search, qsizetype selectedIndex) {
    const auto commands = commandsMatching(search);
    const Row* selected = nullptr;
    for (Row& row : rows) {
        const auto found = std::ranges::find(commands, row.command);
        const bool isSelected =
            found != commands.end() && found - commands.begin() == selectedIndex;
        assign(*row.isPresent, found != commands.end());
        assign(*row.isSelected, isSelected);
        if (isSelected) {
            selected = &row;
        }
    }
    return selected;
}

} // namespace

ui::Element SlashMenuView::searchBar() const {
    return ui::hstack(
               {},
               ui::symbol(QStringLiteral("magnifyingglass"),
                          {.colors = {ui::Color::SecondaryLabel}}),
               ui::textField(QStringLiteral("Search commands..."),
                             ui::binding(viewModel, &SlashMenuViewModel::searchText),
                             {.style = ui::TextFieldStyle::Plain,
                              .onSubmit = [viewModel = viewModel] { viewModel->selectCurrent(); },
                              .isFocused = isSearchFocused,
                              .onKeyPress = onKeyPress}) |
                   ui::identifier(QStringLiteral("search"))) |
           ui::padding({.horizontal = 12, .vertical = 12}) |
           ui::background({cornerRadius, ui::RoundedRectangle::Corners::Top},
                          ui::fill([] { return ui::Color::TextBackground; })) |
           ui::identifier(QStringLiteral("searchBar"));
}

ui::Element SlashMenuView::commandList() const {
    const auto rows =
        std::make_shared<std::vector<Row>>(allSlashCommands.begin(), allSlashCommands.end());
    std::vector<ui::Element> elements;
    for (Row& row : *rows) {
        elements.push_back(rowElement(row, viewModel));
    }
    elements.push_back(ui::spacer());
    update(*rows, viewModel->searchText.get(), viewModel->selectedIndex.get());

    auto scrollArea = std::make_unique<ui::ScrollArea>(
        ui::stack(Qt::Vertical, {.spacing = 2}, std::move(elements)) |
        ui::padding({.horizontal = 8, .vertical = 8}) | ui::accessibilityRole(QAccessible::List) |
        ui::accessibilityLabel(QStringLiteral("Commands")) |
        ui::identifier(QStringLiteral("commands")));
    ui::ScrollArea& list = *scrollArea;
    SlashMenuViewModel& model = *viewModel;
    ui::keep(list,
             std::tuple(viewModel, rows,
                        model.searchText.observe([&model, rows](const QString& search) {
                            update(*rows, search, model.selectedIndex.get());
                        }),
                        model.selectedIndex.observe([&model, &list, rows](qsizetype index) {
                            if (const Row* row = update(*rows, model.searchText.get(), index)) {
                                list.centre(*row->widget);
                            }
                        })));
    return ui::Element(std::move(scrollArea));
}

ui::Element SlashMenuView::body() const {
    const ui::RoundedRectangle shape{cornerRadius};
    return ui::vstack({.spacing = 0}, searchBar(), ui::divider(Qt::Horizontal), commandList()) |
           ui::background(shape, ui::fill([] { return ui::Color::WindowBackground; })) |
           ui::outline(shape, ui::Color::Separator, 1) |
           ui::onAppear([isSearchFocused = isSearchFocused] { isSearchFocused->set(true); }) |
           ui::identifier(QStringLiteral("SlashMenuView"));
}

} // namespace slash
