#include "entries/retained.h"

namespace trelvin {

Retained retained;

}  // namespace trelvin
