#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <random>
#include <string>
#include <system_error>
#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#else
#include <fcntl.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

#include "support.h"
#include "trelvin/circles.h"

using namespace trelvin_test;

namespace {

constexpr const char *file_name = "OUTPUT.TXT";

class Trace : public testing::Test {
 protected:
  void SetUp() override {
    std::filesystem::remove_all(directory_);
    std::filesystem::create_directory(directory_);
    std::filesystem::current_path(directory_);
  }
  void TearDown() override {
    std::filesystem::current_path("..");
    std::error_code in_use;  // Windows keeps a file that is open, to the next run
    std::filesystem::remove_all(directory_, in_use);
  }

 private:
  const std::string directory_ =
      std::string("trace_") + testing::UnitTest::GetInstance()->current_test_info()->name();
};

// Position and points.
Values classify(double x, double y, double r, double a, double b, double c) {
  const auto real = [](double value) { return static_cast<float>(value); };
  const float xs[] = {real(x), real(x + r * 3 / 5)}, ys[] = {real(y), real(y - r * 4 / 5)};
  std::int32_t position = kept;
  float x1 = kept, y1 = kept, x2 = kept, y2 = kept;
  trvcin(xs, ys, real(a), real(b), real(c), position, x1, y1, x2, y2);
  return {static_cast<double>(position), x1, y1, x2, y2};
}

std::string trace() {
  std::ifstream file(file_name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

#ifdef _WIN32
const std::string end = "\r\n";

void set_last_error(int error) { SetLastError(static_cast<DWORD>(error)); }
int last_error() { return static_cast<int>(GetLastError()); }
#else
const std::string end = "\n";

void set_last_error(int error) { errno = error; }
int last_error() { return errno; }

int lowest_free_number() {
  const int number = dup(STDOUT_FILENO);
  ::close(number);
  return number;
}

bool another_program_gets_it() {
  return std::system("readlink /proc/self/fd/* | grep -q OUTPUT.TXT") == 0;
}
#endif

std::string record(const char *position, const std::string &meaning) {
  const std::string heading = " \xCA\xD5\xCA\xCB\xCF\xD3;" + end;
  return heading + " KC;           " + position + end + " " + meaning + end;
}

const std::string circle = "\xCA\xD5\xCA\xCB\xCF\xD3 \xD3\xD4\xC7";
const std::string positive = " \xC8\xC5\xD4\xC9\xCA\xC7 \xD0\xC5\xD1\xC9\xCF\xD7\xC7";
const std::string segment = "\xD4\xCC\xC7\xCC\xC1 \xCA\xD5\xCA\xCB\xCF\xD5 ";
const std::string one = record("1", circle + positive);

void write_one() { classify(1, 7, 5, 0, 1, 0); }

}  // namespace

TEST_F(Trace, IsAppendedByteForByte) {
  std::ofstream(file_name, std::ios::binary) << "earlier";
  std::string expected = "earlier";
  const auto expect = [&](const Values &got, const Values &values, const std::string &added) {
    EXPECT_EQ(got, values);
    EXPECT_EQ(trace(), expected += added);
  };
  const std::string below = "\xCD \xC1\xD1\xCD\xC7\xD4\xC9\xCA\xC7 \xD0\xC5\xD1\xC9\xCF\xD7\xC7";
  const std::string larger = segment + "2\xD0-\xD6 \xD3\xD4\xC7" + positive;
  expect(classify(1, 5, 5, 0, 1, 0), {TRVCIN_UNCUT_ABOVE, 1, 0, kept, kept},
         record("1", circle + positive));
  expect(classify(1, 0, 5, 0, 1, -7), {TRVCIN_UNCUT_BELOW, kept, kept, kept, kept},
         record("2", circle + below));
  expect(classify(1, -7, 5, 1, 0, -4), {TRVCIN_CUT_BELOW, 4, -3, 4, -11},
         record("3", segment + "\xD6 \xD3\xD4\xC7" + positive +
                         ";x2;  4.00000000e+00;y2; -3.00000000e+00"
                         ";x3;  4.00000000e+00;y3; -1.10000000e+01"));
  // The discriminant overflows; the ordinate takes all 9 digits.
  expect(classify(-1e19, 0, 1e19, 0, 3, 1), {4, infinity, -1 / 3.0F, -infinity, -1 / 3.0F},
         record("4", larger + ";x2;        Infinity;y2; -3.33333343e-01"
                              ";x3;       -Infinity;y3; -3.33333343e-01"));
  classify(1, 7, 5, 0, 1, not_a_number);
  EXPECT_EQ(trace(), expected + record("4", larger + ";x2;             NaN;y2;             NaN"
                                                     ";x3;             NaN;y3;             NaN"));
}

TEST_F(Trace, NumbersAreThoseOfTheCLibrary) {
  std::mt19937 random(3);
  std::string expected;
  for (int i = 0; i < 2000; ++i) {
    // Up to 2e18; every second one has few digits, of which some end in a 5 that is rounded to even.
    const auto bits = static_cast<std::uint32_t>(
        (i % 2 == 0 ? static_cast<std::uint64_t>(i) * 0x100000U : random()) % 0x5E000000U);
    float y = 0;
    std::memcpy(&y, &bits, sizeof y);
    if (i == 0) y = 1e-23F;  // 9.9999999998e-24: its nine digits carry to the next power of ten
    const Values found = classify(0, 0, std::max(1.0F, 2 * y), 0, 1, -y);
    char points[120];
    std::snprintf(points, sizeof points, ";x2;%16.8e;y2;%16.8e;x3;%16.8e;y3;%16.8e", found[1],
                  found[2], found[3], found[4]);
    std::string lines = segment + "2\xD0-\xD6 \xD3\xD4\xC7";
    lines.append(positive).append(points);
    expected += record("4", lines);
  }
  EXPECT_EQ(trace(), expected);
}

TEST_F(Trace, StaysWithTheFileOfTheFirstCall) {
  write_one();
  std::filesystem::create_directory("other");
  std::filesystem::current_path("other");
  write_one();
  EXPECT_FALSE(std::filesystem::exists(file_name));
  std::filesystem::current_path("..");
  EXPECT_EQ(trace(), one + one);
  std::error_code refused;
#ifdef _WIN32
  std::filesystem::rename(file_name, "renamed", refused);
  EXPECT_TRUE(refused);
  EXPECT_FALSE(std::filesystem::remove(file_name, refused));
#else
  const int next = lowest_free_number();
  std::filesystem::rename(file_name, "renamed");
  write_one();
  EXPECT_EQ(trace(), "");
  std::filesystem::remove("renamed");
  std::filesystem::current_path("other");
  write_one();
  EXPECT_EQ(trace(), one);  // in a file as of a first call
  EXPECT_EQ(lowest_free_number(), next);
  EXPECT_FALSE(another_program_gets_it());
  std::filesystem::current_path("..");
#endif
}

TEST_F(Trace, CallComputesWithoutAFileAndTheNextTriesAgain) {
  const auto computes = [] {
    set_last_error(7);
    EXPECT_EQ(classify(1, 0, 5, 0, 1, 0), (Values{TRVCIN_CUT_ABOVE, 6, 0, -4, 0}));
    EXPECT_EQ(last_error(), 7);  // the host's
  };
  std::filesystem::create_directory(file_name);
  computes();
  std::filesystem::remove(file_name);
#ifndef _WIN32
  mkfifo(file_name, 0600);
  computes();
  pollfd reader = {::open(file_name, O_RDONLY | O_NONBLOCK), POLLIN, 0};
  computes();
  EXPECT_EQ(poll(&reader, 1, 0), 0);  // nobody came and left
  ::close(reader.fd);
  std::filesystem::remove(file_name);
#endif
  set_last_error(7);
  write_one();
  EXPECT_EQ(last_error(), 7);
  EXPECT_EQ(trace(), one);
}

#ifdef _WIN32

using WriteFunction = decltype(WriteFile);
auto *const write_file = reinterpret_cast<WriteFunction *>(
    reinterpret_cast<void *>(GetProcAddress(GetModuleHandleA("KERNEL32.dll"), "WriteFile")));
DWORD room = 0;

BOOL WINAPI write_what_fits(HANDLE file, const void *bytes, DWORD size, DWORD *written,
                            OVERLAPPED *overlapped) {
  const DWORD fits = std::min(size, room);
  room -= fits;
  return write_file(file, bytes, fits, written, overlapped);
}

// Puts one function in the place of another among the addresses that the library calls.
void redirect(WriteFunction *from, WriteFunction *to) {
  auto *const base = reinterpret_cast<char *>(GetModuleHandleA("Trelvin.dll"));
  const auto *dos = reinterpret_cast<IMAGE_DOS_HEADER *>(base);
  const auto *header = reinterpret_cast<IMAGE_NT_HEADERS *>(base + dos->e_lfanew);
  auto **const words = reinterpret_cast<WriteFunction **>(base);
  for (DWORD i = 0; i < header->OptionalHeader.SizeOfImage / sizeof *words; ++i) {
    if (words[i] == from) words[i] = to;
  }
}

void write_two_to_a_full_disk() {
  room = 20;
  redirect(write_file, write_what_fits);
  for (int i = 0; i < 2; ++i) write_one();
  redirect(write_what_fits, write_file);
}

TEST_F(Trace, HandleCannotBeClosedByTheHost) {
  write_one();
  int found = 0;
  for (std::uintptr_t value = 4; value < 4096; value += 4) {
    auto *const handle = reinterpret_cast<HANDLE>(value);
    char name[MAX_PATH] = "";
    if (GetFileType(handle) == FILE_TYPE_DISK) {
      GetFinalPathNameByHandleA(handle, name, sizeof name, 0);
    }
    // Those of other tests may be open too.
    if (std::strstr(name, R"(HandleCannotBeClosedByTheHost\OUTPUT.TXT)") == nullptr) continue;
    ++found;
    EXPECT_FALSE(CloseHandle(handle));
  }
  EXPECT_EQ(found, 1);
}

struct Holder {
  Holder() { LockFileEx(file, LOCKFILE_EXCLUSIVE_LOCK, 0, 1, 0, &byte); }
  ~Holder() { CloseHandle(file); }
  void write() const {
    DWORD written = 0;
    WriteFile(file, "x", 1, &written, nullptr);
  }

  HANDLE file = CreateFileA(file_name, GENERIC_READ | FILE_APPEND_DATA,
                            FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_ALWAYS, 0, nullptr);
  OVERLAPPED byte = {0, 0, {{0, 1U << 30}}, nullptr};
};

DWORD WINAPI write_for_a_while_and_unlock(void *of_test) {
  auto *const holder = static_cast<Holder *>(of_test);
  for (const DWORD start = GetTickCount(); GetTickCount() - start < 600; Sleep(10)) holder->write();
  UnlockFileEx(holder->file, 0, 1, 0, &holder->byte);
  return 0;
}

TEST_F(Trace, HolderOfTheLockIsWaitedForOnceUnlessTheFileGrows) {
  const auto milliseconds = [] {  // of five calls
    const DWORD start = GetTickCount();
    for (int i = 0; i < 5; ++i) write_one();
    return GetTickCount() - start;
  };
  Holder holder;
  const auto expect_one_wait = [&] {
    const DWORD waited = milliseconds();
    EXPECT_GE(waited, 250U);
    EXPECT_LT(waited, 5 * 250U);
    EXPECT_LT(std::min({milliseconds(), milliseconds(), milliseconds()}), 250U);
  };
  expect_one_wait();
  holder.write();
  expect_one_wait();
  EXPECT_EQ(trace(), "x");
  std::filesystem::create_directory("other");
  std::filesystem::current_path("other");  // The file that was opened stays open.
  holder.write();
  CloseHandle(CreateThread(nullptr, 0, write_for_a_while_and_unlock, &holder, 0, nullptr));
  write_one();
  std::filesystem::current_path("..");
  const std::string written = trace();
  EXPECT_EQ(written.substr(written.find_first_not_of('x')), one);
}

#else

void write_two_to_a_full_disk() {
  rlimit limit = {};
  getrlimit(RLIMIT_FSIZE, &limit);
  const rlimit full = {std::filesystem::exists(file_name) ? trace().size() + 20 : 20,
                       limit.rlim_max};
  setrlimit(RLIMIT_FSIZE, &full);
  for (int i = 0; i < 2; ++i) write_one();
  setrlimit(RLIMIT_FSIZE, &limit);
}

TEST_F(Trace, LimitOfSizeSendsNoSignalAndTakesNone) {
  const auto has = [](const sigset_t &signals) { return sigismember(&signals, SIGXFSZ); };
  sigset_t found, limit;
  write_two_to_a_full_disk();
  sigprocmask(SIG_BLOCK, nullptr, &found);
  EXPECT_EQ(has(found), 0);
  sigemptyset(&limit);
  sigaddset(&limit, SIGXFSZ);
  sigprocmask(SIG_BLOCK, &limit, nullptr);
  write_two_to_a_full_disk();
  sigpending(&found);
  EXPECT_EQ(has(found), 0);
  std::raise(SIGXFSZ);
  write_two_to_a_full_disk();
  sigpending(&found);
  EXPECT_EQ(has(found), 1);  // the host's own
}

// As a daemon does, which closes the files that it finds open and opens its own.
TEST_F(Trace, FilesOfTheHostAreNotWrittenAndNotClosed) {
  int sockets[2] = {};
  ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, sockets), 0);
  const std::function<int()> files[] = {
      [] { return ::open("own", O_CREAT | O_WRONLY | O_APPEND | O_NONBLOCK, 0600); },
      [] { return ::open("own", O_RDONLY); },
      [] { return ::open(file_name, O_RDONLY); },
      [] { return ::open(file_name, O_WRONLY); },
      [&] { return dup(sockets[0]); },
  };
  std::string expected;
  for (const auto &open_own : files) {
    const int number = lowest_free_number();
    write_one();
    ::close(number);
    ASSERT_EQ(open_own(), number);
    const int next = lowest_free_number();
    write_one();
    EXPECT_EQ(trace(), expected += one + one);
    EXPECT_NE(fcntl(number, F_GETFD), -1);
    ::close(next);
    ::close(number);
  }
  EXPECT_EQ(std::filesystem::file_size("own"), 0U);
  char byte = 0;
  EXPECT_EQ(recv(sockets[1], &byte, 1, MSG_DONTWAIT), -1);
  ::close(STDIN_FILENO);
  write_one();
  EXPECT_EQ(lowest_free_number(), STDIN_FILENO);  // which the trace leaves to the host
  EXPECT_FALSE(another_program_gets_it());
}

#endif

TEST_F(Trace, TornRecordIsNotContinued) {
  write_two_to_a_full_disk();
  for (int i = 0; i < 2; ++i) write_one();
  EXPECT_EQ(trace(), one.substr(0, 20) + end + one + one);
  write_two_to_a_full_disk();
  std::filesystem::remove(file_name);
  write_one();
  EXPECT_EQ(trace(), one);
}
