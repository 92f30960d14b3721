// Generated from include/trelvin by tools/generate.py.
//
// Every routine of Trelvin for Free Pascal and Delphi. Every argument goes by its address, an array
// by an element: X[0], or wherever it starts; a plain `const` would pass the value of a Single.
// What a contract calls unwritten keeps its value: such an output is `var`. The contracts are in
// include/trelvin.
unit trelvin;

{$IFDEF FPC}{$MODE OBJFPC}{$ENDIF}

interface

const
  TrelvinVersion = '1.1.1';
  {$IF DEFINED(WIN64)}
  TrelvinLibrary = 'Trelvin64.dll';
  {$ELSEIF DEFINED(MSWINDOWS)}
  TrelvinLibrary = 'Trelvin.dll';
  {$ELSEIF DEFINED(FPC)}
  TrelvinLibrary = 'trelvin'; // the linker's name of libtrelvin.so
  {$ELSE}
  TrelvinLibrary = 'libtrelvin.so';
  {$IFEND}


  // Whether a computation was done.
  trv_status_done = 0;
  trv_status_refused = -1;

  // Whether a point of an arc was found. Caution: here 1 means done.
  trv_arc_done = 1;
  trv_arc_refused = 0;

  // Whether a frame was found.
  trv_frame_done = 0;
  trv_frame_no_frame = -2;

  // Whether two points coincide: each difference of their coordinates is within the tolerance.
  trv_coincidence_distinct = 0;
  trv_coincidence_coincident = 1;

  // How many points were found.
  trv_points_none = 0;
  trv_points_one = 1;
  trv_points_two = 2;

  // Which of three components are above the tolerance.
  trv_components_none = 0;
  trv_components_all = 1;
  trv_components_first = 2;
  trv_components_second = 3;
  trv_components_third = 4;
  trv_components_first_second = 5;
  trv_components_second_third = 6;
  trv_components_first_third = 7;

  // Whether a point lies on a line of space.
  trv_on_line_no = 0;
  trv_on_line_yes = 1;

  // Whether a point lies on a plane. Caution: 0 means yes.
  trv_on_plane_yes = 0;
  trv_on_plane_no = -1;
  trv_on_plane_zero_normal = 1;

  // How two lines of the plane lie to each other.
  trv_plane_lines_one_point = 0;
  trv_plane_lines_same_line = 1;
  trv_plane_lines_parallel = 2;

  // Three-point test (trvpsl): where P2 is, seen from P0 and P1.
  trv_three_points_spans_plane = 0;
  trv_three_points_at_p0 = 1;
  trv_three_points_at_p1 = 2;
  trv_three_points_between = 3;
  trv_three_points_beyond_p0 = 4;
  trv_three_points_beyond_p1 = 5;

  // How two lines of space lie to each other (trvdirl).
  trv_lines_crossing = 0;
  trv_lines_parallel_same = 1;
  trv_lines_parallel_opposite = 2;
  trv_lines_same_line = 3;
  trv_lines_opposite_line = 4;
  trv_lines_perpendicular = 5;
  trv_lines_skew = 6;
  trv_lines_coincident = 7;

  // Outcome for two lines of space: a result, or the relation that allows no result.
  trv_two_lines_done = 0;
  trv_two_lines_same_line = 3;
  trv_two_lines_opposite_line = 4;
  trv_two_lines_skew = 6;
  trv_two_lines_no_length = 7;

  // Kind of a part of a section.
  trv_part_concentrated = 1;
  trv_part_polygon = 2;
  trv_part_circle = 3;
  trv_part_smaller_segment = 4;
  trv_part_larger_segment = 5;

  // trvcin: class.
  trvcin_uncut_above = 1;
  trvcin_uncut_below = 2;
  trvcin_cut_below = 3;
  trvcin_cut_above = 4;

  // trvapp: where each point is.
  trvapp_inside = 1;
  trvapp_outside = 2;
  trvapp_no_sector = -1;

  // trvcer10: outcome.
  trvcer10_crossing_or_refused = 0;
  trvcer10_along_chord = 1;
  trvcer10_parallel = 2;

  // trvptp1: which points of A match a point of B.
  trvptp1_no_pair = 0;
  trvptp1_some_pairs = 1;
  trvptp1_all_paired = 2;

  // trvpin: where P1 is.
  trvpin_inside = 1;
  trvpin_outside = 0;
  trvpin_refused = -1;

  // trvcnt1: test.
  trvcnt1_zero = 1;
  trvcnt1_nonzero = 0;

  // trvvin: sign.
  trvvin_positive = 1;
  trvvin_not_positive = 2;

  // trvpos1: what was found.
  trvpos1_at_entry = 1;
  trvpos1_between = 2;
  trvpos1_neither = 0;

  // trvphip: outcome.
  trvphip_no_length = -1;

  // trvcnv: test.
  trvcnv_convex = 1;
  trvcnv_not_convex = 0;
  trvcnv_refused = -1;

  // trvdir: relation.
  trvdir_oblique = 0;
  trvdir_same = 1;
  trvdir_opposite = 2;
  trvdir_perpendicular = 3;
  trvdir_zero = 4;

  // trvdirp: relation.
  trvdirp_crossing = 0;
  trvdirp_parallel_same = 1;
  trvdirp_parallel_opposite = 2;
  trvdirp_coincident_same = 3;
  trvdirp_coincident_opposite = 4;
  trvdirp_perpendicular = 5;
  trvdirp_zero_normal = 6;

  // trvppc: outcome.
  trvppc_done = 0;
  trvppc_no_frame = -1;

  // trvpl5: outcome.
  trvpl5_done = 0;
  trvpl5_no_plane = 1;

  // trvplv: relation.
  trvplv_zero_u = -1;
  trvplv_oblique = 0;
  trvplv_same = 3;
  trvplv_opposite = 4;
  trvplv_perpendicular = 5;
  trvplv_zero = 7;

  // trv3sp: test.
  trv3sp_flat = 0;
  trv3sp_spanning = 1;

  // trvpli: outcome.
  trvpli_done = 0;
  trvpli_parallel = 3;
  trvpli_zero = 4;

  // trvplp: position.
  trvplp_general = 1;
  trvplp_parallel_x = 2;
  trvplp_parallel_y = 3;
  trvplp_parallel_z = 4;
  trvplp_normal_z = 5;
  trvplp_normal_x = 6;
  trvplp_normal_y = 7;
  trvplp_at_z_zero = 8;
  trvplp_at_x_zero = 9;
  trvplp_at_y_zero = 10;

  // trvlpc: outcome.
  trvlpc_not_moved = 0;
  trvlpc_moved_one_side = 3;
  trvlpc_moved_either_side = 4;
  trvlpc_moved_skew = 6;
  trvlpc_moved_at_p = 7;

  // Names of version 1.1, which the next version drops.
  trvcer3_done = 1;
  trvcer3_refused = 0;
  trvcer8_done = 1;
  trvcer8_refused = 0;
  trvcer6_done = 1;
  trvcer6_refused = 0;
  trvcer9_done = 1;
  trvcer9_refused = 0;
  trvarc1_done = 1;
  trvarc1_refused = 0;
  trvcer4_done = 1;
  trvcer4_refused = 0;
  trvcer5_done = 1;
  trvcer5_refused = 0;
  trvcer7_done = 1;
  trvcer7_refused = 0;
  trvard_done = 1;
  trvard_refused = 0;
  trvpor_ordered = 0;
  trvpor_refused = -1;
  trvcnt_coincident = 1;
  trvcnt_distinct = 0;
  trv123_done = 0;
  trv123_coincident = 1;
  trvchi_done = 0;
  trvchi_coincident = 1;
  trvtrg_done = 0;
  trvtrg_coincident = 1;
  trvpl4_done = 0;
  trvpl4_coincident = 1;
  trvlni_one_point = 0;
  trvlni_same_line = 1;
  trvlni_parallel = 2;
  trvlul_one_point = 0;
  trvlul_same_line = 1;
  trvlul_parallel = 2;
  trvpsn_none = 0;
  trvpsn_all = 1;
  trvpsn_first = 2;
  trvpsn_second = 3;
  trvpsn_third = 4;
  trvpsn_first_second = 5;
  trvpsn_second_third = 6;
  trvpsn_first_third = 7;
  trvln6_none = 0;
  trvln6_all = 1;
  trvln6_first = 2;
  trvln6_second = 3;
  trvln6_third = 4;
  trvln6_first_second = 5;
  trvln6_second_third = 6;
  trvln6_first_third = 7;
  trvln7_none = 0;
  trvln7_all = 1;
  trvln7_first = 2;
  trvln7_second = 3;
  trvln7_third = 4;
  trvln7_first_second = 5;
  trvln7_second_third = 6;
  trvln7_first_third = 7;
  trvln6_on_line = 1;
  trvln6_off_line = 0;
  trvln7_on_line = 1;
  trvln7_off_line = 0;
  trvmxt_done = 0;
  trvmxt_refused = -1;
  trvmxt_fb_done = 0;
  trvmxt_fb_refused = -1;
  trvpsl_spans_plane = 0;
  trvpsl_at_p0 = 1;
  trvpsl_at_p1 = 2;
  trvpsl_between = 3;
  trvpsl_beyond_p0 = 4;
  trvpsl_beyond_p1 = 5;
  trvpl1_done = 0;
  trvpl1_at_p0 = 1;
  trvpl1_at_p1 = 2;
  trvpl1_between = 3;
  trvpl1_beyond_p0 = 4;
  trvpl1_beyond_p1 = 5;
  trvpl7_done = 0;
  trvpl7_at_p0 = 1;
  trvpl7_at_p1 = 2;
  trvpl7_between = 3;
  trvpl7_beyond_p0 = 4;
  trvpl7_beyond_p1 = 5;
  trvaxe_done = 0;
  trvaxe_no_frame = -2;
  trvaxel_done = 0;
  trvaxel_no_frame = -2;
  trvptrl_done = 0;
  trvptrl_no_frame = -2;
  trvpra_done = 0;
  trvpra_no_frame = -2;
  trvpl2_done = 0;
  trvpl2_same_line = 3;
  trvpl2_opposite_line = 4;
  trvpl2_coincident = 7;
  trvpl3_done = 0;
  trvpl3_same_line = 3;
  trvpl3_opposite_line = 4;
  trvpl3_coincident = 7;
  trvpl6_done = 0;
  trvpl6_same_line = 3;
  trvpl6_opposite_line = 4;
  trvpl6_skew = 6;
  trvpl6_zero = 7;
  trv3lni_done = 0;
  trv3lni_same_line = 3;
  trv3lni_opposite_line = 4;
  trv3lni_skew = 6;
  trv3lni_zero = 7;
  trvpsp_on_plane = 0;
  trvpsp_off_plane = -1;
  trvpspg_on_plane = 0;
  trvpspg_off_plane = -1;
  trvpspg_zero_normal = 1;
  trvdirl_crossing = 0;
  trvdirl_parallel_same = 1;
  trvdirl_parallel_opposite = 2;
  trvdirl_same_line = 3;
  trvdirl_opposite_line = 4;
  trvdirl_perpendicular = 5;
  trvdirl_skew = 6;
  trvdirl_coincident = 7;
  trv3ldb_done = 0;
  trv3lda_done = 0;
  trvpnl_done = 0;

