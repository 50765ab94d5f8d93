#pragma once

#include <QMenu>

#include "app/play/command_history.h"
#include "app/play/edit_table.h"

namespace numorra {

/// The context menu of the board, made from the table of editing commands; `redox` shows the last
/// recorded one.
class BoardMenu : public QMenu {
  Q_OBJECT

 public:
  explicit BoardMenu(QWidget* parent = nullptr);

  /// Shows what "Redo last command" would repeat.
  void ShowHistory(const CommandHistory& history);

  /// Shows the base value, " 12" for 12, in the items that use it.
  void ShowBaseValue(double value);

  /// Enables or disables the commands that need a checked board.
  void EnableEditing(bool enabled);

  QAction* const redox;

 Q_SIGNALS:
  void Chosen(const EditCommand* command);
  void RedoChosen();

 private:
  QMenu* MenuOf(EditGroup place);

  QMenu* const setValue_;
  QMenu* const adjustValue_;
};

}  // namespace numorra
