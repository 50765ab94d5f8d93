#include "app/play/edit_table.h"

#include <algorithm>

#include "app/board/numbers.h"
#include "app/play/edit_commands.h"
#include "transform/symmetry.h"
#include "words/say.h"

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
      {"Set2Cellvaluex", Mark("set value to"), 8, EditGroup::SetValue, Do<&E::SetBaseValue>,
       Mark("set value to %1")},
      {"Set2Max", Mark("maximum value in grid"), 1, EditGroup::SetValue, Do<&E::SetMaximum>},
      {"set2Min", Mark("mimimum value in grid"), 2, EditGroup::SetValue, Do<&E::SetMinimum>},
      {"set2Ran", Mark("a random value"), 3, EditGroup::SetValue, Do<&E::SetRandomValue>},
      {"Set2allran", Mark("entire grid to random values"), 4, EditGroup::SetValue,
       Do<&E::FillAtRandom>},
      {"SetAllRem", Mark("all other values to"), 0, EditGroup::SetValue, Do<&E::SetAllRem>,
       Mark("all other values to %1")},
      {"correctrowx", Mark("correct row total"), 5, EditGroup::AdjustValue,
       Correct<AdjustLine::Row>},
      {"correctcolx", Mark("correct column total"), 6, EditGroup::AdjustValue,
       Correct<AdjustLine::Column>},
      {"correctdiagx", Mark("correct diagnonal"), 7, EditGroup::AdjustValue,
       Correct<AdjustLine::Diagonal>},
      {"swapvaluex", Mark("Swap value"), 0, EditGroup::Cells, Do<&E::SwapValue>},
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
  return command.WithBase ? Say(command.WithBase, Written(baseValue)) : Say(command.Caption);
}

const EditCommand* FindEdit(const std::string& name) {
  return FindFirst([&](const EditCommand& command) { return command.Name == name; });
}

const EditCommand* FindEdit(double code) {
  return FindFirst([&](const EditCommand& command) { return code > 0 && command.Code == code; });
}

}  // namespace numorra
