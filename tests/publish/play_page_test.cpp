#include "publish/play_page.h"

#include <gtest/gtest.h>

#include "files/stored_square.h"

using namespace numorra;

namespace {

/// The puzzle of order 3 that lacks 8, with members added that come last.
std::string PuzzleWith(const std::string& members) {
  return R"({"total": 15, "rules": "normal", "rows": [[null, 1, 6], [3, 5, 7], [4, 9, 2]])" +
         (members.empty() ? "" : ", " + members) + "}";
}

int CountOf(const std::string& text, const std::string& part) {
  int count = 0;
  for (std::size_t at = 0; (at = text.find(part, at)) != std::string::npos; ++at)
    ++count;
  return count;
}

/// The JSON that the page's scripts read.
std::string DataOf(const std::string& page) {
  const std::string begin = "id=\"data\">\n";
  const std::size_t at = page.find(begin) + begin.size();
  return page.substr(at, page.find("\n</script>", at) - at);
}

}  // namespace

TEST(PlayPageTest, NeedsNothingButItself) {
  const std::string page = PlayPage("Monday", {PuzzleWith("")});
  EXPECT_EQ(CountOf(page, "<title>Monday</title>"), 1);
  for (const char* reach : {"http:", "https:", "src=", "href=", "@import", "url(", "<!--"})
    EXPECT_EQ(CountOf(page, reach), 0) << reach;
  EXPECT_LT(PlayPage("", {}).size(), 22'000U);
}

TEST(PlayPageTest, HasASheetForEachPuzzle) {
  const std::string positive =
      R"({"total": 6, "rules": "positive", "rows": [[2, 2, 2], [2, 2, null], [2, 2, 2]]})";
  const std::string page =
      PlayPage("", {PuzzleWith(R"("grade": "easy", "code": "NP12")"), positive});
  EXPECT_EQ(CountOf(page,
                    "<b>1.</b> Total 15, each missing number once; easy, 8 clues, "
                    "code NP12</caption>\n<tr><td><td>1<td>6<tr><td>3<td>5<td>7"),
            1);
  EXPECT_EQ(CountOf(page, "<b>2.</b> Total 6, whole numbers of 1 or more; 8 clues</caption>"), 1);
  EXPECT_EQ(CountOf(page, "<table><caption>"), 2);
}

TEST(PlayPageTest, EscapesWhatItEmbeds) {
  const std::string evil = R"(</script><!--title--><b a='1' b=\"2\">&amp;)";
  const std::string page = PlayPage(
      "</title><script>\"'&<!--data-->",
      {PuzzleWith(R"("code": ")" + evil + R"(", "steps": [{"says": ")" + evil + R"("}])")});
  EXPECT_EQ(CountOf(page, "</script>"), 2);
  EXPECT_EQ(CountOf(page, "<script"), 2);
  EXPECT_EQ(CountOf(page, "&lt;/title&gt;&lt;script&gt;&quot;&#39;&amp;&lt;!--data--&gt;"), 2);
  EXPECT_EQ(CountOf(page,
                    "code &lt;/script&gt;&lt;!--title--&gt;&lt;b a=&#39;1&#39; "
                    "b=&quot;2&quot;&gt;&amp;amp;</caption>"),
            1);
  EXPECT_EQ(CountOf(DataOf(page), "<"), 0);
}

TEST(PlayPageTest, StepsOfOneFormShareIt) {
  const std::string steps = R"("solution": [[8, 1, 6], [3, 5, 7], [4, 9, 2]], "steps": [
      {"cell": [1, 2], "because": [{"says": "row 2 \u0031\" {"}, {"says": "row 13 \u0031\" {"}]},
      {"cell": [3, 1], "because": [{"says": "row 4, 5 or 007 \u0031\" {"}, {"says": "007, row"}]}
      ])";
  const std::string page = PlayPage("", {PuzzleWith(steps)});
  EXPECT_EQ(DataOf(page), R"({"forms":["{\"says\":\"row \n \\u0031\\\" {\"}", )"
                          R"("{\"cell\":[\n,\n],\"because\":\n}", "{\"says\":\"\n, row\"}"],)"
                          "\n"
                          R"("puzzles":[{"total":15,"normal":true,)"
                          R"("solution":[8,1,6,3,5,7,4,9,2],"steps":[[1,1,2,[[0,2],[0,13]]],)"
                          R"([1,3,1,[[0,"4, 5 or 007"],[2,"007"]]]]}]})");
}

TEST(PlayPageTest, RefusesWhatIsNoPuzzle) {
  const std::pair<std::string, std::string> kRefused[] = {
      {"{", "puzzle 2: line 1, column 2: the JSON ends too early"},
      {"{}", "puzzle 2: this JSON is not a Numorra square"},
      {PuzzleWith(R"("steps": 3)"), "puzzle 2: \"steps\" must be an array of objects"},
      {PuzzleWith(R"("steps": [{}, [1]])"), "puzzle 2: \"steps\" must be an array of objects"},
      {PuzzleWith(R"("solution": [[8, 1, 6], [3, 5, 7], [4, 9, null]])"),
       "puzzle 2: the solution is not a full square of order 3"},
  };
  for (const auto& [json, why] : kRefused) {
    try {
      PlayPage("", {PuzzleWith(""), json});
      ADD_FAILURE() << json;
    } catch (const Unreadable& unreadable) {
      EXPECT_EQ(unreadable.Why, why);
    }
  }
}
