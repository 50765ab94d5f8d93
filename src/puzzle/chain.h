#pragma once

#include <optional>
#include <vector>

#include "app/ports/yielding.h"
#include "puzzle/chain_notes.h"
#include "puzzle/chain_replay.h"

namespace numorra {

/// Finds a short chain of steps that ends with a number in a gap; or, in a trial, with a
/// contradiction. It works in three passes:
///
/// 1. Forward, in rounds. Each round applies every rule of the grade to the board as the round
///    before left it, and notes all steps that change something. So the first round that reaches an
///    end reaches it in the fewest rounds.
/// 2. Back. Several ends of that round are traced to the notes that they need (ChainNotes).
/// 3. Again, shorter. The traced moves are made on the board as it stands, and each is left out if
///    the end is reached without it (Shortened). What the steps say is taken from the last run.
///
/// No step of the chain can be left out. A shorter one with other steps may exist.
class ChainFinder {
 public:
  /// `board` has its gaps' candidates before any rule, apart from numbers refuted by told steps.
  /// `grade` is Medium or Hard. Yields at every round; an exception thrown by a yield ends the
  /// search.
  ChainFinder(const Candidates& board, Grade grade, Yielding& yielding)
      : base_(board), now_(board), grade_(grade), yielding_(yielding), notes_(base_) {}

  /// The chain to the next number; nothing if the rules give none, or if it takes too many steps.
  std::optional<Chain> ToNumber();

  /// The chain that refutes a number in a gap, from Suppose to Refute; nothing if the rules do not
  /// refute it, or not in a reasonable number of steps.
  std::optional<Chain> ToRefute(int cell, std::int64_t number);

  /// All steps by which the rules narrow the gaps, in rounds, if they give no number.
  std::vector<Move> Narrowing();

 private:
  using Note = ChainNotes::Note;

  std::optional<Chain> Find();
  std::vector<Note> NextRound(int round) const;
  void AddPlaces(int round, std::vector<Note>& found) const;
  void Take(const std::vector<Note>& found);
  bool IsEnd(const Step& step) const;
  std::optional<Chain> ShortestTo(const std::vector<Note>& ends);

  Candidates base_;
  Candidates now_;
  Grade grade_;
  Yielding& yielding_;
  ChainNotes notes_;
  std::optional<Move> supposed_;  ///< in a trial
  std::vector<char> touched_;     ///< by line: whether the round before changed it
};

}  // namespace numorra
