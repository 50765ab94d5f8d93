#include "study/report.h"

#include <algorithm>

#include "app/board/numbers.h"
#include "files/square_json.h"
#include "study/census.h"
#include "study/famous.h"
#include "study/images.h"

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
  if (repeated.empty()) return "none";
  constexpr std::size_t kShown = 10;
  std::string text;
  for (std::size_t i = 0; i < std::min(kShown, repeated.size()); ++i)
    text += (i > 0 ? ", " : "") + repeated[i];
  if (repeated.size() > kShown)
    text += " and " + std::to_string(repeated.size() - kShown) + " more";
  return text;
}

std::vector<Detail> DetailsOf(const Facts& facts, const Report& report) {
  constexpr int kLargestShown = 10;
  std::vector<Detail> details;
  if (const FamousSquare* famous = FamousWithForm(report.StandardForm)) {
    details.emplace_back("famous", famous->Story);
  }
  details.emplace_back("sum", facts.Square.HasUnits()
                                  ? report.Total + " in " + std::to_string(facts.LinesOfTotal) +
                                        " of " + std::to_string(facts.Lines.size()) + " lines"
                                  : "too large to say");
  details.emplace_back("smallest", Decimal(facts.Smallest()));
  details.emplace_back("largest", Decimal(facts.Largest()));
  details.emplace_back("repeated", RepeatedIn(facts));
  if (facts.N() <= kLargestShown) {
    details.emplace_back("standard form", OnOneLine(report.StandardForm));
  }
  if (report.Census > 0) {
    details.emplace_back("census number", std::to_string(report.Census) + " of the 880 of order 4");
    details.emplace_back("Dudeney type", report.Complements.Type);
    details.emplace_back("pairs of 17", report.Complements.Pairs);
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
  if (facts.Square.HasUnits()) report.Total = facts.Shown(facts.Total);
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
      return "holds";
    case Answer::Fails:
      return "fails";
    case Answer::DoesNotApply:
      return "does not apply";
    case Answer::TooLarge:
      break;
  }
  return "too large to say";
}

std::string TextOf(const Report& report) {
  const std::string order = std::to_string(report.Numbers.Order());
  std::string text = order + " x " + order + "\n";
  for (const auto& [name, value] : report.Details)
    text.append(name).append(": ").append(value).append("\n");
  for (const auto& [term, found] : report.Properties)
    text += std::string(term->Name) + ": " + WordFor(found.Says) + ", " + found.Why + "\n";
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
