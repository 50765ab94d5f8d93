#include "study/report.h"

#include <algorithm>

#include "app/board/numbers.h"
#include "files/square_json.h"
#include "study/census.h"
#include "study/famous.h"
#include "study/images.h"
#include "words/say.h"

namespace numorra {
namespace {

/// The numbers of a square on one line: "1 2 3 / 4 5 6 / 7 8 9".
std::string OnOneLine(const Square<double>& square) {
  std::string line;
  for (int cell = 0; cell < square.Size(); ++cell) {
    line += (cell == 0 ? "" : cell % square.Order() == 0 ? " / " : " ") + Decimal(square[cell]);
  }
  return line;
}

std::string RepeatedIn(const Facts& facts) {
  const auto& numbers = facts.Square.Numbers();
  std::vector<std::string> repeated;
  for (std::size_t i = 1; i < facts.Ascending.size(); ++i) {
    const int cell = facts.Ascending[i];
    if (numbers[cell] != numbers[facts.Ascending[i - 1]]) continue;
    if (repeated.empty() || repeated.back() != facts.NumberIn(cell)) {
      repeated.push_back(facts.NumberIn(cell));
    }
  }
  if (repeated.empty()) return SayIn("repeated numbers", "none");
  constexpr std::size_t kShown = 10;
  std::string list = repeated.front();
  for (std::size_t i = 1; i < std::min(kShown, repeated.size()); ++i)
    list = Say("%1, %2", list, repeated[i]);
  if (repeated.size() <= kShown) return list;
  // Translators: %2 is a list of numbers
  return SayCounted("%2 and %1 more", "%2 and %1 more", repeated.size() - kShown, list);
}

std::vector<Detail> DetailsOf(const Facts& facts, const Report& report) {
  constexpr int kLargestShown = 10;
  std::vector<Detail> details;
  if (const FamousSquare* famous = FamousWithForm(report.StandardForm)) {
    details.emplace_back(Mark("famous"), Say(famous->Story));
  }
  // Translators: 34 in 7 of 10 lines; %1 is the number of all lines
  details.emplace_back(Mark("sum"), facts.Square.HasUnits()
                                        ? SayCounted("%2 in %3 of %1 line", "%2 in %3 of %1 lines",
                                                     facts.Lines.size(), facts.Shown(facts.Total),
                                                     facts.LinesOfTotal)
                                        : Say("too large to say"));
  details.emplace_back(Mark("smallest"), Written(facts.Smallest()));
  details.emplace_back(Mark("largest"), Written(facts.Largest()));
  details.emplace_back(Mark("repeated"), RepeatedIn(facts));
  if (facts.N() <= kLargestShown) {
    details.emplace_back(Mark("standard form"), OnOneLine(report.StandardForm));
  }
  if (report.Census > 0) {
    details.emplace_back(Mark("census number"), Say("%1 of the 880 of order 4", report.Census));
    details.emplace_back(Mark("Dudeney type"), Say(report.Complements.Type.c_str()));
    details.emplace_back(Mark("pairs of 17"), report.Complements.Pairs);
  }
  return details;
}

const char* JsonWord(Answer answer) {
  if (answer == Answer::Holds) return "true";
  return answer == Answer::Fails ? "false" : "null";
}

/// {"a": ..., "b": ...} for all properties, with the values that valueOf(judgement) writes.
template <class ValueOf>
std::string JsonByTerm(const Report& report, ValueOf valueOf) {
  JsonLine json;
  for (const auto& [term, found] : report.Properties)
    json.Add(term->Name, valueOf(found));
  return json.Text();
}

}  // namespace

Report Study(NumberSquare square) {
  const Facts facts(std::move(square));
  Report report;
  report.Numbers = facts.Square.Numbers();
  if (facts.Square.HasUnits()) report.Total = facts.Square.Shown(facts.Total);
  report.StandardForm = StandardForm(facts.Square.Numbers());
  report.Properties.reserve(Terms().size());
  for (const Term& term : Terms())
    report.Properties.push_back({&term, term.Judge(facts)});
  report.Census = CensusNumber(report.StandardForm).value_or(0);
  if (report.Census > 0) report.Complements = ComplementPairsOf(report.Numbers);
  report.Details = DetailsOf(facts, report);
  return report;
}

const char* WordFor(Answer answer) {
  switch (answer) {
    case Answer::Holds:
      return Mark("holds");
    case Answer::Fails:
      return Mark("fails");
    case Answer::DoesNotApply:
      return Mark("does not apply");
    case Answer::TooLarge:
      break;
  }
  return Mark("too large to say");
}

std::string TextOf(const Report& report) {
  std::string text = Say("%1 x %1", report.Numbers.Order()) + "\n";
  for (const auto& [name, value] : report.Details)
    text += Say("%1: %2", Say(name.c_str()), value) + "\n";
  for (const auto& [term, found] : report.Properties) {
    // Translators: "magic: holds, all rows, columns and both main diagonals add up to 34"
    text += Say("%1: %2, %3", Say(term->Name), Say(WordFor(found.Says)), found.Why) + "\n";
  }
  return text;
}

std::string JsonOf(const Report& report) {
  JsonLine json;
  json.Add("order", std::to_string(report.Numbers.Order()));
  json.Add("total", report.Total.empty() ? "null" : report.Total);
  json.Add("properties",
           JsonByTerm(report, [](const Judgement& found) { return JsonWord(found.Says); }));
  json.Add("evidence",
           JsonByTerm(report, [](const Judgement& found) { return JsonString(found.Why); }));
  json.Add("rows", JsonRowsOf(StoredCells(report.Numbers)));
  json.Add("standard-form", JsonRowsOf(StoredCells(report.StandardForm)));
  if (report.Census > 0) {
    json.Add("census", std::to_string(report.Census));
    json.Add("dudeney-type", JsonString(report.Complements.Type));
    json.Add("complements", JsonString(report.Complements.Pairs));
  }
  return json.Text() + "\n";
}

}  // namespace numorra
