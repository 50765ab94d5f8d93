#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace numorra {

/// The command in the first word; Build if the first word is not a command.
enum class SquareCommand : std::uint8_t { Build, Study, Complete, Puzzle, List, Count };

/// A command for the usage text and the shells' completions.
struct CommandEntry {
  SquareCommand Id;
  const char* Name;      ///< empty for Build
  const char* Synopsis;  ///< what follows the name, one line for each form
  const char* Says;      ///< a phrase; to be told by Told
  bool ReadsFile;        ///< a word that is no option names a file
};

/// All commands, in the order of SquareCommand.
const std::vector<CommandEntry>& Commands();

/// An option of one or several commands. One that means something else in each has an entry for
/// each.
struct OptionEntry {
  const char* Name;
  const char* Value;  ///< what stands for its value, "FILE" for a file; empty without one
  std::vector<SquareCommand> Of;
  const char* Says;                       ///< a phrase; to be told by Told
  std::vector<std::string> Choices = {};  ///< the words that its value can be, if they are known
};

const std::vector<OptionEntry>& Options();

/// The option of a command; null if it has none of this name.
const OptionEntry* OptionNamed(std::string_view name, SquareCommand command);

/// What the command or option does, in sentences.
std::string Told(const CommandEntry& command);
std::string Told(const OptionEntry& option);

/// The words with commas between: "easy, medium, hard".
std::string Listed(const std::vector<std::string>& words);

/// The text that --help prints.
std::string Usage();

/// The completions for a shell: bash, zsh or fish; empty for others.
std::string CompletionsFor(std::string_view shell);

}  // namespace numorra
