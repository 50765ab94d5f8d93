#pragma once

#include <gtest/gtest.h>
#include <type_traits>

#include "app/play/session.h"
#include "puzzle/fresh_puzzle.h"
#include "support/stand_ins.h"

namespace numorra {

/// A session that plays puzzles as a window does, without one.
class PuzzleSession : public testing::Test {
 protected:
  PuzzleSession() {
    session_.Connect({boxes_, options_, dialogs_, stage_, stage_});
    session_.Start();
  }

  /// Runs a command in the same way as a window.
  template <class Command>
  auto Do(const std::string& name, Command command) {
    session_.BeginCommand();
    if constexpr (std::is_void_v<decltype(command())>) {
      command();
      session_.EndCommand(name);
    } else {
      auto result = command();
      session_.EndCommand(name);
      return result;
    }
  }

  /// Lays out a fresh puzzle.
  MadePuzzle LayOutPuzzle(int order, Grade grade) {
    const auto made = MakeFreshPuzzle({order}, {grade}, session_.TheRandom, stage_);
    Do("Hide Numbers", [&] { session_.Take(std::get<MadePuzzle>(made)); });
    return std::get<MadePuzzle>(made);
  }

  void Go(int row, int column) {
    Do("move", [&] { TheGrid().SetCurrent(row, column); });
  }
  void Type(const std::string& keys) {
    for (const char key : keys)
      Do(UndoHistory::kTyping, [&] { session_.Entry().TypeCharacter(Key(key)); });
  }
  void Enter(Place place, std::int64_t number) {
    Go(place.Row, place.Column);
    Type("<<<" + std::to_string(number));
    Do("check", [this] { session_.Entry().PressEnter(); });
  }

  /// Types notes into the current cell; "|" ends a number, "<" is Backspace.
  void Note(const std::string& keys) {
    for (const char key : keys) {
      if (key == '|') {
        session_.Noting().EndNumber();
      } else {
        Do(UndoHistory::kNoting, [&] { session_.Noting().TypeCharacter(Key(key)); });
      }
    }
  }

  void Turn(const char* item) {
    Do(item, [&] { session_.Edits().Run(*FindEdit(std::string(item))); });
  }
  void Undo() {
    Do("Undo", [this] { session_.History.Undo(session_.TheBoard); });
  }

  Grid& TheGrid() { return session_.TheBoard.grid; }
  static char32_t Key(char key) { return key == '<' ? 8 : static_cast<char32_t>(key); }

  TickingClock clock_{7};
  PlainBoxes boxes_{"11", "34"};
  PlainOptions options_;
  ScriptedDialogs dialogs_;
  NotingStage stage_;
  Session session_{clock_};
};

}  // namespace numorra