type
  TTrvReals = Single; // the first element of an array
  TTrvIntegers = LongInt;
  TTrvFunction = function(
    {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} position: LongInt): Single;
    {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF};

// Circles and arcs of the plane

/// <summary>Circle from its centre and radius: D = -2*xc, E = -2*yc, F = xc*xc + yc*yc -
/// r*r.</summary>
procedure trvcer(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} xc, yc, r: Single;
  out D, E, F: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvcer';

/// <summary>Intersection of a line and a circle.</summary>
/// <remarks>n: number of points (TrvPoints): 0 none: the line misses the circle; 1 one: the line
/// touches the circle; 2 two: the line cuts the circle.</remarks>
procedure trvlci(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} a, b, c, D, E, F: Single;
  out n: LongInt;
  var x1, y1, x2, y2: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvlci';

/// <summary>Intersection of two circles, computed as that of their radical line and the first
/// circle (trvlci).</summary>
/// <remarks>n: number of points (TrvPoints): 0 none: the circles have no common point, or are
/// concentric: |D2 - D1| + |E2 - E1| is within the tolerance; 1 one: the circles touch; 2 two: the
/// circles cut each other.</remarks>
procedure trvc12(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} D1, E1, F1, D2, E2, F2: Single;
  out n: LongInt;
  var x1, y1, x2, y2: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvc12';

/// <summary>Centres of the circles of a radius through two points.</summary>
/// <remarks>n: number of centres (TrvPoints): 0 none: P1 = P2 exactly, r is at most 1e-5 or less
/// than half the chord, the discriminant is NaN, or the chord is horizontal; 1 one: both candidates
/// are the same point; 2 two: there are two points.</remarks>
procedure trvcer2(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x1, y1, x2, y2: Single;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} side: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} r: Single;
  var xa, ya, xb, yb, xc, yc: Single;
  out n: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvcer2';

/// <summary>Circle through two points with a given sagitta.</summary>
/// <remarks>n: number of centres of trvcer2 (TrvPoints): 0 none: h &lt; 1e-5, P1 = P2 exactly, r is
/// at most 1e-5 or less than half the chord, the discriminant is NaN, or the chord is horizontal; 1
/// one: both candidates are the same point; 2 two: there are two points.</remarks>
procedure trvcer1(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x1, y1, x2, y2: Single;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} side: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} h: Single;
  var r, xc, yc: Single;
  out n: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvcer1';

/// <summary>Classifies a circle cut by a line, with a trace.</summary>
/// <remarks>position: class: 1 uncut_above: the circle is not cut, its centre is above the x axis;
/// 2 uncut_below: the circle is not cut, its centre is on or below the x axis; 3 cut_below: the
/// circle is cut, its centre is below the x axis; 4 cut_above: the circle is cut, its centre is on
/// or above the x axis.</remarks>
procedure trvcin(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} X, Y: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} a, b, c: Single;
  out position: LongInt;
  var x1, y1, x2, y2: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvcin';

/// <summary>Rotates a point about a centre.</summary>
/// <remarks>status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the point's
/// distance from the centre is within the tolerance.</remarks>
procedure trvcer3(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x0, y0: Single;
  var x, y: Single;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} angle: Single;
  var xr, yr: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvcer3';

/// <summary>Point of an arc above a station of its chord, perpendicular to the chord.</summary>
/// <remarks>status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the radius or
/// the chord is at most 0.001, the radii of A and B differ by more than 0.001, or the station is
/// not more than 0.001 inside both ends of the chord.</remarks>
procedure trvcer8(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} xc, yc, xa, ya, xb, yb: Single;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} side: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} d: Single;
  var x, y: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvcer8';

/// <summary>Point of an arc on the line from its centre through a station of its chord.</summary>
/// <remarks>status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the radius or
/// the chord is at most 0.001, the radii of A and B differ by more than 0.001, the station is not
/// more than 0.001 inside both ends of the chord, or d differs from the diameter by less than
/// 0.001.</remarks>
procedure trvcer6(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} xc, yc, xa, ya, xb, yb: Single;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} side: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} d: Single;
  var x, y: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvcer6';

