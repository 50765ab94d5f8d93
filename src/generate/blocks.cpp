#include "generate/blocks.h"

namespace numorra {
namespace {

constexpr LuxLetter kL{'L', {1, 2, 3, 0}};
constexpr LuxLetter kU{'U', {0, 2, 3, 1}};
constexpr LuxLetter kX{'X', {0, 3, 2, 1}};

}  // namespace

const LuxLetter& LuxLetterOfRow(int row, int m) {
  const int middle = m / 2;
  if (row == middle + 1) return kU;
  return row <= middle ? kL : kX;
}

const LuxLetter& LuxLetterAt(int row, int column, int m) {
  const int middle = m / 2;
  const bool changed = column == middle && (row == middle || row == middle + 1);
  return LuxLetterOfRow(changed ? 2 * middle + 1 - row : row, m);
}

}  // namespace numorra
