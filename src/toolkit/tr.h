#pragma once

#include <QString>

#include "words/say.h"

/// The phrases of words/say.h as texts of the toolkit.
namespace numorra {

inline std::string FillingOf(const QString& text) {
  return text.toStdString();
}
template <typename T>
const T& FillingOf(const T& value) {
  return value;
}

template <typename... Fillings>
QString Tr(const char* phrase, const Fillings&... fillings) {
  return QString::fromStdString(Say(phrase, FillingOf(fillings)...));
}

template <typename... Fillings>
QString TrIn(const char* context, const char* phrase, const Fillings&... fillings) {
  return QString::fromStdString(SayIn(context, phrase, FillingOf(fillings)...));
}

template <typename... Fillings>
QString TrCounted(const char* one, const char* many, std::integral auto count,
                  const Fillings&... fillings) {
  return QString::fromStdString(SayCounted(one, many, count, FillingOf(fillings)...));
}

}  // namespace numorra
