#pragma once

#include "app/ports/work_stage.h"
#include "app/window/board/board_place.h"
#include "toolkit/command_runner.h"

namespace numorra {

/// The window as the stage of a search: a bar below the board shows how long it has been running.
/// The bar appears at the first yield that processes events and disappears with the search.
/// Stopping is a command that supersedes the search.
class SearchStage : public WorkStage {
 public:
  SearchStage(BoardPlace& place, CommandRunner& runner) : place_(place), runner_(runner) {}

  /// What the bar calls the next search.
  void Call(const QString& doing) { doing_ = doing; }

  void ShowBusy(bool busy) override;
  void Yield() override;

 private:
  BoardPlace& place_;
  CommandRunner& runner_;
  QString doing_;
  QElapsedTimer sinceStart_;
};

}  // namespace numorra
