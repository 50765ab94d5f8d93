#include "app/play/study_commands.h"

#include <algorithm>

#include "app/board/decimal_sum.h"
#include "app/board/numbers.h"
#include "app/board/orders.h"
#include "app/board/totals_check.h"
#include "app/play/lay_out.h"
#include "study/images.h"
#include "study/relatives.h"
#include "words/say.h"

namespace numorra {
namespace {

Square<double> NumbersOn(const Board& board) {
  return SquareOf(board.GridSize, [&](int cell) {
    const Place place = PlaceAt(cell, board.GridSize);
    return Val(board.grid.Text(place.Row, place.Column));
  });
}

/// The numbers of a full board; otherwise tells the player what is missing.
std::optional<Square<double>> FullBoard(const CommandContext& context) {
  const Board& board = context.TheBoard;
  std::optional<Place> gap;
  ForEachCell(board.GridSize, [&](int r, int c) {
    if (board.grid.At(r, c).IsGap() && !gap) gap = Place{r, c};
  });
  if (!gap) return NumbersOn(board);
  context.TheDialogs.Tell(Say("%1 is empty: this needs a full board", NameOf(*gap)));
  return std::nullopt;
}

/// Replaces the board's numbers, and removes the notes, which were about the others.
void Replace(Board& board, const Square<double>& numbers) {
  const RedrawLock lock(board.grid);
  ForEachCell(board.GridSize, [&](int r, int c) {
    board.BoardValues(r, c) = numbers[Place{r, c}];
    board.grid.SetGiven(r, c, false);
  });
  board.grid.SetNotes({});
  board.ShowBoard();
  board.NewEntry = true;  // another square than the one that was typed into
  RefreshTotals(board);
}

void SetTarget(const CommandContext& context, double target) {
  Board& board = context.TheBoard;
  if (target == board.TargetTotal) return;
  board.TargetTotal = target;
  if (board.SolveMode == ModeVariable) context.Boxes.SetSum(Decimal(target));
}

double FirstRowTotal(const Square<double>& square) {
  DecimalSum sum;
  for (int cell = 0; cell < square.Order(); ++cell)
    sum.Add(square[cell]);
  return sum.Total();
}

/// Lays out the normal square that `maker` builds for the order in the size box, or says why it
/// makes none.
template <class Maker, class Build>
bool LayOutNormal(const Maker& maker, const CommandContext& context, Build build) {
  const int order = ToInt16(Val(context.Boxes.Size()));
  const char* const none = WhyNoBoardHas(order);
  const std::string why = none ? Say(none) : maker.WhyNone(order);
  if (!why.empty()) {
    context.TheDialogs.Tell(why);
    return false;
  }
  context.TheRandom.Reseed();
  LayOut(context.TheBoard, context.Boxes,
         {.Cells = StoredCells(build(order, context.TheRandom)),
          .Total = static_cast<double>(NormalTotal(order)),
          .Asked = Rules::Normal});
  return true;
}

}  // namespace

std::optional<NumberSquare> SquareOn(const Board& board) {
  if (!board.Shown() || board.HasGaps()) return std::nullopt;
  return NumberSquare(NumbersOn(board));
}

void VaryBoard(const CommandContext& context) {
  const auto numbers = FullBoard(context);
  if (!numbers) return;
  context.TheRandom.Reseed();
  if (const auto varied = Varied(*numbers, context.TheRandom)) {
    Replace(context.TheBoard, *varied);
  } else {
    context.TheDialogs.Tell(Say("all squares of this family look like this one"));
  }
}

void ComplementBoard(const CommandContext& context) {
  const auto numbers = FullBoard(context);
  if (!numbers) return;
  const Square<double> complement = ComplementOf(*numbers);
  for (int cell = 0; cell < complement.Size(); ++cell) {
    if (DigitsOf(Decimal(complement[cell])) <= kMostCellDigits) continue;
    context.TheDialogs.Tell(Say("the complement of %1 in %2 has more than %3 digits",
                                Written((*numbers)[cell]), NameOf(complement.PlaceOf(cell)),
                                kMostCellDigits));
    return;
  }
  Board& board = context.TheBoard;
  const auto [least, most] = std::minmax_element(numbers->begin(), numbers->end());
  DecimalSum target;
  for (int line = 0; line < board.GridSize; ++line) {
    target.Add(*least);
    target.Add(*most);
  }
  target.Subtract(board.TargetTotal);
  SetTarget(context, target.Total());
  Replace(board, complement);
}

void BringToStandardForm(const CommandContext& context) {
  const auto numbers = FullBoard(context);
  if (!numbers) return;
  const Square<double> form = StandardForm(*numbers);
  if (form == *numbers) {
    context.TheDialogs.Tell(Say("this is the standard form"));
  } else {
    Replace(context.TheBoard, form);
  }
}

void ShowRelative(const Relative& relative, const CommandContext& context) {
  const auto numbers = FullBoard(context);
  if (!numbers) return;
  context.TheRandom.Reseed();
  const auto drawn = DrawRelative(relative, *numbers, context.TheRandom);
  if (!drawn) {
    context.TheDialogs.Tell(Say("this square has no such relative of its kind"));
    return;
  }
  Board& board = context.TheBoard;
  if (!relative.SameNumbers) {
    if (FirstRowTotal(*numbers) == board.TargetTotal) {
      SetTarget(context, FirstRowTotal(*drawn));
    }
    board.Asked = Rules::Positive;
  }
  Replace(board, *drawn);
}

bool LayOutSpecial(const SpecialKind& kind, const CommandContext& context) {
  return LayOutNormal(kind, context, kind.Build);
}

bool LayOutConstruction(const Construction& construction, const CommandContext& context) {
  return LayOutNormal(construction, context, [&](int order, Random& random) {
    return SquareBy(construction, order, random);
  });
}

void LayOutFamous(const FamousSquare& famous, const CommandContext& context) {
  LayOut(context.TheBoard, context.Boxes,
         {.Cells = StoredCells(famous.Numbers), .Total = famous.Total});
}

}  // namespace numorra