/// <summary>Points of an arc above the two edges of a strip on its chord, perpendicular to the
/// chord.</summary>
/// <remarks>status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the radius, the
/// chord, d, the rest of the chord beyond d or the width is at most 0.001, the radii of A and B
/// differ by more than 0.001, or an edge of the strip is less than 0.001 inside an end of the
/// chord.</remarks>
procedure trvcer9(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} xc, yc, xa, ya, xb, yb: Single;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} side: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} d, w: Single;
  var x1, y1, x2, y2: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvcer9';

/// <summary>Lengths of the two arcs between two points of a circle.</summary>
/// <remarks>status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the radius, or
/// the distance of A and B, is within the tolerance.</remarks>
procedure trvarc1(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} xc, yc, xa, ya, xb, yb: Single;
  var s1, s2: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvarc1';

/// <summary>Signed angle of a direction against the x axis.</summary>
procedure trvaxph(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} dx, dy: Single;
  out phi: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvaxph';

/// <summary>Distances of two points from the line of a segment, and their stations along
/// it.</summary>
procedure trvhin(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x0, y0, z0, x1, y1, z1, x2, y2, z2, x3, y3,
    z3: Single;
  out h0, s0, h3, s3, len: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvhin';

/// <summary>Marks points as inside or outside a sector.</summary>
/// <remarks>mark: where each point is: 1 inside: the point is inside the sector; 2 outside: the
/// point is outside the sector; -1 no_sector: the angle of the rays by trvphi is within the
/// tolerance, so all points have this value.</remarks>
procedure trvapp(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x0, y0, x1, y1, x2, y2: Single;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} X, Y: TTrvReals;
  var mark: TTrvIntegers);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvapp';

/// <summary>Point of an arc on a line through a station of its chord.</summary>
/// <remarks>status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the radius or
/// the chord is within the tolerance, the radii of A and B differ by more than the tolerance, A and
/// B coincide, or the line is tangent to the circle.</remarks>
procedure trvcer4(
  var xc, yc, xa, ya, xb, yb: Single;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} s, angle: Single;
  var xo, yo: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvcer4';

/// <summary>Intersection of an arc's chord with a line through its rotated end.</summary>
/// <remarks>status: outcome: 0 crossing_or_refused: the line crosses the chord, which is the normal
/// result, or an intersection kept from an earlier call lies on the chord's line but not at A or B
/// (trvpsl above 2), or the input is rejected, since the radius or the chord is within the
/// tolerance or the radii of A and B differ by more than the tolerance; 1 along_chord: the line
/// runs along the chord; 2 parallel: the line is parallel to the chord.</remarks>
procedure trvcer10(
  var xc, yc, xa, ya, xb, yb: Single;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} turn, angle: Single;
  var xo, yo: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvcer10';

/// <summary>Point of an arc on the line from a station of its chord to a point of the
/// sagitta.</summary>
/// <remarks>status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: s is negative,
/// e, the radius, the chord or its rest beyond s is at most 1e-5, the radii of A and B differ by
/// more than 1e-5, or the line is tangent to the circle.</remarks>
procedure trvcer5(
  var xc, yc, xa, ya, xb, yb: Single;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} s: Single;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} side: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} e: Single;
  var xo, yo: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvcer5';

/// <summary>Intersections of a line through a station of an arc's chord with the arc and with a
/// line parallel to the chord.</summary>
/// <remarks>status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: s or e is
/// negative, the radius or the chord's rest beyond s is at most 1e-4, the radii of A and B differ
/// by more than 1e-4 and the rounding, side is 0, the line is parallel to the chord, or the part of
/// the line inside the circle is not longer than 2e-4.</remarks>
procedure trvcer7(
  var xc, yc, xa, ya, xb, yb: Single;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} s: Single;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} side: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} e, angle: Single;
  var xp, yp, xt, yt, xo, yo, len: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvcer7';

/// <summary>Rounds the corner at P0 between the segments to P1 and to P2.</summary>
/// <remarks>status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: r or the length
/// of a segment is not above the tolerance, the sine of the angle between the segments is within
/// the tolerance, or a tangent point lies beyond the end of its segment by more than the
/// tolerance.</remarks>
procedure trvard(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x0, y0, x1, y1, x2, y2, r: Single;
  var xc, yc, xt1, yt1, xt2, yt2: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvard';

/// <summary>Bounding box of the arc that a point sweeps about a centre.</summary>
procedure trvenv(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} xc, yc, xa, ya, sweep: Single;
  out xmin, ymin, xmax, ymax: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvenv';

// Ordering, searching, matching and joining of lists

/// <summary>Sorts Reals ascending, in place.</summary>
procedure trvord(
  var V: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvord';

/// <summary>Sorts Integers ascending, in place.</summary>
procedure trvord1(
  var V: TTrvIntegers;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvord1';

/// <summary>Positions of the elements of a list in ascending order; the list itself is not
/// changed.</summary>
procedure trvordi(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} V: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n: LongInt;
  var IDX: TTrvIntegers);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvordi';

/// <summary>Order of parallel lines by their intersections with an axis.</summary>
/// <remarks>status: outcome (TrvStatus): 0 done: IDX holds the order; -1 refused: the lines are not
/// a family of parallel and distinct lines, or n &lt; 1.</remarks>
procedure trvpor(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} A, B, C: TTrvReals;
  var IDX: TTrvIntegers;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvpor';

/// <summary>Puts the corners of a quadrilateral of space in cyclic order, in place.</summary>
procedure trvorv(
  var X, Y, Z: TTrvReals;
  var ORD: TTrvIntegers);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvorv';

/// <summary>All positions at which a list holds a value.</summary>
procedure trvsel1(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} V: TTrvIntegers;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} key: LongInt;
  out count: LongInt;
  var pos: TTrvIntegers);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvsel1';

/// <summary>All pairs of elements of two lists that differ by at most a tolerance.</summary>
procedure trvmer13(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} na: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} A: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} nb: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} B: TTrvReals;
  out count: LongInt;
  var IA, IB: TTrvIntegers;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} tol: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvmer13';

/// <summary>Joins two lists end to end. Elements are copied bit for bit, so the lists may also hold
/// Reals.</summary>
procedure trvmer1(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} na: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} A: TTrvIntegers;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} nb: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} B: TTrvIntegers;
  out nout: LongInt;
  var OUT_: TTrvIntegers);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvmer1';

/// <summary>Joins two lists end to end: trvmer1 under another name.</summary>
procedure trvmer11(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} na: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} A: TTrvIntegers;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} nb: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} B: TTrvIntegers;
  out nout: LongInt;
  var OUT_: TTrvIntegers);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvmer11';

/// <summary>Sorts Integers ascending and removes duplicates, in place.</summary>
procedure trvmer2(
  var V: TTrvIntegers;
  var n: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvmer2';

/// <summary>Sorts Reals ascending and removes duplicates within a tolerance, in place.</summary>
procedure trvmer3(
  var V: TTrvReals;
  var n: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvmer3';

/// <summary>Sorts Reals ascending and removes duplicates within a tolerance, in place.</summary>
procedure trvmer12(
  var V: TTrvReals;
  var n: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} tol: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvmer12';

/// <summary>Appends to a list those elements of another that it does not hold yet.</summary>
procedure trvmer4(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} na: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} A: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} nb: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} B: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} tol: Single;
  out nout: LongInt;
  var OUT_: TTrvReals;
  var IB: TTrvIntegers);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvmer4';

/// <summary>Elements of a list that another holds too.</summary>
procedure trvmer14(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} na: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} A: TTrvIntegers;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} nb: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} B: TTrvIntegers;
  out nout: LongInt;
  var OUT_: TTrvIntegers);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvmer14';

