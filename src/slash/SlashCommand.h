#pragma once

#include <QString>

#include <array>
#include <optional>

namespace slash {

/// One of the eleven block commands of the slash menu. Its raw value is its title and its identity
/// at once.
enum class SlashCommand {
    heading1,
    heading2,
    heading3,
    bulletList,
    numberedList,
    checklist,
    codeBlock,
    divider,
    table,
    // `template` is a keyword.
    template_,
    aiAssist,
};

/// Every command in the order of the menu.
inline constexpr std::array allSlashCommands{
    SlashCommand::heading1,   SlashCommand::heading2,     SlashCommand::heading3,
    SlashCommand::bulletList, SlashCommand::numberedList, SlashCommand::checklist,
    SlashCommand::codeBlock,  SlashCommand::divider,      SlashCommand::table,
    SlashCommand::template_,  SlashCommand::aiAssist,
};

/// The title.
QString rawValue(SlashCommand command);

/// The stable identifier; the same as the raw value.
QString id(SlashCommand command);

/// The command of exactly that title, letter case included.
std::optional<SlashCommand> slashCommand(QStringView rawValue);

/// The system symbol in front of the command.
QString icon(SlashCommand command);

/// What is typed for the same block in Markdown; empty for the last three. Only shown.
QString shortcut(SlashCommand command);

/// A line that explains the command.
QString description(SlashCommand command);

} // namespace slash
