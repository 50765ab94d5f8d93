#include "print/worksheet.h"

#include <algorithm>

#include "print/sheet_text.h"
#include "print/sheet_words.h"
#include "puzzle/candidates.h"
#include "puzzle/code.h"
#include "puzzle/grade.h"
#include "toolkit/tr.h"

namespace numorra {
namespace {

constexpr double kLargeText = 18 * 25.4 / 72;  // 18 pt in millimetres
constexpr double kTitle = 7;
constexpr double kNumberOfCell = 0.5;  // the height of a number, as a share of its cell
constexpr double kWidthOfCell = 0.8;   // its greatest width
constexpr double kUnderBoard = 2;      // millimetres between a board and what is below it

/// Paints the board with the numbers of `puzzle`; those of `clues` in bold.
void PaintBoard(QPainter& painter, const QRectF& board, double side, const Puzzle& puzzle,
                const Puzzle& clues) {
  constexpr double kThin = 0.2;
  constexpr double kThick = 0.6;
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(Qt::black, kThick));
  painter.drawRect(board);
  painter.setPen(QPen(Qt::black, kThin));
  for (int cell = 0; cell < puzzle.Cells.Size(); ++cell) {
    const Place place = puzzle.Cells.PlaceOf(cell);
    const QRectF here(board.left() + (place.Column - 1) * side,
                      board.top() + (place.Row - 1) * side, side, side);
    painter.drawRect(here);
    if (puzzle.Cells[cell] == 0) continue;
    const double free = side * (1 - kWidthOfCell) / 2;
    WriteFitted(painter, here.adjusted(free, 0, -free, 0), Qt::AlignCenter,
                QString::number(puzzle.Cells[cell]),
                {side * kNumberOfCell, clues.Cells[cell] != 0});
  }
}

/// "Name:" and a line to write on, at the bottom of `area`.
void PaintNameLine(QPainter& painter, const QRectF& area, double height) {
  constexpr double kAbove = 2;  // the line, above the bottom
  constexpr double kUsualText = 14;
  constexpr double kLeastGap = 0.5;
  WriteFitted(painter, area, Qt::AlignLeft | Qt::AlignVCenter, Tr("Name:"), {height});
  painter.setPen(QPen(Qt::black, 0.2));
  const double text = height < kLargeText
                          ? std::max(kUsualText, LineWidth(Tr("Name:"), {height}) + kLeastGap)
                          : LineWidth(Tr("Name:") + " ", {height});
  painter.drawLine(area.bottomLeft() + QPointF(text, -kAbove),
                   area.bottomRight() + QPointF(0, -kAbove));
}

QString CodeTextOf(const MadePuzzle& made) {
  return QString::fromStdString(CodeOf(made.Clues));
}

/// The side of a cell in which all numbers of a puzzle are in large print.
double LargeCellOf(const MadePuzzle& made) {
  constexpr double kReserve = 1.01;  // printers measure letters a little differently
  const auto largest = *std::max_element(made.Solution.Cells.begin(), made.Solution.Cells.end());
  const double width = LineWidth(QString::number(largest), {kLargeText, true});
  return kReserve * std::max(kLargeText / kNumberOfCell, width / kWidthOfCell);
}

double CellSideOn(const SheetPlan& plan, const MadePuzzle& made) {
  const double largest = plan.Options.LargePrint
                             ? std::max(SheetPlan::kLargestCell, LargeCellOf(made))
                             : SheetPlan::kLargestCell;
  return plan.CellSide(made.Clues.Order(), largest);
}

}  // namespace

bool TotalCanBeFound(const Puzzle& puzzle) {
  if (puzzle.Asked == Rules::Normal) return true;
  const Candidates board(puzzle);
  for (int line = 0; line < board.Map().Lines(); ++line) {
    if (board.GapsOf(line).empty()) return true;
  }
  return false;
}

Worksheet::Worksheet(std::vector<MadePuzzle> puzzles, WorksheetWish wish, bool landscape)
    : puzzles_(std::move(puzzles)), wish_(std::move(wish)), paper_(210, 279.4) {
  if (landscape) paper_.transpose();
  for (const bool answers : {false, true}) {
    int& perPage = perPage_[Of(answers)];
    perPage = wish_.Options.PageAPupil && !answers ? 1 : wish_.PerPage;
    const auto tooMany = [&] {
      return perPage > 1 && !WhyTooLargeOn(MakePlan(paper_, answers, perPage)).empty();
    };
    while (wish_.Options.LargePrint && tooMany())
      perPage = perPage == 2 ? 1 : perPage - 2;
  }
}

