#include "app/ports/build_stage.h"

#include <array>
#include <charconv>

namespace numorra {

void BuildStage::ShowCount(std::int32_t count) {
  std::array<char, 16> text{};
  std::to_chars(text.data(), text.data() + text.size() - 1, count);
  ShowCount(text.data());
}

}  // namespace numorra
