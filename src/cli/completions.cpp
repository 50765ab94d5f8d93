#include <algorithm>
#include <string>

#include "cli/commands.h"

namespace numorra {
namespace {

constexpr const char* kProgram = "numorra-square";

std::string Joined(const std::vector<std::string>& words, const char* between = " ") {
  std::string text;
  for (const std::string& word : words)
    text += (text.empty() ? "" : between) + word;
  return text;
}

std::vector<std::string> CommandNames() {
  std::vector<std::string> names;
  for (const CommandEntry& command : Commands()) {
    if (*command.Name != '\0') names.emplace_back(command.Name);
  }
  return names;
}

/// The options of a command.
std::vector<const OptionEntry*> OptionsOf(SquareCommand command) {
  std::vector<const OptionEntry*> options;
  for (const OptionEntry& option : Options()) {
    if (OptionNamed(option.Name, command) == &option) options.push_back(&option);
  }
  return options;
}

bool TakesFile(const OptionEntry& option) {
  return std::string(option.Value).find("FILE") != std::string::npos;
}

/// The words that the value can be, without those that shells would split or quote.
std::string ChoicesOf(const OptionEntry& option) {
  std::vector<std::string> plain;
  for (const std::string& choice : option.Choices) {
    if (choice.find_first_of(" '\"") == std::string::npos) plain.push_back(choice);
  }
  return Joined(plain);
}

std::string Bash() {
  std::string text =
      "# bash completion for numorra-square\n"
      "_numorra_square() {\n"
      "  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]} command= "
      "words\n"
      "  case ${COMP_WORDS[1]} in " +
      Joined(CommandNames(), " | ") +
      ") command=${COMP_WORDS[1]} ;; esac\n"
      "  case \"$command $previous\" in\n";
  std::string words;
  for (const CommandEntry& command : Commands()) {
    const std::string name = command.Name;
    std::vector<std::string> names = name.empty() ? CommandNames() : std::vector<std::string>();
    for (const OptionEntry* option : OptionsOf(command.Id)) {
      names.emplace_back(option->Name);
      if (*option->Value == '\0') continue;
      text += "  \"" + name + " " + option->Name + "\") ";
      text += TakesFile(*option)
                  ? "compopt -o default; COMPREPLY=()"
                  : "COMPREPLY=($(compgen -W '" + ChoicesOf(*option) + "' -- \"$current\"))";
      text += "; return ;;\n";
    }
    words += "  \"" + name + "\") words='" + Joined(names) + "' ;;\n";
  }
  return text + "  esac\n  case \"$command\" in\n" + words +
         "  esac\n"
         "  COMPREPLY=($(compgen -W \"$words\" -- \"$current\"))\n"
         "  if [ ${#COMPREPLY[@]} -eq 0 ]; then compopt -o default; fi\n"
         "}\n"
         "complete -F _numorra_square " +
         kProgram + "\n";
}

/// What an option does, in one line without the characters that shells take for their own.
std::string Briefly(const OptionEntry& option) {
  std::string told = Told(option);
  told.resize(std::min(told.find_first_of("\n;"), told.size()));
  for (const char* taken : {"'", ":", "[", "]"}) {
    for (std::size_t at = 0; (at = told.find(taken, at)) != std::string::npos;)
      told.erase(at, 1);
  }
  for (const std::string_view blank : {"\xC2\xA0", "\xE2\x80\xAF"}) {  // before a sign in French
    if (told.ends_with(blank)) told.resize(told.size() - blank.size());
  }
  return told;
}

std::string Zsh() {
  std::string text =
      std::string("#compdef ") + kProgram + "\n\nlocal command=${words[2]}\ncase $command in\n";
  std::string build;
  for (const CommandEntry& command : Commands()) {
    std::string specs;
    for (const OptionEntry* option : OptionsOf(command.Id)) {
      specs += std::string(" \\\n    '") + option->Name + "[" + Briefly(*option) + "]";
      if (*option->Value != '\0') {
        specs += std::string(":") + option->Value + ":";
        if (TakesFile(*option)) specs += "_files";
        if (!option->Choices.empty()) specs += "(" + ChoicesOf(*option) + ")";
      }
      specs += "'";
    }
    if (command.ReadsFile) specs += " \\\n    '*:file:_files'";
    if (*command.Name == '\0') {
      build =
          "*)\n  _arguments" + specs + " \\\n    '1:command:(" + Joined(CommandNames()) + ")' ;;\n";
    } else {
      text += std::string(command.Name) + ")\n  _arguments '1:command:(" + command.Name + ")'" +
              specs + " ;;\n";
    }
  }
  return text + build + "esac\n";
}

std::string Fish() {
  const std::string complete = std::string("complete -c ") + kProgram;
  const std::string commands = Joined(CommandNames());
  std::string text = "# fish completion for numorra-square\n" + complete +
                     " -n 'not __fish_seen_subcommand_from " + commands + "' -f -a '" + commands +
                     "'\n";
  for (const CommandEntry& command : Commands()) {
    const bool build = *command.Name == '\0';
    const std::string when =
        build ? " -n 'not __fish_seen_subcommand_from " + commands + "'"
              : std::string(" -n '__fish_seen_subcommand_from ") + command.Name + "'";
    for (const OptionEntry* option : OptionsOf(command.Id)) {
      text += complete + when + " -l " + (option->Name + 2) + " -d '" + Briefly(*option) + "'";
      if (*option->Value != '\0') text += TakesFile(*option) ? " -r -F" : " -x";
      if (!option->Choices.empty()) text += " -a '" + ChoicesOf(*option) + "'";
      text += "\n";
    }
  }
  return text;
}

}  // namespace

std::string CompletionsFor(std::string_view shell) {
  if (shell == "bash") return Bash();
  if (shell == "zsh") return Zsh();
  return shell == "fish" ? Fish() : "";
}

}  // namespace numorra
