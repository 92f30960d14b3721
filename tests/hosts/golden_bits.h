// The golden bits, as digest.txt holds them.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <map>
#include <string>

inline std::map<std::string, std::uint64_t> read_digest(const char *file) {
  std::map<std::string, std::uint64_t> digest;
  std::ifstream lines(file);
  std::string name;
  std::string hash;
  while (lines >> name >> hash) digest[name] = std::strtoull(hash.c_str(), nullptr, 16);
  return digest;
}
