#include "publish/play_page.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string_view>

#include "files/json_members.h"
#include "files/square_json.h"
#include "publish/object_forms.h"
#include "publish/page_template.h"
#include "publish/page_words.h"
#include "puzzle/puzzle.h"
#include "puzzle/puzzle_json.h"
#include "words/say.h"

namespace numorra {
namespace {

/// A puzzle as the page has it.
struct PagePuzzle {
  Puzzle Clues;
  std::optional<Puzzle> Solution = {};
  std::string Grade = {};  ///< empty if it is not known
  std::string Code = {};   ///< empty if there is none
  std::string Steps = {};  ///< as ObjectForms writes them
};

/// Text as HTML, also within quotes.
std::string Html(const std::string& text) {
  static const std::map<char, const char*> kEscapes = {
      {'&', "&amp;"}, {'<', "&lt;"}, {'>', "&gt;"}, {'"', "&quot;"}, {'\'', "&#39;"}};
  std::string html;
  for (const char c : text) {
    const auto escape = kEscapes.find(c);
    escape == kEscapes.end() ? html.push_back(c) : void(html.append(escape->second));
  }
  return html;
}

Puzzle ReadPuzzle(const std::string& json) {
  const auto read = ReadSquareJson(json);
  if (const auto* unreadable = std::get_if<Unreadable>(&read)) throw *unreadable;
  const auto puzzle = PuzzleOf(std::get<StoredSquare>(read));
  if (const auto* against = std::get_if<AgainstRules>(&puzzle)) throw Unreadable{against->Why};
  return std::get<Puzzle>(puzzle);
}

/// The full square with these rows; nothing if there are none.
std::optional<Puzzle> ReadSolution(JsonSpan rows, const Puzzle& clues) {
  if (rows.empty() || rows.front() == "null") return std::nullopt;
  std::string text;
  for (const std::string_view token : rows)
    text += token;
  JsonLine square;
  square.Add("total", std::to_string(clues.Target)).Add("rules", JsonString(NameOf(clues.Asked)));
  const Puzzle solution = ReadPuzzle(square.Add("rows", text).Text());
  if (solution.Order() != clues.Order() || solution.Gaps() > 0) {
    throw Unreadable{Say("the solution is not a full square of order %1", clues.Order())};
  }
  return solution;
}

std::string PackedSteps(JsonSpan steps, ObjectForms& forms) {
  if (steps.empty() || steps.front() == "null") return "[]";
  if (!AreObjects(steps)) throw Unreadable{Say("%1 must be an array of objects", "\"steps\"")};
  return forms.Packed(steps);
}

PagePuzzle ReadPagePuzzle(const std::string& json, ObjectForms& forms) {
  PagePuzzle puzzle{.Clues = ReadPuzzle(json)};
  JsonMembers members = JsonMembersIn(json, 1);
  const std::vector<std::string_view> tokens = JsonTokensOf(json);
  puzzle.Solution = ReadSolution(MemberOf(tokens, "solution"), puzzle.Clues);
  puzzle.Grade = members["grade"].Value.Text;
  puzzle.Code = members["code"].Value.Text;
  puzzle.Steps = PackedSteps(MemberOf(tokens, "steps"), forms);
  return puzzle;
}

/// "Total 34, each missing number once; hard, 5 clues, code NP2..."
std::string Caption(const PagePuzzle& puzzle) {
  const Puzzle& clues = puzzle.Clues;
  const int count = clues.Cells.Size() - clues.Gaps();
  const std::string rules = clues.Asked == Rules::Normal
                                ? Say("Total %1, each missing number once", clues.Target)
                                : Say("Total %1, whole numbers of 1 or more", clues.Target);
  std::string made = SayCounted("%1 clue", "%1 clues", count);
  if (!puzzle.Grade.empty()) made = Say("%1, %2", Say(puzzle.Grade.c_str()), made);
  if (!puzzle.Code.empty()) made = Say("%1, code %2", made, puzzle.Code);
  return Say("%1; %2", rules, made);
}

/// The language of the page as HTML names it, such as "pt-BR".
std::string LanguageTag() {
  std::string tag = Language();
  std::replace(tag.begin(), tag.end(), '_', '-');
  return tag.empty() ? "en" : tag;
}

/// HTML needs no end tags for cells and rows.
std::string Sheet(const PagePuzzle& puzzle, std::size_t number) {
  std::string html = "<table><caption><b>" + std::to_string(number) + ".</b> " +
                     Html(Caption(puzzle)) + "</caption>\n";
  const auto& cells = puzzle.Clues.Cells;
  for (int cell = 0; cell < cells.Size(); ++cell) {
    if (cell % cells.Order() == 0) html += "<tr>";
    html += "<td>" + (cells[cell] == 0 ? "" : std::to_string(cells[cell]));
  }
  return html + "</table>\n";
}

/// What the sheet does not say already.
std::string Data(const PagePuzzle& puzzle) {
  std::string solution;
  if (puzzle.Solution) {
    for (const std::int64_t number : puzzle.Solution->Cells)
      solution.append(solution.empty() ? "" : ",").append(std::to_string(number));
  }
  return "{\"total\":" + std::to_string(puzzle.Clues.Target) +
         ",\"normal\":" + (puzzle.Clues.Asked == Rules::Normal ? "true" : "false") +
         ",\"solution\":[" + solution + "],\"steps\":" + puzzle.Steps + "}";
}

/// JSON that can stand in a script element: "<" occurs in strings only.
std::string WithoutTags(const std::string& json) {
  std::string text;
  for (const char c : json)
    c == '<' ? void(text.append("\\u003c")) : text.push_back(c);
  return text;
}

/// Fills each slot <!--name--> of a text, and says what stands in <!--say phrase-->. What fills a
/// slot is not searched for others.
std::string WithSlotsFilled(std::string_view text,
                            const std::map<std::string_view, std::string>& slots) {
  constexpr std::string_view kBegin = "<!--";
  constexpr std::string_view kEnd = "-->";
  constexpr std::string_view kSay = "say ";
  std::string filled;
  for (std::size_t begin = 0; (begin = text.find(kBegin)) != std::string_view::npos;) {
    filled += text.substr(0, begin);
    text.remove_prefix(begin + kBegin.size());
    const std::size_t end = text.find(kEnd);
    const std::string_view slot = text.substr(0, end);
    filled += slot.starts_with(kSay) ? Html(Say(std::string(slot.substr(kSay.size())).c_str()))
                                     : slots.at(slot);
    text.remove_prefix(end + kEnd.size());
  }
  return filled.append(text);
}

}  // namespace

std::string PlayPage(const std::string& title, const std::vector<std::string>& puzzles) {
  ObjectForms forms;
  std::string sheets;
  std::string data;
  for (std::size_t i = 0; i < puzzles.size(); ++i) {
    try {
      const PagePuzzle puzzle = ReadPagePuzzle(puzzles[i], forms);
      sheets += Sheet(puzzle, i + 1);
      data.append(data.empty() ? "" : ",\n").append(Data(puzzle));
    } catch (const Unreadable& unreadable) {
      throw Unreadable{Say("puzzle %1: %2", i + 1, unreadable.Why)};
    }
  }
  std::string json = "{\"forms\":" + forms.Table() + ",\n\"puzzles\":[" + data + "]";
  if (!SpeaksEnglish()) json += ",\n\"words\":" + WordsOfScript(kPageTemplate);
  json += "}";
  return WithSlotsFilled(kPageTemplate, {{"title", Html(title)},
                                         {"language", LanguageTag()},
                                         {"sheets", sheets},
                                         {"data", WithoutTags(json)}});
}

std::string PlayPage(const std::string& title, const std::vector<MadePuzzle>& puzzles,
                     Yielding& yielding) {
  std::vector<std::string> objects;
  objects.reserve(puzzles.size());
  for (const MadePuzzle& made : puzzles) {
    objects.push_back(
        JsonOfPuzzle(made.Clues, &made).Add("steps", JsonOfSteps(made, yielding)).Text());
  }
  return PlayPage(title, objects);
}

}  // namespace numorra