int Worksheet::PagesFor(bool answers) const {
  const int perPage = perPage_[Of(answers)];
  return (static_cast<int>(puzzles_.size()) + perPage - 1) / perPage;
}

SheetPlan Worksheet::MakePlan(QSizeF size, bool answers, int perPage) const {
  constexpr double kNameLine = 9, kFooter = 6;
  SheetPlan plan{.Paper = size, .Options = wish_.Options, .PerPage = perPage};
  if (wish_.Options.NameLines && !answers) plan.Name = kNameLine;
  if (wish_.Options.PageNumbers) plan.Footer = kFooter;
  if (wish_.Options.LargePrint) MakeLarge(plan, answers);
  return plan;
}

/// Makes room for texts of 18 pt, as high as the highest of all puzzles.
void Worksheet::MakeLarge(SheetPlan& plan, bool answers) const {
  constexpr double kBetweenTexts = 4;
  const double line = WrappedHeight("0", 1, {kLargeText});
  plan.Text = plan.Small = kLargeText;
  if (plan.Name > 0) plan.Name = line + kBetweenTexts;
  if (plan.Footer > 0) plan.Footer = line + kBetweenTexts;
  const double width = plan.Area(0).width();
  plan.Header = WrappedHeight(TitleOf(answers), width, {kTitle, true}) + kBetweenTexts;
  if (!answers) {
    plan.Header += WrappedHeight(RulesText(puzzles_), width, {kLargeText});
    if (!wish_.Options.NameLines) plan.Header += line + kBetweenTexts;
  }
  plan.Caption = plan.Below = 0;
  const double slot = plan.SlotArea(0, 0).width();
  for (int number = 0; number < static_cast<int>(puzzles_.size()); ++number) {
    double below = kUnderBoard + WrappedHeight(CodeTextOf(Made(number)), slot, {kLargeText});
    if (!answers) below += WrappedHeight(Missing(Made(number).Clues), slot, {kLargeText});
    plan.Caption =
        std::max(plan.Caption, WrappedHeight(CaptionOf(number, answers), slot, {kLargeText, true}));
    plan.Below = std::max(plan.Below, below);
  }
}

const SheetPlan& Worksheet::PlanOn(QSizeF size, bool answers) const {
  SheetPlan& plan = plans_[Of(answers)];
  if (plan.Paper != size) plan = MakePlan(size, answers, perPage_[Of(answers)]);
  return plan;
}

std::string Worksheet::WhyTooLargeOn(const SheetPlan& plan) const {
  if (!plan.Options.LargePrint) return {};
  int order = 0;
  for (const MadePuzzle& made : puzzles_) {
    if (CellSideOn(plan, made) < LargeCellOf(made)) order = std::max(order, made.Clues.Order());
  }
  if (order == 0) return {};
  return Say("a puzzle of size %1 has no room for large print on this page", order);
}

std::string Worksheet::WhyTooLarge() const {
  const std::string puzzles = WhyTooLargeOn(PlanOn(paper_, false));
  return puzzles.empty() ? WhyTooLargeOn(PlanOn(paper_, true)) : puzzles;
}

void Worksheet::PaintPage(QPainter& painter, QSizeF size, int page) const {
  const Leaf leaf = LeafOf(page);
  const SheetPlan& plan = PlanOn(size, leaf.Answers);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::black);
  if (const std::string why = WhyTooLargeOn(plan); !why.empty()) {
    WriteWrapped(painter, plan.Area(leaf.Number), Qt::AlignLeft, QString::fromStdString(why),
                 {plan.Text});
    return;
  }
  PaintHeader(painter, plan, leaf);
  if (plan.Footer > 0) PaintFooter(painter, plan, leaf);
  const int first = (leaf.Answers ? page - PuzzlePages() : page) * plan.PerPage;
  for (int place = 0; place < plan.PerPage; ++place) {
    const int number = first + place;
    if (number >= static_cast<int>(puzzles_.size())) break;
    PaintPuzzle(painter, plan, {plan.SlotArea(leaf.Number, place), number}, leaf.Answers);
  }
}

Worksheet::Leaf Worksheet::LeafOf(int page) const {
  const bool answers = page >= PuzzlePages();
  if (!wish_.Options.AnswersApart) return {page, Pages(), answers};
  return {answers ? page - PuzzlePages() : page, PagesFor(answers), answers};
}

QString Worksheet::TitleOf(bool answers) const {
  return answers ? Tr("%1: answers", wish_.Title) : wish_.Title;
}

