#pragma once

#include "app/ports/yielding.h"

namespace numorra {

/// How long work shows that it is running.
class WorkStage : public Yielding {
 public:
  /// Shows the busy pointer, or the default one.
  virtual void ShowBusy(bool busy) = 0;
};

/// Shows the busy pointer for a scope.
class BusyPointer {
 public:
  explicit BusyPointer(WorkStage& stage) : stage_(stage) { stage_.ShowBusy(true); }
  ~BusyPointer() { stage_.ShowBusy(false); }
  BusyPointer(const BusyPointer&) = delete;
  BusyPointer& operator=(const BusyPointer&) = delete;

 private:
  WorkStage& stage_;
};

}  // namespace numorra
