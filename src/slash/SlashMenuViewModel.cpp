#include "slash/SlashMenuViewModel.h"

#include "core/Fatal.h"
#include "core/LocalizedSearch.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace slash {

std::vector<SlashCommand> commandsMatching(const QString& search) {
    if (search.isEmpty()) {
        return {allSlashCommands.begin(), allSlashCommands.end()};
    }
    std::vector<SlashCommand> matching;
    std::ranges::copy_if(
        allSlashCommands, std::back_inserter(matching), [&search](SlashCommand command) {
            return core::localizedCaseInsensitiveContains(rawValue(command), search) ||
                   core::localizedCaseInsensitiveContains(description(command), search) ||
                   shortcut(command).contains(search, Qt::CaseSensitive);
        });
    return matching;
}

SlashMenuViewModel::SlashMenuViewModel(std::function<void(SlashCommand)> select)
    : onSelect(std::move(select)) {}

std::vector<SlashCommand> SlashMenuViewModel::filteredCommands() const {
    return commandsMatching(searchText.get());
}

void SlashMenuViewModel::selectCurrent() const {
    const qsizetype index = selectedIndex.get();
    const auto commands = filteredCommands();
    if (index < 0) {
        core::fatal(u"the slash menu's highlight is at a negative position");
    }
    if (index < std::ssize(commands)) {
        onSelect(commands[static_cast<std::size_t>(index)]);
    }
}

void SlashMenuViewModel::moveUp() {
    moveTo(selectedIndex.get() - 1);
}

void SlashMenuViewModel::moveDown() {
    // From a highlight beyond the end the last command is the next one down.
    moveTo(selectedIndex.get() + 1);
}

void SlashMenuViewModel::moveTo(qsizetype index) {
    const qsizetype count = std::ssize(filteredCommands());
    if (count > 0) {
        selectedIndex = std::clamp(index, qsizetype{0}, count - 1);
    }
}

} // namespace slash
