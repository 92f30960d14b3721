#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "support.h"
#include "trelvin/circles.h"

using namespace trelvin_test;

namespace {

constexpr float u = unwritten;
constexpr const char *file_name = "OUTPUT.TXT";

// The file stays open to the end of the process, so what a test leaves is removed by the next run.
class Trace : public testing::Test {
 protected:
  void SetUp() override {
    const std::filesystem::path directory =
        std::string("trace_") + testing::UnitTest::GetInstance()->current_test_info()->name();
    std::filesystem::remove_all(directory);
    std::filesystem::create_directory(directory);
    std::filesystem::current_path(directory);
  }
};

// Position and points of a circle whose radius is a multiple of 5.
Values classify(double x, double y, double r, double a, double b, double c) {
  const float xs[] = {static_cast<float>(x), static_cast<float>(x + r * 3 / 5)};
  const float ys[] = {static_cast<float>(y), static_cast<float>(y - r * 4 / 5)};
  const auto real = [](double value) { return static_cast<float>(value); };
  std::int32_t position = unwritten_int;
  float x1 = u, y1 = u, x2 = u, y2 = u;
  trvcin(xs, ys, real(a), real(b), real(c), position, x1, y1, x2, y2);
  return {static_cast<double>(position), x1, y1, x2, y2};
}

std::string trace() {
  std::ifstream file(file_name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// The lines of one record, without the text of the last.
std::string record(const char *position, const std::string &last) {
#ifdef _WIN32
  const std::string end = "\r\n";
#else
  const std::string end = "\n";
#endif
  return " \xCA\xD5\xCA\xCB\xCF\xD3;" + end + " KC;           " + position + end + " " + last + end;
}

const std::string theta_region =
    " \xD3\xD4\xC7 \xC8\xC5\xD4\xC9\xCA\xC7 \xD0\xC5\xD1\xC9\xCF\xD7\xC7";
const std::string segment = "\xD4\xCC\xC7\xCC\xC1 \xCA\xD5\xCA\xCB\xCF\xD5 ";
const std::string uncut_above = record("1", "\xCA\xD5\xCA\xCB\xCF\xD3" + theta_region);

}  // namespace

TEST_F(Trace, RegionIsThatOfTheCentreWhateverTheLine) {
  EXPECT_EQ(classify(1, 7, 5, 0, 1, 0), (Values{1, u, u, u, u}));
  EXPECT_EQ(classify(1, -7, 5, 0, 1, 0), (Values{2, u, u, u, u}));
  EXPECT_EQ(classify(1, 5, 5, 0, 1, 0), (Values{1, 1, 0, u, u}));
  EXPECT_EQ(classify(1, 0, 5, 0, 1, -7), (Values{2, u, u, u, u}));
  EXPECT_EQ(classify(1, -3, 5, 0, 1, 0), (Values{3, 5, 0, -3, 0}));
  EXPECT_EQ(classify(1, 3, 5, 0, 1, 0), (Values{4, 5, 0, -3, 0}));
  EXPECT_EQ(classify(1, 0, 5, 0, 1, 0), (Values{4, 6, 0, -4, 0}));
  EXPECT_EQ(classify(1, -7, 5, 1, 0, -4), (Values{3, 4, -3, 4, -11}));
  EXPECT_EQ(classify(1, 7, 5, 0, 1, -10), (Values{4, 5, 10, -3, 10}));
  EXPECT_EQ(classify(1, -1, 0, 0, 1, 1)[0], 2);  // a point circle on the line is touched
}

TEST_F(Trace, IsAppendedByteForByte) {
  std::ofstream(file_name, std::ios::binary) << "earlier";
  std::string expected = "earlier";
  const auto expect = [&](const Values &, const std::string &added) {
    expected += added;
    EXPECT_EQ(trace(), expected);
  };
  expect(classify(1, 7, 5, 0, 1, 0), uncut_above);
  expect(classify(1, -7, 5, 0, 1, 0),
         record("2",
                "\xCA\xD5\xCA\xCB\xCF\xD3 \xD3\xD4\xC7\xCD \xC1\xD1\xCD\xC7\xD4\xC9\xCA\xC7"
                " \xD0\xC5\xD1\xC9\xCF\xD7\xC7"));
  expect(classify(1, -7, 5, 1, 0, -4), record("3", segment + "\xD6" + theta_region +
                                                       ";x2;  4.00000000e+00;y2; -3.00000000e+00"
                                                       ";x3;  4.00000000e+00;y3; -1.10000000e+01"));
  const std::string larger = segment + "2\xD0-\xD6" + theta_region;
  expect(classify(1, 0, 5, 0, 1, not_a_number),
         record("4", larger + ";x2;             NaN;y2;             NaN"
                              ";x3;             NaN;y3;             NaN"));
  expect(classify(-1e19, 0, 1e19, 0, 1, 0),  // its discriminant overflows
         record("4", larger + ";x2;        Infinity;y2;  0.00000000e+00"
                              ";x3;       -Infinity;y3;  0.00000000e+00"));
}

TEST_F(Trace, CoordinatesReadBackToTheSameBits) {
  std::size_t read = 0;
  for (const double scale : {1e-3, 0.7, 3e4, 1e9}) {
    for (const double slope : {-17.0, 0.3, 1.1}) {
      const Values written = classify(scale, scale / 3, 5 * scale, slope, 1, -slope * scale);
      ASSERT_EQ(written[0], 4);
      const std::string added = trace().substr(read);
      read += added.size();
      const char *const labels[] = {";x2;", ";y2;", ";x3;", ";y3;"};
      for (std::size_t i = 0; i < 4; ++i) {
        const std::size_t at = added.find(labels[i]);
        ASSERT_NE(at, std::string::npos);
        const float back = std::strtof(added.c_str() + at + 4, nullptr);
        const auto given = static_cast<float>(written[i + 1]);
        EXPECT_EQ(std::memcmp(&back, &given, sizeof back), 0) << added;
      }
    }
  }
}

TEST_F(Trace, CallComputesWithoutAFileAndTheNextTriesAgain) {
  std::filesystem::create_directory(file_name);
  EXPECT_EQ(classify(1, -3, 5, 0, 1, 0), (Values{3, 5, 0, -3, 0}));
  std::filesystem::remove(file_name);
#ifndef _WIN32
  std::filesystem::create_symlink("/dev/full", file_name);  // opens, but takes nothing
  EXPECT_EQ(classify(1, -3, 5, 0, 1, 0), (Values{3, 5, 0, -3, 0}));
  std::filesystem::remove(file_name);
#endif
  classify(1, 7, 5, 0, 1, 0);
  EXPECT_EQ(trace(), uncut_above);
}
