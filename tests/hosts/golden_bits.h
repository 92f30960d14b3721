// The golden bits, as digest.txt holds them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <map>
#include <string>

// The hash at the end of each line, by the text before it: a routine, or what the total is of.
inline std::map<std::string, std::uint64_t> read_digest(const char *file) {
  std::map<std::string, std::uint64_t> digest;
  std::ifstream lines(file);
  for (std::string line; std::getline(lines, line);) {
    const std::size_t hash = line.find_last_of(' ') + 1;
    const std::size_t end = line.find_last_not_of(' ', hash - 1) + 1;
    digest[line.substr(0, end)] = std::strtoull(line.c_str() + hash, nullptr, 16);
  }
  return digest;
}
