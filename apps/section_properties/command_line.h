// What the user asks for, and what helps.
#pragma once

#include <string>
#include <vector>

#include "given.h"

namespace host {

struct Request {
  std::vector<std::string> words;  // profile and dimensions, or a command and its file
  std::string svg;                 // empty for none
  std::size_t jobs = 1;
  bool json = false;
  bool all = false;
  bool help = false;
  bool version = false;
};

// Reads the arguments after the program's name.
Refusal read_command_line(const std::vector<std::string> &words, Request &request);

std::string usage();

// Usage of the profile (its name in upper or lower case), or of all if there is none of that name.
std::string usage_of(const std::string &name);

std::string version();

}  // namespace host
