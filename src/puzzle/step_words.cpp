#include "puzzle/step_words.h"

#include "words/say.h"

namespace numorra {
namespace {

constexpr std::size_t kMostListed = 6;

/// "5", "5 or 7", "5, 7 or 9", "3 to 9", "8 numbers from 3 to 35".
std::string TextOf(const Possible& possible) {
  const std::vector<std::int64_t>& numbers = possible.Listed;
  if (possible.IsOne()) return Written(possible.Low);
  // Translators: two numbers and all whole numbers between them: "row 1, column 2 can hold 3 to 9".
  if (numbers.empty()) return Say("%1 to %2", possible.Low, possible.High);
  if (numbers.size() > kMostListed) {
    return SayCounted("%1 number from %2 to %3", "%1 numbers from %2 to %3", possible.Count(),
                      possible.Low, possible.High);
  }
  std::string list = Written(numbers.front());
  for (std::size_t i = 1; i + 1 < numbers.size(); ++i)
    list = Say("%1, %2", list, numbers[i]);
  // Translators: the end of a list of numbers, such as "5, 7 or 9".
  return Say("%1 or %2", list, numbers.back());
}

/// Writes the sentences of one board.
class StepWords {
 public:
  StepWords(const Step& step, const LineMap& map) : step_(step), map_(map) {}

  std::string Sentence() const {
    const bool then = step_.Supposed && step_.By != StepRule::Suppose;
    // Translators: a whole sentence stands in the place: "then row 1 adds up to 33, not 34". Use a
    // colon if the word would change the order of the others: "then it follows: %1".
    return then ? Say("then %1", Plain()) : Plain();
  }

 private:
  std::string Plain() const {
    switch (step_.By) {
      case StepRule::LastGap:
        return LastGap();
      case StepRule::TwoGaps:
        return TwoGaps();
      case StepRule::AtLeast:
      case StepRule::AtMost:
        return Bound();
      case StepRule::OneCandidate:
        return step_.IsContradiction() ? Say("no number is left for %1", Gap())
                                       : Say("only %1 is left for %2", step_.Left.Low, Gap());
      case StepRule::OnePlace:
        return step_.IsContradiction()
                   ? Say("%1 fits no gap", step_.Number)
                   : Say("%1 fits only %2, as no other gap can hold it", step_.Number, Gap());
      case StepRule::FullLine:
        return Say("%1 adds up to %2, not %3", Line(), step_.Sum, step_.Total);
      case StepRule::Suppose:
        return Say("suppose that %1 is in %2", step_.Number, Gap());
      case StepRule::Refute:
        return WithRest(Say("so %1 cannot be in %2", step_.Number, Gap()));
      case StepRule::Search:
        return Say(
            "only a longer search shows it: trying any number but %1 in %2 leads to a line that "
            "cannot be completed",
            step_.Number, Gap());
    }
    return {};
  }

  std::string Line() const { return map_.NameOf(step_.Line); }
  std::string Gap() const { return CellName(step_.Cell); }
  std::string CellName(int cell) const { return NameOf(PlaceAt(cell, map_.Order())); }

  /// The sentence, completed if it decides more than it says.
  std::string WithRest(const std::string& sentence) const {
    if (step_.Left.IsNone()) return Say("%1: nothing is left there", sentence);
    if (step_.Left.IsOne()) return Say("%1: only %2 is left there", sentence, step_.Left.Low);
    return sentence;
  }

  std::string LastGap() const {
    const std::size_t others = map_.CellsOf(step_.Line).size() - 1;
    if (step_.Left.IsOne()) {
      return SayCounted("%1 number is in %2, the total is %3: the last one is %4",
                        "%1 numbers are in %2, the total is %3: the last one is %4", others, Line(),
                        step_.Total, step_.Sum);
    }
    return SayCounted(
        "%1 number is in %2, the total is %3: the last one would be %4, which %5 cannot hold",
        "%1 numbers are in %2, the total is %3: the last one would be %4, which %5 cannot hold",
        others, Line(), step_.Total, step_.Sum, Gap());
  }

  std::string TwoGaps() const {
    if (step_.Partner.Listed.size() > kMostListed) {
      if (step_.Left.IsNone()) {
        return Say("%1 needs %2 for its two gaps, so %3 can hold nothing", Line(), step_.Sum,
                   Gap());
      }
      return Say("%1 needs %2 for its two gaps, so %3 can hold only %4", Line(), step_.Sum, Gap(),
                 TextOf(step_.Left));
    }
    const std::string other = CellName(step_.OtherGap);
    if (step_.Left.IsNone()) {
      return Say("%1 needs %2 for its two gaps; %3 can hold %4, so %5 can hold nothing", Line(),
                 step_.Sum, other, TextOf(step_.Partner), Gap());
    }
    // Translators: %1 is a line, %2 a number, %3 and %5 are cells; %4 and %6 are numbers, such as
    // "5", "5, 7 or 9", "3 to 9" or "8 numbers from 3 to 35".
    return Say("%1 needs %2 for its two gaps; %3 can hold %4, so %5 can hold only %6", Line(),
               step_.Sum, other, TextOf(step_.Partner), Gap(), TextOf(step_.Left));
  }

  std::string Bound() const {
    const std::int64_t bound = step_.Sum - step_.Others;
    if (step_.By == StepRule::AtLeast) {
      return WithRest(SayCounted(
          "%2 needs %3 for its %1 gap; the others add up to at most %4, so %5 holds at least %6",
          "%2 needs %3 for its %1 gaps; the others add up to at most %4, so %5 holds at least %6",
          step_.Gaps, Line(), step_.Sum, step_.Others, Gap(), bound));
    }
    return WithRest(SayCounted(
        "%2 needs %3 for its %1 gap; the others add up to at least %4, so %5 holds at most %6",
        "%2 needs %3 for its %1 gaps; the others add up to at least %4, so %5 holds at most %6",
        step_.Gaps, Line(), step_.Sum, step_.Others, Gap(), bound));
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
