#include "publish/object_forms.h"

#include <algorithm>

#include "files/json_line.h"

namespace numorra {
namespace {

constexpr char kLeftOut = '\n';
constexpr int kDeepest = 2;

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

/// The length of the escape at the start of a text: \n, \u0041.
std::size_t EscapeLength(std::string_view text) {
  constexpr std::size_t kUnicode = 6;
  return text.size() > 1 && text[1] == 'u' ? kUnicode : 2;
}

/// Divides a token into the form and the values.
void Divide(std::string_view token, std::string& form, std::string& values) {
  constexpr std::ptrdiff_t kMostDigits = 15;
  while (!token.empty()) {
    std::size_t length = token.front() == '\\' ? EscapeLength(token) : 1;
    if (!IsDigit(token.front())) {
      form += token.substr(0, length);
    } else {
      const auto digits = std::find_if_not(token.begin(), token.end(), IsDigit) - token.begin();
      length = static_cast<std::size_t>(digits);
      const std::string_view number = token.substr(0, length);
      if (digits > kMostDigits || (digits > 1 && number.front() == '0')) {
        form += number;
      } else {
        form += kLeftOut;
        values.append(",").append(number);
      }
    }
    token.remove_prefix(std::min(length, token.size()));
  }
}

}  // namespace

std::string ObjectForms::Packed(JsonSpan object, int level) {
  std::string form = "{";
  std::string values;
  for (std::size_t at = 1; at < object.size();) {
    if (object[at] == "{" && level < kDeepest) {
      const JsonSpan inner = FirstValue(object.subspan(at));
      form += kLeftOut;
      values.append(",").append(Packed(inner, level + 1));
      at += inner.size();
    } else {
      Divide(object[at++], form, values);
    }
  }
  return "[" + std::to_string(NumberOf(form)) + values + "]";
}

std::size_t ObjectForms::NumberOf(const std::string& form) {
  const auto [found, isNew] = numbers_.emplace(form, forms_.size());
  if (isNew) forms_.push_back(form);
  return found->second;
}

std::string ObjectForms::Table() const {
  return JsonArray(static_cast<int>(forms_.size()),
                   [this](int form) { return JsonString(forms_[static_cast<std::size_t>(form)]); });
}

}  // namespace numorra