/// <summary>Removes from a list the elements that another holds, in place.</summary>
procedure trvmer15(
  var na: LongInt;
  var A: TTrvIntegers;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} nb: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} B: TTrvIntegers;
  out count: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvmer15';

/// <summary>Removes repeated vertices of a closed outline, in place.</summary>
procedure trvmer16(
  var X, Y: TTrvReals;
  var n: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} tol: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvmer16';

/// <summary>All pairs of points of two lists that match within a tolerance in each
/// coordinate.</summary>
/// <remarks>status: which points of A match a point of B: 0 no_pair: no point of A matches a point
/// of B; 1 some_pairs: some points of A match points of B, others do not; 2 all_paired: every point
/// of A matches a point of B.</remarks>
procedure trvptp1(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} na: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} XA, YA, ZA: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} nb: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} XB, YB, ZB: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} tol: Single;
  out count: LongInt;
  var IA, IB: TTrvIntegers;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvptp1';

/// <summary>Merges three lists of points into one list.</summary>
procedure trvptp2(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} na: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} XA, YA, ZA: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} nb: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} XB, YB, ZB: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} nc: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} XC, YC, ZC: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} tol: Single;
  out nab: LongInt;
  var IAB, JAB: TTrvIntegers;
  out nbc: LongInt;
  var IBC, JBC: TTrvIntegers;
  out nca: LongInt;
  var ICA, JCA: TTrvIntegers;
  out nout: LongInt;
  var XO, YO, ZO: TTrvReals;
  var MA, MB, MC: TTrvIntegers;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} k: LongInt;
  out nk: LongInt;
  var PK: TTrvIntegers;
  out nz: LongInt;
  var ZL: TTrvReals);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvptp2';

/// <summary>Crossings of the horizontal line y = y0 with a closed outline.</summary>
procedure trvppp(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} X, Y: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} y0: Single;
  out count: LongInt;
  var XC: TTrvReals);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvppp';

/// <summary>Crossings of the segment from P1 to P2 with a closed outline.</summary>
/// <remarks>status: where P1 is: 1 inside: P1 is inside the outline by the even-odd rule; 0
/// outside: P1 is outside the outline by the even-odd rule; -1 refused: n &lt; 3, or P1 and P2
/// coincide within the tolerance in both coordinates.</remarks>
procedure trvpin(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} X, Y: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x1, y1, x2, y2: Single;
  out count: LongInt;
  var XI, YI, T: TTrvReals;
  var EDGE: TTrvIntegers;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvpin';

// Points, vectors, straight lines and angles

