#include "cli/commands.h"

#include <algorithm>

#include "files/formats.h"
#include "generate/construction.h"
#include "puzzle/grade.h"
#include "puzzle/kind_lines.h"
#include "study/special.h"
#include "study/terms.h"
#include "words/say.h"

namespace numorra {
namespace {

constexpr auto kBuild = SquareCommand::Build;
constexpr auto kStudy = SquareCommand::Study;
constexpr auto kComplete = SquareCommand::Complete;
constexpr auto kPuzzle = SquareCommand::Puzzle;
constexpr auto kList = SquareCommand::List;
constexpr auto kCount = SquareCommand::Count;

std::vector<std::string> Formats(bool answersAlone) {
  std::vector<std::string> names;
  for (const Format& format : kFormats) {
    if (format.ForAnswers || !answersAlone) names.emplace_back(format.Name);
  }
  return names;
}

/// A line for each format.
std::string FormatsTold() {
  std::string told;
  for (const Format& format : kFormats)
    told += (told.empty() ? "" : "\n") + Say("%1: %2", format.Name, Say(format.Says));
  return told;
}

std::vector<std::string> SpecialTerms() {
  std::vector<std::string> terms;
  terms.reserve(kSpecialKinds.size());
  for (const SpecialKind& kind : kSpecialKinds)
    terms.emplace_back(kind.Term);
  return terms;
}

std::vector<std::string> TermNames() {
  std::vector<std::string> names;
  names.reserve(Terms().size());
  for (const Term& term : Terms())
    names.emplace_back(term.Name);
  return names;
}

std::vector<std::string> ConstructionTerms() {
  std::vector<std::string> terms;
  terms.reserve(kConstructions.size());
  for (const Construction* const construction : kConstructions)
    terms.emplace_back(construction->Term);
  return terms;
}

std::vector<std::string> GradeNames() {
  std::vector<std::string> names;
  for (const Grade grade : {Grade::Easy, Grade::Medium, Grade::Hard, Grade::Expert, Grade::Extreme})
    names.emplace_back(NameOf(grade));
  return names;
}

}  // namespace

const std::vector<CommandEntry>& Commands() {
  static const std::vector<CommandEntry> kCommands = {
      {kBuild, "",
       "--size N [options]\n--top-row A,B,C,D|FILE [options]\n--kind TERM --size N "
       "[options]\n--construction NAME --size N [options]",
       Mark("Prints magic squares and the total of their lines: squares of the numbers 1 to N x N, "
            "of any total, 4 x 4 with a top row of your choice, of a special kind, or made by a "
            "construction of your choice."),
       false},
      {kStudy, "study", "[FILE|-] [options]",
       Mark("study says what kinds of squares they are, and why. It reads rows of numbers from a "
            "file or from the standard input, with an empty line between squares, and every form "
            "that this program writes, except pictures and tables for web pages. It answers each "
            "square as soon as it is read, in an input of any length; it stops at a square of more "
            "than a megabyte. In JSON, the answers are one object per line. Its terms are: %1."),
       true},
      {kComplete, "complete", "[FILE|-] [options]",
       Mark("complete reads squares in the same way and fills their gaps (nothing, or one of - . _ "
            "between separators). It says whether there is one solution, several or none. Its exit "
            "status is 3 for none and 4 if the search did not finish in time. JSON is one object "
            "per line, with a reason, if any, as \"why\"."),
       true},
      {kPuzzle, "puzzle", "--size N [options]\n--codes FILE|- [options]",
       Mark("puzzle makes squares with gaps that have one solution; no puzzle of a run is another "
            "one turned or mirrored, as long as there are others. Their codes, up to size 20, are "
            "read by study, complete and the window. JSON is one object per line, with its "
            "solution."),
       false},
      {kList, "list", "--size N [options]",
       Mark("list writes all squares of the numbers 1 to N x N, each as soon as it is found. Of a "
            "square and those that are the same turned or mirrored, there is one, in standard "
            "form. A board with more than 64 gaps is refused."),
       false},
      {kCount, "count", "--size N [options]\n--merge FILE...",
       Mark("count counts the squares that list writes. Those of size 5 take less than a minute; "
            "larger ones can be counted if a kind or given cells leave few enough, or else be "
            "estimated."),
       true}};
  return kCommands;
}

const std::vector<OptionEntry>& Options() {
  const std::vector<SquareCommand> kAll = {kBuild, kStudy, kComplete, kPuzzle, kList, kCount};
  static const std::vector<OptionEntry> kOptions = {
      {"--size",
       "N",
       {kBuild, kPuzzle, kList, kCount},
       Mark("the number of cells on a side, 3 to 50")},
      {"--sum", "T", {kBuild}, Mark("the total, instead of that of 1 to N x N; below 32768 x N")},
      {"--limit-to-9", "", {kBuild}, Mark("no number above 9; the total is then at most 5 x N")},
      {"--corner", "V", {kBuild}, Mark("the number in the top left corner, for sizes from 4")},
      {"--top-row",
       "A,B,C,D",
       {kBuild},
       Mark("the top row of a 4 x 4 square, such as a date; or a file, or - for the standard "
            "input, with a name and a date on each line, for a square of each")},
      {"--kind", "TERM", {kBuild}, Mark("a special kind; drawn at random"), SpecialTerms()},
      {"--construction",
       "NAME",
       {kBuild},
       Mark("made by that construction; some take their choices at random"),
       ConstructionTerms()},
      {"--fresh",
       "",
       {kBuild},
       Mark("a square drawn at random from all squares, not one that a construction makes; not "
            "with a corner or top row")},
      {"--vary",
       "",
       {kBuild},
       Mark("another square of the same family or kind instead; not with a corner or top row, "
            "which it would not keep")},
      {"--count", "M", {kBuild, kPuzzle}, Mark("the number of squares, 1 to 1000000")},
      {"--rules",
       "RULES",
       {kComplete},
       Mark("normal: each number from 1 to N x N once; positive: any whole numbers of 1 or more; "
            "by default the square decides"),
       {"normal", "positive"}},
      {"--sum", "T", {kComplete}, Mark("the total, instead of the square's own")},
      {"--limit-to-9", "", {kComplete}, Mark("no number above 9, by the positive rules")},
      {"--kind",
       "TERM",
       {kComplete},
       Mark("the filled square must be of that kind"),
       LineKindTerms()},
      {"--seconds", "S", {kComplete}, Mark("how long to search for each square; 3 by default")},
      {"--grade", "GRADE", {kPuzzle}, Mark("the hardest rule that it needs"), GradeNames()},
      {"--grades",
       "G:K,G:K...",
       {kPuzzle},
       Mark("so many puzzles of each grade, such as easy:10,medium:5; easy ones come first")},
      {"--clues",
       "K",
       {kPuzzle},
       Mark("how many numbers are given; by default as few as possible")},
      {"--sum", "T", {kPuzzle}, Mark("squares of this total, of any whole numbers of 1 or more")},
      {"--limit-to-9", "", {kPuzzle}, Mark("no number above 9; the total is then at most 5 x N")},
      {"--symmetric", "", {kPuzzle}, Mark("a cell is a gap if the opposite one is")},
      {"--codes",
       "FILE",
       {kPuzzle},
       Mark("the puzzles of these codes instead: a line has one or more, with words around them")},
      {"--steps", "", {kPuzzle}, Mark("with the steps that solve it, in JSON")},
      {"--format",
       "FORMAT",
       {kBuild},
       Mark("how squares are written:\n%1\nText is the default."),
       Formats(false)},
      {"--kind",
       "TERM",
       {kList, kCount},
       Mark("only squares for which this term of study holds; may be repeated"),
       TermNames()},
      {"--term", "TERM", {kList, kCount}, Mark("the same"), TermNames()},
      {"--given",
       "FILE",
       {kList, kCount},
       Mark("only squares with these numbers in their cells: a square with gaps; turned and "
            "mirrored squares are the same only if they have them, too")},
      {"--all-images", "", {kList}, Mark("turned and mirrored squares, too")},
      {"--count", "M", {kList}, Mark("at most so many")},
      {"--semi-magic", "", {kCount}, Mark("the diagonals may have any sum")},
      {"--slice",
       "I/M",
       {kCount},
       Mark("part I of M of all squares of size 5, on a line with a checksum; parts can be counted "
            "anywhere")},
      {"--merge", "FILE", {kCount}, Mark("adds up the lines of all parts in one or several files")},
      {"--estimate",
       "",
       {kCount},
       Mark("estimates squares that are too many, with the standard error, from samples")},
      {"--seconds", "S", {kCount}, Mark("how long to take samples; 10 by default")},
      {"--title", "TEXT", {kPuzzle}, Mark("the title of the page, in HTML")},
      {"--format",
       "FORMAT",
       {kPuzzle},
       Mark("how they are written, as described above; html is one page on which all of them can "
            "be solved in a browser"),
       Formats(false)},
      {"--format",
       "FORMAT",
       {kList},
       Mark("how they are written, as described above"),
       Formats(false)},
      {"--format",
       "FORMAT",
       {kStudy, kComplete, kCount},
       Mark("how the answers are written"),
       Formats(true)},
      {"--seed",
       "N",
       {kBuild, kPuzzle},
       Mark("seed of the random numbers; the same seed repeats a run")},
      {"--completions",
       "SHELL",
       {kBuild},
       Mark("prints the completions of this program for a shell"),
       {"bash", "zsh", "fish"}},
      {"--help", "", kAll, Mark("this text")},
      {"--version", "", kAll, Mark("the program's version")}};
  return kOptions;
}

std::string Listed(const std::vector<std::string>& words) {
  std::string list;
  for (const std::string& word : words)
    list = list.empty() ? word : Say("%1, %2", list, word);
  return list;
}

std::string Told(const CommandEntry& command) {
  return Say(command.Says, Listed(TermNames()));
}

std::string Told(const OptionEntry& option) {
  return Say(option.Says, FormatsTold());
}

const OptionEntry* OptionNamed(std::string_view name, SquareCommand command) {
  for (const OptionEntry& option : Options()) {
    const bool has = std::find(option.Of.begin(), option.Of.end(), command) != option.Of.end();
    if (has && option.Name == name) return &option;
  }
  return nullptr;
}

}  // namespace numorra
