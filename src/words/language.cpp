#include "words/language.h"

#include <clocale>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <libintl.h>
#include <system_error>

namespace numorra {
namespace {

constexpr const char* kDomain = "numorra";

/// Nothing is looked up as long as the language is English.
bool& IsTranslating() {
  static bool translating = false;
  return translating;
}

const char* LookUp(const char* text) {
  return dgettext(kDomain, text);
}

/// The locale that the desktop asks for, such as "de_DE.UTF-8".
std::string WantedLocale() {
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* value = std::getenv(name);
    if (value && *value != '\0') return value;
  }
  return "";
}

/// A language can be spoken on machines where its locale is not installed: the library then only
/// needs some locale other than "C", and the language by its name.
void UseLocaleOfDesktop() {
  if (std::setlocale(LC_MESSAGES, "")) return;
  const std::string wanted = WantedLocale();
  setenv("LANGUAGE", wanted.substr(0, wanted.find('.')).c_str(), 0);
  std::setlocale(LC_MESSAGES, "C.UTF-8");
}

/// The folder with the catalogues; empty if the program does not know where it is itself.
std::filesystem::path CatalogueFolder() {
  std::error_code none;
  std::filesystem::path folder = std::filesystem::read_symlink("/proc/self/exe", none);
  const auto isFolder = [&](const std::filesystem::path& path) {
    return std::filesystem::is_directory(path, none);
  };
  folder = folder.parent_path();
  if (isFolder(folder / "locale")) return folder / "locale";
  for (; folder.has_relative_path(); folder = folder.parent_path()) {
    if (isFolder(folder / "share/locale")) return folder / "share/locale";
  }
  return {};
}

}  // namespace

void SpeakLanguageOfDesktop() {
  UseLocaleOfDesktop();
  const std::filesystem::path folder = CatalogueFolder();
  if (!folder.empty()) bindtextdomain(kDomain, folder.c_str());
  bind_textdomain_codeset(kDomain, "UTF-8");
  IsTranslating() = *LookUp("") != '\0';
}

std::string Language() {
  if (!IsTranslating()) return "";
  constexpr const char* kField = "\nLanguage: ";
  const std::string header = LookUp("");
  const std::size_t field = header.find(kField);
  if (field == std::string::npos) return "";
  const std::size_t begin = field + std::strlen(kField);
  return header.substr(begin, header.find('\n', begin) - begin);
}

bool SpeaksEnglish() {
  return !IsTranslating();
}

InEnglish::InEnglish() : before_(IsTranslating()) {
  IsTranslating() = false;
}

InEnglish::~InEnglish() {
  IsTranslating() = before_;
}

const char* Translated(const char* context, const char* text) {
  if (!IsTranslating() || *text == '\0') return text;
  if (!context) return LookUp(text);
  const std::string key = std::string(context) + '\004' + text;  // as catalogues join the two
  const char* const found = LookUp(key.c_str());
  return found == key.c_str() ? text : found;
}

const char* Translated(const char* one, const char* many, unsigned long count) {
  if (!IsTranslating()) return count == 1 ? one : many;
  return dngettext(kDomain, one, many, count);
}

}  // namespace numorra
