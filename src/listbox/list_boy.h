#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "app/board/random.h"

namespace numorra {

/// An ordinary list box, to exchange items with a ListBoy.
class ListBox {
 public:
  virtual ~ListBox() = default;
  virtual void AddItem(const std::string& text) = 0;
  virtual int ListCount() const = 0;
  virtual std::string List(int index) const = 0;
};

/// A sortable list of texts, each with one number, its item data.
///
/// An item is stored as one record: its text, a TAB, its data in decimal. A text may contain TABs;
/// the last TAB of a record always separates the data. The columns of a record are the parts
/// between its TABs, counted from 1; a column below 1 means the whole text.
///
/// `ItemNumber` counts items from 0. If it names no item, changes do nothing and reads return an
/// empty result.
class ListBoy {
 public:
  /// `ItemNumber` of Additem when none is given.
  static constexpr int kNoItemNumber = -99;

  explicit ListBoy(Random& random) : random_(random) {}

  /// Adds an item with data 0: before item k for a k from 1 to below the count, at the front for
  /// -1, and at the end for 0 and every other number that is not positive. Adds nothing for a k of
  /// the count or more.
  void Additem(const std::string& ItemText, int ItemNumber = kNoItemNumber);

  void RemoveItem(int ItemNumber);

  std::int32_t ListCount() const;

  /// Accepted and ignored: the count follows from the items.
  void ListCount(std::int32_t New_ListCount);

  /// Sorts by whole record, text first, by character codes. Quicksort with a random pivot (Hoare
  /// 1961); the order of equal records makes no difference.
  void SortAscending();
  void SortDescending();

  /// Sorts by item data rounded to whole numbers (halves away from zero), equal ones by text. Data
  /// must be from 0 to below 10^12 - 0.5: larger numbers leave their excess digits in front of the
  /// text.
  void SortItemDataAscending();
  void SortItemDataDescending();

  /// Returns the first item whose column matches the wildcard pattern FindText, -1 if none does,
  /// nothing if StartIndex names no item. SearchDirection true searches towards the front.
  /// StartIndex 0 starts at the first item when searching forwards and at the last when searching
  /// backwards.
  std::optional<std::int32_t> Find(const std::string& FindText, int ColumnNumber,
                                   bool SearchDirection, int StartIndex, bool CaseSensitive) const;

  /// The same for the first item whose data equals the value.
  std::optional<std::int32_t> FindItemData(double FindItemValue, bool SearchDirection,
                                           int StartIndex) const;

  std::optional<double> GetItemData(int ItemNumber) const;
  void SetItemData(int ItemNumber, double ItemData);

  /// The item's column, empty when it has no such column.
  std::optional<std::string> list(int ItemNumber, int ColumnNumber) const;

  /// Replaces a column of the item, if it has that column.
  void UpdateText(int ItemNumber, const std::string& NewText, int ColumnNumber);

  void Clear();

  /// Appends one item for each line of the file, LF or CR LF. Throws FileError if it cannot be
  /// read; the items before the failure are kept.
  void LoadFile(const std::string& FileName);

  /// Writes the item texts, one per line with CR LF. Throws FileError if it cannot be written.
  void SaveFile(const std::string& FileName) const;

  void FillListBox(ListBox& list) const;
  void CopyFromListbox(const ListBox& list);

 private:
  bool Has(int itemNumber) const;
  template <class Match>
  std::optional<std::int32_t> FindFirst(bool backwards, int startIndex, Match match) const;
  template <class Before>
  void QuickSort(std::ptrdiff_t min, std::ptrdiff_t max, Before before);
  void PutDataInFront();
  void DropDataInFront();

  Random& random_;
  std::vector<std::string> records_;
};

}  // namespace numorra
