#include "study/report.h"

#include <algorithm>

#include "app/board/numbers.h"
#include "study/census.h"
#include "study/famous.h"
#include "study/images.h"

namespace numorra {
namespace {

/// The rows of an order x order square, each in `open` and `close`.
std::string RowsOf(int order, const std::vector<double>& numbers, const std::string& between,
                   const std::string& open, const std::string& close,
                   const std::string& betweenRows) {
  std::string rows;
  std::size_t cell = 0;
  for (int i = 0; i < order; ++i) {
    rows += (i > 0 ? betweenRows : "") + open;
    for (int j = 0; j < order; ++j)
      rows += (j > 0 ? between : "") + Decimal(numbers[cell++]);
    rows += close;
  }
  return rows;
}

std::string RepeatedIn(const Facts& facts) {
  const auto& numbers = facts.Square.Numbers();
  std::vector<std::string> repeated;
  for (std::size_t i = 1; i < facts.Ascending.size(); ++i) {
    const std::size_t cell = facts.Ascending[i];
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
  if (const FamousSquare* famous = FamousWithForm(report.Order, report.StandardForm)) {
    details.emplace_back("famous", famous->Story);
  }
  details.emplace_back("sum", facts.Square.HasUnits()
                                  ? report.Total + " in " + std::to_string(facts.LinesOfTotal) +
                                        " of " + std::to_string(facts.Lines.size()) + " lines"
                                  : "too large to say");
  details.emplace_back("smallest", Decimal(facts.Smallest()));
  details.emplace_back("largest", Decimal(facts.Largest()));
  details.emplace_back("repeated", RepeatedIn(facts));
  if (report.Order <= kLargestShown) {
    details.emplace_back("standard form",
                         RowsOf(report.Order, report.StandardForm, " ", "", "", " / "));
  }
  if (report.Census > 0) {
    details.emplace_back("census number", std::to_string(report.Census) + " of the 880 of order 4");
  }
  return details;
}

const char* JsonWord(Answer answer) {
  if (answer == Answer::Holds) return "true";
  return answer == Answer::Fails ? "false" : "null";
}

/// {"a": ..., "b": ...} over the properties, with the value that valueOf(property) writes.
template <class ValueOf>
std::string JsonByTerm(const Report& report, ValueOf valueOf) {
  std::string json = "{";
  for (const Property& property : report.Properties) {
    if (json.size() > 1) json += ", ";
    json += "\"" + std::string(property.What->Name) + "\": " + valueOf(property.Found);
  }
  return json + "}";
}

}  // namespace

Report Study(NumberSquare square) {
  const Facts facts(std::move(square));
  Report report;
  report.Order = facts.N();
  if (facts.Square.HasUnits()) report.Total = facts.Shown(facts.Total);
  report.StandardForm = StandardForm(facts.N(), facts.Square.Numbers());
  report.Properties.reserve(Terms().size());
  for (const Term& term : Terms())
    report.Properties.push_back({&term, term.Judge(facts)});
  report.Census = CensusNumber(report.StandardForm).value_or(0);
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
  const std::string order = std::to_string(report.Order);
  std::string text = order + " x " + order + "\n";
  for (const auto& [name, value] : report.Details)
    text += name + ": " + value + "\n";
  for (const auto& [term, found] : report.Properties)
    text += std::string(term->Name) + ": " + WordFor(found.Says) + ", " + found.Why + "\n";
  return text;
}

std::string JsonOf(const Report& report) {
  std::string json = "{\"order\": " + std::to_string(report.Order) +
                     ", \"total\": " + (report.Total.empty() ? "null" : report.Total);
  json += ", \"properties\": " +
          JsonByTerm(report, [](const Judgement& found) { return JsonWord(found.Says); });
  json += ", \"evidence\": " +
          JsonByTerm(report, [](const Judgement& found) { return "\"" + found.Why + "\""; });
  json += ", \"standard-form\": [" +
          RowsOf(report.Order, report.StandardForm, ", ", "[", "]", ", ") + "]";
  if (report.Census > 0) json += ", \"census\": " + std::to_string(report.Census);
  return json + "}\n";
}

}  // namespace numorra
