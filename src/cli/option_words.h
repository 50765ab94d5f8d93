#pragma once

#include <charconv>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "words/say.h"

namespace numorra {

/// A command line's words, taken one by one: options, whose value is the next word or follows an
/// equals sign, and other words. Keeps the first error.
class OptionWords {
 public:
  /// Begins at word `first`.
  OptionWords(const std::vector<std::string>& words, std::size_t first)
      : words_(words), next_(first) {}

  /// Takes the next word, which becomes the option. False at the end and after an error.
  bool Next() {
    CheckValueTaken();
    if (!error_.empty() || next_ == words_.size()) return false;
    const std::string& word = words_[next_++];
    const std::size_t equals = word.starts_with("--") ? word.find('=') : std::string::npos;
    option_ = word.substr(0, equals);
    attached_.reset();
    if (equals != std::string::npos) attached_ = word.substr(equals + 1);
    return true;
  }

  const std::string& Option() const { return option_; }

  /// The word as it was written, with its value; it then counts as taken.
  const std::string& Whole() {
    attached_.reset();
    return words_[next_ - 1];
  }

  /// An error if the option has a value that nobody took.
  void CheckValueTaken() {
    if (attached_) Fail(Say("'%1' takes no value", option_));
  }
  bool IsFile() const { return option_ == "-" || !option_.starts_with("-"); }

  /// The option's value; an error if there is none.
  std::string Value() {
    if (attached_) return *std::exchange(attached_, std::nullopt);
    if (next_ < words_.size()) return words_[next_++];
    Fail(Say("'%1' needs a value", option_));
    return {};
  }

  /// Keeps the message, if there is one and none is kept.
  void Fail(std::string message) {
    if (error_.empty()) error_ = std::move(message);
  }
  const std::string& Error() const { return error_; }

 private:
  const std::vector<std::string>& words_;
  std::size_t next_;
  std::string option_;
  std::optional<std::string> attached_;
  std::string error_;
};

/// The whole text as a number; nothing if it is not one.
template <class Number>
std::optional<Number> WholeTextAs(const std::string& text) {
  Number number{};
  const char* const end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number);
  if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
  return number;
}

}  // namespace numorra
