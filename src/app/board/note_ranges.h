#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "app/board/notes.h"

namespace numorra {

/// Notes as text, in ascending order with runs as ranges: "1-3 7 9-10". A run continues across
/// numbers in `skipped`.
std::string RangesOf(const NoteSet& numbers, const NoteSet& skipped = {});

/// Reads such a text; nothing if it is not one, or has a number that is not from 1 to `most`.
std::optional<NoteSet> NumbersInRanges(std::string_view text, int most);

}  // namespace numorra
