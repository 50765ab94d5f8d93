#include "app/command_runner.h"

#include <new>
#include <utility>

#include <QCoreApplication>

#include "app/board/runtime_error.h"
#include "app/ports/build_stage.h"

namespace numorra {

void CommandRunner::Run(Command command) {
  newest_ = std::move(command);
  superseded_ = true;
  if (running_) return;
  running_ = true;
  sinceYield_.start();
  while (newest_) {
    superseded_ = false;
    RunGuarded(std::exchange(newest_, nullptr));
  }
  running_ = false;
}

void CommandRunner::Yield() {
  if (YieldIsDue()) {
    QCoreApplication::processEvents();
    sinceYield_.start();
  }
  if (superseded_) throw Superseded();
}

void CommandRunner::Stop() {
  newest_ = nullptr;
  superseded_ = true;
}

void CommandRunner::RunGuarded(const Command& command) {
  try {
    command();
  } catch (const Superseded&) {
    // The newer command follows.
  } catch (const RuntimeError& error) {
    dialogs_.Tell(error.what());
  } catch (const std::bad_alloc&) {
    dialogs_.Tell(Describe(Fault::OutOfMemory));
  }
}

}  // namespace numorra
