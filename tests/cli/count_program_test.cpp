#include <gtest/gtest.h>
#include <sstream>

#include "cli/square_program.h"

namespace numorra {
namespace {

/// The output, or the remark if the status is not 0.
std::string Answer(const std::string& line, const std::string& input = "") {
  std::istringstream words(line), in(input);
  std::ostringstream out, err;
  const int status =
      RunSquareProgram({std::istream_iterator<std::string>(words), {}}, {in, out, err});
  return status == 0 ? out.str() : err.str();
}

TEST(CountProgram, ListsAndCounts) {
  const std::string merged =
      "order 5 magic slice 2/2 count 5 checksum 1\n\n"
      "{\"order\": 5, \"kind\": \"magic\", \"slice\": \"1/2\", "
      "\"count\": 7, \"checksum\": \"2\"}\n";
  const struct {
    const char* Line;
    std::string Input;
    const char* Answer;
  } kCases[] = {
      {"list --size 3 --format csv", "", "2,7,6\n9,5,1\n4,3,8\n"},
      {"list --given - --format csv", "8 - -\n- - -\n- - -", "8,1,6\n3,5,7\n4,9,2\n"},
      {"count --size 4", "", "order 4 magic count 880 images 7040\n"},
      {"count --size=4 --kind associative --format json", "",
       "{\"order\": 4, \"kind\": \"associative\", \"count\": 48, \"images\": 384}\n"},
      {"count --size 4 --term semi-pandiagonal --term associative", "",
       "order 4 semi-pandiagonal,associative count 48 images 384\n"},
      {"count --size 3 --semi-magic", "", "order 3 semi-magic count 9 images 72\n"},
      {"count --size 4 --given -", "16 - - -\n- - - -\n- - - -\n- - - -",
       "order 4 magic count 208 images 416\n"},
      {"count --merge -", merged, "order 5 magic count 12 images 96\n"},
  };
  for (const auto& [line, input, answer] : kCases)
    EXPECT_EQ(Answer(line, input), answer) << line;
}

TEST(CountProgram, SaysWhatIsWrong) {
  const struct {
    const char* Line;
    const char* Remark;
    const char* Input = "";
  } kCases[] = {
      {"list", "the size is missing; try --help"},
      {"list --size 2", "the size must be a whole number from 3 to 50; try --help"},
      {"list --size 4 --slice 1/2", "unknown argument '--slice'; try --help"},
      {"list --size 4 --count 0", "the count must be a whole number of 1 or more; try --help"},
      {"list --size 4 --all-images=1", "'--all-images' takes no value; try --help"},
      {"list --size 4 --kind", "'--kind' needs a value; try --help"},
      {"list --size 5 --kind ultramagic --term bordered", "there is no such square"},
      {"count --size 4 --term magical", "there is no term 'magical'; try --help"},
      {"count --size 4 --format csv", "the format must be text or json; try --help"},
      {"count --size 5 --slice 3/2",
       "the slice must be its number and their count, such as 17/512; try --help"},
      {"count --size 4 --slice 1/2",
       "slices are cut from all magic squares of size 5, without conditions; try --help"},
      {"count --size 4 --seconds 5", "only an estimate takes seconds; try --help"},
      {"count --merge", "the files with the slices are missing; try --help"},
      {"count --size 5 --merge -",
       "the slices to merge can be combined with a format only; try --help"},
      {"count --merge -", "'-', line 1: this is not the count of a slice", "hello"},
      {"count --merge -", "slice 1/2 is missing", "order 5 magic slice 2/2 count 5 checksum 1"},
      {"count --merge /no/such/file", "'/no/such/file' cannot be read"},
      {"count --given -", "1 in row 2, column 2 is also in row 1, column 1", "1 - -\n- 1 -\n- - -"},
      {"count --size 4 --given -", "the square with given cells is of order 3, not 4",
       "1 - -\n- - -\n- - -"},
      {"count --size 9",
       "a board with 81 gaps has too many squares; at most 64 gaps can be searched"},
  };
  for (const auto& [line, remark, input] : kCases)
    EXPECT_EQ(Answer(line, input), "numorra-square: " + std::string(remark) + "\n") << line;
  EXPECT_NE(Answer("count --size 6").find("too many to count"), std::string::npos);
}

}  // namespace
}  // namespace numorra
