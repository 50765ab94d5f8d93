#pragma once

namespace numorra {

/// The page with its style and scripts, made from src/publish/page by the build. It has the slots
/// <!--title-->, <!--sheets--> and <!--data-->.
extern const char* const kPageTemplate;

}  // namespace numorra