void Worksheet::PaintHeader(QPainter& painter, const SheetPlan& plan, const Leaf& leaf) const {
  constexpr double kTitleLine = kTitle * 1.4;
  constexpr double kRules = 13;  // below the top
  constexpr double kRulesText = 3.7;
  const bool answers = leaf.Answers;
  const bool named = !answers && !wish_.Options.NameLines;
  const QRectF area = plan.Area(leaf.Number);
  const double width = area.width();
  if (!wish_.Options.LargePrint) {
    WriteFitted(painter, {area.left(), area.top(), width * 0.55, kTitleLine},
                Qt::AlignLeft | Qt::AlignVCenter, TitleOf(answers), {kTitle, true});
    if (named) {
      PaintNameLine(painter, {area.left() + width * 0.6, area.top(), width * 0.4, kTitleLine},
                    plan.Text);
    }
    if (answers) return;
    WriteWrapped(painter, {area.left(), area.top() + kRules, width, 0}, Qt::AlignLeft,
                 RulesText(puzzles_), {kRulesText});
    return;
  }
  WriteWrapped(painter, area, Qt::AlignLeft, TitleOf(answers), {kTitle, true});
  double top = area.top() + WrappedHeight(TitleOf(answers), width, {kTitle, true});
  if (named) {
    const double line = WrappedHeight("0", 1, {plan.Text});
    PaintNameLine(painter, {area.left(), top, width, line}, plan.Text);
    top += line;
  }
  if (answers) return;
  WriteWrapped(painter, {area.left(), top, width, 0}, Qt::AlignLeft, RulesText(puzzles_),
               {plan.Text});
}

void Worksheet::PaintFooter(QPainter& painter, const SheetPlan& plan, const Leaf& leaf) {
  const QRectF area = plan.Area(leaf.Number);
  WriteFitted(painter, {area.left(), area.bottom() - plan.Footer, area.width(), plan.Footer},
              Qt::AlignHCenter | Qt::AlignBottom, Tr("Page %1 of %2", leaf.Number + 1, leaf.Count),
              {plan.Small});
}

QString Worksheet::CaptionOf(int number, bool answer) const {
  const MadePuzzle& made = Made(number);
  const Puzzle& clues = made.Clues;
  if (answer) {
    return Tr("%1.   %2, total %3", number + 1, Tr(NameOf(made.Needed)), clues.Target);
  }
  const bool given = wish_.TotalGiven || !TotalCanBeFound(clues);
  const Filling total = given ? Filling(clues.Target) : Filling("________");
  const QString caption = Tr("%1.   Total: %2", number + 1, total);
  return AreMixed(puzzles_) ? Tr("%1; %2", caption, Numbers(made)) : caption;
}

/// Paints a puzzle, or its answer, with the text above it, the missing numbers below it, and its
/// code.
void Worksheet::PaintPuzzle(QPainter& painter, const SheetPlan& plan, const Slot& slot,
                            bool answer) const {
  constexpr double kLine = 7;
  const MadePuzzle& made = Made(slot.Number);
  const double side = CellSideOn(plan, made);
  const QRectF board = plan.BoardIn(slot.Area, side * made.Clues.Order());
  const double left = slot.Area.left();
  const double width = slot.Area.width();
  const QString caption = CaptionOf(slot.Number, answer);
  const QString missing = answer ? QString() : Missing(made.Clues);
  const QString code = CodeTextOf(made);
  double above = plan.Caption;
  double under = board.bottom() + kUnderBoard;
  if (wish_.Options.LargePrint) {
    above = WrappedHeight(caption, width, {plan.Text, true});
    WriteWrapped(painter, {left, board.top() - above, width, above}, Qt::AlignHCenter, caption,
                 {plan.Text, true});
  } else {
    WriteFitted(painter, {left, board.top() - above, width, above}, Qt::AlignCenter, caption,
                {plan.Text, true});
  }
  PaintBoard(painter, board, side, answer ? made.Solution : made.Clues, made.Clues);
  if (wish_.Options.LargePrint) {
    WriteWrapped(painter, {left, under, width, 0}, Qt::AlignHCenter, missing, {plan.Text});
    if (!missing.isEmpty()) under += WrappedHeight(missing, width, {plan.Text});
    WriteWrapped(painter, {left, under, width, 0}, Qt::AlignHCenter, code, {plan.Small});
  } else {
    WriteFitted(painter, {left, under, width, plan.Text * 1.4}, Qt::AlignCenter, missing,
                {plan.Text});
    if (!missing.isEmpty()) under += kLine;
    WriteFitted(painter, {left, under, width, plan.Small * 1.4}, Qt::AlignCenter, code,
                {plan.Small});
  }
  if (plan.Name > 0) {
    PaintNameLine(painter, {left, board.top() - above - plan.Name, width, plan.Name}, plan.Text);
  }
}

}  // namespace numorra
