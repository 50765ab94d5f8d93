#pragma once

#include "app/sheets_arguments.h"
#include "cli/streams.h"

namespace numorra {

/// Makes or reads the puzzles and writes their worksheets. The same seed gives the same bytes.
/// Returns false if puzzles are missing or other than wished, which it tells. Throws Impossible if
/// there are no puzzles or they do not fit, and RuntimeError if a file cannot be written.
bool WriteSheets(const SheetsRequest& request, const Streams& streams);

}  // namespace numorra
