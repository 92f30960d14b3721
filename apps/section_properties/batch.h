// Many sections, a line each, as CSV.
#pragma once

#include <string>
#include <string_view>

namespace host {

// Which figures a line has: to the principal moments and radii, or all.
enum class Extent { properties, all };

// The names of the columns.
std::string batch_header(Extent extent);

struct Tally {
  std::size_t sections = 0;
  std::size_t refused = 0;  // lines that are no section
};

// Appends a line for every section in the text, whose first line has the given number. A section
// is a profile and its dimensions, separated by semicolons, commas, tabs or blanks: what stands
// behind the profile's name separates the whole line, and unless it is the comma a comma is a
// decimal one. Empty lines and what follows a # do not count. A line that is no section has its
// error in the last column, and no figures. Retains nothing: any thread may call.
Tally add_batch(std::string_view text, std::size_t first_line, Extent extent, std::string &csv);

}  // namespace host
