#include "files/square_json.h"

#include <cmath>

#include "app/board/numbers.h"
#include "app/board/orders.h"
#include "app/board/place.h"
#include "files/json_members.h"

namespace numorra {
namespace {

using Kind = JsonValue::Kind;

constexpr const char* kFormat = "numorra-square";
constexpr int kVersion = 1;

[[noreturn]] void Fail(const std::string& why) {
  throw Unreadable{why};
}

template <class ValueOf>
std::string Rows(int order, ValueOf valueOf) {
  const auto n = static_cast<std::size_t>(order);
  return JsonArray(n, [&](std::size_t row) {
    return JsonArray(n, [&](std::size_t column) { return valueOf(row * n + column); });
  });
}

/// The members of an object, checked against what a square has.
class Reader {
 public:
  Reader(const std::string& text, std::size_t firstLine)
      : members_(JsonMembersIn(text, firstLine)) {}

  StoredSquare Read() {
    CheckFormat();
    square_.Order = Order();
    square_.Cells = Cells();
    square_.Total = Total();
    square_.Asked = Asked();
    square_.Givens = Givens();
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
      Fail("this JSON is not a Numorra square");
    }
    if (version > kVersion) Fail("this square was written by a later version of Numorra");
  }

  int Order() const {
    const JsonMember& rows = At("rows");
    const bool counted = !Has("order") && Has("rows");
    if (counted && rows.Value.Is == Kind::Null) Fail("\"rows\" contains no square");
    const double order = counted ? static_cast<double>(rows.Rows.size()) : NumberAt("order", -1);
    if (order != std::floor(order) || order < kMinOrder || order > kMaxOrder) {
      const std::string range = std::to_string(kMinOrder) + " to " + std::to_string(kMaxOrder);
      if (counted) Fail("\"rows\" has " + Decimal(order) + " rows, not " + range);
      Fail("\"order\" must be a whole number from " + range);
    }
    return static_cast<int>(order);
  }

  /// The entries of a member's rows, checked to be as many as a square of this order has.
  std::vector<JsonValue> Entries(const char* name) const {
    const auto order = static_cast<std::size_t>(square_.Order);
    const auto& rows = At(name).Rows;
    const std::string quoted = "\"" + std::string(name) + "\"";
    if (rows.size() != order) {
      Fail(quoted + " has " + std::to_string(rows.size()) + " rows, not " + std::to_string(order));
    }
    std::vector<JsonValue> entries;
    for (const auto& row : rows) {
      if (row.size() != order) {
        Fail("row " + std::to_string(entries.size() / order + 1) + " of " + quoted + " has " +
             std::to_string(row.size()) + " cells, not " + std::to_string(order));
      }
      entries.insert(entries.end(), row.begin(), row.end());
    }
    return entries;
  }

  [[noreturn]] void FailIn(std::size_t cell, const std::string& why) const {
    Fail(NameOf(PlaceAt(cell, square_.Order)) + ": " + why);
  }

  /// Whether the number was written with more digits; a double keeps only about 15.
  static bool HasMoreDigits(double number, int most) {
    return AsShown(number) != number || DigitsOf(Decimal(number)) > most;
  }

  std::vector<std::optional<double>> Cells() const {
    std::vector<std::optional<double>> cells;
    for (const JsonValue& entry : Entries("rows")) {
      const bool gap = entry.Is == Kind::Null;
      if (!gap && entry.Is != Kind::Number) FailIn(cells.size(), "this is not a number");
      if (!gap && HasMoreDigits(entry.Number, kMostCellDigits)) {
        FailIn(cells.size(),
               "the number has more than " + std::to_string(kMostCellDigits) + " digits");
      }
      cells.push_back(gap ? std::nullopt : std::optional(entry.Number));
    }
    return cells;
  }

  std::optional<double> Total() const {
    const JsonValue& total = At("total").Value;
    if (!Has("total") || total.Is == Kind::Null) return std::nullopt;
    if (total.Is != Kind::Number) Fail("\"total\" is not a number");
    if (HasMoreDigits(total.Number, kMostTotalDigits)) {
      Fail("\"total\" has more than " + std::to_string(kMostTotalDigits) + " digits");
    }
    return total.Number;
  }

  Rules Asked() const {
    const std::string& name = At("rules").Value.Text;
    if (!Has("rules") || name == NameOf(Rules::Positive)) return Rules::Positive;
    if (name == NameOf(Rules::Normal)) return Rules::Normal;
    Fail("\"rules\" must be normal or positive");
  }

  std::vector<bool> Givens() const {
    std::vector<bool> givens;
    if (!Has("givens")) return givens;
    for (const JsonValue& entry : Entries("givens")) {
      const std::size_t cell = givens.size();
      if (entry.Is != Kind::Boolean) FailIn(cell, "\"givens\" must be true or false");
      const bool given = entry.Number != 0;
      if (given && !square_.Cells[cell]) FailIn(cell, "a gap cannot be given");
      givens.push_back(given);
    }
    return givens;
  }

  JsonMembers members_;
  StoredSquare square_;
};

}  // namespace

std::string JsonOf(const StoredSquare& square) {
  return JsonLineOf(square).Text() + "\n";
}

JsonLine JsonLineOf(const StoredSquare& square) {
  JsonLine line;
  line.Add("format", JsonString(kFormat)).Add("version", std::to_string(kVersion));
  line.Add("order", std::to_string(square.Order));
  if (square.Total) line.Add("total", Decimal(*square.Total));
  line.Add("rules", JsonString(NameOf(square.Asked))).Add("rows", JsonRowsOf(square));
  if (!square.Givens.empty()) {
    line.Add("givens", Rows(square.Order, [&](std::size_t cell) {
               return std::string(square.Givens[cell] ? "true" : "false");
             }));
  }
  return line;
}

std::string JsonRowsOf(const StoredSquare& square) {
  return Rows(square.Order, [&](std::size_t cell) {
    return square.Cells[cell] ? Decimal(*square.Cells[cell]) : "null";
  });
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
