#include "publish/json_tokens.h"

#include <algorithm>

namespace numorra {
namespace {

constexpr std::string_view kBlanks = " \t\r\n\xEF\xBB\xBF";  // with the byte-order mark's bytes

/// The length of the token at the start of a text.
std::size_t TokenLength(std::string_view text) {
  constexpr std::string_view kMarks = "{}[],:";
  if (kMarks.find(text.front()) != std::string_view::npos) return 1;
  if (text.front() != '"') return text.find_first_of(" \t\r\n{}[],:");
  std::size_t end = 1;
  while (end < text.size() && text[end] != '"')
    end += text[end] == '\\' ? 2 : 1;
  return end + 1;
}

}  // namespace

std::vector<std::string_view> JsonTokensOf(std::string_view json) {
  std::vector<std::string_view> tokens;
  for (std::size_t at = 0; (at = json.find_first_not_of(kBlanks, at)) != std::string_view::npos;) {
    tokens.push_back(json.substr(at, TokenLength(json.substr(at))));
    at += tokens.back().size();
  }
  return tokens;
}

JsonSpan FirstValue(JsonSpan tokens) {
  std::size_t depth = 0;
  for (std::size_t at = 0; at < tokens.size(); ++at) {
    if (tokens[at] == "{" || tokens[at] == "[") ++depth;
    if (tokens[at] == "}" || tokens[at] == "]") --depth;
    if (depth == 0) return tokens.first(at + 1);
  }
  return tokens;
}

JsonSpan MemberOf(JsonSpan object, std::string_view name) {
  constexpr std::size_t kNameAndColon = 2;
  object = object.subspan(1);
  while (object.size() > kNameAndColon) {
    const std::string_view quoted = object.front();
    const JsonSpan value = FirstValue(object.subspan(kNameAndColon));
    if (quoted.substr(1, quoted.size() - 2) == name) return value;
    object = object.subspan(std::min(kNameAndColon + value.size() + 1, object.size()));
  }
  return {};
}

std::vector<JsonSpan> ElementsOf(JsonSpan array) {
  std::vector<JsonSpan> elements;
  for (array = array.subspan(1); array.size() > 1;) {
    elements.push_back(FirstValue(array));
    array = array.subspan(elements.back().size());
    if (array.front() == ",") array = array.subspan(1);
  }
  return elements;
}

}  // namespace numorra
