#include <algorithm>
#include <sstream>
#include <string>

#include "cli/commands.h"
#include "words/say.h"

namespace numorra {
namespace {

constexpr std::size_t kWidth = 80;
constexpr std::size_t kSaysFrom = 27;
constexpr std::size_t kMostChoices = 10;  // that are told

/// The number of characters, each of one or several bytes.
std::size_t Characters(const std::string& text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
  }));
}

/// The text in lines of at most kWidth characters, each with an indent but the first.
std::string Wrapped(const std::string& text, std::size_t indent) {
  std::string wrapped;
  std::istringstream paragraphs(text);
  for (std::string paragraph; std::getline(paragraphs, paragraph);) {
    if (!wrapped.empty()) wrapped += "\n" + std::string(indent, ' ');
    std::istringstream words(paragraph);
    std::size_t column = 0;
    for (std::string word; words >> word;) {
      const std::size_t size = Characters(word);
      const bool fits = column == 0 || indent + column + 1 + size <= kWidth;
      if (!fits) wrapped += "\n" + std::string(indent, ' ');
      if (column > 0 && fits) wrapped += ' ';
      column = fits && column > 0 ? column + 1 + size : size;
      wrapped += word;
    }
  }
  return wrapped + "\n";
}

std::string ValueOf(const OptionEntry& option) {
  if (option.Choices.empty() || option.Choices.size() > 3) return option.Value;
  std::string choices;
  for (const std::string& choice : option.Choices)
    choices += (choices.empty() ? "" : "|") + choice;
  return choices;
}

/// A line or several of the usage text.
std::string OptionText(const OptionEntry& option) {
  std::string line = "  " + std::string(option.Name) + " " + ValueOf(option);
  std::string says = Told(option);
  const bool few = option.Choices.size() > 3 && option.Choices.size() <= kMostChoices;
  if (few && says.find('\n') == std::string::npos) {
    says = Say("%1: %2", says, Listed(option.Choices));
  }
  if (line.size() + 2 > kSaysFrom) {
    line += "\n" + std::string(kSaysFrom, ' ');
  } else {
    line.resize(kSaysFrom, ' ');
  }
  return line + Wrapped(says, kSaysFrom);
}

}  // namespace

std::string Usage() {
  const std::string heading = Say("usage:") + " ";
  std::string usage;
  for (const CommandEntry& command : Commands()) {
    std::istringstream forms(command.Synopsis);
    for (std::string form; std::getline(forms, form);) {
      usage += (usage.empty() ? heading : std::string(Characters(heading), ' ')) +
               "numorra-square " + command.Name + (*command.Name == '\0' ? "" : " ") + form + "\n";
    }
  }
  for (const CommandEntry& command : Commands()) {
    usage += "\n" + Wrapped(Told(command), 0) + "\n";
    for (const OptionEntry& option : Options()) {
      const bool of = std::find(option.Of.begin(), option.Of.end(), command.Id) != option.Of.end();
      const bool told =
          option.Of.size() == Commands().size() && command.Id != Commands().front().Id;
      if (of && !told) usage += OptionText(option);
    }
  }
  return usage + "\n" +
         Wrapped(Say("The exit status is 0 on success, 1 if there is no such square or something "
                     "could not be read or written, 2 for bad arguments, 3 and 4 as described for "
                     "complete, 5 if there was not enough memory, and 6 if puzzles are missing or "
                     "other than wished."),
                 0);
}

}  // namespace numorra
