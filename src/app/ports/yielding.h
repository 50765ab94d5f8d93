#pragma once

namespace numorra {

/// Thrown out of a yield when something newer has to run. It unwinds to the command runner; long
/// work is done on values of its own, so nothing has changed by then.
struct Superseded {};

/// Where long work lets the window live.
class Yielding {
 public:
  virtual ~Yielding() = default;

  /// Lets pending events run; throws Superseded when the work is to stop.
  virtual void Yield() = 0;
};

}  // namespace numorra
