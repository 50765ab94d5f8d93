#include "app/play/edit_table.h"

#include <algorithm>

#include "app/board/numbers.h"
#include "app/play/edit_commands.h"
#include "transform/symmetry.h"

namespace numorra {
namespace {

template <void (EditCommands::*Act)()>
void Do(EditCommands& commands) {
  (commands.*Act)();
}

template <AdjustLine Line>
void Correct(EditCommands& commands) {
  commands.Adjust(Line);
}

std::vector<EditCommand> MakeTable() {
  using E = EditCommands;
  std::vector<EditCommand> table = {
      {"Set2Cellvaluex", "set value to", 8, EditGroup::SetValue, Do<&E::SetBaseValue>, true},
      {"Set2Max", "maximum value in grid", 1, EditGroup::SetValue, Do<&E::SetMaximum>},
      {"set2Min", "mimimum value in grid", 2, EditGroup::SetValue, Do<&E::SetMinimum>},
      {"set2Ran", "a random value", 3, EditGroup::SetValue, Do<&E::SetRandomValue>},
      {"Set2allran", "entire grid to random values", 4, EditGroup::SetValue, Do<&E::FillAtRandom>},
      {"SetAllRem", "all other values to", 0, EditGroup::SetValue, Do<&E::SetAllRem>, true},
      {"correctrowx", "correct row total", 5, EditGroup::AdjustValue, Correct<AdjustLine::Row>},
      {"correctcolx", "correct column total", 6, EditGroup::AdjustValue,
       Correct<AdjustLine::Column>},
      {"correctdiagx", "correct diagnonal", 7, EditGroup::AdjustValue,
       Correct<AdjustLine::Diagonal>},
      {"swapvaluex", "Swap value", 0, EditGroup::Cells, Do<&E::SwapValue>},
  };
  constexpr int kFirstSymmetry = 9;
  int code = kFirstSymmetry;
  for (const Symmetry& symmetry : kSymmetries) {
    table.push_back({symmetry.Name, symmetry.Caption, code++, EditGroup::Symmetries,
                     [&symmetry](EditCommands& commands) { commands.Turn(symmetry); }});
  }
  return table;
}

template <class Suits>
const EditCommand* FindFirst(Suits suits) {
  const auto& table = EditTable();
  const auto found = std::find_if(table.begin(), table.end(), suits);
  return found == table.end() ? nullptr : &*found;
}

}  // namespace

const std::vector<EditCommand>& EditTable() {
  static const std::vector<EditCommand> table = MakeTable();
  return table;
}

std::string WordsFor(const EditCommand& command, double baseValue) {
  return command.Caption + (command.SaysBase ? Str(baseValue) : std::string());
}

const EditCommand* FindEdit(const std::string& name) {
  return FindFirst([&](const EditCommand& command) { return command.Name == name; });
}

const EditCommand* FindEdit(double code) {
  return FindFirst([&](const EditCommand& command) { return code > 0 && command.Code == code; });
}

}  // namespace numorra
