#pragma once

namespace numorra {

/// Thrown by a yield when a newer command has to run, and caught by the command runner. Long work
/// uses values of its own, so nothing has changed by then.
struct Superseded {};

/// Lets long work give way to the window.
class Yielding {
 public:
  virtual ~Yielding() = default;

  /// Lets pending events run; throws Superseded if the work must stop.
  virtual void Yield() = 0;
};

}  // namespace numorra
