#pragma once

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "app/ports/dialogs.h"

namespace numorra {

/// Notes what is said, answers questions from a list, and takes offence at what nobody expected.
class ScriptedDialogs : public Dialogs {
 public:
  ~ScriptedDialogs() override { EXPECT_EQ(Said, std::vector<std::string>{}) << "unexpected boxes"; }

  void Tell(const std::string& message) override { Said.push_back(message); }

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

  /// What has been said since the last look.
  std::vector<std::string> Take() { return std::exchange(Said, {}); }

  std::vector<std::string> Said;
  std::deque<bool> Answers;
  std::deque<std::string> Texts;
};

}  // namespace numorra
