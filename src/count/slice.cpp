#include "count/slice.h"

#include <algorithm>
#include <charconv>
#include <iomanip>
#include <sstream>

#include "count/order5_count.h"
#include "files/json_line.h"
#include "files/json_members.h"
#include "words/say.h"

namespace numorra {
namespace {

constexpr const char* kSlicedKind = "magic";

/// 64-bit FNV-1a (Fowler, Noll and Vo).
class Fnv {
 public:
  void Add(std::uint64_t word) {
    constexpr std::uint64_t kPrime = 0x100000001b3;
    for (int byte = 0; byte < 8; ++byte) {
      sum_ = (sum_ ^ (word & 0xffU)) * kPrime;
      word >>= 8U;
    }
  }
  std::uint64_t Sum() const { return sum_; }

 private:
  std::uint64_t sum_ = 0xcbf29ce484222325;
};

std::string HexOf(std::uint64_t number) {
  std::ostringstream out;
  out << std::hex << std::setw(16) << std::setfill('0') << number;
  return out.str();
}

/// The whole text as a number of 0 or more.
template <class Number>
bool ReadWhole(const std::string& text, Number& number, int base = 10) {
  const char* const end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number, base);
  return result.ec == std::errc() && result.ptr == end && number >= Number{0};
}

/// The words of a line that count.
struct SliceWords {
  std::string Order, Kind, Name, Count, Checksum;
};

std::optional<SliceWords> WordsOfText(const std::string& line) {
  std::istringstream in(line);
  SliceWords words;
  std::string order, slice, count, checksum, more;
  in >> order >> words.Order >> words.Kind >> slice >> words.Name >> count >> words.Count >>
      checksum >> words.Checksum;
  const bool complete = static_cast<bool>(in) && !(in >> more);
  if (!complete || order != "order" || slice != "slice" || count != "count" ||
      checksum != "checksum") {
    return std::nullopt;
  }
  return words;
}

std::optional<SliceWords> WordsOfJson(const std::string& line) {
  try {
    JsonMembers members = JsonMembersIn(line, 1);
    const auto number = [&](const char* name) {
      std::ostringstream out;
      out << std::setprecision(17) << members[name].Value.Number;
      return out.str();
    };
    return SliceWords{number("order"), members["kind"].Value.Text, members["slice"].Value.Text,
                      number("count"), members["checksum"].Value.Text};
  } catch (const Unreadable&) {
    return std::nullopt;
  }
}

}  // namespace

std::string NameOf(const Slice& slice) {
  return std::to_string(slice.Number) + "/" + std::to_string(slice.Of);
}

std::optional<Slice> SliceNamed(const std::string& name) {
  const std::size_t bar = name.find('/');
  Slice slice;
  if (bar == std::string::npos || !ReadWhole(name.substr(0, bar), slice.Number) ||
      !ReadWhole(name.substr(bar + 1), slice.Of) || slice.Number < 1 || slice.Number > slice.Of ||
      slice.Of > Slice::kMost) {
    return std::nullopt;
  }
  return slice;
}

SliceCount CountSlice(const Slice& slice, Yielding& yielding) {
  Order5Count order5{Square<int>(kSlicedOrder)};
  SliceCount counted{slice};
  Fnv checksum;
  for (auto i = static_cast<std::size_t>(slice.Number - 1); i < order5.Sets().size();
       i += static_cast<std::size_t>(slice.Of)) {
    const DiagonalSet& set = order5.Sets()[i];
    const std::int64_t count = order5.CountOf(set);
    counted.Count += count;
    checksum.Add(static_cast<std::uint64_t>(set.Centre));
    checksum.Add(set.Others);
    checksum.Add(static_cast<std::uint64_t>(count));
    yielding.Yield();
  }
  counted.Checksum = checksum.Sum();
  return counted;
}

std::string TextOf(const SliceCount& slice) {
  return "order " + std::to_string(kSlicedOrder) + " " + kSlicedKind + " slice " +
         NameOf(slice.Part) + " count " + std::to_string(slice.Count) + " checksum " +
         HexOf(slice.Checksum);
}

std::string JsonOf(const SliceCount& slice) {
  return JsonLine()
      .Add("order", std::to_string(kSlicedOrder))
      .Add("kind", JsonString(kSlicedKind))
      .Add("slice", JsonString(NameOf(slice.Part)))
      .Add("count", std::to_string(slice.Count))
      .Add("checksum", JsonString(HexOf(slice.Checksum)))
      .Text();
}

std::variant<SliceCount, std::string> ReadSliceLine(const std::string& line) {
  const auto words = line.starts_with("{") ? WordsOfJson(line) : WordsOfText(line);
  if (!words) return Say("this is not the count of a slice");
  if (words->Order != std::to_string(kSlicedOrder) || words->Kind != kSlicedKind) {
    return Say("this slice is of order %1 and of the kind '%2', not of magic squares of order %3",
               words->Order, words->Kind, kSlicedOrder);
  }
  const auto slice = SliceNamed(words->Name);
  if (!slice) return Say("there is no slice '%1'", words->Name);
  SliceCount read{*slice};
  if (!ReadWhole(words->Count, read.Count)) {
    return Say("the count of slice %1 is not a whole number", words->Name);
  }
  if (!ReadWhole(words->Checksum, read.Checksum, 16)) {
    return Say("the checksum of slice %1 cannot be read", words->Name);
  }
  return read;
}

std::variant<std::int64_t, std::string> Merge(std::vector<SliceCount> slices) {
  if (slices.empty()) return Say("there is no slice to add up");
  std::sort(slices.begin(), slices.end(),
            [](const SliceCount& a, const SliceCount& b) { return a.Part.Number < b.Part.Number; });
  const Slice first = slices.front().Part;
  std::int64_t whole = 0;
  int next = 1;
  const SliceCount* before = nullptr;
  for (const SliceCount& slice : slices) {
    if (slice.Part.Of != first.Of) {
      // Translators: slices are named as fractions: "slice 3/8 overlaps slices of 16, such as
      // 1/16".
      return Say("slice %1 overlaps slices of %2, such as %3", NameOf(slice.Part), first.Of,
                 NameOf(first));
    }
    if (before && before->Part == slice.Part) {
      if (*before == slice) continue;
      return Say("slice %1 was counted twice, with different counts or checksums",
                 NameOf(slice.Part));
    }
    if (slice.Part.Number != next) break;
    whole += slice.Count;
    before = &slice;
    ++next;
  }
  if (next <= first.Of) {
    return Say("slice %1 is missing", NameOf(Slice{next, first.Of}));
  }
  return whole;
}

}  // namespace numorra
