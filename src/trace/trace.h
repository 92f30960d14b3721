// The trace file: records of lines, in Windows-1253, readable as a table.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "numeric/real.h"

namespace trelvin {

// A text in Windows-1253, one byte a character.
template <std::size_t size>
struct EncodedText {
  char bytes[size];
  [[nodiscard]] constexpr std::string_view view() const { return {bytes, size}; }
};

// Not defined: reached at compile time, it names the character that has no byte.
void no_byte_in_windows_1253(char16_t character);

// Encodes ASCII and the Greek capitals; any other character does not compile.
template <std::size_t length>
constexpr EncodedText<length - 1> windows_1253(const char16_t (&text)[length]) {
  EncodedText<length - 1> encoded = {};
  for (std::size_t i = 0; i + 1 < length; ++i) {
    const char16_t character = text[i];
    if (character < 0x80) {
      encoded.bytes[i] = static_cast<char>(character);
    } else if (character >= u'Α' && character <= u'Ω') {
      encoded.bytes[i] = static_cast<char>(character - u'Α' + 0xC1);
    } else {
      no_byte_in_windows_1253(character);
    }
  }
  return encoded;
}

// What one call writes. Lines start with a blank; values stand right-aligned in fixed fields.
class TraceRecord {
 public:
  TraceRecord() { end_line(); }

  TraceRecord &begin_line();
  TraceRecord &text(std::string_view text);
  TraceRecord &digit(Integer value);
  TraceRecord &real(Real value);
  void end_line();

  // The lines, and with the end of a line before them.
  [[nodiscard]] std::string_view lines() const;
  [[nodiscard]] std::string_view lines_after_end() const { return {buffer_, length_}; }

 private:
  void field(std::string_view value, std::size_t width);

  char buffer_[256];
  std::size_t length_ = 0;
};

// OUTPUT.TXT of the directory that is current at the first record. It stays open from then on.
class TraceFile {
 public:
  // Appends the record in one piece, behind what other processes append, and leaves it there when
  // the call returns. A failure goes unreported and closes the file; the next record opens it
  // again, and does not continue a line that the failure may have torn.
  void append(const TraceRecord &record);
  void close();

 private:
#ifdef _WIN32
  using Handle = void *;
  std::optional<std::uint32_t> stuck_at_;  // the file's size when a wait for the lock was given up
#else
  using Handle = int;
  struct Identity {
    std::uint64_t device, number;
    int access;  // how the file was opened
  } file_ = {};
#endif
  bool open();
  [[nodiscard]] bool still_has_file() const;
  bool write(std::string_view bytes);

  Handle handle_ = {};
  bool open_ = false;
  bool torn_ = false;
};

}  // namespace trelvin
