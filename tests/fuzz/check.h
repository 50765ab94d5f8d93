#pragma once

#include <cstdint>
#include <cstdlib>
#include <string>

/// What a target expects of the code; the fuzzer keeps the input that breaks it.
inline void Check(bool holds) {
  if (!holds) std::abort();
}

inline std::string TextOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}
