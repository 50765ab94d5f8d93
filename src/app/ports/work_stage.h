#pragma once

#include "app/ports/yielding.h"

namespace numorra {

/// Where long work shows that it is under way.
class WorkStage : public Yielding {
 public:
  /// The busy pointer, or the default one.
  virtual void ShowBusy(bool busy) = 0;
};

/// The busy pointer for a scope.
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
