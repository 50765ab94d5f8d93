#include "app/board/notes.h"

#include <algorithm>
#include <utility>

namespace numorra {

const NoteSet& Notes::operator[](int cell) const {
  static const NoteSet kNone;
  return IsEmpty() || !sets_[cell] ? kNone : *sets_[cell];
}

void Notes::Set(int order, int cell, const NoteSet& numbers) {
  if ((*this)[cell] == numbers) return;
  if (IsEmpty()) sets_ = Square<std::shared_ptr<const NoteSet>>(order);
  sets_[cell] = numbers.none() ? nullptr : std::make_shared<const NoteSet>(numbers);
  if (std::none_of(sets_.begin(), sets_.end(), [](const auto& set) { return set != nullptr; })) {
    sets_ = {};
  }
}

void Notes::Swap(int a, int b) {
  if (!IsEmpty()) std::swap(sets_[a], sets_[b]);
}

bool Notes::operator==(const Notes& other) const {
  const auto same = [](const auto& a, const auto& b) { return a == b || (a && b && *a == *b); };
  return std::equal(sets_.begin(), sets_.end(), other.sets_.begin(), other.sets_.end(), same);
}

}  // namespace numorra
