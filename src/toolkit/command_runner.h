#pragma once

#include <functional>
#include <string>

#include <QElapsedTimer>

#include "app/ports/dialogs.h"

namespace numorra {

/// Runs every command, and catches every error.
///
/// An exception unwinds the command and is shown in a box; the program continues. While a command
/// yields, the player may start another. The new one waits, the running one is superseded at its
/// yield and unwinds, and then the new one runs. So commands never nest, and the newest wins.
class CommandRunner {
 public:
  using Command = std::function<void()>;

  /// A screen frame: yielding more often costs time and shows nothing new.
  static constexpr int kFrameMilliseconds = 16;

  explicit CommandRunner(Dialogs& dialogs, int frameMilliseconds = kFrameMilliseconds)
      : dialogs_(dialogs), frameMilliseconds_(frameMilliseconds) {}

  /// Raised before a command runs, and after it has ended in any way; `name` is the player's name
  /// for it.
  std::function<void()> OnBegin;
  std::function<void(const std::string& name)> OnEnd;

  /// Runs the command; a running command is superseded first.
  void Run(std::string name, Command command);

  /// Runs an action that leaves the board alone, such as opening a window, at once and beside a
  /// running command; catches its errors too.
  void RunBeside(const Command& command);

  /// Whether a command is running, waiting for a box or yielding.
  bool Running() const { return running_; }

  /// Whether the next yield will process events.
  bool YieldIsDue() const { return sinceYield_.elapsed() >= frameMilliseconds_; }

  /// For the running command: processes pending window events, at most once a frame. Throws
  /// Superseded when another command waits.
  void Yield();

  /// Supersedes the running command with nothing: it unwinds, and what waits is forgotten.
  void Abandon();

 private:
  Dialogs& dialogs_;
  int frameMilliseconds_;
  std::string newestName_;
  Command newest_;
  bool running_ = false;
  bool superseded_ = false;
  QElapsedTimer sinceYield_;
};

}  // namespace numorra
