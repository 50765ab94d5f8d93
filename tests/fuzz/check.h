#pragma once

#include <cstdint>
#include <cstdlib>
#include <string>

/// A target's expectation of the code; the fuzzer keeps an input that breaks it.
inline void Check(bool holds) {
  if (!holds) std::abort();
}

inline std::string TextOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}
