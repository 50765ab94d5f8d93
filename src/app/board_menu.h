#pragma once

#include <functional>

#include <QMenu>

#include "app/play/command_history.h"

namespace numorra {

/// The context menu of the board. Choosing an item hands its code to `OnCommand`; `redox` shows the
/// last recorded command and hands on its code.
class BoardMenu : public QMenu {
  Q_OBJECT

 public:
  explicit BoardMenu(QWidget* parent = nullptr);

  std::function<void(RedoCode)> OnCommand;

  /// Shows what a click on "Redo last command" repeats.
  void ShowHistory(const CommandHistory& history);

  /// The caption of the command's own item.
  std::string Caption(RedoCode code) const;

  QAction* const redox;

 private:
  void AddCommand(const char* name, const char* caption, RedoCode code);
};

}  // namespace numorra
