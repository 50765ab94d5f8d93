#include "files/square_text.h"

#include <gtest/gtest.h>

namespace numorra {
namespace {

TEST(SquareTexts, AreReadAsPeopleAndProgramsWriteThem) {
  const StoredCells loShu{3, {8, 1, 6, 3, 5, 7, 4, 9, 2}};
  for (const char* text :
       {"8\t1\t6\n3\t5\t7\n4\t9\t2\n", "8\t1\t6\r\n3\t5\t7\r\n4\t9\t2",
        "8\t1\t6\r3\t5\t7\r4\t9\t2\r", "8\t1\t6\t\n3\t5\t7\t\n4\t9\t2\t", "8,1,6\n3,5,7\n4,9,2",
        "8,1,6,\n3,5,7,\n4,9,2,", "8;1;6\n3; 5 ;7\n4;9;2\n\n", "\n\n  8 1 6\n 3  5 7\n 4 9  2 \n",
        "8.0 +1 6\n3 5 7\n4 9 2", "[8 1 6; 3 5 7; 4 9 2]", " [8, 1, 6\n3, 5, 7\n4, 9, 2]\n",
        "\xEF\xBB\xBF"
        "8 1 6\n3\xC2\xA0"
        "5 7\n4 9\xE2\x80\xAF"
        "2"}) {
    const auto read = ReadSquareText(text);
    ASSERT_TRUE(std::holds_alternative<StoredSquare>(read)) << text;
    EXPECT_EQ(std::get<StoredSquare>(read).Cells, loShu) << text;
  }
  const auto signs = ReadSquareText(
      "\xE2\x88\x92"
      "1 -2.5 3\n4 5 6\n7 8 00000000000000000.5000");
  EXPECT_EQ(std::get<StoredSquare>(signs).Cells,
            (StoredCells{3, {-1, -2.5, 3, 4, 5, 6, 7, 8, 0.5}}));
  const StoredCells decimals{3, {1.5, 2, -3.25, 4, 5, 6, 7, 8, 9}};
  for (const char* text : {"1,5;2;-3,25\n4;5;6\n7;8;9", "1,5\t2,0\t-3,25\n4\t5\t6\n7\t8\t9",
                           "# from a table\n\n1.5 2 -3.25 # first\n4 5 6\n#\n7 8 9"}) {
    EXPECT_EQ(std::get<StoredSquare>(ReadSquareText(text)).Cells, decimals) << text;
  }
  const StoredCells gaps{3, {8, {}, 6, {}, 5, {}, 4, {}, {}}};
  for (const char* text : {"8 . 6\n- 5 _\n4", "8,,6\n,5,\n4,,", "8,,6\n,5\n4", "8\t\t6\n\t5\n4\n\n",
                           "8;-;6;\n;5;;\n4;_;;", "8 - 6\n\xE2\x88\x92 5\n4 . ."}) {
    const auto read = ReadSquareText(text);
    ASSERT_TRUE(std::holds_alternative<StoredSquare>(read)) << text;
    EXPECT_EQ(std::get<StoredSquare>(read).Cells, gaps) << text;
    const auto again = ReadSquareText(CsvOf(std::get<StoredSquare>(read)));
    EXPECT_EQ(std::get<StoredSquare>(again), std::get<StoredSquare>(read));
  }
}

TEST(SquareTexts, ThatAreInvalidAreRefusedWithTheirLine) {
  const std::string none =
      "this is not a square of numbers\ncopy 3x3 to 50x50 numbers from a table or a text";
  std::string wide;
  for (int i = 0; i < 51; ++i)
    wide += "1 2 3\n";
  const std::pair<std::string, std::string> cases[] = {
      {"", none},
      {"hello", none},
      {"1 2\n3 4", none},
      {"[1 2; 3 4]", none},
      {wide, none},
      {std::string(2 << 20, '1'), kTooLongForASquare},
      {"1 2 3 4\n1 2 3 4\n1 2 3 4", "line 1 has 4 numbers, but there are 3 lines"},
      {"\n\n1 2 3\n4 5 6 7\n7 8 9", "line 4 has 4 numbers, but there are 3 lines"},
      {"1 2 3\n\n4 5 6\n7 8 9", "line 2 is empty"},
      {"1,2,3,\n4,5,6\n7,8,9", "line 1 has 4 numbers, but there are 3 lines"},
      {"1,234;2;3\n4;5;6\n7;8;9", "line 1: \"1,234\" is not a number"},
      {"1,5;2.5;3\n4;5;6\n7;8;9", "line 1: \"1,5\" is not a number"},
      {"1 2 x\n4 5 6\n7 8 9", "line 1: \"x\" is not a number"},
      {"1 2 3\n4 5 6\n1.2.3 8 9", "line 3: \"1.2.3\" is not a number"},
      {"1 2 3\n4 5 6\n7 1e9 9", "line 3: \"1e9\" is not a number"},
      {"1 2 3\n4 5 6\n123456789012345 8 9", "line 3: 123456789012345 has more than 14 digits"},
      {"1 2 3\n-999999999999999.5 5 6\n7 8 9",
       "line 2: -999999999999999.5 has more than 14 digits"},
      {"1 2 3\n4 5 6\n7 8 0.000000000000001", "line 3: 0.000000000000001 has more than 14 digits"},
      {std::string(400, '9') + " 2 3\n4 5 6\n7 8 9",
       "line 1: " + std::string(20, '9') + "... has more than 14 digits"}};
  for (const auto& [text, why] : cases) {
    const auto read = ReadSquareText(text);
    ASSERT_TRUE(std::holds_alternative<Unreadable>(read)) << text;
    EXPECT_EQ(std::get<Unreadable>(read).Why, why) << text.substr(0, 40);
  }
}

}  // namespace
}  // namespace numorra
