#include "publish/page_words.h"

#include <algorithm>
#include <regex>
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

}  // namespace

std::string WordsOfScript(std::string_view script) {
  JsonLine words;
  static const std::regex kCall(R"(\btr(Counted)?\('([^']*)'(?:,\s*'([^']*)')?)");
  const std::string text(script);
  for (std::sregex_iterator call(text.begin(), text.end(), kCall), end; call != end; ++call) {
    const std::string phrase = (*call)[2];
    const bool counted = (*call)[1].matched;
    words.Add(phrase.c_str(),
              counted ? FormsOf(phrase, (*call)[3]) : JsonString(Say(phrase.c_str())));
  }
  return words.Text();
}

}  // namespace numorra
