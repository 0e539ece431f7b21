#pragma once

#include "core/Published.h"
#include "slash/SlashCommand.h"

#include <QString>

#include <functional>
#include <vector>

namespace slash {

/// The commands whose title, description or shortcut contains the search, in the order of the
/// catalogue; all of them for an empty search.
std::vector<SlashCommand> commandsMatching(const QString& search);

/// What the slash menu shows: the search, the commands that match it, and the highlighted one.
/// Search and highlight are independent: a search that leaves fewer commands than the highlight's
/// position highlights none. Main thread only.
class SlashMenuViewModel {
public:
    explicit SlashMenuViewModel(std::function<void(SlashCommand)> onSelect);

    /// What the user typed, not trimmed.
    core::Published<QString> searchText;
    /// The highlighted position within filteredCommands(); never negative.
    core::Published<qsizetype> selectedIndex;
    const std::function<void(SlashCommand)> onSelect;

    /// The commands that match the search.
    std::vector<SlashCommand> filteredCommands() const;

    /// Chooses the highlighted command; does nothing when none is. A negative position stops the
    /// process.
    void selectCurrent() const;

    /// Move the highlight by one and stop at the ends of the filtered list.
    void moveUp();
    void moveDown();

private:
    void moveTo(qsizetype index);
};

} // namespace slash
