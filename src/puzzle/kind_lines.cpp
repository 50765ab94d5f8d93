#include "puzzle/kind_lines.h"

#include <algorithm>
#include <array>

#include "app/board/place.h"
#include "study/special.h"
#include "words/say.h"

namespace numorra {
namespace {

class LineList {
 public:
  explicit LineList(int order) : n_(order) {}

  void AddStraight(const std::vector<Line>& lines) {
    for (const Line line : lines) {
      CellLine cells{{}, line};
      for (int i = 0; i < n_; ++i)
        cells.Cells.push_back(line.Cell(i, n_));
      lines_.push_back(std::move(cells));
    }
  }

  void AddOpposites() {
    const int last = n_ * n_ - 1;
    for (int cell = 0; 2 * cell < last; ++cell)
      AddPair(cell, last - cell);
    if (n_ % 2 == 1) lines_.push_back({{last / 2}});
  }

  void AddHalfwayPairs() {
    const int half = n_ / 2;
    for (int r = 0; r < half; ++r) {
      for (int c = 0; c < n_; ++c)
        AddPair(Index(r, c), Index(r + half, c + half));
    }
  }

  void AddBlocks() {
    for (int r = 0; r < n_; ++r) {
      for (int c = 0; c < n_; ++c) {
        lines_.push_back({{Index(r, c), Index(r, c + 1), Index(r + 1, c), Index(r + 1, c + 1)}});
      }
    }
  }

  std::vector<CellLine> Take() { return std::move(lines_); }

 private:
  int Index(int r, int c) const { return r % n_ * n_ + c % n_; }

  void AddPair(int a, int b) { lines_.push_back({{a, b}}); }

  int n_;
  std::vector<CellLine> lines_;
};

struct NamedKind {
  const char* Term;
  LineKind Kind;
};
constexpr std::array<NamedKind, 4> kKinds = {{{"associative", LineKind::Associative},
                                              {"pandiagonal", LineKind::Pandiagonal},
                                              {"most-perfect", LineKind::MostPerfect},
                                              {"ultramagic", LineKind::Ultramagic}}};

const SpecialKind* SpecialKindOf(LineKind kind) {
  for (const NamedKind& named : kKinds) {
    if (named.Kind == kind) return FindSpecialKind(named.Term);
  }
  return nullptr;
}

}  // namespace

const LineKind* FindLineKind(const std::string& term) {
  const auto* const found = std::find_if(kKinds.begin(), kKinds.end(),
                                         [&](const NamedKind& kind) { return kind.Term == term; });
  return found == kKinds.end() ? nullptr : &found->Kind;
}

std::vector<std::string> LineKindTerms() {
  std::vector<std::string> terms;
  for (const NamedKind& kind : kKinds)
    terms.emplace_back(kind.Term);
  return terms;
}

std::string WhyNoneOfKind(LineKind kind, int order) {
  const SpecialKind* const special = SpecialKindOf(kind);
  return special ? special->WhyNone(order) : "";
}

Square<double> BuiltOfKind(LineKind kind, int order, Random& random) {
  const SpecialKind* const special = SpecialKindOf(kind);
  return special ? special->Build(order, random) : BorderedSquare(order, random);
}

std::string NameOf(const CellLine& line, int order) {
  if (line.Straight) return NameOf(*line.Straight, order);
  const auto cell = [&](std::size_t i) { return NameOf(PlaceAt(line.Cells[i], order)); };
  if (line.Cells.size() == 1) return Say("the middle cell");
  // Translators: two cells: "the pair of row 1, column 1 and row 3, column 3".
  if (line.Cells.size() == 2) return Say("the pair of %1 and %2", cell(0), cell(1));
  // Translators: 2 x 2 cells; the upper left one stands in the place: "row 1, column 2".
  return Say("the block of four from %1", cell(0));
}

std::vector<CellLine> LinesOf(LineKind kind, int order) {
  LineList lines(order);
  lines.AddStraight(MagicLines(order));
  if (kind == LineKind::Associative || kind == LineKind::Ultramagic) lines.AddOpposites();
  if (kind != LineKind::Magic && kind != LineKind::Associative) {
    lines.AddStraight(BrokenDiagonals(order));
  }
  if (kind == LineKind::MostPerfect) {
    lines.AddHalfwayPairs();
    lines.AddBlocks();
  }
  return lines.Take();
}

}  // namespace numorra
