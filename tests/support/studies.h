#pragma once

#include <gtest/gtest.h>
#include <string>

#include "study/report.h"
#include "support/boards.h"

namespace numorra {

inline Report StudyOf(const slow::Rows& rows) {
  return Study(NumberSquare(SquareFrom(rows)));
}

/// The judgement of a term that there is.
inline Judgement Find(const Report& report, const std::string& term) {
  for (const Property& property : report.Properties) {
    if (property.What->Name == term) return property.Found;
  }
  ADD_FAILURE() << "no term " << term;
  return {};
}

}  // namespace numorra
