#include "publish/object_forms.h"

#include <algorithm>

#include "files/json_line.h"

namespace numorra {
namespace {

constexpr char kLeftOut = '\n';
constexpr int kDeepest = 2;
constexpr std::string_view kDigits = "0123456789";

bool IsDigit(char c) {
  return kDigits.find(c) != std::string_view::npos;
}

/// The length of the escape at the start of a text: \n, \u0041.
std::size_t EscapeLength(std::string_view text) {
  constexpr std::size_t kUnicode = 6;
  return text.size() > 1 && text[1] == 'u' ? kUnicode : 2;
}

/// The length of what joins two numbers at the start of a text; of the whole text if nothing does.
std::size_t JointLength(std::string_view text) {
  for (const std::string_view joint : {", ", " or "}) {
    if (text.starts_with(joint)) return joint.size();
  }
  return text.size();
}

/// The length of the number or the list of numbers that a text begins with; 0 without one.
std::size_t NumbersLength(std::string_view text) {
  std::size_t end = 0;
  for (std::size_t next = 0; next < text.size() && IsDigit(text[next]);) {
    end = std::min(text.find_first_not_of(kDigits, next), text.size());
    next = end + JointLength(text.substr(end));
  }
  return end;
}

/// Whether a number comes back from a double as it was written.
bool IsPlain(std::string_view numbers) {
  constexpr std::size_t kMostDigits = 15;
  return numbers.size() == 1 || (numbers.front() != '0' && numbers.size() <= kMostDigits &&
                                 std::all_of(numbers.begin(), numbers.end(), IsDigit));
}

/// Divides a token into the form and the values.
void Divide(std::string_view token, std::string& form, std::string& values) {
  while (!token.empty()) {
    std::size_t length = NumbersLength(token);
    if (length > 0) {
      const std::string_view numbers = token.substr(0, length);
      const char* quote = IsPlain(numbers) ? "" : "\"";
      form += kLeftOut;
      values.append(",").append(quote).append(numbers).append(quote);
    } else {
      length = token.front() == '\\' ? std::min(EscapeLength(token), token.size()) : 1;
      form += token.substr(0, length);
    }
    token.remove_prefix(length);
  }
}

}  // namespace

bool AreObjects(JsonSpan value) {
  if (value.front() != "[") return false;
  const std::vector<JsonSpan> elements = ElementsOf(value);
  return std::all_of(elements.begin(), elements.end(),
                     [](JsonSpan element) { return element.front() == "{"; });
}

std::string ObjectForms::Packed(JsonSpan objects, int level) {
  std::string packed;
  for (const JsonSpan object : ElementsOf(objects))
    packed.append(packed.empty() ? "" : ",").append(PackedObject(object, level));
  return "[" + packed + "]";
}

std::string ObjectForms::PackedObject(JsonSpan object, int level) {
  std::string form;
  std::string values;
  while (!object.empty()) {
    JsonSpan next = object.first(1);
    if (next.front() == "[" && level < kDeepest) next = FirstValue(object);
    if (next.size() > 1 && AreObjects(next)) {
      form += kLeftOut;
      values.append(",").append(Packed(next, level + 1));
    } else {
      for (const std::string_view token : next)
        Divide(token, form, values);
    }
    object = object.subspan(next.size());
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
