#include "puzzle/chain.h"

#include "puzzle/step_rules.h"

namespace numorra {
namespace {

constexpr int kMostNotes = 5000;
constexpr std::size_t kMostEnds = 6;

}  // namespace

std::optional<Chain> ChainFinder::ToNumber() {
  return Find();
}

std::optional<Chain> ChainFinder::ToRefute(int cell, std::int64_t number) {
  supposed_ = {StepRule::Suppose, -1, cell, number};
  const auto supposed = Derive(now_, *supposed_);
  if (!supposed) return std::nullopt;
  notes_.Add({*supposed, 0});
  Commit(now_, *supposed);
  return Find();
}

std::vector<Move> ChainFinder::Narrowing() {
  Find();
  return notes_.Moves();
}

/// A chain ends with a number, in a trial with a contradiction.
bool ChainFinder::IsEnd(const Step& step) const {
  return supposed_ ? step.IsContradiction() : step.Left.IsOne();
}

std::optional<Chain> ChainFinder::Find() {
  touched_.assign(static_cast<std::size_t>(now_.Map().Lines()), 1);
  for (int round = 1; notes_.Size() < kMostNotes; ++round) {
    yielding_.Yield();
    const std::vector<Note> found = NextRound(round);
    std::vector<Note> ends;
    for (const Note& note : found) {
      if (!supposed_ && note.Shown.IsContradiction()) return std::nullopt;
      if (IsEnd(note.Shown) && ends.size() < kMostEnds) ends.push_back(note);
    }
    if (!ends.empty()) return ShortestTo(ends);
    if (found.empty()) return std::nullopt;
    Take(found);
  }
  return std::nullopt;
}

/// Every step that changes something now. Those that fill gaps come last: the rules of a line
/// depend on the number of its gaps.
std::vector<ChainFinder::Note> ChainFinder::NextRound(int round) const {
  std::vector<Note> found;
  const auto add = [&](const Move& move) {
    if (auto step = Derive(now_, move)) {
      found.push_back(ChainNotes::NoteOf(std::move(*step), round, now_));
    }
  };
  for (int line = 0; line < now_.Map().Lines(); ++line) {
    if (touched_[static_cast<std::size_t>(line)] == 0) continue;
    for (const Move& move : MovesOf(now_, line, grade_))
      add(move);
  }
  for (int cell = 0; cell < now_.Cells(); ++cell) {
    if (now_.Value(cell) == 0 && now_.Count(cell) < 2) add({StepRule::OneCandidate, -1, cell});
  }
  if (now_.IsNormal()) AddPlaces(round, found);
  return found;
}

/// The missing numbers that fit one gap or none.
void ChainFinder::AddPlaces(int round, std::vector<Note>& found) const {
  std::vector<int> places(static_cast<std::size_t>(now_.Cells()) + 1);
  for (int cell = 0; cell < now_.Cells(); ++cell) {
    for (std::int64_t number = now_.Low(cell); number <= now_.High(cell); ++number) {
      const int weight = now_.Value(cell) != 0 ? 2 : 1;  // a number in place is not missing
      if (now_.Allows(cell, number)) places[static_cast<std::size_t>(number)] += weight;
    }
  }
  for (int number = 1; number <= now_.Cells(); ++number) {
    if (places[static_cast<std::size_t>(number)] > 1) continue;
    if (auto step = Derive(now_, {StepRule::OnePlace, -1, -1, number})) {
      found.push_back(ChainNotes::NoteOf(std::move(*step), round, now_));
    }
  }
}

/// Makes the steps of a round, and queues the lines that they change.
void ChainFinder::Take(const std::vector<Note>& found) {
  bool fills = false;
  touched_.assign(touched_.size(), 0);
  for (const Note& note : found) {
    fills = fills || note.Shown.Fills();
    for (const int line : now_.Map().LinesOf(note.Shown.Cell))
      touched_[static_cast<std::size_t>(line)] = 1;
    Commit(now_, note.Shown);
    notes_.Add(note);
  }
  if (fills) touched_.assign(touched_.size(), 1);  // its number is ruled out everywhere
}

std::optional<Chain> ChainFinder::ShortestTo(const std::vector<Note>& ends) {
  const ChainGoal goal = supposed_ ? ChainGoal::Refuted : ChainGoal::Number;
  const auto replayed = [&](std::vector<Move> moves) {
    if (supposed_) {
      std::erase_if(moves, [](const Move& move) { return move.By == StepRule::Suppose; });
      moves.insert(moves.begin(), *supposed_);
      moves.push_back({StepRule::Refute, -1, supposed_->Cell, supposed_->Number});
    }
    return Replayed(base_, moves, goal);
  };
  std::optional<Chain> best;
  for (const Note& end : ends) {
    auto chain = replayed(notes_.Trace(end, now_));
    if (!chain) {
      std::vector<Move> all = notes_.Moves();
      all.push_back(end.Shown);
      chain = replayed(std::move(all));
    }
    if (!chain) continue;
    chain = Shortened(base_, std::move(*chain), goal, yielding_);
    if (!best || chain->size() < best->size()) best = std::move(chain);
  }
  return best;
}

}  // namespace numorra
