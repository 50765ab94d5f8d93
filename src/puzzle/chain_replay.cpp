#include "puzzle/chain_replay.h"

#include <algorithm>

#include "puzzle/step_rules.h"

namespace numorra {
namespace {

/// Makes moves, and keeps the steps.
class Replay {
 public:
  Replay(Candidates& board, ChainGoal goal) : board_(board), goal_(goal), start_(board.Mark()) {}
  ~Replay() { board_.UndoTo(start_); }
  Replay(const Replay&) = delete;
  Replay& operator=(const Replay&) = delete;

  /// False if the move starts a trial inside another one, or does not end one rightly.
  bool Make(const Move& move) {
    if (inTrial_ && move.By == StepRule::Suppose) return false;
    if (contradicted_ && move.By != StepRule::Refute) return true;
    if (move.By == StepRule::Refute) {
      const bool ends = move.Cell == supposed_.Cell && move.Number == supposed_.Number;
      if (!contradicted_ || !ends) return false;
      board_.UndoTo(beforeTrial_);
      inTrial_ = contradicted_ = false;
    }
    auto step = Derive(board_, move);
    if (!step) return move.By != StepRule::Suppose;
    if (move.By == StepRule::Suppose) {
      supposed_ = move;
      beforeTrial_ = board_.Mark();
      inTrial_ = true;
    }
    step->Supposed = inTrial_;
    contradicted_ = step->IsContradiction();
    reached_ =
        goal_ == ChainGoal::Number ? !inTrial_ && step->Left.IsOne() : move.By == StepRule::Refute;
    Commit(board_, *step);
    Steps.push_back(std::move(*step));
    return inTrial_ || !contradicted_;
  }

  bool Reached() const { return reached_; }

  Chain Steps;

 private:
  Candidates& board_;
  ChainGoal goal_;
  std::size_t start_;
  Move supposed_;
  std::size_t beforeTrial_ = 0;
  bool inTrial_ = false;
  bool contradicted_ = false;
  bool reached_ = false;
};

/// The moves of a chain without the one at `left`; a trial goes as a whole, with its end. If the
/// move fills a gap, the one before it that narrowed the gap fills it instead. Nothing for the
/// start of a trial.
std::vector<Move> Without(const Chain& chain, std::size_t left) {
  std::vector<Move> moves(chain.begin(), chain.end());
  const auto at = moves.begin() + static_cast<std::ptrdiff_t>(left);
  if (at->By == StepRule::Suppose) return {};
  if (at->By == StepRule::Refute) {
    auto start = at;
    while (start->By != StepRule::Suppose)
      --start;
    moves.erase(start, at + 1);
    return moves;
  }
  if (at->By == StepRule::OneCandidate) {
    for (auto before = at; before != moves.begin() && (--before)->By != StepRule::Suppose;) {
      if (before->Cell != at->Cell) continue;
      before->Puts = true;
      break;
    }
  }
  moves.erase(at);
  return moves;
}

}  // namespace

std::optional<Chain> Replayed(Candidates& board, const std::vector<Move>& moves, ChainGoal goal) {
  Replay replay(board, goal);
  for (const Move& move : moves) {
    if (!replay.Make(move)) return std::nullopt;
    if (replay.Reached()) return std::move(replay.Steps);
  }
  return std::nullopt;
}

Chain Shortened(Candidates& board, Chain chain, ChainGoal goal, Yielding& yielding) {
  constexpr std::size_t kFewest = 4;
  for (std::size_t size = chain.size() / 2; size >= kFewest; size /= 2) {
    for (std::size_t end = chain.size(); end >= size; end = std::min(end - size, chain.size())) {
      yielding.Yield();
      std::vector<Move> moves(chain.begin(), chain.end());
      const auto last = moves.begin() + static_cast<std::ptrdiff_t>(end);
      moves.erase(last - static_cast<std::ptrdiff_t>(size), last);
      if (auto shorter = Replayed(board, moves, goal)) chain = std::move(*shorter);
    }
  }
  for (std::size_t before = chain.size() + 1; chain.size() < before;) {
    before = chain.size();
    for (std::size_t i = chain.size(); i-- > 0;) {
      if (i >= chain.size()) continue;
      yielding.Yield();
      if (auto shorter = Replayed(board, Without(chain, i), goal)) chain = std::move(*shorter);
    }
  }
  return chain;
}

}  // namespace numorra
