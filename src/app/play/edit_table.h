#pragma once

#include <functional>
#include <string>
#include <vector>

namespace numorra {

class EditCommands;

/// The place of an editing command in the board's menu.
enum class EditGroup { SetValue, AdjustValue, Cells, Symmetries };

/// An editing command: its place, its names, and its action.
struct EditCommand {
  const char* Name;     ///< of the menu item
  const char* Caption;  ///< text of the menu item, and the name that undo shows, to be said
  int Code;             ///< for recording and repeating; 0 = never recorded
  EditGroup Menu;
  std::function<void(EditCommands&)> Act;
  const char* WithBase = nullptr;  ///< the caption with a place for the base value that it writes
};

/// All editing commands in menu order: the one place that connects codes, names, captions and
/// actions. Symmetries come from their own table.
const std::vector<EditCommand>& EditTable();

/// The command in words: its caption, with the base value if the command writes that.
std::string WordsFor(const EditCommand& command, double baseValue);

/// Finds a command by name, or by its code; null if there is none.
const EditCommand* FindEdit(const std::string& name);
const EditCommand* FindEdit(double code);

}  // namespace numorra
