#pragma once

#include <functional>

#include <QMenu>

#include "app/play/command_history.h"

namespace numorra {

/// The context menu of the board. What is chosen is handed to the three functions; `redox` shows
/// the last recorded command.
class BoardMenu : public QMenu {
  Q_OBJECT

 public:
  explicit BoardMenu(QWidget* parent = nullptr);

  std::function<void(RedoCode)> OnCommand;
  std::function<void()> OnRedo;
  std::function<void()> OnSetAllRem;
  std::function<void()> OnSwapValue;

  /// Shows what a click on "Redo last command" repeats.
  void ShowHistory(const CommandHistory& history);

  /// Shows the base value, " 12" for 12, in the items that write it.
  void ShowBaseValue(const std::string& value);

  /// Whether the commands that need a checked board can be chosen.
  void EnableEditing(bool enabled);

  QAction* const redox;

 private:
  void AddCommand(QMenu* menu, const char* name, RedoCode code);
  void AddItem(QMenu* menu, const char* name, const char* caption, std::function<void()>& chosen);

  QMenu* const setValue_;
  QMenu* const adjustValue_;
};

}  // namespace numorra
