#include "trelvin/rotations.h"

#include "entries/door.h"
#include "space/rotations.h"

using namespace trelvin;

namespace {

// Mode 1 turns back.
Turn turn_of(Integer mode, Real angle) {
  const Turn forward = turn_by(angle);
  return mode == 1 ? forward.back() : forward;
}

}  // namespace

TRELVIN_ROUTINE trvrot(TrvIntIn mode, TrvArrayInOut x, TrvArrayInOut y, TrvIntIn n, TrvIn angle) {
  const Door door;
  rotate({x, y}, n, turn_of(mode, angle));
}

TRELVIN_ROUTINE trvrotx(TrvIntIn mode, TrvArrayIn /*x*/, TrvArrayInOut y, TrvArrayInOut z,
                        TrvIntIn n, TrvIn angle) {
  const Door door;
  rotate({y, z}, n, turn_of(mode, angle));
}

TRELVIN_ROUTINE trvroty(TrvIntIn mode, TrvArrayInOut x, TrvArrayIn /*y*/, TrvArrayInOut z,
                        TrvIntIn n, TrvIn angle) {
  const Door door;
  rotate({x, z}, n, turn_of(mode, angle));  // x towards z, not z towards x: unlike its sisters
}

TRELVIN_ROUTINE trvrotz(TrvIntIn mode, TrvArrayInOut x, TrvArrayInOut y, TrvArrayIn /*z*/,
                        TrvIntIn n, TrvIn angle) {
  const Door door;
  rotate({x, y}, n, turn_of(mode, angle));
}
