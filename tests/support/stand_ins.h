#pragma once

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "app/board/random.h"
#include "app/ports/build_options.h"
#include "app/ports/build_stage.h"
#include "app/ports/dialogs.h"
#include "app/ports/square_boxes.h"
#include "listbox/list_boy.h"

/// Stand-ins for what the logic needs from a window.
namespace numorra {

using Messages = std::vector<std::string>;

/// Records messages, answers questions from a list, and fails on unexpected ones.
class ScriptedDialogs : public Dialogs {
 public:
  ~ScriptedDialogs() override { EXPECT_EQ(Said, Messages{}) << "unexpected boxes"; }

  void Tell(const std::string& message) override {
    Said.push_back(message);
    if (OnTell) OnTell();
  }

  bool Ask(const std::string& question) override {
    Said.push_back(question);
    if (Answers.empty()) return false;
    const bool answer = Answers.front();
    Answers.pop_front();
    return answer;
  }

  std::optional<std::string> AskText(const std::string& prompt,
                                     const std::string& initial) override {
    Said.push_back(prompt + " [" + initial + "]");
    if (Texts.empty()) return std::nullopt;
    const std::string text = Texts.front();
    Texts.pop_front();
    return text;
  }

  /// The messages since the last call.
  Messages Take() { return std::exchange(Said, {}); }

  std::function<void()> OnTell;  ///< while the box is open
  Messages Said;
  std::deque<bool> Answers;
  std::deque<std::string> Texts;
};

/// The size and sum boxes without a window.
struct PlainBoxes : SquareBoxes {
  explicit PlainBoxes(std::string size = "", std::string sum = "")
      : SizeText(std::move(size)), SumText(std::move(sum)) {}

  std::string Size() const override { return SizeText; }
  std::string Sum() const override { return SumText; }
  void SetSize(const std::string& text) override { SizeText = text; }
  void SetSum(const std::string& text) override { SumText = text; }

  std::string SizeText;
  std::string SumText;
};

/// A stage that records what is shown, and may interrupt a build at one of its yields.
class NotingStage : public BuildStage {
 public:
  using BuildStage::ShowCount;
  void ShowBusy(bool busy) override { Busy = busy; }
  void ShowCounter(bool counting) override { Counting = counting; }
  void ShowCount(const char* text) override { Count = text; }
  void Yield() override {
    if (YieldsLeft >= 0 && YieldsLeft-- == 0) OnLastYield();
  }

  bool Busy = false;
  bool Counting = false;
  std::string Count;
  int YieldsLeft = -1;
  std::function<void()> OnLastYield = [] { throw Superseded(); };
};

struct PlainOptions : BuildOptions {
  bool LimitToNine() const override { return Limit; }
  void UncheckLimit() override { Limit = false; }
  std::optional<double> Corner() const override { return WantedCorner; }
  bool Limit = false;
  std::optional<double> WantedCorner;
};

/// A list box without a window.
struct PlainListBox : ListBox {
  void AddItem(const std::string& text) override { Entries.push_back(text); }
  int ListCount() const override { return static_cast<int>(Entries.size()); }
  std::string List(int index) const override { return Entries[static_cast<std::size_t>(index)]; }
  std::vector<std::string> Entries;
};

/// A clock that returns given readings, again and again.
struct ScriptedClock : Clock {
  explicit ScriptedClock(std::vector<std::uint64_t> readings) : Readings(std::move(readings)) {}
  std::uint64_t NanosecondsSinceMidnight() override { return Readings[Next++ % Readings.size()]; }
  std::vector<std::uint64_t> Readings;
  std::size_t Next = 0;
};

/// Random numbers that are the same in every run.
class SeededRandom : public Random {
 public:
  explicit SeededRandom(std::uint64_t seed) : clock_(seed) {}
  void Reseed() override { random_.Reseed(); }
  double Next() override { return random_.Next(); }

 private:
  TickingClock clock_;
  ClockSeededRandom random_{clock_};
};

/// Random numbers from a list, repeated.
class ScriptedRandom : public Random {
 public:
  explicit ScriptedRandom(std::vector<double> numbers) : numbers_(std::move(numbers)) {}
  void Reseed() override { ++Reseeds; }
  double Next() override { return numbers_[next_++ % numbers_.size()]; }

  int Reseeds = 0;

 private:
  std::vector<double> numbers_;
  std::size_t next_ = 0;
};

}  // namespace numorra
