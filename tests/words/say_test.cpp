#include "words/say.h"

#include <gtest/gtest.h>

namespace numorra {
namespace {

TEST(Say, FillsPlacesInAnyOrder) {
  EXPECT_EQ(Filled("%2 before %1, and %2", {"a", "b"}), "b before a, and b");
  EXPECT_EQ(Filled("100 %, %, %3 and %0", {"a", "b"}), "100 %, %, %3 and %0");
  EXPECT_EQ(Filled("%1", {"%2", "b"}), "%2");
  EXPECT_EQ(Say("%1 of %2", 12345, std::string("x")), "12345 of x");
}

TEST(Say, CountsInEnglish) {
  for (const auto& [count, told] : {std::pair(0, "0 of 9 are left"),
                                    {1, "1 of 9 is left"},
                                    {-1, "-1 of 9 is left"},
                                    {2, "2 of 9 are left"}})
    EXPECT_EQ(SayCounted("%1 of %2 is left", "%1 of %2 are left", count, 9), told);
}

TEST(Say, WritesNumbersInTheStyleOfALanguage) {
  const NumberStyle english = StyleIn("-1234567.5");
  const NumberStyle german = StyleIn("-1.234.567,5");
  const NumberStyle french = StyleIn("\u22121\u202F234\u202F567,5");
  EXPECT_EQ(Written("-12345.25", english), "-12345.25");
  EXPECT_EQ(Written("-12345.25", german), "-12.345,25");
  EXPECT_EQ(Written("-1234567", french), "\u22121\u202F234\u202F567");
  EXPECT_EQ(Written("1234.5", german), "1234,5");
  EXPECT_EQ(Written("0.5", french), "0,5");
  for (const char* wrong : {"", "-", "1", "1,"})
    EXPECT_EQ(Written("-12345.5", StyleIn(wrong)), "-12345.5") << wrong;
}

}  // namespace
}  // namespace numorra