/// <summary>Distance between two points.</summary>
procedure trvpds(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x1, y1, z1, x2, y2, z2: Single;
  out d: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvpds';

/// <summary>Dot product of the difference vectors P2 - P1 and P4 - P3.</summary>
procedure trvpri(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x1, y1, z1, x2, y2, z2, x3, y3, z3, x4, y4,
    z4: Single;
  out s: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvpri';

/// <summary>Cross product (P2 - P1) x (P4 - P3).</summary>
procedure trvpre(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x1, y1, z1, x2, y2, z2, x3, y3, z3, x4, y4,
    z4: Single;
  var c: TTrvReals);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvpre';

/// <summary>Difference vector of two points, and whether they coincide.</summary>
/// <remarks>status: coincidence (TrvCoincidence): 1 coincident: each difference is within the
/// tolerance; 0 distinct: a difference is above the tolerance or NaN.</remarks>
procedure trvcnt(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x1, y1, z1, x2, y2, z2: Single;
  out dx, dy, dz: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvcnt';

/// <summary>Whether a vector is exactly zero; unlike trvcnt, no tolerance applies.</summary>
/// <remarks>status: test: 1 zero: all components are zero, of either sign; 0 nonzero: a component
/// is not zero, or is NaN.</remarks>
procedure trvcnt1(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} dx, dy, dz: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvcnt1';

/// <summary>Point P1 + t*(P2 - P1) on the line through two points.</summary>
/// <remarks>status: outcome (TrvCoincidence): 0 distinct: the output is written; 1 coincident: P1
/// and P2 coincide within the tolerance (trvcnt).</remarks>
procedure trv123(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x1, y1, z1, x2, y2, z2, t: Single;
  var x, y, z: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trv123';

/// <summary>Midpoint of two points.</summary>
procedure trvmed(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x1, y1, z1, x2, y2, z2: Single;
  out xm, ym, zm: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvmed';

/// <summary>Determinant of the 2 x 2 matrix with rows (a, b) and (c, d).</summary>
procedure trvdtr2(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} a, b, c, d: Single;
  out det: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvdtr2';

/// <summary>Determinant of a 3 x 3 matrix, expanded along its first row.</summary>
procedure trvdtr3(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} a1, a2, a3, b1, b2, b3, c1, c2, c3: Single;
  out det: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvdtr3';

/// <summary>Divides two coefficients by a third, or gives zeros if the third is zero within the
/// tolerance.</summary>
procedure trvgrc(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} a, b, c: Single;
  out q1, q2: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvgrc';

/// <summary>Linear interpolation, or extrapolation, through two samples.</summary>
procedure trvint(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x1, x2, y1, y2, x: Single;
  out y: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvint';

/// <summary>Sign of a value.</summary>
/// <remarks>status: sign: 1 positive: v is positive; 2 not_positive: v is zero, negative or
/// NaN.</remarks>
procedure trvvin(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} u1, v, u3, u4, u5: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvvin';

/// <summary>Interval of an ascending table that holds a value.</summary>
procedure trvpos(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} A: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x: Single;
  out i: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvpos';

/// <summary>Element of an ascending table that equals a value, or the interval that holds
/// it.</summary>
/// <remarks>status: what was found: 1 at_entry: A(i) equals x within the tolerance; 2 between: A(i)
/// &lt; x &lt; A(i+1); 0 neither: x equals no element and lies in no interval.</remarks>
procedure trvpos1(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} A: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x: Single;
  out status, i: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvpos1';

/// <summary>Line through two points.</summary>
procedure trvln3(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x1, y1, x2, y2: Single;
  out a, b, c: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvln3';

/// <summary>Line through a point at an angle to the x axis.</summary>
procedure trvln1(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x0, y0, phi: Single;
  out a, b, c: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvln1';

/// <summary>Line through a point with a direction.</summary>
procedure trvln4(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x0, y0, dx, dy, u: Single;
  out a, b, c: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvln4';

/// <summary>Line parallel to a line at a signed distance.</summary>
procedure trvln2(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} a, b, c, d: Single;
  out a2, b2, c2: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvln2';

/// <summary>Internal bisector of the angle at P0 between the rays to P1 and P2.</summary>
procedure trvln5(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x0, y0, x1, y1, x2, y2: Single;
  out a, b, c: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvln5';

/// <summary>Signed distance of a point from a line.</summary>
procedure trvlds(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x, y, a, b, c: Single;
  out d: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvlds';

/// <summary>Intersection of two lines.</summary>
/// <remarks>status: relation (TrvPlaneLines): 0 one_point: the lines have one point in common; 1
/// same_line: the lines are the same; 2 parallel: the lines are parallel and distinct.</remarks>
procedure trvlni(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} a1, b1, c1, a2, b2, c2: Single;
  out status: LongInt;
  var x, y: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvlni';

/// <summary>Distance of two parallel lines.</summary>
/// <remarks>status: relation (TrvPlaneLines): 0 one_point: the lines have one point in common; 1
/// same_line: the lines are the same; 2 parallel: the lines are parallel and distinct, as trvlni
/// finds.</remarks>
procedure trvlul(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} a1, b1, c1, a2, b2, c2: Single;
  var d: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvlul';

/// <summary>Which components of two triples differ by more than the tolerance.</summary>
/// <remarks>code: which components of p - q are above the tolerance (TrvComponents): 0 none: no
/// component is above the tolerance; 1 all: all three components are above the tolerance; 2 first:
/// only the first component is above the tolerance; 3 second: only the second component is above
/// the tolerance; 4 third: only the third component is above the tolerance; 5 first_second: only
/// the first and the second are above the tolerance; 6 second_third: only the second and the third
/// are above the tolerance; 7 first_third: only the first and the third are above the
/// tolerance.</remarks>
procedure trvpsn(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} p1, p2, p3, q1, q2, q3: Single;
  out code: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvpsn';

/// <summary>Whether a point lies on the line of space through P0 with direction D.</summary>
/// <remarks>code: which components of (P0 + D) - P0 are above the tolerance (TrvComponents): 0
/// none: no component is above the tolerance; 1 all: all three components are above the tolerance;
/// 2 first: only the first component is above the tolerance; 3 second: only the second component is
/// above the tolerance; 4 third: only the third component is above the tolerance; 5 first_second:
/// only the first and the second are above the tolerance; 6 second_third: only the second and the
/// third are above the tolerance; 7 first_third: only the first and the third are above the
/// tolerance.</remarks>
/// <remarks>on: test (TrvOnLine): 1 yes: P lies on the line; 0 no: P does not lie on the line, or
/// code is 0.</remarks>
procedure trvln6(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x0, y0, z0, dx, dy, dz, px, py, pz, tol: Single;
  out code, on_: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvln6';

/// <summary>Direction of the line of two planes, and whether a point matches it at a retained
/// coordinate.</summary>
/// <remarks>code: which components of (ex, ey, ez) are above the tolerance (TrvComponents): 0 none:
/// no component is above the tolerance; 1 all: all three components are above the tolerance; 2
/// first: only the first component is above the tolerance; 3 second: only the second component is
/// above the tolerance; 4 third: only the third component is above the tolerance; 5 first_second:
/// only the first and the second are above the tolerance; 6 second_third: only the second and the
/// third are above the tolerance; 7 first_third: only the first and the third are above the
/// tolerance.</remarks>
/// <remarks>on: test (TrvOnLine): 1 yes: P matches the line at the kept coordinate; 0 no: P does
/// not match the line at the kept coordinate.</remarks>
procedure trvln7(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} a1, b1, c1, d1, a2, b2, c2, d2, px, py, pz: Single;
  out ex, ey: Single;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} ez, tol: Single;
  out code, on_: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvln7';

/// <summary>Angle at P0 between the rays to P1 and P2, in the plane.</summary>
procedure trvphi(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x0, y0, x1, y1, x2, y2: Single;
  out phi: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvphi';

/// <summary>Angle at P0 between the rays to P1 and P2, in space.</summary>
procedure trvphi3(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x0, y0, z0, x1, y1, z1, x2, y2, z2: Single;
  out phi: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvphi3';

/// <summary>Angle between two vectors.</summary>
procedure trvphi1(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} ux, uy, uz, vx, vy, vz: Single;
  out phi: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvphi1';

/// <summary>Angle between two lines given by their directions.</summary>
/// <remarks>status: outcome: -1 no_length: a direction's length is within the tolerance; unwritten
/// on a condition: neither direction's length is within the tolerance, so it must be set
/// beforehand.</remarks>
procedure trvphip(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} ux, uy, uz, vx, vy, vz: Single;
  var phi: Single;
  var status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvphip';

/// <summary>Directed angle at P0 from the ray to P1 to the ray to P2.</summary>
/// <remarks>status: outcome (TrvCoincidence): 0 distinct: the output is written; 1 coincident: P1
/// or P2 coincides with P0 (trvcnt).</remarks>
procedure trvchi(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x0, y0, z0, x1, y1, z1, x2, y2, z2: Single;
  var chi: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvchi';

/// <summary>Convexity of a closed outline, of either orientation.</summary>
/// <remarks>status: test: 1 convex: the outline is convex; 0 not_convex: the outline is not convex,
/// or winds more than once; -1 refused: n &lt; 3, or the length of a side is within the
/// tolerance.</remarks>
procedure trvcnv(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} X, Y: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n: LongInt;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvcnv';

/// <summary>Cosine and sine of the angle between P2 - P1 and P4 - P3.</summary>
/// <remarks>status: outcome (TrvCoincidence): 0 distinct: the output is written; 1 coincident: P1
/// and P2, or P3 and P4, coincide (trvcnt).</remarks>
procedure trvtrg(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x1, y1, z1, x2, y2, z2, x3, y3, z3, x4, y4,
    z4: Single;
  var cphi, sphi: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvtrg';

/// <summary>Relation of two directions.</summary>
/// <remarks>code: relation: 0 oblique: u and v have neither the same, opposite nor perpendicular
/// directions; 1 same: the directions are the same; 2 opposite: the directions are opposite; 3
/// perpendicular: the directions are perpendicular; 4 zero: all components of u, or of v, are
/// within the tolerance.</remarks>
procedure trvdir(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} ux, uy, uz, vx, vy, vz: Single;
  out code: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvdir';

/// <summary>Relation of two planes.</summary>
/// <remarks>code: relation: 0 crossing: the planes cross, not at a right angle; 1 parallel_same:
/// the planes are parallel and distinct, their normals in the same direction; 2 parallel_opposite:
/// the planes are parallel and distinct, their normals opposite; 3 coincident_same: the planes
/// coincide, their normals in the same direction; 4 coincident_opposite: the planes coincide, their
/// normals opposite; 5 perpendicular: the planes are perpendicular; 6 zero_normal: a normal is
/// zero.</remarks>
procedure trvdirp(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} a1, b1, c1, d1, a2, b2, c2, d2: Single;
  out code: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvdirp';

/// <summary>Angles between the projections of P2 - P1 and P4 - P3 onto the coordinate
/// planes.</summary>
procedure trvmov(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x1, y1, z1, x2, y2, z2, x3, y3, z3, x4, y4,
    z4: Single;
  out ax, ay, az: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvmov';

/// <summary>Moves the origin of plane points to (x0, y0), in place.</summary>
procedure trvtra(
  var X, Y: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x0, y0: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvtra';

/// <summary>Reverses a list, in place. Elements move bit for bit, so the list may also hold
/// Reals.</summary>
procedure trvinv(
  var V: TTrvIntegers;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvinv';

/// <summary>Inserts a list into another. Elements move bit for bit, so the lists may also hold
/// Reals.</summary>
procedure trvadr(
  var V: TTrvIntegers;
  var n: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} k: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} A: TTrvIntegers;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} m: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvadr';

// Area properties of polygons, circular segments and the parts of a section

/// <summary>Area of a polygon.</summary>
procedure trvapl(
  var x, y: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n: LongInt;
  out area: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvapl';

/// <summary>First moments of a polygon.</summary>
procedure trvspl(
  var x, y: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n: LongInt;
  out sx, sy: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvspl';

/// <summary>Second moments of a polygon.</summary>
procedure trvipl(
  var x, y: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n: LongInt;
  out ix, iy, ixy: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvipl';

/// <summary>Area and centroid of a circular segment, the region between an arc and its
/// chord.</summary>
procedure trvacp(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} xc, yc, x1, y1, x2, y2: Single;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} kind: LongInt;
  out area, xs, ys: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvacp';

/// <summary>Second moments of a circular segment, the region between an arc and its
/// chord.</summary>
procedure trvicp(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} xc, yc, x1, y1, x2, y2: Single;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} kind: LongInt;
  out ix, iy, ixy: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvicp';

/// <summary>Area of a part of a section.</summary>
procedure trvair(
  var x, y: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n, kind: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} value, factor: Single;
  var area: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvair';

/// <summary>First moments of a part of a section.</summary>
procedure trvstm(
  var x, y: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n, kind: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} value, factor: Single;
  var sx, sy: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvstm';

/// <summary>Second moments of a part of a section.</summary>
procedure trvinm(
  var x, y: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n, kind: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} value, angle, factor: Single;
  var ix, iy, ixy: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvinm';

/// <summary>Principal moments and their direction.</summary>
procedure trvinp(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} ix, iy, ixy: Single;
  out i1, i2, alpha: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvinp';

/// <summary>Integral of equally spaced samples over [a, b] by the trapezoidal rule.</summary>
procedure trvinr(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} f: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} a, b: Single;
  out result: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvinr';

// Steel sections: buckling of plates, outlines of profiles, channels, thin plates

/// <summary>Reduction factor of an internal compression element, EN 1993-1-5, 4.4(2).</summary>
procedure trvro2(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} b, t, r1, r2, psi, ks: Single;
  out rho: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvro2';

/// <summary>Effective width of an edge fold on a plate it stiffens, after EN 1993-1-3,
/// 5.5.3.2.</summary>
procedure trvefr(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} c, bp, t, r1, r2: Single;
  out ceff: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvefr';

/// <summary>Effective widths at the edges of an internal element, EN 1993-1-5, table 4.1.</summary>
procedure trvef2(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} bl, w, t, r1, r2, s1, s2: Single;
  var be1, be2: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvef2';

/// <summary>I section with unequal flanges.</summary>
procedure trvsec_ia(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} H, B1, B2, T1, T2, TW, q: Single;
  out np: LongInt;
  var nv: TTrvIntegers;
  var X, Y: TTrvReals;
  var code: TTrvIntegers;
  var sign, z1, z2, z3, z4, z5, q1, q2: TTrvReals);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvsec_ia';

/// <summary>I section lying on its side.</summary>
procedure trvsec_h(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} H, B1, B2, T1, T2, TW, q: Single;
  out np: LongInt;
  var nv: TTrvIntegers;
  var X, Y: TTrvReals;
  var code: TTrvIntegers;
  var sign, z1, z2, z3, z4, z5, q1, q2: TTrvReals);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvsec_h';

/// <summary>T section, flange at the top.</summary>
procedure trvsec_t(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} B, H, TF, TW, q: Single;
  out np: LongInt;
  var nv: TTrvIntegers;
  var X, Y: TTrvReals;
  var code: TTrvIntegers;
  var sign, z1, z2, z3, z4, z5, q1, q2: TTrvReals);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvsec_t';

/// <summary>Flat bar.</summary>
procedure trvsec_b(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} B: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} H, q: Single;
  out np: LongInt;
  var nv: TTrvIntegers;
  var X, Y: TTrvReals;
  var code: TTrvIntegers;
  var sign, z1, z2, z3, z4, z5, q1, q2: TTrvReals);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvsec_b';

/// <summary>I section lying on its side with a cover plate on its flanges' top edges, closing one
/// cell.</summary>
procedure trvsec_h1b(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} W, D, P, T1, T2, TW, TP, q: Single;
  out np: LongInt;
  var nv: TTrvIntegers;
  var X, Y: TTrvReals;
  var code: TTrvIntegers;
  var sign, z1, z2, z3, z4, z5, q1, q2: TTrvReals);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvsec_h1b';

/// <summary>Box girder with overhanging flanges.</summary>
procedure trvsec_box(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} BT, BB, TT, TB, H, TW, G, q: Single;
  out np: LongInt;
  var nv: TTrvIntegers;
  var X, Y: TTrvReals;
  var code: TTrvIntegers;
  var sign, z1, z2, z3, z4, z5, q1, q2: TTrvReals);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvsec_box';

/// <summary>Rectangular hollow section with sharp corners.</summary>
procedure trvsec_rhs(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} B, H, T, q: Single;
  out np: LongInt;
  var nv: TTrvIntegers;
  var X, Y: TTrvReals;
  var code: TTrvIntegers;
  var sign, z1, z2, z3, z4, z5, q1, q2: TTrvReals);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvsec_rhs';

/// <summary>Two equal angles back to back, horizontal legs at the top.</summary>
procedure trvsec_l2(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} B, H, G, T, TV, q: Single;
  out np: LongInt;
  var nv: TTrvIntegers;
  var X, Y: TTrvReals;
  var code: TTrvIntegers;
  var sign, z1, z2, z3, z4, z5, q1, q2: TTrvReals);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvsec_l2';

/// <summary>Top plate on a closed cell of two webs and a bottom plate between them.</summary>
procedure trvsec_tab(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} B, H, BW, E, T, TW, TB, q: Single;
  out np: LongInt;
  var nv: TTrvIntegers;
  var X, Y: TTrvReals;
  var code: TTrvIntegers;
  var sign, z1, z2, z3, z4, z5, q1, q2: TTrvReals);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvsec_tab';

/// <summary>Two flanges joined by two webs and a middle plate, closing two cells.</summary>
procedure trvsec_h2b(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} B, W, HI, TW1, TW2, TM, TF, q: Single;
  out np: LongInt;
  var nv: TTrvIntegers;
  var X, Y: TTrvReals;
  var code: TTrvIntegers;
  var sign, z1, z2, z3, z4, z5, q1, q2: TTrvReals);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvsec_h2b';

/// <summary>I section with unequal flanges, an eccentric web and 45-degree fillets.</summary>
procedure trvsec_i(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} H, B1, B2, T1, T2, TW, S1, S2, E, q: Single;
  out np: LongInt;
  var nv: TTrvIntegers;
  var X, Y: TTrvReals;
  var code: TTrvIntegers;
  var sign, z1, z2, z3, z4, z5, q1, q2: TTrvReals);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvsec_i';

/// <summary>Channel open to the right, with lips turned inwards and folds turned back towards the
/// web.</summary>
procedure trvsec_c(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} H, B1, B2, C1, C2, D1, D2, TW, T1, T2, TC1, TC2,
    TD1, TD2, q: Single;
  out np: LongInt;
  var nv: TTrvIntegers;
  var X, Y: TTrvReals;
  var code: TTrvIntegers;
  var sign, z1, z2, z3, z4, z5, q1, q2: TTrvReals);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvsec_c';

/// <summary>Distance of a channel's shear centre from its centroid.</summary>
procedure trvshc_c(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} B, H, C, t: Single;
  out e0: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvshc_c';

/// <summary>Warping constant of a channel.</summary>
procedure trvwar_c(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} B, H, C, t: Single;
  out Iw: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvwar_c';

/// <summary>Properties of an open section of thin plates.</summary>
/// <remarks>status: outcome (TrvStatus): 0 done: the outputs are computed; -1 refused: n &lt; 1, a
/// coordinate or a thickness is infinite or NaN, or a length or a thickness is not above the
/// tolerance; 2 to n: number of the first faulty plate, which does not start at an end of an
/// earlier plate, or closes a cell by ending at one; n+2 to 2*n: n plus the number of the first
/// faulty plate, which crosses, touches or overlaps an earlier plate elsewhere than at its start,
/// and may close a cell.</remarks>
procedure trvmxt(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} X1, Y1, X2, Y2, T: TTrvReals;
  var A, xs, ys, Ix, Iy, Ixy, I1, I2, alpha, rx, ry, Wx1, Wx2, Wy1, Wy2, Wpx, Wpy, xp, yp, It, Wt,
    xm, ym, Iw, r0: Single;
  var W1, W2: TTrvReals;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvmxt';

/// <summary>Properties of a flat bar, centred on the origin.</summary>
/// <remarks>status: outcome (TrvStatus): 0 done: the outputs are computed; -1 refused: a side is
/// infinite, NaN or not above the tolerance.</remarks>
procedure trvmxt_fb(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} B, H: Single;
  var A, xs, ys, Ix, Iy, Ixy, I1, I2, alpha, rx, ry, Wx1, Wx2, Wy1, Wy2, Wpx, Wpy, xp, yp, It, Wt,
    xm, ym, Iw, r0: Single;
  var W1, W2: TTrvReals;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvmxt_fb';

// Rotations about the origin and the axes

/// <summary>Rotates plane points about the origin, in place.</summary>
procedure trvrot(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} mode: LongInt;
  var x, y: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} angle: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvrot';

/// <summary>Rotates points about the x axis, in place.</summary>
procedure trvrotx(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} mode: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x: TTrvReals;
  var y, z: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} angle: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvrotx';

/// <summary>Rotates points about the y axis, in place.</summary>
procedure trvroty(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} mode: LongInt;
  var x: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} y: TTrvReals;
  var z: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} angle: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvroty';

