#include "app/board/line.h"

namespace numorra {

int Line::Cell(int i, int n) const {
  int row = i;
  int column = K;
  switch (Way) {
    case Row:
      row = K;
      column = i;
      break;
    case Column:
      break;
    case Falling:
      column = K + i < n ? K + i : K + i - n;
      break;
    case Rising:
      column = K >= i ? K - i : K - i + n;
      break;
  }
  return row * n + column;
}

std::vector<Line> MagicLines(int order) {
  std::vector<Line> lines;
  lines.reserve(static_cast<std::size_t>(2 * order + 2));
  for (const Line::Direction way : {Line::Row, Line::Column}) {
    for (int k = 0; k < order; ++k)
      lines.push_back({way, k});
  }
  lines.push_back({Line::Falling, 0});
  lines.push_back({Line::Rising, order - 1});
  return lines;
}

std::vector<Line> BrokenDiagonals(int order) {
  std::vector<Line> lines;
  for (int k = 1; k < order; ++k)
    lines.push_back({Line::Falling, k});
  for (int k = 0; k < order - 1; ++k)
    lines.push_back({Line::Rising, k});
  return lines;
}

std::string NameOf(Line line, int order) {
  const std::string number = std::to_string(line.K + 1);
  switch (line.Way) {
    case Line::Row:
      return "row " + number;
    case Line::Column:
      return "column " + number;
    case Line::Falling:
      if (line.K == 0) return "the main diagonal that falls";
      return "the broken diagonal that falls from row 1, column " + number;
    case Line::Rising:
      break;
  }
  if (line.K == order - 1) return "the main diagonal that rises";
  return "the broken diagonal that rises to row 1, column " + number;
}

std::vector<Place> PlacesOf(Line line, int order) {
  std::vector<Place> places;
  for (int i = 0; i < order; ++i)
    places.push_back(PlaceAt(line.Cell(i, order), order));
  return places;
}

}  // namespace numorra
