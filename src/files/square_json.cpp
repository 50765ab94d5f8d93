#include "files/square_json.h"

#include <cmath>

#include "app/board/note_ranges.h"
#include "app/board/numbers.h"
#include "app/board/orders.h"
#include "app/board/place.h"
#include "files/json_members.h"
#include "words/say.h"

namespace numorra {
namespace {

using Kind = JsonValue::Kind;

constexpr const char* kFormat = "numorra-square";
constexpr int kVersion = 1;

[[noreturn]] void Fail(const std::string& why) {
  throw Unreadable{why};
}

/// The rows of a square, each value as written(value) has it.
template <class T, class Write>
std::string Rows(const Square<T>& square, Write written) {
  return JsonArray(square.Order(), [&](int row) {
    return JsonArray(square.Order(), [&](int column) {
      return written(square[Place{row + 1, column + 1}]);
    });
  });
}

/// The numbers that cannot be notes: by the normal rules, those in the square.
NoteSet NumbersIn(const StoredSquare& square) {
  NoteSet numbers;
  if (square.Asked != Rules::Normal) return numbers;
  for (const auto& cell : square.Cells) {
    const bool whole = cell && *cell >= 1 && *cell <= kMostNoted && *cell == std::floor(*cell);
    if (whole) numbers.set(static_cast<std::size_t>(*cell));
  }
  return numbers;
}

/// The members of an object, checked against what a square has.
class Reader {
 public:
  Reader(const std::string& text, std::size_t firstLine)
      : members_(JsonMembersIn(text, firstLine)) {}

  StoredSquare Read() {
    CheckFormat();
    order_ = Order();
    square_.Cells = Cells();
    square_.Total = Total();
    square_.Asked = Asked();
    square_.Givens = Givens();
    square_.Noted = Noted();
    return square_;
  }

 private:
  bool Has(const char* name) const { return members_.contains(name); }

  /// The member; an empty one if there is none.
  const JsonMember& At(const char* name) const {
    static const JsonMember kNone;
    const auto found = members_.find(name);
    return found == members_.end() ? kNone : found->second;
  }

  double NumberAt(const char* name, double otherwise) const {
    const JsonValue& value = At(name).Value;
    return value.Is == Kind::Number ? value.Number : otherwise;
  }

  /// Answers and reports name no format, but have rows.
  void CheckFormat() const {
    const bool named = Has("format");
    const double version = NumberAt("version", named ? 0 : kVersion);
    if (!(named ? At("format").Value.Text == kFormat : Has("rows")) || version < 1 ||
        version != std::floor(version)) {
      Fail(Say("this JSON is not a Numorra square"));
    }
    if (version > kVersion) Fail(Say("this square was written by a later version of Numorra"));
  }

  int Order() const {
    const JsonMember& rows = At("rows");
    const bool counted = !Has("order") && Has("rows");
    if (counted && rows.Value.Is == Kind::Null) Fail(Say("%1 contains no square", "\"rows\""));
    const double order = counted ? static_cast<double>(rows.Rows.size()) : NumberAt("order", -1);
    if (order != std::floor(order) || order < kMinOrder || order > kMaxOrder) {
      if (counted) {
        Fail(Say("%1 has %2 rows, not %3 to %4", "\"rows\"", Written(order), kMinOrder, kMaxOrder));
      }
      Fail(Say("%1 must be a whole number from %2 to %3", "\"order\"", kMinOrder, kMaxOrder));
    }
    return static_cast<int>(order);
  }

  /// The entries of a member's rows, checked to be as many as a square of this order has.
  Square<JsonValue> Entries(const char* name) const {
    const auto order = static_cast<std::size_t>(order_);
    const auto& rows = At(name).Rows;
    const std::string quoted = "\"" + std::string(name) + "\"";
    if (rows.size() != order) {
      Fail(Say("%1 has %2 rows, not %3", quoted, rows.size(), order));
    }
    std::vector<JsonValue> entries;
    for (const auto& row : rows) {
      if (row.size() != order) {
        Fail(Say("row %1 of %2 has %3 cells, not %4", entries.size() / order + 1, quoted,
                 row.size(), order));
      }
      entries.insert(entries.end(), row.begin(), row.end());
    }
    return {order_, std::move(entries)};
  }

  [[noreturn]] void FailIn(int cell, const std::string& why) const {
    Fail(Say("%1: %2", NameOf(PlaceAt(cell, order_)), why));
  }

  /// Whether the number was written with more digits; a double keeps only about 15.
  static bool HasMoreDigits(double number, int most) {
    return AsShown(number) != number || DigitsOf(Decimal(number)) > most;
  }

