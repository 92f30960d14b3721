#include "entries/retained.h"

namespace trelvin {

Retained retained;

#ifndef _WIN32  // where the library's own entry calls it
[[gnu::destructor]]
#endif
void release() {
  retained.trace_file.close();
}

}  // namespace trelvin
