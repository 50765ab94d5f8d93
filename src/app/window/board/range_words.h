#pragma once

#include <QString>

#include "app/board/notes.h"

namespace numorra {

/// Notes in words, in ascending order: "1 to 3, 7".
QString RangesInWords(const NoteSet& notes);

}  // namespace numorra
