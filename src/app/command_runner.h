#pragma once

#include <functional>

#include <QElapsedTimer>

#include "app/ports/dialogs.h"

namespace numorra {

/// The one way in which commands run, and the one place where their errors end.
///
/// A run-time error unwinds the command and is shown in a box; the program goes on. While a command
/// yields, the player may start another: it waits, the running one is superseded at its yield and
/// unwinds, then the newer one runs. So commands never nest, and the newest wins.
class CommandRunner {
 public:
  using Command = std::function<void()>;

  /// A screen frame: yielding more often costs time and shows nothing new.
  static constexpr int kFrameMilliseconds = 16;

  explicit CommandRunner(Dialogs& dialogs, int frameMilliseconds = kFrameMilliseconds)
      : dialogs_(dialogs), frameMilliseconds_(frameMilliseconds) {}

  /// Runs the command, or lets it take the place of the one that is running.
  void Run(Command command);

  /// Whether the next yield will let events run.
  bool YieldIsDue() const { return sinceYield_.elapsed() >= frameMilliseconds_; }

  /// For the running command: lets pending window events run, at most once a frame. Throws
  /// Superseded when it is to make way.
  void Yield();

  /// The window is closing: the running command is superseded and nothing runs after it.
  void Stop();

 private:
  void RunGuarded(const Command& command);

  Dialogs& dialogs_;
  int frameMilliseconds_;
  Command newest_;
  bool running_ = false;
  bool superseded_ = false;
  QElapsedTimer sinceYield_;
};

}  // namespace numorra
