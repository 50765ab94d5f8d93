#include "cli/top_row_list.h"

#include "app/board/numbers.h"

namespace numorra {

std::optional<NamedTopRow> NamedTopRowIn(const std::string& line) {
  constexpr const char* kBlanks = " \t";
  for (std::size_t at = line.find_first_not_of(kBlanks); at != std::string::npos;
       at = line.find_first_not_of(kBlanks, line.find_first_of(kBlanks, at))) {
    const auto row = ParseTopRow(Trim(line.substr(at)));
    if (!row) continue;
    std::string name = Trim(line.substr(0, at));
    if (name.ends_with(',') || name.ends_with(';') || name.ends_with(':')) name.pop_back();
    return NamedTopRow{Trim(name), *row};
  }
  return std::nullopt;
}

}  // namespace numorra
