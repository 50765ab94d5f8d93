#include "app/command_runner.h"

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
  runner_.Run([] { throw RuntimeError(Fault::Overflow); });
  runner_.Run([] { throw RuntimeError(Fault::TypeMismatch); });
  runner_.Run([] { throw std::bad_alloc(); });
  EXPECT_EQ(dialogs_.Take(), (Messages{"Overflow", "Type mismatch", "Out of memory"}));
  runner_.Run([this] { log_ += "on"; });
  EXPECT_EQ(log_, "on");
}

TEST_F(CommandRunnerTest, LetsTheNewestCommandWinAndNestsNone) {
  runner_.Run([this] {
    struct Unwound {
      std::string& log;
      ~Unwound() { log += "unwound "; }
    } const unwound{log_};
    runner_.Run([this] { log_ += "never "; });
    runner_.Run([this] { log_ += "newest "; });
    runner_.Yield();
    log_ += "not reached ";
  });
  EXPECT_EQ(log_, "unwound newest ");
}

TEST_F(CommandRunnerTest, RunsTheNewerCommandAfterOneThatNeverYieldsAndNoneAtTheClose) {
  runner_.Run([this] {
    runner_.Run([this] {
      log_ += "second";
      runner_.Run([this] { log_ += "never"; });
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
