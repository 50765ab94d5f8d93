#include "listbox/list_boy.h"

#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>

#include "app/board/runtime_error.h"
#include "listbox/wildcard.h"
#include "support/stand_ins.h"

namespace numorra {
namespace {

using Texts = std::vector<std::string>;

class ListBoyTest : public testing::Test {
 protected:
  void Fill(const Texts& texts, const std::vector<double>& data = {}) {
    for (std::size_t i = 0; i < texts.size(); ++i) {
      list_.Additem(texts[i]);
      if (i < data.size()) list_.SetItemData(list_.ListCount() - 1, data[i]);
    }
  }

  Texts Items() {
    Texts items;
    for (int i = 0; i < list_.ListCount(); ++i)
      items.push_back(*list_.list(i, 0));
    return items;
  }

  SeededRandom random_{3};
  ListBoy list_{random_};
};

TEST_F(ListBoyTest, PlacesNewItemsByItsOwnRules) {
  list_.Additem("x");
  EXPECT_EQ(list_.GetItemData(0), 0);
  list_.Additem("y", -1);
  list_.Additem("z", 0);
  EXPECT_EQ(Items(), (Texts{"y", "x", "z"}));
  list_.Additem("w", 2);
  EXPECT_EQ(Items(), (Texts{"y", "x", "w", "z"}));
  list_.Additem("none", 4);
  list_.Additem("none", 99);
  list_.Additem("end", -7);
  EXPECT_EQ(Items(), (Texts{"y", "x", "w", "z", "end"}));
  list_.Clear();
  list_.Additem("none", 1);
  EXPECT_EQ(list_.ListCount(), 0);
  list_.Additem("first", -1);
  list_.ListCount(17);
  EXPECT_EQ(Items(), Texts{"first"});
}

TEST_F(ListBoyTest, RemovesWhatIsThere) {
  Fill({"a", "b", "c"});
  for (const int index : {-1, 3, 5, 1})
    list_.RemoveItem(index);
  EXPECT_EQ(Items(), (Texts{"a", "c"}));
  for (int time = 0; time < 3; ++time)
    list_.RemoveItem(0);
  EXPECT_EQ(list_.ListCount(), 0);
}

TEST_F(ListBoyTest, SortsByTextAndByRoundedData) {
  Fill({"b", "B", "a", "ab", "a"}, {0, 0, 9, 0, 10});
  list_.SortAscending();
  EXPECT_EQ(Items(), (Texts{"B", "a", "a", "ab", "b"}));
  EXPECT_EQ(list_.GetItemData(1), 10) << "equal texts by their data as text";
  list_.SortDescending();
  EXPECT_EQ(Items(), (Texts{"b", "ab", "a", "a", "B"}));
  list_.Clear();
  Fill({"ten", "nine", "most", "zero"}, {10, 9, 9.6, 0});
  list_.SortItemDataAscending();
  EXPECT_EQ(Items(), (Texts{"zero", "nine", "most", "ten"}));
  EXPECT_EQ(list_.GetItemData(2), 9.6);
  list_.SortItemDataDescending();
  EXPECT_EQ(Items(), (Texts{"ten", "most", "nine", "zero"}));
  list_.Clear();
  Fill({"minus", "huge"}, {-5, 1e12});
  list_.SortItemDataAscending();
  EXPECT_EQ(Items(), (Texts{"5minus", "0huge"})) << "what is beyond twelve digits stays behind";
}

TEST_F(ListBoyTest, FindsByWildcardOrDataInEitherDirection) {
  EXPECT_EQ(list_.Find("*", 0, false, 0, true), std::nullopt);
  Fill({"apple", "Avocado", "banana\tyellow", "apple"}, {1, 2, 3, 1});
  struct Case {
    const char* text;
    int column;
    bool backwards;
    int from;
    bool caseSensitive;
    std::optional<int> found;
  };
  const Case cases[] = {{"A*", 0, false, 0, false, 0},
                        {"A*", 0, false, 0, true, 1},
                        {"a*", 0, true, 0, true, 3},
                        {"a*", 0, true, 2, true, 0},
                        {"a*", 0, false, 1, true, 3},
                        {"YELLOW", 2, false, 0, false, 2},
                        {"2", 2, false, 0, true, 1},
                        {"kiwi", 0, false, 0, true, -1},
                        {"*", 0, false, 4, true, std::nullopt},
                        {"*", 0, false, -1, true, std::nullopt}};
  for (const Case& c : cases) {
    EXPECT_EQ(list_.Find(c.text, c.column, c.backwards, c.from, c.caseSensitive), c.found)
        << c.text << " from " << c.from;
  }
  EXPECT_EQ(list_.FindItemData(1, false, 0), 0);
  EXPECT_EQ(list_.FindItemData(1, true, 0), 3);
  EXPECT_EQ(list_.FindItemData(1, false, 1), 3);
  EXPECT_EQ(list_.FindItemData(8, false, 0), -1);
  EXPECT_EQ(list_.FindItemData(1, false, 4), std::nullopt);
}

TEST_F(ListBoyTest, KeepsColumnsApartAtTheLastTab) {
  Fill({"one\ttwo"}, {3.5});
  EXPECT_EQ(list_.list(0, 0), "one\ttwo");
  EXPECT_EQ(list_.list(0, 1), "one");
  EXPECT_EQ(list_.list(0, 3), "3.5");
  EXPECT_EQ(list_.list(0, 4), "");
  EXPECT_EQ(list_.list(1, 0), std::nullopt);
  list_.UpdateText(0, "2", 2);
  list_.UpdateText(0, "nowhere", 9);
  list_.UpdateText(0, "nowhere", 0);
  EXPECT_EQ(list_.list(0, 0), "one\t2");
  list_.UpdateText(0, "7x", 3);
  EXPECT_EQ(list_.GetItemData(0), 7);
  list_.SetItemData(0, -0.25);
  EXPECT_EQ(list_.list(0, 3), "-0.25");
  list_.SetItemData(5, 1);
  EXPECT_EQ(list_.GetItemData(5), std::nullopt);
}

TEST_F(ListBoyTest, SavesAndLoadsTexts) {
  const std::string path = testing::TempDir() + "numorra_list.txt";
  Fill({"first", "", "tab\tbed"}, {1, 2, 3});
  list_.SaveFile(path);
  std::ifstream file(path, std::ios::binary);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), "first\r\n\r\ntab\tbed\r\n");
  list_.Clear();
  list_.LoadFile(path);
  EXPECT_EQ(Items(), (Texts{"first", "", "tab\tbed"}));
  EXPECT_EQ(list_.GetItemData(2), 0);
  std::ofstream(path, std::ios::binary) << "unix\nno end";
  list_.LoadFile(path);
  EXPECT_EQ(list_.list(3, 0), "unix");
  EXPECT_EQ(list_.list(4, 0), "no end");
  std::remove(path.c_str());
  for (const std::string& none : {path, testing::TempDir()})
    EXPECT_THROW(list_.LoadFile(none), RuntimeError);
  for (const char* full : {"/nowhere/list.txt", "/dev/full"})
    EXPECT_THROW(list_.SaveFile(full), RuntimeError);
  EXPECT_EQ(list_.ListCount(), 5);
}

