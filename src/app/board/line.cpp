#include "app/board/line.h"

#include "words/say.h"

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
  const int number = line.K + 1;
  switch (line.Way) {
    case Line::Row:
      return Say("row %1", number);
    case Line::Column:
      return Say("column %1", number);
    case Line::Falling:
      if (line.K == 0) return Say("the main diagonal that falls");
      return Say("the broken diagonal that falls from row 1, column %1", number);
    case Line::Rising:
      break;
  }
  if (line.K == order - 1) return Say("the main diagonal that rises");
  return Say("the broken diagonal that rises to row 1, column %1", number);
}

std::vector<Place> PlacesOf(Line line, int order) {
  std::vector<Place> places;
  for (int i = 0; i < order; ++i)
    places.push_back(PlaceAt(line.Cell(i, order), order));
  return places;
}

}  // namespace numorra
