#include <map>
#include <sstream>

#include <QApplication>
#include <QDockWidget>
#include <QMessageBox>

#include "app/play/board_state.h"
#include "app/play/walk.h"
#include "monkey/monkey.h"
#include "support/invariants.h"
#include "words/language.h"

namespace numorra {
namespace {

/// The expected state line, from the slow checker and the totals on the screen.
std::string StateByHand(const Board& board) {
  if (!board.Shown()) return "";
  const Grid& grid = board.grid;
  const int n = board.GridSize;
  std::map<std::string, int> numbers;
  const std::size_t last = static_cast<std::size_t>(n) * 2 + 1;
  std::vector<std::vector<std::string>> lines(last + 1);
  int gaps = 0;
  ForEachCell(n, [&](int r, int c) {
    const std::string& text = grid.Text(r, c);
    gaps += text.empty() || text == "-";
    // A number that is being typed counts when its cell is left, as in the totals.
    const bool typed = board.Typing() && r == grid.CurrentRow() && c == grid.CurrentColumn();
    const std::string number = Decimal(typed ? board.BoardValues(r, c) : Val(text));
    ++numbers[number];
    lines[static_cast<std::size_t>(r - 1)].push_back(number);
    lines[static_cast<std::size_t>(n + c - 1)].push_back(number);
    if (r == c) lines[last - 1].push_back(number);
    if (r + c == n + 1) lines[last].push_back(number);
  });
  std::ostringstream state;
  state << n << " x " << n << ", sum " << Decimal(board.TargetTotal) << ": ";
  auto right = std::count_if(lines.begin(), lines.end(), [&](const auto& line) {
    return Decimal(Val(paper::Sum(line))) == Decimal(board.TargetTotal);
  });
  bool equal = numbers.size() == 1 && numbers.begin()->first == Decimal(board.BaseValue);
  if (board.TotalsJudged) {
    right = 0;
    for (int line = 0; line <= n + 1; ++line) {
      right += grid.VerdictOf(0, line) == Verdict::Right;
      right += line > 0 && line <= n && grid.VerdictOf(line, 0) == Verdict::Right;
    }
    equal = board.UntouchedBase;
  }
  const auto repeated = std::count_if(numbers.begin(), numbers.end(),
                                      [](const auto& number) { return number.second > 1; });
  if (gaps > 0) {
    state << gaps << (gaps == 1 ? " cell to fill" : " cells to fill");
    if (board.HasGivens()) {
      state << (board.Asked == Rules::Positive ? ", any whole numbers"
                                               : ", 1 to " + std::to_string(n * n) + " each once");
    }
  } else if (equal) {
    state << "all cells are still equal";
  } else if (right < 2 * n + 2) {
    state << right << " of " << 2 * n + 2 << " lines right";
  } else {
    state << "magic";
    if (repeated > 0) {
      state << ", " << repeated << (repeated == 1 ? " number" : " numbers") << " more than once";
    }
  }
  if (board.TotalsChecked && !board.NewEntry) state << ", Enter checks";
  if (!board.TotalsChecked) state << ", F9 to play";
  return state.str();
}

}  // namespace

std::string Monkey::WhyWrong() {
  const Board& board = window_.TheBoard();
  if (QGuiApplication::overrideCursor()) return "the busy pointer is left over";
  const auto* frame = window_.findChild<QWidget*>("Frame3");  // full screen hides all of it
  if (!window_.findChild<QPushButton*>("SolveAuto")->isVisibleTo(frame)) return "Auto is hidden";
  if (qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) return "a box is left open";
  if (board.Shown() && board.grid.Visible() == board.OverlayShown) return "nothing is in sight";
  const QString state = window_.findChild<QWidget*>("BoardState")->accessibleName();
  const auto* walk = window_.findChild<WalkView*>();
  if (walk->isVisibleTo(&window_) !=
      window_.findChild<QDockWidget*>("StepPanel")->isVisibleTo(&window_)) {
    return "a walk without its panel, or a panel without its walk";
  }
  const bool walks = walk->isVisibleTo(&window_);
  if (state.toStdString() != (walks ? StateOf(walk->TheWalk()) : StateOf(board))) {
    return "the state line says " + state.toStdString();
  }
  const InEnglish scope;
  if (walks && StateOf(walk->TheWalk()).find(": step ") == std::string::npos) return "no step";
  if (!walks && StateOf(board) != StateByHand(board)) return "the state is " + StateOf(board);
  return WhyInvalid(board);
}

}  // namespace numorra