TEST_F(ListBoyTest, LoadsMalformedFiles) {
  const std::string path = testing::TempDir() + "numorra_strange.txt";
  const std::string binary("\0\t\xff\r\r\n\0\n\x80", 9);
  std::ofstream(path, std::ios::binary) << binary;
  list_.LoadFile(path);
  EXPECT_EQ(Items(), (Texts{binary.substr(0, 4), std::string(1, '\0'), "\x80"}));
  list_.Clear();
  {
    std::ofstream file(path, std::ios::binary);
    for (int megabyte = 0; megabyte < 100; ++megabyte)
      file << std::string((1 << 20) - 1, static_cast<char>('a' + megabyte % 7)) << '\n';
  }
  list_.LoadFile(path);
  EXPECT_EQ(list_.ListCount(), 100);
  EXPECT_EQ(list_.Find("g*", 0, true, 0, true), 97);
  std::remove(path.c_str());
}

TEST_F(ListBoyTest, ExchangesItemsWithAListBox) {
  PlainListBox box;
  box.Entries = {"there"};
  Fill({"a", "b"}, {1, 2});
  list_.FillListBox(box);
  EXPECT_EQ(box.Entries, (Texts{"there", "a", "b"}));
  list_.CopyFromListbox(box);
  EXPECT_EQ(Items(), (Texts{"a", "b", "there", "a", "b"}));
  EXPECT_EQ(list_.GetItemData(4), 0);
}

TEST(Wildcards, MatchByTheirRules) {
  const std::pair<const char*, const char*> matching[] = {
      {"", ""},       {"", "*"},         {"abc", "a?c"},    {"abc", "a*"},        {"abc", "*c"},
      {"a1c", "a#c"}, {"abc", "[a-c]*"}, {"-", "[a-]"},     {"zbc", "[!a-c]bc"},  {"]", "]"},
      {"é", "?"},     {"é", "[à-ï]"},    {"a[b", "a[b"},    {"aXbXc", "a*X*c"},   {"aab", "*a*b*"},
      {"a", "[!]"},   {"a*c", "a[*]c"},  {"8", "[1-37-9]"}, {"misisip", "*is*ip"}};
  for (const auto& [text, pattern] : matching)
    EXPECT_TRUE(MatchesWildcard(text, pattern)) << text << " ~ " << pattern;
  const std::pair<const char*, const char*> different[] = {
      {"", "?"},           {"a", ""},        {"abc", "*b"},   {"abc", "a#c"},
      {"abc", "[!a-c]bc"}, {"x", "[]"},      {"ab", "?"},     {"a[b", "a[bc"},
      {"5", "[1-37-9]"},   {"abc", "a[*]c"}, {"d", "[a-c-e]"}};
  for (const auto& [text, pattern] : different)
    EXPECT_FALSE(MatchesWildcard(text, pattern)) << text << " ~ " << pattern;
  EXPECT_FALSE(MatchesWildcard(std::string(5000, 'a'), "*a*a*a*a*a*a*a*a*b"));
}

}  // namespace
}  // namespace numorra
