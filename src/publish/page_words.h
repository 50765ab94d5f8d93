#pragma once

#include <string>
#include <string_view>

namespace numorra {

/// What the reader's language has for the phrases of the page's script, as a JSON object: by each
/// phrase in a call tr('...') what is said instead, and by the first in trCounted('...', '...') the
/// forms of the language with the number of the form for each count from 0 to 199:
/// {"Erase": "Löschen", "%1 number is wrong.": {"forms": ["...", "..."], "which": "1011..."}}.
/// The script itself holds the English phrases.
std::string WordsOfScript(std::string_view script);

}  // namespace numorra
