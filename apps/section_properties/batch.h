// Many sections, a line each, as CSV.
#pragma once

#include <string>
#include <string_view>

namespace host {

// Which results a row has: up to the principal moments and radii, or all.
enum class Extent { properties, all };

// The names of the columns.
std::string batch_header(Extent extent);

struct Tally {
  std::size_t sections = 0;
  std::size_t refused = 0;  // invalid lines
};

// Appends a row for every section in the text, whose first line has the given number. A section is a
// profile and its dimensions, separated by semicolons, commas, tabs or blanks. The separator after the
// profile's name is used for the whole line; if it is not the comma, a comma is a decimal comma. Empty
// lines and text after # are ignored. The row of an invalid line has its error in the last column and no
// results. Retains nothing: any thread may call.
Tally add_batch(std::string_view text, std::size_t first_line, Extent extent, std::string &csv);

}  // namespace host
