#pragma once

#include <string>

/// The language in which the program speaks. Catalogues of GNU gettext hold it; a text that none of
/// them has is said in English, as it stands in the source.
namespace numorra {

/// Speaks the language that the desktop asks for (LANGUAGE, LC_ALL, LC_MESSAGES, LANG), if there is
/// a catalogue of it: in a folder `locale` beside the program, as the build makes it, or in
/// `share/locale` of a folder above it, where it is installed. To be called once, at the start.
void SpeakLanguageOfDesktop();

/// The name of the language, such as "de" or "pt_BR", as its catalogue tells; "" for English.
std::string Language();

/// Whether phrases are said as they stand in the sources.
bool SpeaksEnglish();

/// While one is alive, everything is said in English: for what programs read.
class InEnglish {
 public:
  InEnglish();
  ~InEnglish();
  InEnglish(const InEnglish&) = delete;
  InEnglish& operator=(const InEnglish&) = delete;

 private:
  bool before_;
};

/// The text, or the one of the two that suits `count`, in the language. A context (or null) tells
/// equal texts apart that other languages say in different ways.
const char* Translated(const char* context, const char* text);
const char* Translated(const char* one, const char* many, unsigned long count);

}  // namespace numorra