  StoredCells Cells() const {
    const Square<JsonValue> entries = Entries("rows");
    return SquareOf(order_, [&](int cell) -> std::optional<double> {
      const JsonValue& entry = entries[cell];
      if (entry.Is == Kind::Null) return std::nullopt;
      if (entry.Is != Kind::Number) FailIn(cell, Say("this is not a number"));
      if (HasMoreDigits(entry.Number, kMostCellDigits)) {
        FailIn(cell, Say("the number has more than %1 digits", kMostCellDigits));
      }
      return entry.Number;
    });
  }

  std::optional<double> Total() const {
    const JsonValue& total = At("total").Value;
    if (!Has("total") || total.Is == Kind::Null) return std::nullopt;
    if (total.Is != Kind::Number) Fail(Say("%1 is not a number", "\"total\""));
    if (HasMoreDigits(total.Number, kMostTotalDigits)) {
      Fail(Say("%1 has more than %2 digits", "\"total\"", kMostTotalDigits));
    }
    return total.Number;
  }

  Rules Asked() const {
    const std::string& name = At("rules").Value.Text;
    if (!Has("rules") || name == NameOf(Rules::Positive)) return Rules::Positive;
    if (name == NameOf(Rules::Normal)) return Rules::Normal;
    Fail(Say("%1 must be normal or positive", "\"rules\""));
  }

  Square<bool> Givens() const {
    if (!Has("givens")) return {};
    const Square<JsonValue> entries = Entries("givens");
    return SquareOf(order_, [&](int cell) {
      if (entries[cell].Is != Kind::Boolean)
        FailIn(cell, Say("%1 must be true or false", "\"givens\""));
      const bool given = entries[cell].Number != 0;
      if (given && !square_.Cells[cell]) FailIn(cell, Say("a gap cannot be given"));
      return given;
    });
  }

  Notes Noted() const {
    if (!Has("notes")) return {};
    const Square<JsonValue> entries = Entries("notes");
    const NoteSet shown = NumbersIn(square_);
    const int most = square_.Asked == Rules::Normal ? order_ * order_ : kMostNoted;
    return NotesOf(order_, [&](int cell) {
      const JsonValue& entry = entries[cell];
      const auto numbers = NumbersInRanges(entry.Text, most);
      if (entry.Is != Kind::Text || !numbers) {
        FailIn(cell, Say("%1 must be a text of numbers from 1 to %2 and ranges, such as %3",
                         "\"notes\"", most, "\"1-3 7\""));
      }
      if (numbers->any() && square_.Cells[cell]) FailIn(cell, Say("only a gap can have notes"));
      return *numbers & ~shown;
    });
  }

  JsonMembers members_;
  int order_ = 0;
  StoredSquare square_;
};

}  // namespace

std::string JsonOf(const StoredSquare& square, const std::string&) {
  return JsonLineOf(square).Text() + "\n";
}

JsonLine JsonLineOf(const StoredSquare& square) {
  JsonLine line;
  line.Add("format", JsonString(kFormat)).Add("version", std::to_string(kVersion));
  line.Add("order", std::to_string(square.Order()));
  if (square.Total) line.Add("total", Decimal(*square.Total));
  line.Add("rules", JsonString(NameOf(square.Asked))).Add("rows", JsonRowsOf(square.Cells));
  if (!square.Givens.IsEmpty()) {
    line.Add("givens", Rows(square.Givens, [](bool given) { return given ? "true" : "false"; }));
  }
  if (!square.Noted.IsEmpty()) {
    const NoteSet shown = NumbersIn(square);
    const auto notes = SquareOf(square.Order(), [&](int cell) { return square.Noted[cell]; });
    line.Add("notes",
             Rows(notes, [&](const NoteSet& set) { return JsonString(RangesOf(set, shown)); }));
  }
  return line;
}

std::string JsonRowsOf(const StoredCells& cells) {
  return Rows(cells, [](const auto& cell) { return cell ? Decimal(*cell) : "null"; });
}

bool LooksLikeJson(const std::string& text) {
  const std::size_t first = text.find_first_not_of(" \t\r\n");
  return first != std::string::npos && text[first] == '{';
}

std::variant<StoredSquare, Unreadable> ReadSquareJson(const std::string& text,
                                                      std::size_t firstLine) {
  try {
    return Reader(text, firstLine).Read();
  } catch (const Unreadable& unreadable) {
    return unreadable;
  }
}

}  // namespace numorra
