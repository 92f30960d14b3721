/**
 * @file
 * All routines of Trelvin. A host that needs one family may include that family's header alone.
 */
#ifndef TRELVIN_TRELVIN_H
#define TRELVIN_TRELVIN_H

#include "trelvin/circles.h"
#include "trelvin/lists.h"
#include "trelvin/plane.h"
#include "trelvin/properties.h"
#include "trelvin/sections.h"
#include "trelvin/space.h"

#endif
