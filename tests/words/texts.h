#pragma once

#include <set>
#include <string>

/// Collects what the program tells a person, from everything that can be reached.
namespace numorra {

/// Texts that were told, on one line each, with `#` for every number.
struct Texts {
  void Add(const std::string& text);

  std::set<std::string> All;
  std::set<std::string> Clipped;  ///< those that their place is too small for
};

/// The text with every number as `#`, and everything between words as one blank.
std::string OnOneLine(const std::string& told);

/// What the companion writes: the usage, refusals, remarks, reports and reasons.
void AddTextsOfCompanion(Texts& texts);

/// The walks through all constructions, and studies of squares of many kinds.
void AddTextsOfLogic(Texts& texts);

/// Everything in the window and its dialogs, in many states: texts, tips, names for assistive
/// tools, messages. `pictures`: a folder for a picture of every window; none if empty.
void AddTextsOfWindow(Texts& texts, const std::string& pictures);

/// Takes further pictures into a folder: boards and drawings of several sizes, walks, sheets, and
/// widgets of the toolkit alone.
void TakePictures(const std::string& folder);

}  // namespace numorra
