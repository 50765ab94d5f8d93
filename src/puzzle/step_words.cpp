#include "puzzle/step_words.h"

namespace numorra {
namespace {

constexpr std::size_t kMostListed = 6;

std::string Text(std::int64_t number) {
  return std::to_string(number);
}

/// "5", "5 or 7", "5, 7 or 9", "3 to 9", "8 numbers from 3 to 35", "nothing".
std::string TextOf(const Possible& possible) {
  const std::vector<std::int64_t>& numbers = possible.Listed;
  if (possible.IsNone()) return "nothing";
  if (possible.IsOne()) return Text(possible.Low);
  const std::string range = Text(possible.Low) + " to " + Text(possible.High);
  if (numbers.empty()) return range;
  if (numbers.size() > kMostListed) return Text(possible.Count()) + " numbers from " + range;
  std::string text = Text(numbers[0]);
  for (std::size_t i = 1; i < numbers.size(); ++i)
    text += (i + 1 == numbers.size() ? " or " : ", ") + Text(numbers[i]);
  return text;
}

/// Writes the sentences of one board.
class StepWords {
 public:
  StepWords(const Step& step, const LineMap& map) : step_(step), map_(map) {}

  std::string Sentence() const {
    const bool then = step_.Supposed && step_.By != StepRule::Suppose;
    return (then ? "then " : "") + Plain();
  }

 private:
  std::string Plain() const {
    const std::string number = Text(step_.Number);
    switch (step_.By) {
      case StepRule::LastGap:
        return LastGap();
      case StepRule::TwoGaps:
        return TwoGaps();
      case StepRule::AtLeast:
      case StepRule::AtMost:
        return Bound();
      case StepRule::OneCandidate:
        return step_.IsContradiction() ? "no number is left for " + Gap()
                                       : "only " + Text(step_.Left.Low) + " is left for " + Gap();
      case StepRule::OnePlace:
        return step_.IsContradiction()
                   ? number + " fits no gap"
                   : number + " fits only " + Gap() + ", as no other gap can hold it";
      case StepRule::FullLine:
        return Line() + " adds up to " + Text(step_.Sum) + ", not " + Text(step_.Total);
      case StepRule::Suppose:
        return "suppose that " + number + " is in " + Gap();
      case StepRule::Refute:
        return "so " + number + " cannot be in " + Gap() + WhatIsLeft();
      case StepRule::Search:
        return "only a longer search shows it: trying any number but " + number + " in " + Gap() +
               " leads to a line that cannot be completed";
    }
    return {};
  }

  std::string Line() const { return map_.NameOf(step_.Line); }
  std::string Gap() const { return CellName(step_.Cell); }
  std::string CellName(int cell) const { return NameOf(PlaceAt(cell, map_.Order())); }

  /// The end of a sentence that decides more than it says.
  std::string WhatIsLeft() const {
    if (step_.Left.IsNone()) return ": nothing is left there";
    return step_.Left.IsOne() ? ": only " + Text(step_.Left.Low) + " is left there" : "";
  }

  std::string LastGap() const {
    const std::size_t others = map_.CellsOf(step_.Line).size() - 1;
    const std::string text = Text(static_cast<std::int64_t>(others)) +
                             (others == 1 ? " number is in " : " numbers are in ") + Line() +
                             ", the total is " + Text(step_.Total) + ": the last one ";
    if (step_.Left.IsOne()) return text + "is " + Text(step_.Sum);
    return text + "would be " + Text(step_.Sum) + ", which " + Gap() + " cannot hold";
  }

  std::string TwoGaps() const {
    std::string text = Line() + " needs " + Text(step_.Sum) + " for its two gaps";
    if (step_.Partner.Listed.size() <= kMostListed) {
      text += "; " + CellName(step_.OtherGap) + " can hold " + TextOf(step_.Partner);
    }
    return text + ", so " + Gap() + " can hold " + (step_.Left.IsNone() ? "" : "only ") +
           TextOf(step_.Left);
  }

  std::string Bound() const {
    const bool least = step_.By == StepRule::AtLeast;
    return Line() + " needs " + Text(step_.Sum) + " for its " + Text(step_.Gaps) +
           " gaps; the others add up to at " + (least ? "most " : "least ") + Text(step_.Others) +
           ", so " + Gap() + " holds at " + (least ? "least " : "most ") +
           Text(step_.Sum - step_.Others) + WhatIsLeft();
  }

  const Step& step_;
  const LineMap& map_;
};

std::vector<Place> PlacesIn(const std::vector<int>& cells, int order) {
  std::vector<Place> places;
  places.reserve(cells.size());
  for (const int cell : cells)
    places.push_back(PlaceAt(cell, order));
  return places;
}

bool IsLastGap(const Deduction& deduction) {
  return deduction.Steps.back().By == StepRule::LastGap;
}

}  // namespace

std::string SentenceOf(const Step& step, const LineMap& map) {
  return StepWords(step, map).Sentence();
}

std::vector<Place> PlacesOf(const Step& step, const LineMap& map) {
  if (step.Line >= 0) return PlacesIn(map.CellsOf(step.Line), map.Order());
  if (step.Cell < 0) return {};
  return {PlaceAt(step.Cell, map.Order())};
}

std::string WhereToLook(const Deduction& deduction, const LineMap& map) {
  if (IsLastGap(deduction)) return map.NameOf(deduction.Steps.back().Line);
  return NameOf(PlaceAt(deduction.Cell, map.Order()));
}

std::vector<Place> PlacesToLook(const Deduction& deduction, const LineMap& map) {
  if (IsLastGap(deduction)) return PlacesOf(deduction.Steps.back(), map);
  return {PlaceAt(deduction.Cell, map.Order())};
}

}  // namespace numorra
