#include "toolkit/command_runner.h"

#include <gtest/gtest.h>

#include "app/board/runtime_error.h"
#include "app/ports/build_stage.h"
#include "support/stand_ins.h"

namespace numorra {
namespace {

class CommandRunnerTest : public testing::Test {
 protected:
  ScriptedDialogs dialogs_;
  CommandRunner runner_{dialogs_};
  std::string log_;
};

TEST_F(CommandRunnerTest, TellsARuntimeErrorAndGoesOn) {
  runner_.Run("command", [] { throw RuntimeError(Fault::Overflow); });
  runner_.Run("command", [] { throw RuntimeError(Fault::TypeMismatch); });
  runner_.Run("command", [] { throw std::bad_alloc(); });
  runner_.Run("command", [] { throw std::length_error("too long"); });
  runner_.Run("command", [] { throw 5; });
  EXPECT_EQ(dialogs_.Take(),
            (Messages{"Overflow", "Type mismatch", "Out of memory", "too long", "Unknown error"}));
  runner_.Run("command", [this] { log_ += "on"; });
  EXPECT_EQ(log_, "on");
}

TEST_F(CommandRunnerTest, TellsOfEveryCommandHoweverItEnds) {
  runner_.OnBegin = [this] { log_ += "("; };
  runner_.OnEnd = [this](const std::string& name) { log_ += name + ") "; };
  runner_.Run("fine", [] {});
  runner_.Run("bad", [] { throw RuntimeError(Fault::Overflow); });
  runner_.Run("old", [this] {
    runner_.Run("new", [] {});
    runner_.Yield();
  });
  EXPECT_EQ(log_, "(fine) (bad) (old) (new) ");
  dialogs_.Take();
}

TEST_F(CommandRunnerTest, WhatRunsBesideSupersedesNothingAndEndsInTheSameBoundary) {
  runner_.Run("build", [this] {
    runner_.RunBeside([] { throw std::length_error("help is too long"); });
    runner_.Yield();
    log_ += "built";
  });
  EXPECT_EQ(log_, "built");
  EXPECT_EQ(dialogs_.Take(), Messages{"help is too long"});
}

TEST_F(CommandRunnerTest, LetsTheNewestCommandWinAndNestsNone) {
  runner_.Run("command", [this] {
    struct Unwound {
      std::string& log;
      ~Unwound() { log += "unwound "; }
    } const unwound{log_};
    runner_.Run("command", [this] { log_ += "never "; });
    runner_.Run("command", [this] { log_ += "newest "; });
    runner_.Yield();
    log_ += "not reached ";
  });
  EXPECT_EQ(log_, "unwound newest ");
}

TEST_F(CommandRunnerTest, RunsTheNewerCommandAfterOneThatNeverYieldsAndNoneAtTheClose) {
  runner_.Run("command", [this] {
    runner_.Run("command", [this] {
      log_ += "second";
      runner_.Run("command", [this] { log_ += "never"; });
      runner_.Stop();
      runner_.Yield();
      log_ += "not reached";
    });
    log_ += "first ";
  });
  EXPECT_EQ(log_, "first second");
}

}  // namespace
}  // namespace numorra
