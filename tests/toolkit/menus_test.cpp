#include "toolkit/menus.h"

#include <gtest/gtest.h>

namespace numorra {
namespace {

TEST(Menus, CommandsAreNamedAsTheirCaptionsWithoutTheKeyboardLetter) {
  const std::pair<const char*, const char*> cases[] = {
      {"&Vary", "Vary"}, {"Ed&ges", "Edges"}, {"変化(&V)", "変化"}, {"Rows (all)", "Rows (all)"}};
  for (const auto& [caption, name] : cases)
    EXPECT_EQ(WithoutMnemonic(caption), name);
}

}  // namespace
}  // namespace numorra
