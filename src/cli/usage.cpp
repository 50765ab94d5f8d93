#include <algorithm>
#include <string>

#include "cli/arguments.h"
#include "files/formats.h"

namespace numorra {
namespace {

/// A line of the usage text.
std::string OptionText(const std::string& option, const std::string& says) {
  constexpr std::size_t kSaysFrom = 25;
  std::string line = "  " + option;
  line.resize(std::max(line.size(), kSaysFrom), ' ');
  return line + "  " + says + "\n";
}

/// A line for each format.
std::string FormatLines() {
  std::string lines;
  for (const Format& format : kFormats) {
    const bool usual = format.Id == SquareRequest().Format;
    lines += OptionText(
        "", std::string(format.Name) + ": " + format.Says + (usual ? " (the default)" : ""));
  }
  return lines;
}

}  // namespace

std::string Usage() {
  const std::string all = FormatNames(false, "|", "|");
  const std::string ofAnswers = FormatNames(true, "|", "|");
  return R"(usage: numorra-square --size N [options]
       numorra-square --top-row A,B,C,D [options]
       numorra-square --kind TERM --size N [options]
       numorra-square study [FILE|-] [--format )" +
         ofAnswers + R"(]
       numorra-square complete [FILE|-] [options]
       numorra-square puzzle --size N [options]
       numorra-square puzzle --codes FILE|- [--format )" +
         all + R"(]
       numorra-square list --size N [options]
       numorra-square count --size N [options]
       numorra-square count --merge FILE...

Prints magic squares and the total of their lines: squares of the numbers 1 to
N x N, of any total, 4 x 4 with a top row of your choice, or of a special kind.

  --size N                 the number of cells on a side, 3 to 50
  --sum T                  the total, instead of that of 1 to N x N; below
                           32768 x N
  --limit-to-9             no number above 9; the total is then at most 5 x N
  --corner V               the number in the top left corner, for sizes from 4
  --top-row A,B,C,D        the top row of a 4 x 4 square, such as a date
  --kind TERM              associative, pandiagonal, most-perfect, ultramagic or
                           bordered; drawn at random
  --fresh                  a square drawn at random from all squares, not one
                           that a construction makes; not with a corner or top
                           row
  --vary                   another square of the same family or kind instead; not
                           with a corner or top row, which it would not keep
  --count M                the number of squares, 1 to 1000000
)" + OptionText("--format " + all, "how squares are written:") +
         FormatLines() +
         R"(  --seed N                 seed of the random numbers; the same seed repeats a run
  --help                   this text
  --version                the program's version

study says what kinds of squares they are, and why. It reads rows of numbers from
a file or from the standard input, with an empty line between squares, and everything
that this program writes, such as JSON objects with "rows". It answers each square as
soon as it is read, in an input of any length; it stops at a square of more than a
megabyte. In JSON, the answers are one object per line.

complete reads squares in the same way and fills their gaps (nothing, or one of - . _
between separators). It says whether there is one solution, several or none. Its exit
status is 3 for none and 4 if the search did not finish in time.

  --rules normal|positive  each number from 1 to N x N once, or any whole numbers of
                           1 or more; by default the square decides
  --sum T                  the total, instead of the square's own
  --limit-to-9             no number above 9, by the positive rules
  --kind TERM              associative, pandiagonal, most-perfect or ultramagic: the
                           filled square must be of that kind
  --seconds S              how long to search for each square; 3 by default
)" + OptionText("--format " + ofAnswers, "JSON is one object per line, with a reason, if any,") +
         R"(                           as "why"

puzzle makes squares with gaps that have one solution; no puzzle of a run is another
one turned or mirrored, as long as there are others. Their codes, up to size
20, are read by study, complete and the window.

  --size N                 the number of cells on a side
  --grade easy|medium|hard|expert|extreme
                           the hardest rule that it needs
  --grades G:K,G:K...      so many puzzles of each grade, such as easy:10,medium:5; easy
                           ones come first
  --clues K                how many numbers are given; by default as few as possible
  --sum T, --limit-to-9    squares of any total, of any whole numbers of 1 or more
  --symmetric              a cell is a gap if the opposite one is
  --count M, --seed N      the number of puzzles, and the seed that repeats them
  --codes FILE|-           the puzzles of these codes instead: a line has one or more,
                           with words around them
)" + OptionText("--format " + all, "JSON is one object per line, with its solution") +
         R"(
list writes all squares of the numbers 1 to N x N, each as soon as it is found; count
counts them. Of a square and those that are the same turned or mirrored, there is one,
in standard form. A board with more than 64 gaps is refused.

  --size N                 the number of cells on a side
  --kind TERM, --term TERM
                           only squares for which the term holds, such as pandiagonal;
                           may be repeated; study knows the terms
  --given FILE|-           only squares with these numbers in their cells: a square with
                           gaps; turned and mirrored squares are the same only if they
                           have them, too
  --all-images             for list: turned and mirrored squares, too
  --count M                for list: at most so many
  --semi-magic             for count: the diagonals may have any sum
  --slice I/M              for count: part I of M of all squares of size 5, on a line with
                           a checksum; parts can be counted anywhere
  --merge FILE...          for count: adds up the lines of all parts
  --estimate               for count: estimates squares that are too many, with the
                           standard error, from samples
  --seconds S              how long to take samples; 10 by default
)" + OptionText("--format " + all, "for count: " + ofAnswers) +
         R"(
The exit status is 0 on success, 1 if there is no such square or something could not
be read or written, 2 for bad arguments, 3 and 4 as described for complete, 5 if there
was not enough memory, and 6 if puzzles are missing or other than wished.
)";
}

}  // namespace numorra
