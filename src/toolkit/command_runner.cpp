#include "toolkit/command_runner.h"

#include <exception>
#include <new>
#include <utility>

#include <QCoreApplication>

#include "app/board/runtime_error.h"
#include "app/board/scoped_flag.h"
#include "app/ports/build_stage.h"
#include "words/say.h"

namespace numorra {

void CommandRunner::Run(std::string name, Command command) {
  newestName_ = std::move(name);
  newest_ = std::move(command);
  superseded_ = true;
  if (running_) return;
  const ScopedFlag running(running_);
  sinceYield_.start();
  while (newest_) {
    superseded_ = false;
    const std::string current = std::exchange(newestName_, {});
    if (OnBegin) RunBeside(OnBegin);
    RunBeside(std::exchange(newest_, nullptr));
    if (OnEnd) RunBeside([&] { OnEnd(current); });
  }
}

void CommandRunner::RunBeside(const Command& command) {
  try {
    command();
  } catch (const Superseded&) {
    // The newer command follows.
  } catch (const std::bad_alloc&) {
    dialogs_.Tell(Say(Describe(Fault::OutOfMemory)));
  } catch (const std::exception& error) {
    dialogs_.Tell(error.what());
  } catch (...) {
    dialogs_.Tell(Say("Unknown error"));
  }
}

void CommandRunner::Yield() {
  if (YieldIsDue()) {
    QCoreApplication::processEvents();
    sinceYield_.start();
  }
  if (superseded_) throw Superseded();
}

void CommandRunner::Abandon() {
  newest_ = nullptr;
  superseded_ = true;
}

}  // namespace numorra
