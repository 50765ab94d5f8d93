#include "app/play/entry_names.h"

#include <algorithm>

#include "words/say.h"

namespace numorra {

std::string NamesOfEntries(const Position& position, const std::vector<Place>& cells) {
  constexpr std::size_t kMostNamed = 5;
  const std::size_t named = std::min(kMostNamed, cells.size());
  std::string names;
  for (std::size_t i = 0; i < named; ++i) {
    // Translators: a number and its cell: "7 in row 2, column 3".
    const std::string entry = Say("%1 in %2", Written(position.Texts[cells[i]]), NameOf(cells[i]));
    names = i == 0 ? entry : Say("%1; %2", names, entry);
  }
  if (named == cells.size()) return names;
  // Translators: the end of a list of entries, such as "7 in row 2, column 3; and 4 more".
  return SayCounted("%2; and %1 more", "%2; and %1 more", cells.size() - named, names);
}

}  // namespace numorra
