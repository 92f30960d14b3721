// Three processes write the trace of one directory at the same time: no record is lost or torn.
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>

#include "trelvin/circles.h"

#ifdef _WIN32
#include <process.h>
using Process = std::intptr_t;
#else
#include <sys/wait.h>
#include <unistd.h>
using Process = pid_t;
#endif

namespace {

constexpr int records = 12000;  // of each process
constexpr int processes = 3;

Process start(const char *program) {
#ifdef _WIN32
  return _spawnl(_P_NOWAIT, program, program, "write", nullptr);
#else
  const Process child = fork();
  if (child == 0) {
    execl(program, program, "write", nullptr);
    _exit(127);
  }
  return child;
#endif
}

bool succeeds(Process process) {
  int result = -1;
#ifdef _WIN32
  return _cwait(&result, process, 0) != -1 && result == 0;
#else
  return waitpid(process, &result, 0) == process && result == 0;
#endif
}

int write_records() {
  const float x[] = {0, 3}, y[] = {0, 4};
  for (int i = 0; i < records; ++i) {
    std::int32_t position;
    float x1, y1, x2, y2;
    trvcin(x, y, 1, 0, 0, position, x1, y1, x2, y2);
  }
  return 0;
}

// Each process writes the same record: the file must be that text over and over.
int count_records(std::size_t &damaged) {
  std::ifstream file("OUTPUT.TXT", std::ios::binary);
  int count = 0;
  std::string line, first[3];
  for (int i = 0; std::getline(file, line); ++i) {
    if (i < 3) first[i] = line;
    if (line != first[i % 3]) ++damaged;
    if (i % 3 == 2) ++count;
  }
  return count;
}

}  // namespace

int main(int argc, char **argv) {
  namespace fs = std::filesystem;
  if (argc > 1 && std::strcmp(argv[1], "write") == 0) return write_records();
  const std::string program = fs::absolute(argv[0]).string();
  fs::remove_all("writers");
  fs::create_directory("writers");
  fs::current_path("writers");
  Process started[processes];
  for (Process &process : started) process = start(program.c_str());
  bool all_ended = true;
  for (const Process process : started) all_ended &= succeeds(process);
  std::size_t damaged = 0;
  const int count = count_records(damaged);
  std::printf("%d of %d records, %zu lines damaged\n", count, processes * records, damaged);
  return all_ended && count == processes * records && damaged == 0 ? 0 : 1;
}
