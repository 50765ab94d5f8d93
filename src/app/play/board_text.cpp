#include "app/play/board_text.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <sstream>

#include "app/board/numbers.h"
#include "app/board/runtime_error.h"

namespace numorra {
namespace {

constexpr std::size_t kMinOrder = 3;
constexpr std::size_t kMostCharacters = 1 << 20;
constexpr double kLargestNumber = 1e15;  // as many digits as can be typed
constexpr const char* kNoBlock =
    "this is no square of numbers\ncopy 3x3 to 50x50 numbers from a table or a text";

/// The fields of a line. Blanks separate as many as they are, other separators each for itself.
std::vector<std::string> Fields(const std::string& line) {
  std::vector<std::string> fields;
  const std::size_t separator = line.find_first_of("\t;,");
  if (separator == std::string::npos) {
    std::istringstream words(line);
    for (std::string word; words >> word;)
      fields.push_back(word);
    return fields;
  }
  std::istringstream parts(line);
  const char kind = line.find('\t') != std::string::npos  ? '\t'
                    : line.find(';') != std::string::npos ? ';'
                                                          : ',';
  for (std::string part; std::getline(parts, part, kind);)
    fields.push_back(part);
  if (line.back() == kind) fields.emplace_back();
  return fields;
}

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream input(text);
  for (std::string line; std::getline(input, line);) {
    if (line.ends_with('\r')) line.pop_back();
    lines.push_back(line);
  }
  const auto written = [](const std::string& line) { return !Trim(line).empty(); };
  const auto first = std::find_if(lines.begin(), lines.end(), written);
  const auto last = std::find_if(lines.rbegin(), lines.rend(), written).base();
  return first < last ? std::vector<std::string>(first, last) : std::vector<std::string>();
}

}  // namespace

std::string BoardText(const Board& board) {
  std::string text;
  if (!board.Shown()) return text;
  ForEachCell(board.GridSize, [&](int row, int column) {
    text += board.grid.Text(row, column);
    text += column < board.GridSize ? '\t' : '\n';
  });
  return text;
}

std::optional<std::vector<std::vector<double>>> ParseBlock(const std::string& text) {
  if (text.size() > kMostCharacters) return std::nullopt;
  const auto lines = Lines(text);
  if (lines.size() < kMinOrder || lines.size() > static_cast<std::size_t>(kMaxOrder)) {
    return std::nullopt;
  }
  std::vector<std::vector<double>> rows;
  for (const std::string& line : lines) {
    const auto fields = Fields(line);
    if (fields.size() != lines.size()) return std::nullopt;
    rows.emplace_back();
    try {
      for (const std::string& field : fields) {
        rows.back().push_back(StrictVal(field));
        if (std::abs(rows.back().back()) > kLargestNumber) return std::nullopt;
      }
    } catch (const RuntimeError&) {
      return std::nullopt;
    }
  }
  return rows;
}

bool PasteBoard(Board& board, SquareBoxes& boxes, Dialogs& dialogs, const std::string& text) {
  const auto rows = ParseBlock(text);
  if (!rows) {
    dialogs.Tell(kNoBlock);
    return false;
  }
  constexpr double kLowestBase = 2;
  const auto order = static_cast<std::int16_t>(rows->size());
  const double sum = std::accumulate(rows->front().begin(), rows->front().end(), 0.0);
  const std::int16_t base = ToInt16(std::max(kLowestBase, Int(sum / order)));
  CellTable cells;
  ForEachCell(order, [&](int r, int c) {
    cells(r, c) = (*rows)[static_cast<std::size_t>(r - 1)][static_cast<std::size_t>(c - 1)];
  });
  board.SolveMode = ModeVariable;
  board.BaseValue = base;
  boxes.SetSize(Decimal(order));
  boxes.SetSum(Decimal(sum));
  board.ShowSquare(order, sum, cells);
  return true;
}

}  // namespace numorra
