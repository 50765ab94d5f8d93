#include "listbox/list_boy.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <functional>
#include <utility>

#include "app/board/numbers.h"
#include "app/board/runtime_error.h"
#include "listbox/wildcard.h"
#include "words/say.h"

namespace numorra {
namespace {

constexpr char kTab = '\t';
constexpr std::size_t kPictureDigits = 12;

std::string NewRecord(const std::string& text) {
  return text + kTab + "0";
}

std::string TextOf(const std::string& record) {
  return record.substr(0, record.rfind(kTab));
}

std::string DataOf(const std::string& record) {
  return record.substr(record.rfind(kTab) + 1);
}

std::vector<std::string> Columns(const std::string& record) {
  std::vector<std::string> columns;
  std::size_t begin = 0;
  for (std::size_t tab = record.find(kTab); tab != std::string::npos;
       tab = record.find(kTab, begin)) {
    columns.push_back(record.substr(begin, tab - begin));
    begin = tab + 1;
  }
  columns.push_back(record.substr(begin));
  return columns;
}

std::string ColumnOf(const std::string& record, int column) {
  if (column < 1) return TextOf(record);
  const auto columns = Columns(record);
  const auto index = static_cast<std::size_t>(column) - 1;
  return index < columns.size() ? columns[index] : std::string();
}

std::string UpperCase(std::string text) {
  for (char& c : text) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return text;
}

/// The whole number nearest to `value` with at least twelve digits.
std::string Picture(double value) {
  const double whole = std::round(value);
  std::array<char, 330> digits{};
  std::snprintf(digits.data(), digits.size(), "%0*.0f", static_cast<int>(kPictureDigits),
                std::abs(whole));
  std::string picture = whole < 0 ? "-" : "";
  return picture += digits.data();
}

}  // namespace

void ListBoy::Additem(const std::string& ItemText, int ItemNumber) {
  const auto count = static_cast<int>(records_.size());
  const bool atFront = ItemNumber == -1;
  if (ItemNumber > 0 && ItemNumber >= count) return;
  const bool atEnd = !atFront && ItemNumber <= 0;
  const auto place = atEnd ? records_.end() : records_.begin() + (atFront ? 0 : ItemNumber);
  records_.insert(place, NewRecord(ItemText));
}

void ListBoy::RemoveItem(int ItemNumber) {
  if (Has(ItemNumber)) records_.erase(records_.begin() + ItemNumber);
}

std::int32_t ListBoy::ListCount() const {
  return static_cast<std::int32_t>(records_.size());
}

void ListBoy::ListCount(std::int32_t) {}

/// Sorts the records min..max so that before(a, b) is false for every later a and earlier b.
template <class Before>
void ListBoy::QuickSort(std::ptrdiff_t min, std::ptrdiff_t max, Before before) {
  const auto at = [this](std::ptrdiff_t i) -> std::string& {
    return records_[static_cast<std::size_t>(i)];
  };
  while (min < max) {
    const auto pick = static_cast<std::ptrdiff_t>(
                          std::floor(static_cast<double>(max - min + 1) * random_.Next())) +
                      min;
    std::string pivot = std::move(at(pick));
    if (pick != min) at(pick) = std::move(at(min));
    // The gap left by the pivot moves inwards from both ends until they meet.
    std::ptrdiff_t low = min;
    std::ptrdiff_t high = max;
    while (low < high) {
      while (low < high && !before(at(high), pivot))
        --high;
      if (low == high) break;
      at(low++) = std::move(at(high));
      while (low < high && before(at(low), pivot))
        ++low;
      if (low == high) break;
      at(high) = std::move(at(low));
    }
    at(low) = std::move(pivot);
    // Recursing into the smaller side keeps the depth logarithmic.
    if (low - min < max - low) {
      QuickSort(min, low - 1, before);
      min = low + 1;
    } else {
      QuickSort(low + 1, max, before);
      max = low - 1;
    }
  }
}

void ListBoy::SortAscending() {
  QuickSort(0, std::ssize(records_) - 1, std::less<>());
}

void ListBoy::SortDescending() {
  QuickSort(0, std::ssize(records_) - 1, std::greater<>());
}

void ListBoy::SortItemDataAscending() {
  PutDataInFront();
  SortAscending();
  DropDataInFront();
}

void ListBoy::SortItemDataDescending() {
  PutDataInFront();
  SortDescending();
  DropDataInFront();
}

void ListBoy::PutDataInFront() {
  for (std::string& record : records_)
    record.insert(0, Picture(Val(DataOf(record))));
}

void ListBoy::DropDataInFront() {
  for (std::string& record : records_)
    record.erase(0, kPictureDigits);
}

template <class Match>
std::optional<std::int32_t> ListBoy::FindFirst(bool backwards, int startIndex, Match match) const {
  if (!Has(startIndex)) return std::nullopt;
  const std::int32_t step = backwards ? -1 : 1;
  std::int32_t index = backwards && startIndex == 0 ? ListCount() - 1 : startIndex;
  for (; Has(index); index += step) {
    if (match(records_[static_cast<std::size_t>(index)])) return index;
  }
  return -1;
}

std::optional<std::int32_t> ListBoy::Find(const std::string& FindText, int ColumnNumber,
                                          bool SearchDirection, int StartIndex,
                                          bool CaseSensitive) const {
  const auto folded = [&](const std::string& text) {
    return CaseSensitive ? text : UpperCase(text);
  };
  const std::string pattern = folded(FindText);
  return FindFirst(SearchDirection, StartIndex, [&](const std::string& record) {
    return MatchesWildcard(folded(ColumnOf(record, ColumnNumber)), pattern);
  });
}

std::optional<std::int32_t> ListBoy::FindItemData(double FindItemValue, bool SearchDirection,
                                                  int StartIndex) const {
  return FindFirst(SearchDirection, StartIndex,
                   [&](const std::string& record) { return Val(DataOf(record)) == FindItemValue; });
}

std::optional<double> ListBoy::GetItemData(int ItemNumber) const {
  if (!Has(ItemNumber)) return std::nullopt;
  return Val(DataOf(records_[static_cast<std::size_t>(ItemNumber)]));
}

void ListBoy::SetItemData(int ItemNumber, double ItemData) {
  if (!Has(ItemNumber)) return;
  std::string& record = records_[static_cast<std::size_t>(ItemNumber)];
  record = TextOf(record) + kTab + Decimal(ItemData);
}

std::optional<std::string> ListBoy::list(int ItemNumber, int ColumnNumber) const {
  if (!Has(ItemNumber)) return std::nullopt;
  return ColumnOf(records_[static_cast<std::size_t>(ItemNumber)], ColumnNumber);
}

void ListBoy::UpdateText(int ItemNumber, const std::string& NewText, int ColumnNumber) {
  if (!Has(ItemNumber) || ColumnNumber < 1) return;
  std::string& record = records_[static_cast<std::size_t>(ItemNumber)];
  auto columns = Columns(record);
  const auto changed = static_cast<std::size_t>(ColumnNumber) - 1;
  if (changed >= columns.size()) return;
  columns[changed] = NewText;
  record = columns.front();
  for (std::size_t i = 1; i < columns.size(); ++i)
    record += kTab + columns[i];
}

void ListBoy::Clear() {
  records_.clear();
}

void ListBoy::LoadFile(const std::string& FileName) {
  std::ifstream file(FileName, std::ios::binary);
  if (!file) throw RuntimeError(Fault::FileError, Say("cannot open %1", FileName));
  for (std::string line; std::getline(file, line);) {
    if (line.ends_with('\r')) line.pop_back();
    Additem(line);
  }
  if (file.bad()) throw RuntimeError(Fault::FileError, Say("cannot read %1", FileName));
}

void ListBoy::SaveFile(const std::string& FileName) const {
  std::ofstream file(FileName, std::ios::binary | std::ios::trunc);
  for (const std::string& record : records_)
    file << TextOf(record) << "\r\n";
  if (!file.flush()) throw RuntimeError(Fault::FileError, Say("cannot write %1", FileName));
}

void ListBoy::FillListBox(ListBox& list) const {
  for (const std::string& record : records_)
    list.AddItem(TextOf(record));
}

void ListBoy::CopyFromListbox(const ListBox& list) {
  for (int i = 0; i < list.ListCount(); ++i)
    Additem(list.List(i));
}

bool ListBoy::Has(int itemNumber) const {
  return itemNumber >= 0 && itemNumber < std::ssize(records_);
}

}  // namespace numorra
