#pragma once

#include <map>
#include <vector>

#include "puzzle/candidates.h"
#include "puzzle/step.h"

namespace numorra {

/// The steps that a forward search has noted, round by round, and the way back from an end to those
/// that it needs.
///
/// A step needs certain numbers ruled out in certain gaps: the bounds of a line need those beyond
/// the ends of its other gaps; a number that leaves a pair of gaps needs its partner ruled out.
/// Each is traced to a note of an earlier round, the one that rules out most of what is still
/// needed there, until the board itself explains the rest.
class ChainNotes {
 public:
  using Numbers = std::vector<std::int64_t>;

  /// A step, its round, and the candidates of the gaps of its line at that time.
  struct Note {
    Step Shown;
    int Round = 0;
    struct Ends {
      int Cell;
      std::int64_t Low, High;
    };
    std::vector<Ends> Used = {};
  };

  /// `base`: the board before the first round.
  explicit ChainNotes(const Candidates& base) : base_(base) {}

  /// The note of a step derived from `board` in a round.
  static Note NoteOf(Step step, int round, const Candidates& board);

  /// Adds a note; rounds never decrease.
  void Add(Note note);
  int Size() const { return static_cast<int>(notes_.size()); }

  /// The moves that lead to the end and the end itself, in order; `board` is as the last round left
  /// it.
  std::vector<Move> Trace(const Note& end, const Candidates& board);

  /// The moves of all notes.
  std::vector<Move> Moves() const;

 private:
  const Note& At(int index) const { return notes_[static_cast<std::size_t>(index)]; }
  void NeedForEnd(const Note& end, const Candidates& board);
  void NeedFor(const Note& note, const Numbers& numbers);
  void NeedForLine(const Note& note, const Numbers& numbers);
  void NeedRuledOut(int round, int cell, Numbers numbers);
  void NeedFilled(int cell);
  bool RulesOut(const Note& note, int cell, std::int64_t number) const;
  Numbers Outside(int cell, std::int64_t low, std::int64_t high) const;

  const Candidates& base_;
  std::vector<Note> notes_;
  std::map<int, std::vector<int>> about_;          ///< the notes about a cell
  std::map<std::int64_t, std::vector<int>> puts_;  ///< the notes that put a number
  std::map<int, int> filling_;                     ///< the note that filled a cell
  std::map<int, Numbers> needed_;                  ///< by note: the numbers it has to rule out
};

}  // namespace numorra
