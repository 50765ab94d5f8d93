#include "toolkit/command_runner.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <QSlider>
#include <QTest>

#include "app/board/runtime_error.h"
#include "app/ports/build_stage.h"
#include "support/stand_ins.h"
#include "toolkit/on_signal.h"

namespace numorra {
namespace {

class CommandRunnerTest : public testing::Test {
 protected:
  ScriptedDialogs dialogs_;
  CommandRunner runner_{dialogs_};
  std::string log_;
};

TEST_F(CommandRunnerTest, ReportsARuntimeErrorAndContinues) {
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

TEST_F(CommandRunnerTest, ReportsEveryCommandHoweverItEnds) {
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
      runner_.Abandon();
      runner_.Yield();
      log_ += "not reached";
    });
    log_ += "first ";
  });
  EXPECT_EQ(log_, "first second");
}

TEST_F(CommandRunnerTest, SlotsStayInsideTheBoundary) {
  QPushButton button("&Press");
  QSlider slider;
  OnClick(runner_, &button, &button, [] { throw RuntimeError(Fault::Overflow); });
  OnSignal(runner_, &slider, &QSlider::valueChanged, &slider,
           [this](int value) { log_ += std::to_string(value); });
  button.click();
  slider.setValue(7);
  EXPECT_EQ(dialogs_.Take(), Messages{"Overflow"});
  EXPECT_EQ(log_, "7");
  button.animateClick();
  button.setEnabled(false);
  constexpr int kPressed = 100;  // milliseconds, the toolkit's own value
  QTest::qWait(2 * kPressed);
  EXPECT_EQ(dialogs_.Take(), Messages{}) << "disabled while it was down";
}

}  // namespace
}  // namespace numorra
