#pragma once

namespace numorra {

/// Lets the toolkit follow the language that the program speaks: its own texts, as its packages
/// translate them, and the direction of windows. To be called once the application exists.
void FollowLanguage();

}  // namespace numorra
