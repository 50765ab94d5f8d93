#pragma once

#include <functional>
#include <string>
#include <vector>

namespace numorra {

class EditCommands;

/// Where an editing command stands in the board's menu.
enum class EditGroup { SetValue, AdjustValue, Cells, Symmetries };

/// An editing command: its place, its names, and what it does.
struct EditCommand {
  const char* Name;     ///< of its menu item
  const char* Caption;  ///< what its item says, and what undo calls it
  int Code;             ///< under which it is recorded and repeated; 0 = never
  EditGroup Menu;
  std::function<void(EditCommands&)> Act;
  bool SaysBase = false;  ///< its item and its record name the base value too
};

/// All editing commands in the order of the menu: the one place that ties codes, names, captions
/// and deeds together. Symmetries are taken from their own table.
const std::vector<EditCommand>& EditTable();

/// What the command does, in words: its caption, with the base value where it writes that.
std::string WordsFor(const EditCommand& command, double baseValue);

/// The commands by name, and by the code under which one was recorded; null where there is none.
const EditCommand* FindEdit(const std::string& name);
const EditCommand* FindEdit(double code);

}  // namespace numorra