/// <summary>Rotates points about the z axis, in place.</summary>
procedure trvrotz(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} mode: LongInt;
  var x, y: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} z: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} angle: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvrotz';

// Frames of space, and transformations of points

/// <summary>Three-point test: whether P0, P1 and P2 span a plane.</summary>
/// <remarks>status: three-point test (TrvThreePoints): 0 spans_plane: P0, P1 and P2 span a plane; 1
/// at_p0: P2 is at P0; 2 at_p1: P2 is at P1; 3 between: P2 is between P0 and P1; 4 beyond_p0: P2 is
/// beyond P0 on the line of P0 and P1; 5 beyond_p1: P2 is beyond P1 on the line of P0 and
/// P1.</remarks>
procedure trvpsl(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x0, y0, z0, x1, y1, z1, x2, y2, z2: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvpsl';

/// <summary>Moves the origin of points to (dx, dy, dz), in place.</summary>
procedure trv3tra(
  var X, Y, Z: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} dx, dy, dz: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trv3tra';

/// <summary>Applies a frame matrix to one point, in place.</summary>
procedure trvtrn(
  var p: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} a1, a2, a3, a4, a5, a6, a7, a8, a9: Single;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} mode: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvtrn';

/// <summary>Frame of the plane through three points.</summary>
/// <remarks>status: outcome (TrvFrame): 0 done: the outputs are computed; -2 no_frame: P2 is at P0
/// or P1, or the three points are on one line (trvpsl).</remarks>
procedure trvaxe(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x0, y0, z0, x1, y1, z1, x2, y2, z2: Single;
  out e1x, e1y, e1z, e2x, e2y, e2z, e3x, e3y, e3z: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvaxe';

/// <summary>Frame of an axis from P0 to P1.</summary>
/// <remarks>status: outcome (TrvFrame): 0 done: also for an axis along y; -2 no_frame: the distance
/// of P0 and P1 is within the tolerance.</remarks>
procedure trvaxel(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x0, y0, z0, x1, y1, z1, angle: Single;
  out e1x, e1y, e1z, e2x, e2y, e2z, e3x, e3y, e3z: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvaxel';

/// <summary>Shifts points and rotates them about the global axes x, y and z, in this order and in
/// place.</summary>
procedure trvptr(
  var X, Y, Z: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x0, y0, z0, ax, ay, az: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvptr';

/// <summary>Shifts points and rotates them in the frame of three points, in place.</summary>
/// <remarks>status: outcome (TrvFrame): 0 done: the outputs are computed; -2 no_frame: P2 is at P0
/// or P1, or the three points are on one line (trvpsl).</remarks>
procedure trvptrl(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x0, y0, z0, x1, y1, z1, x2, y2, z2: Single;
  var X, Y, Z: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} dx, dy, dz, ax, ay, az: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvptrl';

/// <summary>Rotates points about the axis from P0 through P1, in place.</summary>
/// <remarks>status: outcome (TrvFrame): 0 done: also for an axis along y; -2 no_frame: the distance
/// of P0 and P1 is within the tolerance.</remarks>
procedure trvpra(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x0, y0, z0, x1, y1, z1: Single;
  var X, Y, Z: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} angle: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvpra';

/// <summary>Rotates points of a plane in the frame of the three points that span it, then shifts
/// them, in place.</summary>
/// <remarks>status: outcome: 0 done: the points are moved; -1 no_frame: P2 is at P0 or P1, or the
/// three points are on one line (trvpsl); 1 to n: position of the first point off the
/// plane.</remarks>
procedure trvppc(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x0, y0, z0, x1, y1, z1, x2, y2, z2, dx, dy, dz, ax,
    ay, az: Single;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n: LongInt;
  var X, Y, Z: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} tol: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvppc';

// Planes of space

/// <summary>Plane through a point, spanned by two directions.</summary>
procedure trvplg(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x, y, z, ux, uy, uz, wx, wy, wz: Single;
  out a, b, c, d: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvplg';

/// <summary>Plane through three points: (a, b, c) = (P1 - P0) x (P2 - P0).</summary>
/// <remarks>status: three-point test (TrvThreePoints): 0 spans_plane: P0, P1 and P2 span a plane; 1
/// at_p0: P2 is at P0; 2 at_p1: P2 is at P1; 3 between: P2 is between P0 and P1; 4 beyond_p0: P2 is
/// beyond P0 on the line of P0 and P1; 5 beyond_p1: P2 is beyond P1 on the line of P0 and
/// P1.</remarks>
procedure trvpl1(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x0, y0, z0, x1, y1, z1, x2, y2, z2: Single;
  out a, b, c, d: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvpl1';

/// <summary>Plane through a point, parallel to two lines.</summary>
/// <remarks>status: outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line: the lines
/// are the same, of the same direction; 4 opposite_line: the lines are the same, of opposite
/// direction; 7 no_length: A and B, or C and D, coincide (trvcnt).</remarks>
procedure trvpl2(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x, y, z, xa, ya, za, xb, yb, zb, xc, yc, zc, xd,
    yd, zd: Single;
  out a, b, c, d: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvpl2';

/// <summary>Plane that contains one line and is parallel to another: trvpl2 through A.</summary>
/// <remarks>status: outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line: the lines
/// are the same, of the same direction; 4 opposite_line: the lines are the same, of opposite
/// direction; 7 no_length: A and B, or C and D, coincide (trvcnt).</remarks>
procedure trvpl3(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} xa, ya, za, xb, yb, zb, xc, yc, zc, xd, yd,
    zd: Single;
  out a, b, c, d: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvpl3';

/// <summary>Plane through a point, perpendicular to a segment.</summary>
/// <remarks>status: outcome (TrvCoincidence): 0 distinct: the plane is computed; 1 coincident: A
/// and B coincide within the tolerance in each coordinate (trvcnt).</remarks>
procedure trvpl4(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x, y, z, xa, ya, za, xb, yb, zb: Single;
  out a, b, c, d: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvpl4';

/// <summary>Plane with given intercepts on the axes.</summary>
/// <remarks>status: outcome: 0 done: the plane is computed; 1 no_plane: there is no plane, since an
/// intercept is within the tolerance or NaN.</remarks>
procedure trvpl5(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} ix, iy, iz: Single;
  out a, b, c, d: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvpl5';

/// <summary>Plane of two lines, each given by a point and a direction.</summary>
/// <remarks>status: outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line: the lines
/// are the same, of the same direction; 4 opposite_line: the lines are the same, of opposite
/// direction; 6 skew: the lines are skew; 7 no_length: all components of a direction are within the
/// tolerance.</remarks>
procedure trvpl6(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} xa, ya, za, ux, uy, uz, xc, yc, zc, wx, wy,
    wz: Single;
  var a, b, c, d: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvpl6';

/// <summary>Plane of three points, rotated about the line from P0 to P1.</summary>
/// <remarks>status: three-point test (TrvThreePoints): 0 spans_plane: P0, P1 and P2 span a plane; 1
/// at_p0: P2 is at P0, or P0 and P0 + normal coincide (trvcnt); 2 at_p1: P2 is at P1; 3 between: P2
/// is between P0 and P1; 4 beyond_p0: P2 is beyond P0 on the line of P0 and P1; 5 beyond_p1: P2 is
/// beyond P1 on the line of P0 and P1.</remarks>
procedure trvpl7(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x0, y0, z0, x1, y1, z1, x2, y2, z2, angle: Single;
  out a, b, c, d: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvpl7';

/// <summary>Whether a point lies on the plane of three points.</summary>
/// <remarks>status: test (TrvOnPlane): 0 yes: the point lies on the plane, or P0 = P1, for which
/// any point does; -1 no: the point does not lie on the plane, or the three points span no plane
/// (trvpsl).</remarks>
procedure trvpsp(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x0, y0, z0, x1, y1, z1, x2, y2, z2, x, y, z,
    tol: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvpsp';

/// <summary>Signed distance of a point from a plane.</summary>
procedure trvpld(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x, y, z, a, b, c, d: Single;
  out dist: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvpld';

/// <summary>Whether a point lies on a plane.</summary>
/// <remarks>status: test (TrvOnPlane): 0 yes: the point lies on the plane; -1 no: the point does
/// not lie on the plane, or the distance is NaN; 1 zero_normal: the normal of the plane is exactly
/// zero.</remarks>
procedure trvpspg(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x, y, z, a, b, c, d, tol: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvpspg';

/// <summary>Relation of two directions, taken as lines through the origin.</summary>
/// <remarks>status: relation: -1 zero_u: u is exactly zero; 0 oblique: u and w have neither the
/// same, opposite nor perpendicular directions; 3 same: the directions are the same; 4 opposite:
/// the directions are opposite; 5 perpendicular: the directions are perpendicular; 7 zero: all
/// components of u, or of w, are within the tolerance.</remarks>
procedure trvplv(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} ux, uy, uz, wx, wy, wz, v7, v8: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvplv';

/// <summary>Points of a list on a plane, by a running residual.</summary>
procedure trvpnp(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} X, Y, Z: TTrvReals;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} a, b, c: Single;
  var d: Single;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n: LongInt;
  out count: LongInt;
  var index: TTrvIntegers);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvpnp';

// Straight lines of space

/// <summary>Relation of two lines.</summary>
/// <remarks>status: relation (TrvLines): 0 crossing: the lines cross, not at a right angle; 1
/// parallel_same: parallel and distinct lines of the same direction; 2 parallel_opposite: parallel
/// and distinct lines of opposite direction; 3 same_line: the same line, of the same direction; 4
/// opposite_line: the same line, of opposite direction; 5 perpendicular: the lines cross at a right
/// angle; 6 skew: the lines are skew; 7 coincident: A and B, or C and D, coincide, each coordinate
/// within the tolerance.</remarks>
procedure trvdirl(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} xa, ya, za, xb, yb, zb, xc, yc, zc, xd, yd,
    zd: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvdirl';

/// <summary>Whether three segments span space.</summary>
/// <remarks>status: test: 0 flat: the triple product of B - A, D - C and F - E is within the
/// tolerance; 1 spanning: the triple product is above the tolerance, in the cube of the length
/// unit.</remarks>
procedure trv3sp(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} xa, ya, za, xb, yb, zb, xc, yc, zc, xd, yd, zd, xe,
    ye, ze, xf, yf, zf: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trv3sp';

/// <summary>Distance of a point from a line.</summary>
/// <remarks>status: outcome (TrvStatus): 0 done: always.</remarks>
procedure trv3ldb(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} xa, ya, za, xb, yb, zb, xq, yq, zq: Single;
  out status: LongInt;
  out dist: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trv3ldb';

/// <summary>Signed distance of a point from a line, in the plane of both.</summary>
/// <remarks>status: outcome (TrvStatus): 0 done: always.</remarks>
procedure trv3lda(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} xa, ya, za, xb, yb, zb, xq, yq, zq: Single;
  out status: LongInt;
  out dist: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trv3lda';

/// <summary>Intersection of the lines A + t*u and C + s*w.</summary>
/// <remarks>status: outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line: the lines
/// are the same, of the same direction; 4 opposite_line: the lines are the same, of opposite
/// direction; 6 skew: the lines are skew; 7 no_length: all components of a direction are within the
/// tolerance.</remarks>
procedure trv3lni(
  var xa, ya, za: Single;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} ux, uy, uz: Single;
  var xc, yc, zc: Single;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} wx, wy, wz: Single;
  out status: LongInt;
  var xi, yi, zi: Single);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trv3lni';

/// <summary>Intersection of the line P + t*u with a plane.</summary>
/// <remarks>status: outcome: 0 done: the point is computed; 3 parallel: the line is parallel to the
/// plane, since the cosine of the angle between u and the normal is within the tolerance; 4 zero:
/// all components of u, or of the normal, are within the tolerance.</remarks>
procedure trvpli(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} x, y, z, ux, uy, uz, a, b, c, d: Single;
  var xi, yi, zi: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvpli';

/// <summary>Position of a plane relative to the axes.</summary>
/// <remarks>position: position: 1 general: the plane is parallel to no axis; 2 parallel_x: the
/// plane is parallel to the x axis; 3 parallel_y: the plane is parallel to the y axis; 4
/// parallel_z: the plane is parallel to the z axis; 5 normal_z: the plane is normal to the z axis;
/// 6 normal_x: the plane is normal to the x axis; 7 normal_y: the plane is normal to the y axis; 8
/// at_z_zero: the plane is z = 0; 9 at_x_zero: the plane is x = 0; 10 at_y_zero: the plane is y =
/// 0.</remarks>
procedure trvplp(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} a, b, c, d: Single;
  out position: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvplp';

/// <summary>Points of a list near a line.</summary>
/// <remarks>status: outcome (TrvStatus): 0 done: always; unwritten if n &lt; 1.</remarks>
procedure trvpnl(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} xa, ya, za, xb, yb, zb: Single;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} X, Y: TTrvReals;
  zf: TTrvFunction;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} n: LongInt;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} tol: Single;
  var status: LongInt;
  out count: LongInt;
  var index: TTrvIntegers);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvpnl';

/// <summary>Carries a point along when the line through it is moved.</summary>
/// <remarks>status: outcome: 0 not_moved: the three points are not collinear, or Q1 is at P; 3
/// moved_one_side: Q2 is moved, Q1 and Q2 are on one side of P; 4 moved_either_side: Q2 is moved,
/// Q1 and Q2 are on either side of P; 6 moved_skew: Q2 is moved, although the lines count as skew
/// because of rounding; 7 moved_at_p: Q2 is moved, Q2 coincides with P, or each coordinate of Q1 is
/// within the tolerance of P's although their distance is above it.</remarks>
procedure trvlpc(
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} xp, yp, zp, x1, y1, z1: Single;
  var x2, y2, z2: Single;
  {$IFDEF FPC}constref{$ELSE}const [ref]{$ENDIF} dxp, dyp, dzp, dx1, dy1, dz1: Single;
  out status: LongInt);
  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external TrelvinLibrary name 'trvlpc';

implementation

end.
