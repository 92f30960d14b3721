#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <system_error>
#ifndef _WIN32
#include <sys/resource.h>
#endif

#include "support.h"
#include "trelvin/circles.h"

using namespace trelvin_test;

namespace {

constexpr float u = unwritten;
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
  std::int32_t position = unwritten_int;
  float x1 = u, y1 = u, x2 = u, y2 = u;
  trvcin(xs, ys, real(a), real(b), real(c), position, x1, y1, x2, y2);
  return {static_cast<double>(position), x1, y1, x2, y2};
}

std::string trace() {
  std::ifstream file(file_name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string record(const char *position, const std::string &meaning) {
#ifdef _WIN32
  const std::string end = "\r\n ";
#else
  const std::string end = "\n ";
#endif
  const std::string lines = " \xCA\xD5\xCA\xCB\xCF\xD3;" + end + "KC;           " + position + end;
  return lines + meaning + end.substr(0, end.size() - 1);
}

const std::string circle = "\xCA\xD5\xCA\xCB\xCF\xD3 \xD3\xD4\xC7";
const std::string positive = " \xC8\xC5\xD4\xC9\xCA\xC7 \xD0\xC5\xD1\xC9\xCF\xD7\xC7";
const std::string segment = "\xD4\xCC\xC7\xCC\xC1 \xCA\xD5\xCA\xCB\xCF\xD5 ";

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
  expect(classify(1, 5, 5, 0, 1, 0), {TRVCIN_UNCUT_ABOVE, 1, 0, u, u},
         record("1", circle + positive));
  expect(classify(1, 0, 5, 0, 1, -7), {TRVCIN_UNCUT_BELOW, u, u, u, u},
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

TEST_F(Trace, StaysWithTheFolderOfTheFirstCall) {
  const std::string one = record("1", circle + positive);
  classify(1, 7, 5, 0, 1, 0);
  std::filesystem::create_directory("other");
  std::filesystem::current_path("other");
  classify(1, 7, 5, 0, 1, 0);
  EXPECT_FALSE(std::filesystem::exists(file_name));
  std::filesystem::current_path("..");
  EXPECT_EQ(trace(), one + one);
}

TEST_F(Trace, CallComputesWithoutAFileAndTheNextTriesAgain) {
  std::filesystem::create_directory(file_name);
  errno = 7;
  EXPECT_EQ(classify(1, 0, 5, 0, 1, 0), (Values{TRVCIN_CUT_ABOVE, 6, 0, -4, 0}));
  EXPECT_EQ(errno, 7);  // the host's
  std::filesystem::remove(file_name);
#ifndef _WIN32
  std::filesystem::create_symlink("/dev/full", file_name);  // opens, but takes nothing
  EXPECT_EQ(classify(1, 0, 5, 0, 1, 0), (Values{4, 6, 0, -4, 0}));
  std::filesystem::remove(file_name);
#endif
  classify(1, 7, 5, 0, 1, 0);
  EXPECT_EQ(trace(), record("1", circle + positive));
}

#ifndef _WIN32
TEST_F(Trace, TornRecordIsNotContinued) {
  const std::string one = record("1", circle + positive);
  rlimit limit = {};
  getrlimit(RLIMIT_FSIZE, &limit);
  const rlimit full = {20, limit.rlim_max};
  std::signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &full);
  for (int i = 0; i < 2; ++i) classify(1, 7, 5, 0, 1, 0);
  setrlimit(RLIMIT_FSIZE, &limit);
  for (int i = 0; i < 2; ++i) classify(1, 7, 5, 0, 1, 0);
  EXPECT_EQ(trace(), one.substr(0, 20) + "\n" + one + one);
}
#endif
