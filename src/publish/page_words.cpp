#include "publish/page_words.h"

#include <algorithm>
#include <vector>

#include "files/json_line.h"
#include "words/say.h"

namespace numorra {
namespace {

constexpr unsigned long kCounts = 200;  // from 100 on, the last two digits decide in all languages

std::string FormsOf(const std::string& one, const std::string& many) {
  std::vector<std::string> forms;
  std::string which;
  for (unsigned long count = 0; count < kCounts; ++count) {
    const std::string form = Translated(one.c_str(), many.c_str(), count);
    const auto known = std::find(forms.begin(), forms.end(), form);
    which += static_cast<char>('0' + (known - forms.begin()));
    if (known == forms.end()) forms.push_back(form);
  }
  return JsonLine()
      .Add("forms",
           JsonArray(static_cast<int>(forms.size()),
                     [&](int i) { return JsonString(forms[static_cast<std::size_t>(i)]); }))
      .Add("which", JsonString(which))
      .Text();
}

/// The text in the next single quotes; `at` goes behind it.
std::string TakeQuoted(std::string_view script, std::size_t& at) {
  const std::size_t begin = script.find('\'', at) + 1;
  const std::size_t end = script.find('\'', begin);
  at = end + 1;
  return std::string(script.substr(begin, end - begin));
}

}  // namespace

std::string WordsOfScript(std::string_view script) {
  JsonLine words;
  const std::string_view calls[] = {"tr(", "trCounted("};
  for (std::size_t at = 0; (at = script.find("tr", at)) != std::string_view::npos; ++at) {
    const bool counted = script.substr(at).starts_with(calls[1]);
    std::size_t next = at + calls[counted ? 1 : 0].size();
    if (!script.substr(at).starts_with(calls[counted ? 1 : 0]) || script[next] != '\'') continue;
    const std::string phrase = TakeQuoted(script, next);
    const std::string said =
        counted ? FormsOf(phrase, TakeQuoted(script, next)) : JsonString(Say(phrase.c_str()));
    words.Add(phrase, said);
  }
  return words.Text();
}

}  // namespace numorra
