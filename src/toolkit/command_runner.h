#pragma once

#include <functional>
#include <string>

#include <QElapsedTimer>

#include "app/ports/dialogs.h"

namespace numorra {

/// The one way in which commands run, and the one place where errors end.
///
/// An exception unwinds the command and is shown in a box; the program goes on. While a command
/// yields, the player may start another: it waits, the running one is superseded at its yield and
/// unwinds, then the newer one runs. So commands never nest, and the newest wins.
class CommandRunner {
 public:
  using Command = std::function<void()>;

  /// A screen frame: yielding more often costs time and shows nothing new.
  static constexpr int kFrameMilliseconds = 16;

  explicit CommandRunner(Dialogs& dialogs, int frameMilliseconds = kFrameMilliseconds)
      : dialogs_(dialogs), frameMilliseconds_(frameMilliseconds) {}

  /// Raised before a command runs, and after it has come to its end in whatever way; `name` is what
  /// a player would call it.
  std::function<void()> OnBegin;
  std::function<void(const std::string& name)> OnEnd;

  /// Runs the command, or lets it take the place of the one that is running.
  void Run(std::string name, Command command);

  /// Runs what leaves the board alone, such as opening a window, at once and beside a running
  /// command; errors end here all the same.
  void RunBeside(const Command& command);

  /// Whether a command is on its way, waiting for a box or yielding.
  bool Running() const { return running_; }

  /// Whether the next yield will let events run.
  bool YieldIsDue() const { return sinceYield_.elapsed() >= frameMilliseconds_; }

  /// For the running command: lets pending window events run, at most once a frame. Throws
  /// Superseded when it is to make way.
  void Yield();

  /// For a window that closes: supersedes the running command, and runs none from now on.
  void Close();

 private:
  Dialogs& dialogs_;
  int frameMilliseconds_;
  std::string newestName_;
  Command newest_;
  bool running_ = false;
  bool superseded_ = false;
  bool closed_ = false;
  QElapsedTimer sinceYield_;
};

}  // namespace numorra
