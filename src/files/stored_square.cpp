#include "files/stored_square.h"

namespace numorra {

const char* NameOf(Rules rules) {
  return rules == Rules::Normal ? "normal" : "positive";
}

}  // namespace numorra
