// A file that is written whole or not at all.
#pragma once

#include <string>

namespace host {

// Writes a new file next to the named one, then replaces that one by it. So a failure leaves neither
// half a file nor a lost one. If the name is a link, the file that the link leads to is replaced. A
// replaced file keeps its mode. False if the file cannot be written, or is no ordinary file.
bool write_file(const std::string &name, const std::string &content);

}  // namespace host
