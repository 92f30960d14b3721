! Generated from include/trelvin by tools/generate.py.
!
! Every routine of Trelvin for Fortran 2003 and later. Compilers preprocess the file for its suffix.
! An array is passed by its name or, from an element on, by that element. What a contract calls
! unwritten keeps its value: such an output is inout here. The contracts are in include/trelvin.

! 32-bit Windows: every routine removes its own arguments. The preprocessor of gfortran knows no
! systems; define TRELVIN_CDECL for 32 bits elsewhere.
#if __SIZEOF_POINTER__ == 4 && !defined(TRELVIN_CDECL)
#define TRELVIN_CALL !GCC$ ATTRIBUTES STDCALL ::
#else
#define TRELVIN_CALL !
#endif

module trelvin
  use, intrinsic :: iso_c_binding, only: c_float, c_int32_t
  implicit none
  public

  character(*), parameter :: trelvin_version = "1.1.1"

  ! Whether a computation was done.
  integer(c_int32_t), parameter :: trv_status_done = 0
  integer(c_int32_t), parameter :: trv_status_refused = -1

  ! Whether a point of an arc was found. Caution: here 1 means done.
  integer(c_int32_t), parameter :: trv_arc_done = 1
  integer(c_int32_t), parameter :: trv_arc_refused = 0

  ! Whether a frame was found.
  integer(c_int32_t), parameter :: trv_frame_done = 0
  integer(c_int32_t), parameter :: trv_frame_no_frame = -2

  ! Whether two points coincide: each difference of their coordinates is within the tolerance.
  integer(c_int32_t), parameter :: trv_coincidence_distinct = 0
  integer(c_int32_t), parameter :: trv_coincidence_coincident = 1

  ! How many points were found.
  integer(c_int32_t), parameter :: trv_points_none = 0
  integer(c_int32_t), parameter :: trv_points_one = 1
  integer(c_int32_t), parameter :: trv_points_two = 2

  ! Which of three components are above the tolerance.
  integer(c_int32_t), parameter :: trv_components_none = 0
  integer(c_int32_t), parameter :: trv_components_all = 1
  integer(c_int32_t), parameter :: trv_components_first = 2
  integer(c_int32_t), parameter :: trv_components_second = 3
  integer(c_int32_t), parameter :: trv_components_third = 4
  integer(c_int32_t), parameter :: trv_components_first_second = 5
  integer(c_int32_t), parameter :: trv_components_second_third = 6
  integer(c_int32_t), parameter :: trv_components_first_third = 7

  ! Whether a point lies on a line of space.
  integer(c_int32_t), parameter :: trv_on_line_no = 0
  integer(c_int32_t), parameter :: trv_on_line_yes = 1

  ! Whether a point lies on a plane. Caution: 0 means yes.
  integer(c_int32_t), parameter :: trv_on_plane_yes = 0
  integer(c_int32_t), parameter :: trv_on_plane_no = -1
  integer(c_int32_t), parameter :: trv_on_plane_zero_normal = 1

  ! How two lines of the plane lie to each other.
  integer(c_int32_t), parameter :: trv_plane_lines_one_point = 0
  integer(c_int32_t), parameter :: trv_plane_lines_same_line = 1
  integer(c_int32_t), parameter :: trv_plane_lines_parallel = 2

  ! Three-point test (trvpsl): where P2 is, seen from P0 and P1.
  integer(c_int32_t), parameter :: trv_three_points_spans_plane = 0
  integer(c_int32_t), parameter :: trv_three_points_at_p0 = 1
  integer(c_int32_t), parameter :: trv_three_points_at_p1 = 2
  integer(c_int32_t), parameter :: trv_three_points_between = 3
  integer(c_int32_t), parameter :: trv_three_points_beyond_p0 = 4
  integer(c_int32_t), parameter :: trv_three_points_beyond_p1 = 5

  ! How two lines of space lie to each other (trvdirl).
  integer(c_int32_t), parameter :: trv_lines_crossing = 0
  integer(c_int32_t), parameter :: trv_lines_parallel_same = 1
  integer(c_int32_t), parameter :: trv_lines_parallel_opposite = 2
  integer(c_int32_t), parameter :: trv_lines_same_line = 3
  integer(c_int32_t), parameter :: trv_lines_opposite_line = 4
  integer(c_int32_t), parameter :: trv_lines_perpendicular = 5
  integer(c_int32_t), parameter :: trv_lines_skew = 6
  integer(c_int32_t), parameter :: trv_lines_coincident = 7

  ! Outcome for two lines of space: a result, or the relation that allows no result.
  integer(c_int32_t), parameter :: trv_two_lines_done = 0
  integer(c_int32_t), parameter :: trv_two_lines_same_line = 3
  integer(c_int32_t), parameter :: trv_two_lines_opposite_line = 4
  integer(c_int32_t), parameter :: trv_two_lines_skew = 6
  integer(c_int32_t), parameter :: trv_two_lines_no_length = 7

  ! Kind of a part of a section.
  integer(c_int32_t), parameter :: trv_part_concentrated = 1
  integer(c_int32_t), parameter :: trv_part_polygon = 2
  integer(c_int32_t), parameter :: trv_part_circle = 3
  integer(c_int32_t), parameter :: trv_part_smaller_segment = 4
  integer(c_int32_t), parameter :: trv_part_larger_segment = 5

  ! trvcin: class.
  integer(c_int32_t), parameter :: trvcin_uncut_above = 1
  integer(c_int32_t), parameter :: trvcin_uncut_below = 2
  integer(c_int32_t), parameter :: trvcin_cut_below = 3
  integer(c_int32_t), parameter :: trvcin_cut_above = 4

  ! trvapp: where each point is.
  integer(c_int32_t), parameter :: trvapp_inside = 1
  integer(c_int32_t), parameter :: trvapp_outside = 2
  integer(c_int32_t), parameter :: trvapp_no_sector = -1

  ! trvcer10: outcome.
  integer(c_int32_t), parameter :: trvcer10_crossing_or_refused = 0
  integer(c_int32_t), parameter :: trvcer10_along_chord = 1
  integer(c_int32_t), parameter :: trvcer10_parallel = 2

  ! trvptp1: which points of A match a point of B.
  integer(c_int32_t), parameter :: trvptp1_no_pair = 0
  integer(c_int32_t), parameter :: trvptp1_some_pairs = 1
  integer(c_int32_t), parameter :: trvptp1_all_paired = 2

  ! trvpin: where P1 is.
  integer(c_int32_t), parameter :: trvpin_inside = 1
  integer(c_int32_t), parameter :: trvpin_outside = 0
  integer(c_int32_t), parameter :: trvpin_refused = -1

  ! trvcnt1: test.
  integer(c_int32_t), parameter :: trvcnt1_zero = 1
  integer(c_int32_t), parameter :: trvcnt1_nonzero = 0

  ! trvvin: sign.
  integer(c_int32_t), parameter :: trvvin_positive = 1
  integer(c_int32_t), parameter :: trvvin_not_positive = 2

  ! trvpos1: what was found.
  integer(c_int32_t), parameter :: trvpos1_at_entry = 1
  integer(c_int32_t), parameter :: trvpos1_between = 2
  integer(c_int32_t), parameter :: trvpos1_neither = 0

  ! trvphip: outcome.
  integer(c_int32_t), parameter :: trvphip_no_length = -1

  ! trvcnv: test.
  integer(c_int32_t), parameter :: trvcnv_convex = 1
  integer(c_int32_t), parameter :: trvcnv_not_convex = 0
  integer(c_int32_t), parameter :: trvcnv_refused = -1

  ! trvdir: relation.
  integer(c_int32_t), parameter :: trvdir_oblique = 0
  integer(c_int32_t), parameter :: trvdir_same = 1
  integer(c_int32_t), parameter :: trvdir_opposite = 2
  integer(c_int32_t), parameter :: trvdir_perpendicular = 3
  integer(c_int32_t), parameter :: trvdir_zero = 4

  ! trvdirp: relation.
  integer(c_int32_t), parameter :: trvdirp_crossing = 0
  integer(c_int32_t), parameter :: trvdirp_parallel_same = 1
  integer(c_int32_t), parameter :: trvdirp_parallel_opposite = 2
  integer(c_int32_t), parameter :: trvdirp_coincident_same = 3
  integer(c_int32_t), parameter :: trvdirp_coincident_opposite = 4
  integer(c_int32_t), parameter :: trvdirp_perpendicular = 5
  integer(c_int32_t), parameter :: trvdirp_zero_normal = 6

  ! trvppc: outcome.
  integer(c_int32_t), parameter :: trvppc_done = 0
  integer(c_int32_t), parameter :: trvppc_no_frame = -1

  ! trvpl5: outcome.
  integer(c_int32_t), parameter :: trvpl5_done = 0
  integer(c_int32_t), parameter :: trvpl5_no_plane = 1

  ! trvplv: relation.
  integer(c_int32_t), parameter :: trvplv_zero_u = -1
  integer(c_int32_t), parameter :: trvplv_oblique = 0
  integer(c_int32_t), parameter :: trvplv_same = 3
  integer(c_int32_t), parameter :: trvplv_opposite = 4
  integer(c_int32_t), parameter :: trvplv_perpendicular = 5
  integer(c_int32_t), parameter :: trvplv_zero = 7

  ! trv3sp: test.
  integer(c_int32_t), parameter :: trv3sp_flat = 0
  integer(c_int32_t), parameter :: trv3sp_spanning = 1

  ! trvpli: outcome.
  integer(c_int32_t), parameter :: trvpli_done = 0
  integer(c_int32_t), parameter :: trvpli_parallel = 3
  integer(c_int32_t), parameter :: trvpli_zero = 4

  ! trvplp: position.
  integer(c_int32_t), parameter :: trvplp_general = 1
  integer(c_int32_t), parameter :: trvplp_parallel_x = 2
  integer(c_int32_t), parameter :: trvplp_parallel_y = 3
  integer(c_int32_t), parameter :: trvplp_parallel_z = 4
  integer(c_int32_t), parameter :: trvplp_normal_z = 5
  integer(c_int32_t), parameter :: trvplp_normal_x = 6
  integer(c_int32_t), parameter :: trvplp_normal_y = 7
  integer(c_int32_t), parameter :: trvplp_at_z_zero = 8
  integer(c_int32_t), parameter :: trvplp_at_x_zero = 9
  integer(c_int32_t), parameter :: trvplp_at_y_zero = 10

  ! trvlpc: outcome.
  integer(c_int32_t), parameter :: trvlpc_not_moved = 0
  integer(c_int32_t), parameter :: trvlpc_moved_one_side = 3
  integer(c_int32_t), parameter :: trvlpc_moved_either_side = 4
  integer(c_int32_t), parameter :: trvlpc_moved_skew = 6
  integer(c_int32_t), parameter :: trvlpc_moved_at_p = 7

  ! Names of version 1.1, which the next version drops.
  integer(c_int32_t), parameter :: trvcer3_done = 1
  integer(c_int32_t), parameter :: trvcer3_refused = 0
  integer(c_int32_t), parameter :: trvcer8_done = 1
  integer(c_int32_t), parameter :: trvcer8_refused = 0
  integer(c_int32_t), parameter :: trvcer6_done = 1
  integer(c_int32_t), parameter :: trvcer6_refused = 0
  integer(c_int32_t), parameter :: trvcer9_done = 1
  integer(c_int32_t), parameter :: trvcer9_refused = 0
  integer(c_int32_t), parameter :: trvarc1_done = 1
  integer(c_int32_t), parameter :: trvarc1_refused = 0
  integer(c_int32_t), parameter :: trvcer4_done = 1
  integer(c_int32_t), parameter :: trvcer4_refused = 0
  integer(c_int32_t), parameter :: trvcer5_done = 1
  integer(c_int32_t), parameter :: trvcer5_refused = 0
  integer(c_int32_t), parameter :: trvcer7_done = 1
  integer(c_int32_t), parameter :: trvcer7_refused = 0
  integer(c_int32_t), parameter :: trvard_done = 1
  integer(c_int32_t), parameter :: trvard_refused = 0
  integer(c_int32_t), parameter :: trvpor_ordered = 0
  integer(c_int32_t), parameter :: trvpor_refused = -1
  integer(c_int32_t), parameter :: trvcnt_coincident = 1
  integer(c_int32_t), parameter :: trvcnt_distinct = 0
  integer(c_int32_t), parameter :: trv123_done = 0
  integer(c_int32_t), parameter :: trv123_coincident = 1
  integer(c_int32_t), parameter :: trvchi_done = 0
  integer(c_int32_t), parameter :: trvchi_coincident = 1
  integer(c_int32_t), parameter :: trvtrg_done = 0
  integer(c_int32_t), parameter :: trvtrg_coincident = 1
  integer(c_int32_t), parameter :: trvpl4_done = 0
  integer(c_int32_t), parameter :: trvpl4_coincident = 1
  integer(c_int32_t), parameter :: trvlni_one_point = 0
  integer(c_int32_t), parameter :: trvlni_same_line = 1
  integer(c_int32_t), parameter :: trvlni_parallel = 2
  integer(c_int32_t), parameter :: trvlul_one_point = 0
  integer(c_int32_t), parameter :: trvlul_same_line = 1
  integer(c_int32_t), parameter :: trvlul_parallel = 2
  integer(c_int32_t), parameter :: trvpsn_none = 0
  integer(c_int32_t), parameter :: trvpsn_all = 1
  integer(c_int32_t), parameter :: trvpsn_first = 2
  integer(c_int32_t), parameter :: trvpsn_second = 3
  integer(c_int32_t), parameter :: trvpsn_third = 4
  integer(c_int32_t), parameter :: trvpsn_first_second = 5
  integer(c_int32_t), parameter :: trvpsn_second_third = 6
  integer(c_int32_t), parameter :: trvpsn_first_third = 7
  integer(c_int32_t), parameter :: trvln6_none = 0
  integer(c_int32_t), parameter :: trvln6_all = 1
  integer(c_int32_t), parameter :: trvln6_first = 2
  integer(c_int32_t), parameter :: trvln6_second = 3
  integer(c_int32_t), parameter :: trvln6_third = 4
  integer(c_int32_t), parameter :: trvln6_first_second = 5
  integer(c_int32_t), parameter :: trvln6_second_third = 6
  integer(c_int32_t), parameter :: trvln6_first_third = 7
  integer(c_int32_t), parameter :: trvln7_none = 0
  integer(c_int32_t), parameter :: trvln7_all = 1
  integer(c_int32_t), parameter :: trvln7_first = 2
  integer(c_int32_t), parameter :: trvln7_second = 3
  integer(c_int32_t), parameter :: trvln7_third = 4
  integer(c_int32_t), parameter :: trvln7_first_second = 5
  integer(c_int32_t), parameter :: trvln7_second_third = 6
  integer(c_int32_t), parameter :: trvln7_first_third = 7
  integer(c_int32_t), parameter :: trvln6_on_line = 1
  integer(c_int32_t), parameter :: trvln6_off_line = 0
  integer(c_int32_t), parameter :: trvln7_on_line = 1
  integer(c_int32_t), parameter :: trvln7_off_line = 0
  integer(c_int32_t), parameter :: trvmxt_done = 0
  integer(c_int32_t), parameter :: trvmxt_refused = -1
  integer(c_int32_t), parameter :: trvmxt_fb_done = 0
  integer(c_int32_t), parameter :: trvmxt_fb_refused = -1
  integer(c_int32_t), parameter :: trvpsl_spans_plane = 0
  integer(c_int32_t), parameter :: trvpsl_at_p0 = 1
  integer(c_int32_t), parameter :: trvpsl_at_p1 = 2
  integer(c_int32_t), parameter :: trvpsl_between = 3
  integer(c_int32_t), parameter :: trvpsl_beyond_p0 = 4
  integer(c_int32_t), parameter :: trvpsl_beyond_p1 = 5
  integer(c_int32_t), parameter :: trvpl1_done = 0
  integer(c_int32_t), parameter :: trvpl1_at_p0 = 1
  integer(c_int32_t), parameter :: trvpl1_at_p1 = 2
  integer(c_int32_t), parameter :: trvpl1_between = 3
  integer(c_int32_t), parameter :: trvpl1_beyond_p0 = 4
  integer(c_int32_t), parameter :: trvpl1_beyond_p1 = 5
  integer(c_int32_t), parameter :: trvpl7_done = 0
  integer(c_int32_t), parameter :: trvpl7_at_p0 = 1
  integer(c_int32_t), parameter :: trvpl7_at_p1 = 2
  integer(c_int32_t), parameter :: trvpl7_between = 3
  integer(c_int32_t), parameter :: trvpl7_beyond_p0 = 4
  integer(c_int32_t), parameter :: trvpl7_beyond_p1 = 5
  integer(c_int32_t), parameter :: trvaxe_done = 0
  integer(c_int32_t), parameter :: trvaxe_no_frame = -2
  integer(c_int32_t), parameter :: trvaxel_done = 0
  integer(c_int32_t), parameter :: trvaxel_no_frame = -2
  integer(c_int32_t), parameter :: trvptrl_done = 0
  integer(c_int32_t), parameter :: trvptrl_no_frame = -2
  integer(c_int32_t), parameter :: trvpra_done = 0
  integer(c_int32_t), parameter :: trvpra_no_frame = -2
  integer(c_int32_t), parameter :: trvpl2_done = 0
  integer(c_int32_t), parameter :: trvpl2_same_line = 3
  integer(c_int32_t), parameter :: trvpl2_opposite_line = 4
  integer(c_int32_t), parameter :: trvpl2_coincident = 7
  integer(c_int32_t), parameter :: trvpl3_done = 0
  integer(c_int32_t), parameter :: trvpl3_same_line = 3
  integer(c_int32_t), parameter :: trvpl3_opposite_line = 4
  integer(c_int32_t), parameter :: trvpl3_coincident = 7
  integer(c_int32_t), parameter :: trvpl6_done = 0
  integer(c_int32_t), parameter :: trvpl6_same_line = 3
  integer(c_int32_t), parameter :: trvpl6_opposite_line = 4
  integer(c_int32_t), parameter :: trvpl6_skew = 6
  integer(c_int32_t), parameter :: trvpl6_zero = 7
  integer(c_int32_t), parameter :: trv3lni_done = 0
  integer(c_int32_t), parameter :: trv3lni_same_line = 3
  integer(c_int32_t), parameter :: trv3lni_opposite_line = 4
  integer(c_int32_t), parameter :: trv3lni_skew = 6
  integer(c_int32_t), parameter :: trv3lni_zero = 7
  integer(c_int32_t), parameter :: trvpsp_on_plane = 0
  integer(c_int32_t), parameter :: trvpsp_off_plane = -1
  integer(c_int32_t), parameter :: trvpspg_on_plane = 0
  integer(c_int32_t), parameter :: trvpspg_off_plane = -1
  integer(c_int32_t), parameter :: trvpspg_zero_normal = 1
  integer(c_int32_t), parameter :: trvdirl_crossing = 0
  integer(c_int32_t), parameter :: trvdirl_parallel_same = 1
  integer(c_int32_t), parameter :: trvdirl_parallel_opposite = 2
  integer(c_int32_t), parameter :: trvdirl_same_line = 3
  integer(c_int32_t), parameter :: trvdirl_opposite_line = 4
  integer(c_int32_t), parameter :: trvdirl_perpendicular = 5
  integer(c_int32_t), parameter :: trvdirl_skew = 6
  integer(c_int32_t), parameter :: trvdirl_coincident = 7
  integer(c_int32_t), parameter :: trv3ldb_done = 0
  integer(c_int32_t), parameter :: trv3lda_done = 0
  integer(c_int32_t), parameter :: trvpnl_done = 0

  !> A function of the host's: a Real for a position. For 32-bit Windows the function itself says
  !! !GCC$ ATTRIBUTES STDCALL :: its_name
  abstract interface
    function trvfunction(position) bind(c) result(z)
      import :: c_float, c_int32_t
      integer(c_int32_t), intent(in) :: position
      real(c_float) :: z
    end function
  end interface

  interface

    ! Circles and arcs of the plane

    !> Circle from its centre and radius: D = -2*xc, E = -2*yc, F = xc*xc + yc*yc - r*r.
    subroutine trvcer(xc, yc, r, D, E, F) bind(c, name="trvcer")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvcer
      real(c_float), intent(in) :: xc, yc, r
      real(c_float), intent(out) :: D, E, F
    end subroutine

    !> Intersection of a line and a circle.
    !! n: number of points (TrvPoints): 0 none: the line misses the circle; 1 one: the line touches
    !! the circle; 2 two: the line cuts the circle.
    subroutine trvlci(a, b, c, D, E, F, n, x1, y1, x2, y2) bind(c, name="trvlci")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvlci
      real(c_float), intent(in) :: a, b, c, D, E, F
      integer(c_int32_t), intent(out) :: n
      real(c_float), intent(inout) :: x1, y1, x2, y2
    end subroutine

    !> Intersection of two circles, computed as that of their radical line and the first circle
    !! (trvlci).
    !! n: number of points (TrvPoints): 0 none: the circles have no common point, or are concentric:
    !! |D2 - D1| + |E2 - E1| is within the tolerance; 1 one: the circles touch; 2 two: the circles
    !! cut each other.
    subroutine trvc12(D1, E1, F1, D2, E2, F2, n, x1, y1, x2, y2) bind(c, name="trvc12")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvc12
      real(c_float), intent(in) :: D1, E1, F1, D2, E2, F2
      integer(c_int32_t), intent(out) :: n
      real(c_float), intent(inout) :: x1, y1, x2, y2
    end subroutine

    !> Centres of the circles of a radius through two points.
    !! n: number of centres (TrvPoints): 0 none: P1 = P2 exactly, r is at most 1e-5 or less than
    !! half the chord, the discriminant is NaN, or the chord is horizontal; 1 one: both candidates
    !! are the same point; 2 two: there are two points.
    subroutine trvcer2(x1, y1, x2, y2, side, r, xa, ya, xb, yb, xc, yc, n) bind(c, name="trvcer2")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvcer2
      real(c_float), intent(in) :: x1, y1, x2, y2
      integer(c_int32_t), intent(in) :: side
      real(c_float), intent(in) :: r
      real(c_float), intent(inout) :: xa, ya, xb, yb, xc, yc
      integer(c_int32_t), intent(out) :: n
    end subroutine

    !> Circle through two points with a given sagitta.
    !! n: number of centres of trvcer2 (TrvPoints): 0 none: h < 1e-5, P1 = P2 exactly, r is at most
    !! 1e-5 or less than half the chord, the discriminant is NaN, or the chord is horizontal; 1 one:
    !! both candidates are the same point; 2 two: there are two points.
    subroutine trvcer1(x1, y1, x2, y2, side, h, r, xc, yc, n) bind(c, name="trvcer1")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvcer1
      real(c_float), intent(in) :: x1, y1, x2, y2
      integer(c_int32_t), intent(in) :: side
      real(c_float), intent(in) :: h
      real(c_float), intent(inout) :: r, xc, yc
      integer(c_int32_t), intent(out) :: n
    end subroutine

    !> Classifies a circle cut by a line, with a trace.
    !! position: class: 1 uncut_above: the circle is not cut, its centre is above the x axis; 2
    !! uncut_below: the circle is not cut, its centre is on or below the x axis; 3 cut_below: the
    !! circle is cut, its centre is below the x axis; 4 cut_above: the circle is cut, its centre is
    !! on or above the x axis.
    subroutine trvcin(X, Y, a, b, c, position, x1, y1, x2, y2) bind(c, name="trvcin")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvcin
      real(c_float), intent(in) :: X(*), Y(*), a, b, c
      integer(c_int32_t), intent(out) :: position
      real(c_float), intent(inout) :: x1, y1, x2, y2
    end subroutine

    !> Rotates a point about a centre.
    !! status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the point's distance
    !! from the centre is within the tolerance.
    subroutine trvcer3(x0, y0, x, y, angle, xr, yr, status) bind(c, name="trvcer3")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvcer3
      real(c_float), intent(in) :: x0, y0
      real(c_float), intent(inout) :: x, y
      real(c_float), intent(in) :: angle
      real(c_float), intent(inout) :: xr, yr
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Point of an arc above a station of its chord, perpendicular to the chord.
    !! status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the radius or the
    !! chord is at most 0.001, the radii of A and B differ by more than 0.001, or the station is not
    !! more than 0.001 inside both ends of the chord.
    subroutine trvcer8(xc, yc, xa, ya, xb, yb, side, d, x, y, status) bind(c, name="trvcer8")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvcer8
      real(c_float), intent(in) :: xc, yc, xa, ya, xb, yb
      integer(c_int32_t), intent(in) :: side
      real(c_float), intent(in) :: d
      real(c_float), intent(inout) :: x, y
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Point of an arc on the line from its centre through a station of its chord.
    !! status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the radius or the
    !! chord is at most 0.001, the radii of A and B differ by more than 0.001, the station is not
    !! more than 0.001 inside both ends of the chord, or d differs from the diameter by less than
    !! 0.001.
    subroutine trvcer6(xc, yc, xa, ya, xb, yb, side, d, x, y, status) bind(c, name="trvcer6")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvcer6
      real(c_float), intent(in) :: xc, yc, xa, ya, xb, yb
      integer(c_int32_t), intent(in) :: side
      real(c_float), intent(in) :: d
      real(c_float), intent(inout) :: x, y
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Points of an arc above the two edges of a strip on its chord, perpendicular to the chord.
    !! status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the radius, the chord,
    !! d, the rest of the chord beyond d or the width is at most 0.001, the radii of A and B differ
    !! by more than 0.001, or an edge of the strip is less than 0.001 inside an end of the chord.
    subroutine trvcer9(xc, yc, xa, ya, xb, yb, side, d, w, x1, y1, x2, y2, &
        status) bind(c, name="trvcer9")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvcer9
      real(c_float), intent(in) :: xc, yc, xa, ya, xb, yb
      integer(c_int32_t), intent(in) :: side
      real(c_float), intent(in) :: d, w
      real(c_float), intent(inout) :: x1, y1, x2, y2
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Lengths of the two arcs between two points of a circle.
    !! status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the radius, or the
    !! distance of A and B, is within the tolerance.
    subroutine trvarc1(xc, yc, xa, ya, xb, yb, s1, s2, status) bind(c, name="trvarc1")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvarc1
      real(c_float), intent(in) :: xc, yc, xa, ya, xb, yb
      real(c_float), intent(inout) :: s1, s2
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Signed angle of a direction against the x axis.
    subroutine trvaxph(dx, dy, phi) bind(c, name="trvaxph")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvaxph
      real(c_float), intent(in) :: dx, dy
      real(c_float), intent(out) :: phi
    end subroutine

    !> Distances of two points from the line of a segment, and their stations along it.
    subroutine trvhin(x0, y0, z0, x1, y1, z1, x2, y2, z2, x3, y3, z3, h0, s0, h3, s3, &
        len) bind(c, name="trvhin")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvhin
      real(c_float), intent(in) :: x0, y0, z0, x1, y1, z1, x2, y2, z2, x3, y3, z3
      real(c_float), intent(out) :: h0, s0, h3, s3, len
    end subroutine

    !> Marks points as inside or outside a sector.
    !! mark: where each point is: 1 inside: the point is inside the sector; 2 outside: the point is
    !! outside the sector; -1 no_sector: the angle of the rays by trvphi is within the tolerance, so
    !! all points have this value.
    subroutine trvapp(x0, y0, x1, y1, x2, y2, n, X, Y, mark) bind(c, name="trvapp")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvapp
      real(c_float), intent(in) :: x0, y0, x1, y1, x2, y2
      integer(c_int32_t), intent(in) :: n
      real(c_float), intent(in) :: X(*), Y(*)
      integer(c_int32_t), intent(inout) :: mark(*)
    end subroutine

    !> Point of an arc on a line through a station of its chord.
    !! status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the radius or the
    !! chord is within the tolerance, the radii of A and B differ by more than the tolerance, A and
    !! B coincide, or the line is tangent to the circle.
    subroutine trvcer4(xc, yc, xa, ya, xb, yb, s, angle, xo, yo, status) bind(c, name="trvcer4")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvcer4
      real(c_float), intent(inout) :: xc, yc, xa, ya, xb, yb
      real(c_float), intent(in) :: s, angle
      real(c_float), intent(inout) :: xo, yo
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Intersection of an arc's chord with a line through its rotated end.
    !! status: outcome: 0 crossing_or_refused: the line crosses the chord, which is the normal
    !! result, or an intersection kept from an earlier call lies on the chord's line but not at A or
    !! B (trvpsl above 2), or the input is rejected, since the radius or the chord is within the
    !! tolerance or the radii of A and B differ by more than the tolerance; 1 along_chord: the line
    !! runs along the chord; 2 parallel: the line is parallel to the chord.
    subroutine trvcer10(xc, yc, xa, ya, xb, yb, turn, angle, xo, yo, &
        status) bind(c, name="trvcer10")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvcer10
      real(c_float), intent(inout) :: xc, yc, xa, ya, xb, yb
      real(c_float), intent(in) :: turn, angle
      real(c_float), intent(inout) :: xo, yo
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Point of an arc on the line from a station of its chord to a point of the sagitta.
    !! status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: s is negative, e, the
    !! radius, the chord or its rest beyond s is at most 1e-5, the radii of A and B differ by more
    !! than 1e-5, or the line is tangent to the circle.
    subroutine trvcer5(xc, yc, xa, ya, xb, yb, s, side, e, xo, yo, status) bind(c, name="trvcer5")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvcer5
      real(c_float), intent(inout) :: xc, yc, xa, ya, xb, yb
      real(c_float), intent(in) :: s
      integer(c_int32_t), intent(in) :: side
      real(c_float), intent(in) :: e
      real(c_float), intent(inout) :: xo, yo
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Intersections of a line through a station of an arc's chord with the arc and with a line
    !! parallel to the chord.
    !! status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: s or e is negative,
    !! the radius or the chord's rest beyond s is at most 1e-4, the radii of A and B differ by more
    !! than 1e-4 and the rounding, side is 0, the line is parallel to the chord, or the part of the
    !! line inside the circle is not longer than 2e-4.
    subroutine trvcer7(xc, yc, xa, ya, xb, yb, s, side, e, angle, xp, yp, xt, yt, xo, yo, len, &
        status) bind(c, name="trvcer7")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvcer7
      real(c_float), intent(inout) :: xc, yc, xa, ya, xb, yb
      real(c_float), intent(in) :: s
      integer(c_int32_t), intent(in) :: side
      real(c_float), intent(in) :: e, angle
      real(c_float), intent(inout) :: xp, yp, xt, yt, xo, yo, len
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Rounds the corner at P0 between the segments to P1 and to P2.
    !! status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: r or the length of a
    !! segment is not above the tolerance, the sine of the angle between the segments is within the
    !! tolerance, or a tangent point lies beyond the end of its segment by more than the tolerance.
    subroutine trvard(x0, y0, x1, y1, x2, y2, r, xc, yc, xt1, yt1, xt2, yt2, &
        status) bind(c, name="trvard")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvard
      real(c_float), intent(in) :: x0, y0, x1, y1, x2, y2, r
      real(c_float), intent(inout) :: xc, yc, xt1, yt1, xt2, yt2
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Bounding box of the arc that a point sweeps about a centre.
    subroutine trvenv(xc, yc, xa, ya, sweep, xmin, ymin, xmax, ymax) bind(c, name="trvenv")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvenv
      real(c_float), intent(in) :: xc, yc, xa, ya, sweep
      real(c_float), intent(out) :: xmin, ymin, xmax, ymax
    end subroutine

    ! Ordering, searching, matching and joining of lists

    !> Sorts Reals ascending, in place.
    subroutine trvord(V, n) bind(c, name="trvord")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvord
      real(c_float), intent(inout) :: V(*)
      integer(c_int32_t), intent(in) :: n
    end subroutine

    !> Sorts Integers ascending, in place.
    subroutine trvord1(V, n) bind(c, name="trvord1")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvord1
      integer(c_int32_t), intent(inout) :: V(*)
      integer(c_int32_t), intent(in) :: n
    end subroutine

    !> Positions of the elements of a list in ascending order; the list itself is not changed.
    subroutine trvordi(V, n, IDX) bind(c, name="trvordi")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvordi
      real(c_float), intent(in) :: V(*)
      integer(c_int32_t), intent(in) :: n
      integer(c_int32_t), intent(inout) :: IDX(*)
    end subroutine

    !> Order of parallel lines by their intersections with an axis.
    !! status: outcome (TrvStatus): 0 done: IDX holds the order; -1 refused: the lines are not a
    !! family of parallel and distinct lines, or n < 1.
    subroutine trvpor(n, A, B, C, IDX, status) bind(c, name="trvpor")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvpor
      integer(c_int32_t), intent(in) :: n
      real(c_float), intent(in) :: A(*), B(*), C(*)
      integer(c_int32_t), intent(inout) :: IDX(*)
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Puts the corners of a quadrilateral of space in cyclic order, in place.
    subroutine trvorv(X, Y, Z, ORD) bind(c, name="trvorv")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvorv
      real(c_float), intent(inout) :: X(*), Y(*), Z(*)
      integer(c_int32_t), intent(inout) :: ORD(*)
    end subroutine

    !> All positions at which a list holds a value.
    subroutine trvsel1(n, V, key, count, pos) bind(c, name="trvsel1")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvsel1
      integer(c_int32_t), intent(in) :: n, V(*), key
      integer(c_int32_t), intent(out) :: count
      integer(c_int32_t), intent(inout) :: pos(*)
    end subroutine

    !> All pairs of elements of two lists that differ by at most a tolerance.
    subroutine trvmer13(na, A, nb, B, count, IA, IB, tol) bind(c, name="trvmer13")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvmer13
      integer(c_int32_t), intent(in) :: na
      real(c_float), intent(in) :: A(*)
      integer(c_int32_t), intent(in) :: nb
      real(c_float), intent(in) :: B(*)
      integer(c_int32_t), intent(out) :: count
      integer(c_int32_t), intent(inout) :: IA(*), IB(*)
      real(c_float), intent(in) :: tol
    end subroutine

    !> Joins two lists end to end. Elements are copied bit for bit, so the lists may also hold
    !! Reals.
    subroutine trvmer1(na, A, nb, B, nout, OUT) bind(c, name="trvmer1")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvmer1
      integer(c_int32_t), intent(in) :: na, A(*), nb, B(*)
      integer(c_int32_t), intent(out) :: nout
      integer(c_int32_t), intent(inout) :: OUT(*)
    end subroutine

    !> Joins two lists end to end: trvmer1 under another name.
    subroutine trvmer11(na, A, nb, B, nout, OUT) bind(c, name="trvmer11")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvmer11
      integer(c_int32_t), intent(in) :: na, A(*), nb, B(*)
      integer(c_int32_t), intent(out) :: nout
      integer(c_int32_t), intent(inout) :: OUT(*)
    end subroutine

    !> Sorts Integers ascending and removes duplicates, in place.
    subroutine trvmer2(V, n) bind(c, name="trvmer2")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvmer2
      integer(c_int32_t), intent(inout) :: V(*), n
    end subroutine

    !> Sorts Reals ascending and removes duplicates within a tolerance, in place.
    subroutine trvmer3(V, n) bind(c, name="trvmer3")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvmer3
      real(c_float), intent(inout) :: V(*)
      integer(c_int32_t), intent(inout) :: n
    end subroutine

    !> Sorts Reals ascending and removes duplicates within a tolerance, in place.
    subroutine trvmer12(V, n, tol) bind(c, name="trvmer12")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvmer12
      real(c_float), intent(inout) :: V(*)
      integer(c_int32_t), intent(inout) :: n
      real(c_float), intent(in) :: tol
    end subroutine

    !> Appends to a list those elements of another that it does not hold yet.
    subroutine trvmer4(na, A, nb, B, tol, nout, OUT, IB) bind(c, name="trvmer4")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvmer4
      integer(c_int32_t), intent(in) :: na
      real(c_float), intent(in) :: A(*)
      integer(c_int32_t), intent(in) :: nb
      real(c_float), intent(in) :: B(*), tol
      integer(c_int32_t), intent(out) :: nout
      real(c_float), intent(inout) :: OUT(*)
      integer(c_int32_t), intent(inout) :: IB(*)
    end subroutine

    !> Elements of a list that another holds too.
    subroutine trvmer14(na, A, nb, B, nout, OUT) bind(c, name="trvmer14")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvmer14
      integer(c_int32_t), intent(in) :: na, A(*), nb, B(*)
      integer(c_int32_t), intent(out) :: nout
      integer(c_int32_t), intent(inout) :: OUT(*)
    end subroutine

    !> Removes from a list the elements that another holds, in place.
    subroutine trvmer15(na, A, nb, B, count) bind(c, name="trvmer15")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvmer15
      integer(c_int32_t), intent(inout) :: na, A(*)
      integer(c_int32_t), intent(in) :: nb, B(*)
      integer(c_int32_t), intent(out) :: count
    end subroutine

    !> Removes repeated vertices of a closed outline, in place.
    subroutine trvmer16(X, Y, n, tol) bind(c, name="trvmer16")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvmer16
      real(c_float), intent(inout) :: X(*), Y(*)
      integer(c_int32_t), intent(inout) :: n
      real(c_float), intent(in) :: tol
    end subroutine

    !> All pairs of points of two lists that match within a tolerance in each coordinate.
    !! status: which points of A match a point of B: 0 no_pair: no point of A matches a point of B;
    !! 1 some_pairs: some points of A match points of B, others do not; 2 all_paired: every point of
    !! A matches a point of B.
    subroutine trvptp1(na, XA, YA, ZA, nb, XB, YB, ZB, tol, count, IA, IB, &
        status) bind(c, name="trvptp1")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvptp1
      integer(c_int32_t), intent(in) :: na
      real(c_float), intent(in) :: XA(*), YA(*), ZA(*)
      integer(c_int32_t), intent(in) :: nb
      real(c_float), intent(in) :: XB(*), YB(*), ZB(*), tol
      integer(c_int32_t), intent(out) :: count
      integer(c_int32_t), intent(inout) :: IA(*), IB(*)
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Merges three lists of points into one list.
    subroutine trvptp2(na, XA, YA, ZA, nb, XB, YB, ZB, nc, XC, YC, ZC, tol, nab, IAB, JAB, nbc, &
        IBC, JBC, nca, ICA, JCA, nout, XO, YO, ZO, MA, MB, MC, k, nk, PK, nz, &
        ZL) bind(c, name="trvptp2")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvptp2
      integer(c_int32_t), intent(in) :: na
      real(c_float), intent(in) :: XA(*), YA(*), ZA(*)
      integer(c_int32_t), intent(in) :: nb
      real(c_float), intent(in) :: XB(*), YB(*), ZB(*)
      integer(c_int32_t), intent(in) :: nc
      real(c_float), intent(in) :: XC(*), YC(*), ZC(*), tol
      integer(c_int32_t), intent(out) :: nab
      integer(c_int32_t), intent(inout) :: IAB(*), JAB(*)
      integer(c_int32_t), intent(out) :: nbc
      integer(c_int32_t), intent(inout) :: IBC(*), JBC(*)
      integer(c_int32_t), intent(out) :: nca
      integer(c_int32_t), intent(inout) :: ICA(*), JCA(*)
      integer(c_int32_t), intent(out) :: nout
      real(c_float), intent(inout) :: XO(*), YO(*), ZO(*)
      integer(c_int32_t), intent(inout) :: MA(*), MB(*), MC(*)
      integer(c_int32_t), intent(in) :: k
      integer(c_int32_t), intent(out) :: nk
      integer(c_int32_t), intent(inout) :: PK(*)
      integer(c_int32_t), intent(out) :: nz
      real(c_float), intent(inout) :: ZL(*)
    end subroutine

    !> Crossings of the horizontal line y = y0 with a closed outline.
    subroutine trvppp(X, Y, n, y0, count, XC) bind(c, name="trvppp")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvppp
      real(c_float), intent(in) :: X(*), Y(*)
      integer(c_int32_t), intent(in) :: n
      real(c_float), intent(in) :: y0
      integer(c_int32_t), intent(out) :: count
      real(c_float), intent(inout) :: XC(*)
    end subroutine

    !> Crossings of the segment from P1 to P2 with a closed outline.
    !! status: where P1 is: 1 inside: P1 is inside the outline by the even-odd rule; 0 outside: P1
    !! is outside the outline by the even-odd rule; -1 refused: n < 3, or P1 and P2 coincide within
    !! the tolerance in both coordinates.
    subroutine trvpin(X, Y, n, x1, y1, x2, y2, count, XI, YI, T, EDGE, &
        status) bind(c, name="trvpin")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvpin
      real(c_float), intent(in) :: X(*), Y(*)
      integer(c_int32_t), intent(in) :: n
      real(c_float), intent(in) :: x1, y1, x2, y2
      integer(c_int32_t), intent(out) :: count
      real(c_float), intent(inout) :: XI(*), YI(*), T(*)
      integer(c_int32_t), intent(inout) :: EDGE(*)
      integer(c_int32_t), intent(out) :: status
    end subroutine

    ! Points, vectors, straight lines and angles

    !> Distance between two points.
    subroutine trvpds(x1, y1, z1, x2, y2, z2, d) bind(c, name="trvpds")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvpds
      real(c_float), intent(in) :: x1, y1, z1, x2, y2, z2
      real(c_float), intent(out) :: d
    end subroutine

    !> Dot product of the difference vectors P2 - P1 and P4 - P3.
    subroutine trvpri(x1, y1, z1, x2, y2, z2, x3, y3, z3, x4, y4, z4, s) bind(c, name="trvpri")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvpri
      real(c_float), intent(in) :: x1, y1, z1, x2, y2, z2, x3, y3, z3, x4, y4, z4
      real(c_float), intent(out) :: s
    end subroutine

    !> Cross product (P2 - P1) x (P4 - P3).
    subroutine trvpre(x1, y1, z1, x2, y2, z2, x3, y3, z3, x4, y4, z4, c) bind(c, name="trvpre")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvpre
      real(c_float), intent(in) :: x1, y1, z1, x2, y2, z2, x3, y3, z3, x4, y4, z4
      real(c_float), intent(inout) :: c(*)
    end subroutine

    !> Difference vector of two points, and whether they coincide.
    !! status: coincidence (TrvCoincidence): 1 coincident: each difference is within the tolerance;
    !! 0 distinct: a difference is above the tolerance or NaN.
    subroutine trvcnt(x1, y1, z1, x2, y2, z2, dx, dy, dz, status) bind(c, name="trvcnt")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvcnt
      real(c_float), intent(in) :: x1, y1, z1, x2, y2, z2
      real(c_float), intent(out) :: dx, dy, dz
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Whether a vector is exactly zero; unlike trvcnt, no tolerance applies.
    !! status: test: 1 zero: all components are zero, of either sign; 0 nonzero: a component is not
    !! zero, or is NaN.
    subroutine trvcnt1(dx, dy, dz, status) bind(c, name="trvcnt1")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvcnt1
      real(c_float), intent(in) :: dx, dy, dz
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Point P1 + t*(P2 - P1) on the line through two points.
    !! status: outcome (TrvCoincidence): 0 distinct: the output is written; 1 coincident: P1 and P2
    !! coincide within the tolerance (trvcnt).
    subroutine trv123(x1, y1, z1, x2, y2, z2, t, x, y, z, status) bind(c, name="trv123")
      import :: c_float, c_int32_t
      TRELVIN_CALL trv123
      real(c_float), intent(in) :: x1, y1, z1, x2, y2, z2, t
      real(c_float), intent(inout) :: x, y, z
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Midpoint of two points.
    subroutine trvmed(x1, y1, z1, x2, y2, z2, xm, ym, zm) bind(c, name="trvmed")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvmed
      real(c_float), intent(in) :: x1, y1, z1, x2, y2, z2
      real(c_float), intent(out) :: xm, ym, zm
    end subroutine

    !> Determinant of the 2 x 2 matrix with rows (a, b) and (c, d).
    subroutine trvdtr2(a, b, c, d, det) bind(c, name="trvdtr2")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvdtr2
      real(c_float), intent(in) :: a, b, c, d
      real(c_float), intent(out) :: det
    end subroutine

    !> Determinant of a 3 x 3 matrix, expanded along its first row.
    subroutine trvdtr3(a1, a2, a3, b1, b2, b3, c1, c2, c3, det) bind(c, name="trvdtr3")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvdtr3
      real(c_float), intent(in) :: a1, a2, a3, b1, b2, b3, c1, c2, c3
      real(c_float), intent(out) :: det
    end subroutine

    !> Divides two coefficients by a third, or gives zeros if the third is zero within the
    !! tolerance.
    subroutine trvgrc(a, b, c, q1, q2) bind(c, name="trvgrc")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvgrc
      real(c_float), intent(in) :: a, b, c
      real(c_float), intent(out) :: q1, q2
    end subroutine

    !> Linear interpolation, or extrapolation, through two samples.
    subroutine trvint(x1, x2, y1, y2, x, y) bind(c, name="trvint")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvint
      real(c_float), intent(in) :: x1, x2, y1, y2, x
      real(c_float), intent(out) :: y
    end subroutine

    !> Sign of a value.
    !! status: sign: 1 positive: v is positive; 2 not_positive: v is zero, negative or NaN.
    subroutine trvvin(u1, v, u3, u4, u5, status) bind(c, name="trvvin")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvvin
      real(c_float), intent(in) :: u1, v, u3, u4, u5
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Interval of an ascending table that holds a value.
    subroutine trvpos(n, A, x, i) bind(c, name="trvpos")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvpos
      integer(c_int32_t), intent(in) :: n
      real(c_float), intent(in) :: A(*), x
      integer(c_int32_t), intent(out) :: i
    end subroutine

    !> Element of an ascending table that equals a value, or the interval that holds it.
    !! status: what was found: 1 at_entry: A(i) equals x within the tolerance; 2 between: A(i) < x <
    !! A(i+1); 0 neither: x equals no element and lies in no interval.
    subroutine trvpos1(n, A, x, status, i) bind(c, name="trvpos1")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvpos1
      integer(c_int32_t), intent(in) :: n
      real(c_float), intent(in) :: A(*), x
      integer(c_int32_t), intent(out) :: status, i
    end subroutine

    !> Line through two points.
    subroutine trvln3(x1, y1, x2, y2, a, b, c) bind(c, name="trvln3")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvln3
      real(c_float), intent(in) :: x1, y1, x2, y2
      real(c_float), intent(out) :: a, b, c
    end subroutine

    !> Line through a point at an angle to the x axis.
    subroutine trvln1(x0, y0, phi, a, b, c) bind(c, name="trvln1")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvln1
      real(c_float), intent(in) :: x0, y0, phi
      real(c_float), intent(out) :: a, b, c
    end subroutine

    !> Line through a point with a direction.
    subroutine trvln4(x0, y0, dx, dy, u, a, b, c) bind(c, name="trvln4")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvln4
      real(c_float), intent(in) :: x0, y0, dx, dy, u
      real(c_float), intent(out) :: a, b, c
    end subroutine

    !> Line parallel to a line at a signed distance.
    subroutine trvln2(a, b, c, d, a2, b2, c2) bind(c, name="trvln2")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvln2
      real(c_float), intent(in) :: a, b, c, d
      real(c_float), intent(out) :: a2, b2, c2
    end subroutine

    !> Internal bisector of the angle at P0 between the rays to P1 and P2.
    subroutine trvln5(x0, y0, x1, y1, x2, y2, a, b, c) bind(c, name="trvln5")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvln5
      real(c_float), intent(in) :: x0, y0, x1, y1, x2, y2
      real(c_float), intent(out) :: a, b, c
    end subroutine

    !> Signed distance of a point from a line.
    subroutine trvlds(x, y, a, b, c, d) bind(c, name="trvlds")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvlds
      real(c_float), intent(in) :: x, y, a, b, c
      real(c_float), intent(out) :: d
    end subroutine

    !> Intersection of two lines.
    !! status: relation (TrvPlaneLines): 0 one_point: the lines have one point in common; 1
    !! same_line: the lines are the same; 2 parallel: the lines are parallel and distinct.
    subroutine trvlni(a1, b1, c1, a2, b2, c2, status, x, y) bind(c, name="trvlni")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvlni
      real(c_float), intent(in) :: a1, b1, c1, a2, b2, c2
      integer(c_int32_t), intent(out) :: status
      real(c_float), intent(inout) :: x, y
    end subroutine

    !> Distance of two parallel lines.
    !! status: relation (TrvPlaneLines): 0 one_point: the lines have one point in common; 1
    !! same_line: the lines are the same; 2 parallel: the lines are parallel and distinct, as trvlni
    !! finds.
    subroutine trvlul(a1, b1, c1, a2, b2, c2, d, status) bind(c, name="trvlul")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvlul
      real(c_float), intent(in) :: a1, b1, c1, a2, b2, c2
      real(c_float), intent(inout) :: d
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Which components of two triples differ by more than the tolerance.
    !! code: which components of p - q are above the tolerance (TrvComponents): 0 none: no component
    !! is above the tolerance; 1 all: all three components are above the tolerance; 2 first: only
    !! the first component is above the tolerance; 3 second: only the second component is above the
    !! tolerance; 4 third: only the third component is above the tolerance; 5 first_second: only the
    !! first and the second are above the tolerance; 6 second_third: only the second and the third
    !! are above the tolerance; 7 first_third: only the first and the third are above the tolerance.
    subroutine trvpsn(p1, p2, p3, q1, q2, q3, code) bind(c, name="trvpsn")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvpsn
      real(c_float), intent(in) :: p1, p2, p3, q1, q2, q3
      integer(c_int32_t), intent(out) :: code
    end subroutine

    !> Whether a point lies on the line of space through P0 with direction D.
    !! code: which components of (P0 + D) - P0 are above the tolerance (TrvComponents): 0 none: no
    !! component is above the tolerance; 1 all: all three components are above the tolerance; 2
    !! first: only the first component is above the tolerance; 3 second: only the second component
    !! is above the tolerance; 4 third: only the third component is above the tolerance; 5
    !! first_second: only the first and the second are above the tolerance; 6 second_third: only the
    !! second and the third are above the tolerance; 7 first_third: only the first and the third are
    !! above the tolerance.
    !! on: test (TrvOnLine): 1 yes: P lies on the line; 0 no: P does not lie on the line, or code is
    !! 0.
    subroutine trvln6(x0, y0, z0, dx, dy, dz, px, py, pz, tol, code, on) bind(c, name="trvln6")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvln6
      real(c_float), intent(in) :: x0, y0, z0, dx, dy, dz, px, py, pz, tol
      integer(c_int32_t), intent(out) :: code, on
    end subroutine

    !> Direction of the line of two planes, and whether a point matches it at a retained coordinate.
    !! code: which components of (ex, ey, ez) are above the tolerance (TrvComponents): 0 none: no
    !! component is above the tolerance; 1 all: all three components are above the tolerance; 2
    !! first: only the first component is above the tolerance; 3 second: only the second component
    !! is above the tolerance; 4 third: only the third component is above the tolerance; 5
    !! first_second: only the first and the second are above the tolerance; 6 second_third: only the
    !! second and the third are above the tolerance; 7 first_third: only the first and the third are
    !! above the tolerance.
    !! on: test (TrvOnLine): 1 yes: P matches the line at the kept coordinate; 0 no: P does not
    !! match the line at the kept coordinate.
    subroutine trvln7(a1, b1, c1, d1, a2, b2, c2, d2, px, py, pz, ex, ey, ez, tol, code, &
        on) bind(c, name="trvln7")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvln7
      real(c_float), intent(in) :: a1, b1, c1, d1, a2, b2, c2, d2, px, py, pz
      real(c_float), intent(out) :: ex, ey
      real(c_float), intent(in) :: ez, tol
      integer(c_int32_t), intent(out) :: code, on
    end subroutine

    !> Angle at P0 between the rays to P1 and P2, in the plane.
    subroutine trvphi(x0, y0, x1, y1, x2, y2, phi) bind(c, name="trvphi")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvphi
      real(c_float), intent(in) :: x0, y0, x1, y1, x2, y2
      real(c_float), intent(out) :: phi
    end subroutine

    !> Angle at P0 between the rays to P1 and P2, in space.
    subroutine trvphi3(x0, y0, z0, x1, y1, z1, x2, y2, z2, phi) bind(c, name="trvphi3")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvphi3
      real(c_float), intent(in) :: x0, y0, z0, x1, y1, z1, x2, y2, z2
      real(c_float), intent(out) :: phi
    end subroutine

    !> Angle between two vectors.
    subroutine trvphi1(ux, uy, uz, vx, vy, vz, phi) bind(c, name="trvphi1")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvphi1
      real(c_float), intent(in) :: ux, uy, uz, vx, vy, vz
      real(c_float), intent(out) :: phi
    end subroutine

    !> Angle between two lines given by their directions.
    !! status: outcome: -1 no_length: a direction's length is within the tolerance; unwritten on a
    !! condition: neither direction's length is within the tolerance, so it must be set beforehand.
    subroutine trvphip(ux, uy, uz, vx, vy, vz, phi, status) bind(c, name="trvphip")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvphip
      real(c_float), intent(in) :: ux, uy, uz, vx, vy, vz
      real(c_float), intent(inout) :: phi
      integer(c_int32_t), intent(inout) :: status
    end subroutine

    !> Directed angle at P0 from the ray to P1 to the ray to P2.
    !! status: outcome (TrvCoincidence): 0 distinct: the output is written; 1 coincident: P1 or P2
    !! coincides with P0 (trvcnt).
    subroutine trvchi(x0, y0, z0, x1, y1, z1, x2, y2, z2, chi, status) bind(c, name="trvchi")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvchi
      real(c_float), intent(in) :: x0, y0, z0, x1, y1, z1, x2, y2, z2
      real(c_float), intent(inout) :: chi
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Convexity of a closed outline, of either orientation.
    !! status: test: 1 convex: the outline is convex; 0 not_convex: the outline is not convex, or
    !! winds more than once; -1 refused: n < 3, or the length of a side is within the tolerance.
    subroutine trvcnv(X, Y, n, status) bind(c, name="trvcnv")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvcnv
      real(c_float), intent(in) :: X(*), Y(*)
      integer(c_int32_t), intent(in) :: n
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Cosine and sine of the angle between P2 - P1 and P4 - P3.
    !! status: outcome (TrvCoincidence): 0 distinct: the output is written; 1 coincident: P1 and P2,
    !! or P3 and P4, coincide (trvcnt).
    subroutine trvtrg(x1, y1, z1, x2, y2, z2, x3, y3, z3, x4, y4, z4, cphi, sphi, &
        status) bind(c, name="trvtrg")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvtrg
      real(c_float), intent(in) :: x1, y1, z1, x2, y2, z2, x3, y3, z3, x4, y4, z4
      real(c_float), intent(inout) :: cphi, sphi
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Relation of two directions.
    !! code: relation: 0 oblique: u and v have neither the same, opposite nor perpendicular
    !! directions; 1 same: the directions are the same; 2 opposite: the directions are opposite; 3
    !! perpendicular: the directions are perpendicular; 4 zero: all components of u, or of v, are
    !! within the tolerance.
    subroutine trvdir(ux, uy, uz, vx, vy, vz, code) bind(c, name="trvdir")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvdir
      real(c_float), intent(in) :: ux, uy, uz, vx, vy, vz
      integer(c_int32_t), intent(out) :: code
    end subroutine

    !> Relation of two planes.
    !! code: relation: 0 crossing: the planes cross, not at a right angle; 1 parallel_same: the
    !! planes are parallel and distinct, their normals in the same direction; 2 parallel_opposite:
    !! the planes are parallel and distinct, their normals opposite; 3 coincident_same: the planes
    !! coincide, their normals in the same direction; 4 coincident_opposite: the planes coincide,
    !! their normals opposite; 5 perpendicular: the planes are perpendicular; 6 zero_normal: a
    !! normal is zero.
    subroutine trvdirp(a1, b1, c1, d1, a2, b2, c2, d2, code) bind(c, name="trvdirp")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvdirp
      real(c_float), intent(in) :: a1, b1, c1, d1, a2, b2, c2, d2
      integer(c_int32_t), intent(out) :: code
    end subroutine

    !> Angles between the projections of P2 - P1 and P4 - P3 onto the coordinate planes.
    subroutine trvmov(x1, y1, z1, x2, y2, z2, x3, y3, z3, x4, y4, z4, ax, ay, &
        az) bind(c, name="trvmov")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvmov
      real(c_float), intent(in) :: x1, y1, z1, x2, y2, z2, x3, y3, z3, x4, y4, z4
      real(c_float), intent(out) :: ax, ay, az
    end subroutine

    !> Moves the origin of plane points to (x0, y0), in place.
    subroutine trvtra(X, Y, n, x0, y0) bind(c, name="trvtra")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvtra
      real(c_float), intent(inout) :: X(*), Y(*)
      integer(c_int32_t), intent(in) :: n
      real(c_float), intent(in) :: x0, y0
    end subroutine

    !> Reverses a list, in place. Elements move bit for bit, so the list may also hold Reals.
    subroutine trvinv(V, n) bind(c, name="trvinv")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvinv
      integer(c_int32_t), intent(inout) :: V(*)
      integer(c_int32_t), intent(in) :: n
    end subroutine

    !> Inserts a list into another. Elements move bit for bit, so the lists may also hold Reals.
    subroutine trvadr(V, n, k, A, m) bind(c, name="trvadr")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvadr
      integer(c_int32_t), intent(inout) :: V(*), n
      integer(c_int32_t), intent(in) :: k, A(*), m
    end subroutine

    ! Area properties of polygons, circular segments and the parts of a section

    !> Area of a polygon.
    subroutine trvapl(x, y, n, area) bind(c, name="trvapl")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvapl
      real(c_float), intent(inout) :: x(*), y(*)
      integer(c_int32_t), intent(in) :: n
      real(c_float), intent(out) :: area
    end subroutine

    !> First moments of a polygon.
    subroutine trvspl(x, y, n, sx, sy) bind(c, name="trvspl")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvspl
      real(c_float), intent(inout) :: x(*), y(*)
      integer(c_int32_t), intent(in) :: n
      real(c_float), intent(out) :: sx, sy
    end subroutine

    !> Second moments of a polygon.
    subroutine trvipl(x, y, n, ix, iy, ixy) bind(c, name="trvipl")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvipl
      real(c_float), intent(inout) :: x(*), y(*)
      integer(c_int32_t), intent(in) :: n
      real(c_float), intent(out) :: ix, iy, ixy
    end subroutine

    !> Area and centroid of a circular segment, the region between an arc and its chord.
    subroutine trvacp(xc, yc, x1, y1, x2, y2, kind, area, xs, ys) bind(c, name="trvacp")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvacp
      real(c_float), intent(in) :: xc, yc, x1, y1, x2, y2
      integer(c_int32_t), intent(in) :: kind
      real(c_float), intent(out) :: area, xs, ys
    end subroutine

    !> Second moments of a circular segment, the region between an arc and its chord.
    subroutine trvicp(xc, yc, x1, y1, x2, y2, kind, ix, iy, ixy) bind(c, name="trvicp")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvicp
      real(c_float), intent(in) :: xc, yc, x1, y1, x2, y2
      integer(c_int32_t), intent(in) :: kind
      real(c_float), intent(out) :: ix, iy, ixy
    end subroutine

    !> Area of a part of a section.
    subroutine trvair(x, y, n, kind, value, factor, area) bind(c, name="trvair")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvair
      real(c_float), intent(inout) :: x(*), y(*)
      integer(c_int32_t), intent(in) :: n, kind
      real(c_float), intent(in) :: value, factor
      real(c_float), intent(inout) :: area
    end subroutine

    !> First moments of a part of a section.
    subroutine trvstm(x, y, n, kind, value, factor, sx, sy) bind(c, name="trvstm")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvstm
      real(c_float), intent(inout) :: x(*), y(*)
      integer(c_int32_t), intent(in) :: n, kind
      real(c_float), intent(in) :: value, factor
      real(c_float), intent(inout) :: sx, sy
    end subroutine

    !> Second moments of a part of a section.
    subroutine trvinm(x, y, n, kind, value, angle, factor, ix, iy, ixy) bind(c, name="trvinm")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvinm
      real(c_float), intent(inout) :: x(*), y(*)
      integer(c_int32_t), intent(in) :: n, kind
      real(c_float), intent(in) :: value, angle, factor
      real(c_float), intent(inout) :: ix, iy, ixy
    end subroutine

    !> Principal moments and their direction.
    subroutine trvinp(ix, iy, ixy, i1, i2, alpha) bind(c, name="trvinp")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvinp
      real(c_float), intent(in) :: ix, iy, ixy
      real(c_float), intent(out) :: i1, i2, alpha
    end subroutine

    !> Integral of equally spaced samples over [a, b] by the trapezoidal rule.
    subroutine trvinr(n, f, a, b, result) bind(c, name="trvinr")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvinr
      integer(c_int32_t), intent(in) :: n
      real(c_float), intent(in) :: f(*), a, b
      real(c_float), intent(out) :: result
    end subroutine

    ! Steel sections: buckling of plates, outlines of profiles, channels, thin plates

    !> Reduction factor of an internal compression element, EN 1993-1-5, 4.4(2).
    subroutine trvro2(b, t, r1, r2, psi, ks, rho) bind(c, name="trvro2")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvro2
      real(c_float), intent(in) :: b, t, r1, r2, psi, ks
      real(c_float), intent(out) :: rho
    end subroutine

    !> Effective width of an edge fold on a plate it stiffens, after EN 1993-1-3, 5.5.3.2.
    subroutine trvefr(c, bp, t, r1, r2, ceff) bind(c, name="trvefr")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvefr
      real(c_float), intent(in) :: c, bp, t, r1, r2
      real(c_float), intent(out) :: ceff
    end subroutine

    !> Effective widths at the edges of an internal element, EN 1993-1-5, table 4.1.
    subroutine trvef2(bl, w, t, r1, r2, s1, s2, be1, be2) bind(c, name="trvef2")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvef2
      real(c_float), intent(in) :: bl, w, t, r1, r2, s1, s2
      real(c_float), intent(inout) :: be1, be2
    end subroutine

    !> I section with unequal flanges.
    subroutine trvsec_ia(H, B1, B2, T1, T2, TW, q, np, nv, X, Y, code, sign, z1, z2, z3, z4, z5, &
        q1, q2) bind(c, name="trvsec_ia")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvsec_ia
      real(c_float), intent(in) :: H, B1, B2, T1, T2, TW, q
      integer(c_int32_t), intent(out) :: np
      integer(c_int32_t), intent(inout) :: nv(*)
      real(c_float), intent(inout) :: X(*), Y(*)
      integer(c_int32_t), intent(inout) :: code(*)
      real(c_float), intent(inout) :: sign(*), z1(*), z2(*), z3(*), z4(*), z5(*), q1(*), q2(*)
    end subroutine

    !> I section lying on its side.
    subroutine trvsec_h(H, B1, B2, T1, T2, TW, q, np, nv, X, Y, code, sign, z1, z2, z3, z4, z5, &
        q1, q2) bind(c, name="trvsec_h")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvsec_h
      real(c_float), intent(in) :: H, B1, B2, T1, T2, TW, q
      integer(c_int32_t), intent(out) :: np
      integer(c_int32_t), intent(inout) :: nv(*)
      real(c_float), intent(inout) :: X(*), Y(*)
      integer(c_int32_t), intent(inout) :: code(*)
      real(c_float), intent(inout) :: sign(*), z1(*), z2(*), z3(*), z4(*), z5(*), q1(*), q2(*)
    end subroutine

    !> T section, flange at the top.
    subroutine trvsec_t(B, H, TF, TW, q, np, nv, X, Y, code, sign, z1, z2, z3, z4, z5, q1, &
        q2) bind(c, name="trvsec_t")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvsec_t
      real(c_float), intent(in) :: B, H, TF, TW, q
      integer(c_int32_t), intent(out) :: np
      integer(c_int32_t), intent(inout) :: nv(*)
      real(c_float), intent(inout) :: X(*), Y(*)
      integer(c_int32_t), intent(inout) :: code(*)
      real(c_float), intent(inout) :: sign(*), z1(*), z2(*), z3(*), z4(*), z5(*), q1(*), q2(*)
    end subroutine

    !> Flat bar.
    subroutine trvsec_b(B, H, q, np, nv, X, Y, code, sign, z1, z2, z3, z4, z5, q1, &
        q2) bind(c, name="trvsec_b")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvsec_b
      integer(c_int32_t), intent(in) :: B
      real(c_float), intent(in) :: H, q
      integer(c_int32_t), intent(out) :: np
      integer(c_int32_t), intent(inout) :: nv(*)
      real(c_float), intent(inout) :: X(*), Y(*)
      integer(c_int32_t), intent(inout) :: code(*)
      real(c_float), intent(inout) :: sign(*), z1(*), z2(*), z3(*), z4(*), z5(*), q1(*), q2(*)
    end subroutine

    !> I section lying on its side with a cover plate on its flanges' top edges, closing one cell.
    subroutine trvsec_h1b(W, D, P, T1, T2, TW, TP, q, np, nv, X, Y, code, sign, z1, z2, z3, z4, &
        z5, q1, q2) bind(c, name="trvsec_h1b")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvsec_h1b
      real(c_float), intent(in) :: W, D, P, T1, T2, TW, TP, q
      integer(c_int32_t), intent(out) :: np
      integer(c_int32_t), intent(inout) :: nv(*)
      real(c_float), intent(inout) :: X(*), Y(*)
      integer(c_int32_t), intent(inout) :: code(*)
      real(c_float), intent(inout) :: sign(*), z1(*), z2(*), z3(*), z4(*), z5(*), q1(*), q2(*)
    end subroutine

    !> Box girder with overhanging flanges.
    subroutine trvsec_box(BT, BB, TT, TB, H, TW, G, q, np, nv, X, Y, code, sign, z1, z2, z3, z4, &
        z5, q1, q2) bind(c, name="trvsec_box")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvsec_box
      real(c_float), intent(in) :: BT, BB, TT, TB, H, TW, G, q
      integer(c_int32_t), intent(out) :: np
      integer(c_int32_t), intent(inout) :: nv(*)
      real(c_float), intent(inout) :: X(*), Y(*)
      integer(c_int32_t), intent(inout) :: code(*)
      real(c_float), intent(inout) :: sign(*), z1(*), z2(*), z3(*), z4(*), z5(*), q1(*), q2(*)
    end subroutine

    !> Rectangular hollow section with sharp corners.
    subroutine trvsec_rhs(B, H, T, q, np, nv, X, Y, code, sign, z1, z2, z3, z4, z5, q1, &
        q2) bind(c, name="trvsec_rhs")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvsec_rhs
      real(c_float), intent(in) :: B, H, T, q
      integer(c_int32_t), intent(out) :: np
      integer(c_int32_t), intent(inout) :: nv(*)
      real(c_float), intent(inout) :: X(*), Y(*)
      integer(c_int32_t), intent(inout) :: code(*)
      real(c_float), intent(inout) :: sign(*), z1(*), z2(*), z3(*), z4(*), z5(*), q1(*), q2(*)
    end subroutine

    !> Two equal angles back to back, horizontal legs at the top.
    subroutine trvsec_l2(B, H, G, T, TV, q, np, nv, X, Y, code, sign, z1, z2, z3, z4, z5, q1, &
        q2) bind(c, name="trvsec_l2")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvsec_l2
      real(c_float), intent(in) :: B, H, G, T, TV, q
      integer(c_int32_t), intent(out) :: np
      integer(c_int32_t), intent(inout) :: nv(*)
      real(c_float), intent(inout) :: X(*), Y(*)
      integer(c_int32_t), intent(inout) :: code(*)
      real(c_float), intent(inout) :: sign(*), z1(*), z2(*), z3(*), z4(*), z5(*), q1(*), q2(*)
    end subroutine

    !> Top plate on a closed cell of two webs and a bottom plate between them.
    subroutine trvsec_tab(B, H, BW, E, T, TW, TB, q, np, nv, X, Y, code, sign, z1, z2, z3, z4, z5, &
        q1, q2) bind(c, name="trvsec_tab")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvsec_tab
      real(c_float), intent(in) :: B, H, BW, E, T, TW, TB, q
      integer(c_int32_t), intent(out) :: np
      integer(c_int32_t), intent(inout) :: nv(*)
      real(c_float), intent(inout) :: X(*), Y(*)
      integer(c_int32_t), intent(inout) :: code(*)
      real(c_float), intent(inout) :: sign(*), z1(*), z2(*), z3(*), z4(*), z5(*), q1(*), q2(*)
    end subroutine

    !> Two flanges joined by two webs and a middle plate, closing two cells.
    subroutine trvsec_h2b(B, W, HI, TW1, TW2, TM, TF, q, np, nv, X, Y, code, sign, z1, z2, z3, z4, &
        z5, q1, q2) bind(c, name="trvsec_h2b")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvsec_h2b
      real(c_float), intent(in) :: B, W, HI, TW1, TW2, TM, TF, q
      integer(c_int32_t), intent(out) :: np
      integer(c_int32_t), intent(inout) :: nv(*)
      real(c_float), intent(inout) :: X(*), Y(*)
      integer(c_int32_t), intent(inout) :: code(*)
      real(c_float), intent(inout) :: sign(*), z1(*), z2(*), z3(*), z4(*), z5(*), q1(*), q2(*)
    end subroutine

    !> I section with unequal flanges, an eccentric web and 45-degree fillets.
    subroutine trvsec_i(H, B1, B2, T1, T2, TW, S1, S2, E, q, np, nv, X, Y, code, sign, z1, z2, z3, &
        z4, z5, q1, q2) bind(c, name="trvsec_i")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvsec_i
      real(c_float), intent(in) :: H, B1, B2, T1, T2, TW, S1, S2, E, q
      integer(c_int32_t), intent(out) :: np
      integer(c_int32_t), intent(inout) :: nv(*)
      real(c_float), intent(inout) :: X(*), Y(*)
      integer(c_int32_t), intent(inout) :: code(*)
      real(c_float), intent(inout) :: sign(*), z1(*), z2(*), z3(*), z4(*), z5(*), q1(*), q2(*)
    end subroutine

    !> Channel open to the right, with lips turned inwards and folds turned back towards the web.
    subroutine trvsec_c(H, B1, B2, C1, C2, D1, D2, TW, T1, T2, TC1, TC2, TD1, TD2, q, np, nv, X, &
        Y, code, sign, z1, z2, z3, z4, z5, q1, q2) bind(c, name="trvsec_c")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvsec_c
      real(c_float), intent(in) :: H, B1, B2, C1, C2, D1, D2, TW, T1, T2, TC1, TC2, TD1, TD2, q
      integer(c_int32_t), intent(out) :: np
      integer(c_int32_t), intent(inout) :: nv(*)
      real(c_float), intent(inout) :: X(*), Y(*)
      integer(c_int32_t), intent(inout) :: code(*)
      real(c_float), intent(inout) :: sign(*), z1(*), z2(*), z3(*), z4(*), z5(*), q1(*), q2(*)
    end subroutine

    !> Distance of a channel's shear centre from its centroid.
    subroutine trvshc_c(B, H, C, t, e0) bind(c, name="trvshc_c")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvshc_c
      real(c_float), intent(in) :: B, H, C, t
      real(c_float), intent(out) :: e0
    end subroutine

    !> Warping constant of a channel.
    subroutine trvwar_c(B, H, C, t, Iw) bind(c, name="trvwar_c")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvwar_c
      real(c_float), intent(in) :: B, H, C, t
      real(c_float), intent(out) :: Iw
    end subroutine

    !> Properties of an open section of thin plates.
    !! status: outcome (TrvStatus): 0 done: the outputs are computed; -1 refused: n < 1, a
    !! coordinate or a thickness is infinite or NaN, or a length or a thickness is not above the
    !! tolerance; 2 to n: number of the first faulty plate, which does not start at an end of an
    !! earlier plate, or closes a cell by ending at one; n+2 to 2*n: n plus the number of the first
    !! faulty plate, which crosses, touches or overlaps an earlier plate elsewhere than at its
    !! start, and may close a cell.
    subroutine trvmxt(n, X1, Y1, X2, Y2, T, A, xs, ys, Ix, Iy, Ixy, I1, I2, alpha, rx, ry, Wx1, &
        Wx2, Wy1, Wy2, Wpx, Wpy, xp, yp, It, Wt, xm, ym, Iw, r0, W1, W2, &
        status) bind(c, name="trvmxt")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvmxt
      integer(c_int32_t), intent(in) :: n
      real(c_float), intent(in) :: X1(*), Y1(*), X2(*), Y2(*), T(*)
      real(c_float), intent(inout) :: A, xs, ys, Ix, Iy, Ixy, I1, I2, alpha, rx, ry, Wx1, Wx2, &
        Wy1, Wy2, Wpx, Wpy, xp, yp, It, Wt, xm, ym, Iw, r0, W1(*), W2(*)
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Properties of a flat bar, centred on the origin.
    !! status: outcome (TrvStatus): 0 done: the outputs are computed; -1 refused: a side is
    !! infinite, NaN or not above the tolerance.
    subroutine trvmxt_fb(B, H, A, xs, ys, Ix, Iy, Ixy, I1, I2, alpha, rx, ry, Wx1, Wx2, Wy1, Wy2, &
        Wpx, Wpy, xp, yp, It, Wt, xm, ym, Iw, r0, W1, W2, status) bind(c, name="trvmxt_fb")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvmxt_fb
      real(c_float), intent(in) :: B, H
      real(c_float), intent(inout) :: A, xs, ys, Ix, Iy, Ixy, I1, I2, alpha, rx, ry, Wx1, Wx2, &
        Wy1, Wy2, Wpx, Wpy, xp, yp, It, Wt, xm, ym, Iw, r0, W1(*), W2(*)
      integer(c_int32_t), intent(out) :: status
    end subroutine

    ! Rotations about the origin and the axes

    !> Rotates plane points about the origin, in place.
    subroutine trvrot(mode, x, y, n, angle) bind(c, name="trvrot")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvrot
      integer(c_int32_t), intent(in) :: mode
      real(c_float), intent(inout) :: x(*), y(*)
      integer(c_int32_t), intent(in) :: n
      real(c_float), intent(in) :: angle
    end subroutine

    !> Rotates points about the x axis, in place.
    subroutine trvrotx(mode, x, y, z, n, angle) bind(c, name="trvrotx")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvrotx
      integer(c_int32_t), intent(in) :: mode
      real(c_float), intent(in) :: x(*)
      real(c_float), intent(inout) :: y(*), z(*)
      integer(c_int32_t), intent(in) :: n
      real(c_float), intent(in) :: angle
    end subroutine

    !> Rotates points about the y axis, in place.
    subroutine trvroty(mode, x, y, z, n, angle) bind(c, name="trvroty")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvroty
      integer(c_int32_t), intent(in) :: mode
      real(c_float), intent(inout) :: x(*)
      real(c_float), intent(in) :: y(*)
      real(c_float), intent(inout) :: z(*)
      integer(c_int32_t), intent(in) :: n
      real(c_float), intent(in) :: angle
    end subroutine

    !> Rotates points about the z axis, in place.
    subroutine trvrotz(mode, x, y, z, n, angle) bind(c, name="trvrotz")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvrotz
      integer(c_int32_t), intent(in) :: mode
      real(c_float), intent(inout) :: x(*), y(*)
      real(c_float), intent(in) :: z(*)
      integer(c_int32_t), intent(in) :: n
      real(c_float), intent(in) :: angle
    end subroutine

    ! Frames of space, and transformations of points

    !> Three-point test: whether P0, P1 and P2 span a plane.
    !! status: three-point test (TrvThreePoints): 0 spans_plane: P0, P1 and P2 span a plane; 1
    !! at_p0: P2 is at P0; 2 at_p1: P2 is at P1; 3 between: P2 is between P0 and P1; 4 beyond_p0: P2
    !! is beyond P0 on the line of P0 and P1; 5 beyond_p1: P2 is beyond P1 on the line of P0 and P1.
    subroutine trvpsl(x0, y0, z0, x1, y1, z1, x2, y2, z2, status) bind(c, name="trvpsl")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvpsl
      real(c_float), intent(in) :: x0, y0, z0, x1, y1, z1, x2, y2, z2
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Moves the origin of points to (dx, dy, dz), in place.
    subroutine trv3tra(X, Y, Z, n, dx, dy, dz) bind(c, name="trv3tra")
      import :: c_float, c_int32_t
      TRELVIN_CALL trv3tra
      real(c_float), intent(inout) :: X(*), Y(*), Z(*)
      integer(c_int32_t), intent(in) :: n
      real(c_float), intent(in) :: dx, dy, dz
    end subroutine

    !> Applies a frame matrix to one point, in place.
    subroutine trvtrn(p, a1, a2, a3, a4, a5, a6, a7, a8, a9, mode) bind(c, name="trvtrn")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvtrn
      real(c_float), intent(inout) :: p(*)
      real(c_float), intent(in) :: a1, a2, a3, a4, a5, a6, a7, a8, a9
      integer(c_int32_t), intent(in) :: mode
    end subroutine

    !> Frame of the plane through three points.
    !! status: outcome (TrvFrame): 0 done: the outputs are computed; -2 no_frame: P2 is at P0 or P1,
    !! or the three points are on one line (trvpsl).
    subroutine trvaxe(x0, y0, z0, x1, y1, z1, x2, y2, z2, e1x, e1y, e1z, e2x, e2y, e2z, e3x, e3y, &
        e3z, status) bind(c, name="trvaxe")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvaxe
      real(c_float), intent(in) :: x0, y0, z0, x1, y1, z1, x2, y2, z2
      real(c_float), intent(out) :: e1x, e1y, e1z, e2x, e2y, e2z, e3x, e3y, e3z
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Frame of an axis from P0 to P1.
    !! status: outcome (TrvFrame): 0 done: also for an axis along y; -2 no_frame: the distance of P0
    !! and P1 is within the tolerance.
    subroutine trvaxel(x0, y0, z0, x1, y1, z1, angle, e1x, e1y, e1z, e2x, e2y, e2z, e3x, e3y, e3z, &
        status) bind(c, name="trvaxel")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvaxel
      real(c_float), intent(in) :: x0, y0, z0, x1, y1, z1, angle
      real(c_float), intent(out) :: e1x, e1y, e1z, e2x, e2y, e2z, e3x, e3y, e3z
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Shifts points and rotates them about the global axes x, y and z, in this order and in place.
    subroutine trvptr(X, Y, Z, n, x0, y0, z0, ax, ay, az) bind(c, name="trvptr")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvptr
      real(c_float), intent(inout) :: X(*), Y(*), Z(*)
      integer(c_int32_t), intent(in) :: n
      real(c_float), intent(in) :: x0, y0, z0, ax, ay, az
    end subroutine

    !> Shifts points and rotates them in the frame of three points, in place.
    !! status: outcome (TrvFrame): 0 done: the outputs are computed; -2 no_frame: P2 is at P0 or P1,
    !! or the three points are on one line (trvpsl).
    subroutine trvptrl(x0, y0, z0, x1, y1, z1, x2, y2, z2, X, Y, Z, n, dx, dy, dz, ax, ay, az, &
        status) bind(c, name="trvptrl")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvptrl
      real(c_float), intent(in) :: x0, y0, z0, x1, y1, z1, x2, y2, z2
      real(c_float), intent(inout) :: X(*), Y(*), Z(*)
      integer(c_int32_t), intent(in) :: n
      real(c_float), intent(in) :: dx, dy, dz, ax, ay, az
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Rotates points about the axis from P0 through P1, in place.
    !! status: outcome (TrvFrame): 0 done: also for an axis along y; -2 no_frame: the distance of P0
    !! and P1 is within the tolerance.
    subroutine trvpra(x0, y0, z0, x1, y1, z1, X, Y, Z, n, angle, status) bind(c, name="trvpra")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvpra
      real(c_float), intent(in) :: x0, y0, z0, x1, y1, z1
      real(c_float), intent(inout) :: X(*), Y(*), Z(*)
      integer(c_int32_t), intent(in) :: n
      real(c_float), intent(in) :: angle
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Rotates points of a plane in the frame of the three points that span it, then shifts them, in
    !! place.
    !! status: outcome: 0 done: the points are moved; -1 no_frame: P2 is at P0 or P1, or the three
    !! points are on one line (trvpsl); 1 to n: position of the first point off the plane.
    subroutine trvppc(x0, y0, z0, x1, y1, z1, x2, y2, z2, dx, dy, dz, ax, ay, az, n, X, Y, Z, tol, &
        status) bind(c, name="trvppc")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvppc
      real(c_float), intent(in) :: x0, y0, z0, x1, y1, z1, x2, y2, z2, dx, dy, dz, ax, ay, az
      integer(c_int32_t), intent(in) :: n
      real(c_float), intent(inout) :: X(*), Y(*), Z(*)
      real(c_float), intent(in) :: tol
      integer(c_int32_t), intent(out) :: status
    end subroutine

    ! Planes of space

    !> Plane through a point, spanned by two directions.
    subroutine trvplg(x, y, z, ux, uy, uz, wx, wy, wz, a, b, c, d) bind(c, name="trvplg")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvplg
      real(c_float), intent(in) :: x, y, z, ux, uy, uz, wx, wy, wz
      real(c_float), intent(out) :: a, b, c, d
    end subroutine

    !> Plane through three points: (a, b, c) = (P1 - P0) x (P2 - P0).
    !! status: three-point test (TrvThreePoints): 0 spans_plane: P0, P1 and P2 span a plane; 1
    !! at_p0: P2 is at P0; 2 at_p1: P2 is at P1; 3 between: P2 is between P0 and P1; 4 beyond_p0: P2
    !! is beyond P0 on the line of P0 and P1; 5 beyond_p1: P2 is beyond P1 on the line of P0 and P1.
    subroutine trvpl1(x0, y0, z0, x1, y1, z1, x2, y2, z2, a, b, c, d, &
        status) bind(c, name="trvpl1")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvpl1
      real(c_float), intent(in) :: x0, y0, z0, x1, y1, z1, x2, y2, z2
      real(c_float), intent(out) :: a, b, c, d
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Plane through a point, parallel to two lines.
    !! status: outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line: the lines are
    !! the same, of the same direction; 4 opposite_line: the lines are the same, of opposite
    !! direction; 7 no_length: A and B, or C and D, coincide (trvcnt).
    subroutine trvpl2(x, y, z, xa, ya, za, xb, yb, zb, xc, yc, zc, xd, yd, zd, a, b, c, d, &
        status) bind(c, name="trvpl2")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvpl2
      real(c_float), intent(in) :: x, y, z, xa, ya, za, xb, yb, zb, xc, yc, zc, xd, yd, zd
      real(c_float), intent(out) :: a, b, c, d
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Plane that contains one line and is parallel to another: trvpl2 through A.
    !! status: outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line: the lines are
    !! the same, of the same direction; 4 opposite_line: the lines are the same, of opposite
    !! direction; 7 no_length: A and B, or C and D, coincide (trvcnt).
    subroutine trvpl3(xa, ya, za, xb, yb, zb, xc, yc, zc, xd, yd, zd, a, b, c, d, &
        status) bind(c, name="trvpl3")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvpl3
      real(c_float), intent(in) :: xa, ya, za, xb, yb, zb, xc, yc, zc, xd, yd, zd
      real(c_float), intent(out) :: a, b, c, d
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Plane through a point, perpendicular to a segment.
    !! status: outcome (TrvCoincidence): 0 distinct: the plane is computed; 1 coincident: A and B
    !! coincide within the tolerance in each coordinate (trvcnt).
    subroutine trvpl4(x, y, z, xa, ya, za, xb, yb, zb, a, b, c, d, status) bind(c, name="trvpl4")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvpl4
      real(c_float), intent(in) :: x, y, z, xa, ya, za, xb, yb, zb
      real(c_float), intent(out) :: a, b, c, d
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Plane with given intercepts on the axes.
    !! status: outcome: 0 done: the plane is computed; 1 no_plane: there is no plane, since an
    !! intercept is within the tolerance or NaN.
    subroutine trvpl5(ix, iy, iz, a, b, c, d, status) bind(c, name="trvpl5")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvpl5
      real(c_float), intent(in) :: ix, iy, iz
      real(c_float), intent(out) :: a, b, c, d
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Plane of two lines, each given by a point and a direction.
    !! status: outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line: the lines are
    !! the same, of the same direction; 4 opposite_line: the lines are the same, of opposite
    !! direction; 6 skew: the lines are skew; 7 no_length: all components of a direction are within
    !! the tolerance.
    subroutine trvpl6(xa, ya, za, ux, uy, uz, xc, yc, zc, wx, wy, wz, a, b, c, d, &
        status) bind(c, name="trvpl6")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvpl6
      real(c_float), intent(in) :: xa, ya, za, ux, uy, uz, xc, yc, zc, wx, wy, wz
      real(c_float), intent(inout) :: a, b, c, d
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Plane of three points, rotated about the line from P0 to P1.
    !! status: three-point test (TrvThreePoints): 0 spans_plane: P0, P1 and P2 span a plane; 1
    !! at_p0: P2 is at P0, or P0 and P0 + normal coincide (trvcnt); 2 at_p1: P2 is at P1; 3 between:
    !! P2 is between P0 and P1; 4 beyond_p0: P2 is beyond P0 on the line of P0 and P1; 5 beyond_p1:
    !! P2 is beyond P1 on the line of P0 and P1.
    subroutine trvpl7(x0, y0, z0, x1, y1, z1, x2, y2, z2, angle, a, b, c, d, &
        status) bind(c, name="trvpl7")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvpl7
      real(c_float), intent(in) :: x0, y0, z0, x1, y1, z1, x2, y2, z2, angle
      real(c_float), intent(out) :: a, b, c, d
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Whether a point lies on the plane of three points.
    !! status: test (TrvOnPlane): 0 yes: the point lies on the plane, or P0 = P1, for which any
    !! point does; -1 no: the point does not lie on the plane, or the three points span no plane
    !! (trvpsl).
    subroutine trvpsp(x0, y0, z0, x1, y1, z1, x2, y2, z2, x, y, z, tol, &
        status) bind(c, name="trvpsp")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvpsp
      real(c_float), intent(in) :: x0, y0, z0, x1, y1, z1, x2, y2, z2, x, y, z, tol
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Signed distance of a point from a plane.
    subroutine trvpld(x, y, z, a, b, c, d, dist) bind(c, name="trvpld")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvpld
      real(c_float), intent(in) :: x, y, z, a, b, c, d
      real(c_float), intent(out) :: dist
    end subroutine

    !> Whether a point lies on a plane.
    !! status: test (TrvOnPlane): 0 yes: the point lies on the plane; -1 no: the point does not lie
    !! on the plane, or the distance is NaN; 1 zero_normal: the normal of the plane is exactly zero.
    subroutine trvpspg(x, y, z, a, b, c, d, tol, status) bind(c, name="trvpspg")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvpspg
      real(c_float), intent(in) :: x, y, z, a, b, c, d, tol
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Relation of two directions, taken as lines through the origin.
    !! status: relation: -1 zero_u: u is exactly zero; 0 oblique: u and w have neither the same,
    !! opposite nor perpendicular directions; 3 same: the directions are the same; 4 opposite: the
    !! directions are opposite; 5 perpendicular: the directions are perpendicular; 7 zero: all
    !! components of u, or of w, are within the tolerance.
    subroutine trvplv(ux, uy, uz, wx, wy, wz, v7, v8, status) bind(c, name="trvplv")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvplv
      real(c_float), intent(in) :: ux, uy, uz, wx, wy, wz, v7, v8
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Points of a list on a plane, by a running residual.
    subroutine trvpnp(X, Y, Z, a, b, c, d, n, count, index) bind(c, name="trvpnp")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvpnp
      real(c_float), intent(in) :: X(*), Y(*), Z(*), a, b, c
      real(c_float), intent(inout) :: d
      integer(c_int32_t), intent(in) :: n
      integer(c_int32_t), intent(out) :: count
      integer(c_int32_t), intent(inout) :: index(*)
    end subroutine

    ! Straight lines of space

    !> Relation of two lines.
    !! status: relation (TrvLines): 0 crossing: the lines cross, not at a right angle; 1
    !! parallel_same: parallel and distinct lines of the same direction; 2 parallel_opposite:
    !! parallel and distinct lines of opposite direction; 3 same_line: the same line, of the same
    !! direction; 4 opposite_line: the same line, of opposite direction; 5 perpendicular: the lines
    !! cross at a right angle; 6 skew: the lines are skew; 7 coincident: A and B, or C and D,
    !! coincide, each coordinate within the tolerance.
    subroutine trvdirl(xa, ya, za, xb, yb, zb, xc, yc, zc, xd, yd, zd, &
        status) bind(c, name="trvdirl")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvdirl
      real(c_float), intent(in) :: xa, ya, za, xb, yb, zb, xc, yc, zc, xd, yd, zd
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Whether three segments span space.
    !! status: test: 0 flat: the triple product of B - A, D - C and F - E is within the tolerance; 1
    !! spanning: the triple product is above the tolerance, in the cube of the length unit.
    subroutine trv3sp(xa, ya, za, xb, yb, zb, xc, yc, zc, xd, yd, zd, xe, ye, ze, xf, yf, zf, &
        status) bind(c, name="trv3sp")
      import :: c_float, c_int32_t
      TRELVIN_CALL trv3sp
      real(c_float), intent(in) :: xa, ya, za, xb, yb, zb, xc, yc, zc, xd, yd, zd, xe, ye, ze, xf, &
        yf, zf
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Distance of a point from a line.
    !! status: outcome (TrvStatus): 0 done: always.
    subroutine trv3ldb(xa, ya, za, xb, yb, zb, xq, yq, zq, status, dist) bind(c, name="trv3ldb")
      import :: c_float, c_int32_t
      TRELVIN_CALL trv3ldb
      real(c_float), intent(in) :: xa, ya, za, xb, yb, zb, xq, yq, zq
      integer(c_int32_t), intent(out) :: status
      real(c_float), intent(out) :: dist
    end subroutine

    !> Signed distance of a point from a line, in the plane of both.
    !! status: outcome (TrvStatus): 0 done: always.
    subroutine trv3lda(xa, ya, za, xb, yb, zb, xq, yq, zq, status, dist) bind(c, name="trv3lda")
      import :: c_float, c_int32_t
      TRELVIN_CALL trv3lda
      real(c_float), intent(in) :: xa, ya, za, xb, yb, zb, xq, yq, zq
      integer(c_int32_t), intent(out) :: status
      real(c_float), intent(out) :: dist
    end subroutine

    !> Intersection of the lines A + t*u and C + s*w.
    !! status: outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line: the lines are
    !! the same, of the same direction; 4 opposite_line: the lines are the same, of opposite
    !! direction; 6 skew: the lines are skew; 7 no_length: all components of a direction are within
    !! the tolerance.
    subroutine trv3lni(xa, ya, za, ux, uy, uz, xc, yc, zc, wx, wy, wz, status, xi, yi, &
        zi) bind(c, name="trv3lni")
      import :: c_float, c_int32_t
      TRELVIN_CALL trv3lni
      real(c_float), intent(inout) :: xa, ya, za
      real(c_float), intent(in) :: ux, uy, uz
      real(c_float), intent(inout) :: xc, yc, zc
      real(c_float), intent(in) :: wx, wy, wz
      integer(c_int32_t), intent(out) :: status
      real(c_float), intent(inout) :: xi, yi, zi
    end subroutine

    !> Intersection of the line P + t*u with a plane.
    !! status: outcome: 0 done: the point is computed; 3 parallel: the line is parallel to the
    !! plane, since the cosine of the angle between u and the normal is within the tolerance; 4
    !! zero: all components of u, or of the normal, are within the tolerance.
    subroutine trvpli(x, y, z, ux, uy, uz, a, b, c, d, xi, yi, zi, status) bind(c, name="trvpli")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvpli
      real(c_float), intent(in) :: x, y, z, ux, uy, uz, a, b, c, d
      real(c_float), intent(inout) :: xi, yi, zi
      integer(c_int32_t), intent(out) :: status
    end subroutine

    !> Position of a plane relative to the axes.
    !! position: position: 1 general: the plane is parallel to no axis; 2 parallel_x: the plane is
    !! parallel to the x axis; 3 parallel_y: the plane is parallel to the y axis; 4 parallel_z: the
    !! plane is parallel to the z axis; 5 normal_z: the plane is normal to the z axis; 6 normal_x:
    !! the plane is normal to the x axis; 7 normal_y: the plane is normal to the y axis; 8
    !! at_z_zero: the plane is z = 0; 9 at_x_zero: the plane is x = 0; 10 at_y_zero: the plane is y
    !! = 0.
    subroutine trvplp(a, b, c, d, position) bind(c, name="trvplp")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvplp
      real(c_float), intent(in) :: a, b, c, d
      integer(c_int32_t), intent(out) :: position
    end subroutine

    !> Points of a list near a line.
    !! status: outcome (TrvStatus): 0 done: always; unwritten if n < 1.
    subroutine trvpnl(xa, ya, za, xb, yb, zb, X, Y, zf, n, tol, status, count, &
        index) bind(c, name="trvpnl")
      import :: c_float, c_int32_t, trvfunction
      TRELVIN_CALL trvpnl
      real(c_float), intent(in) :: xa, ya, za, xb, yb, zb, X(*), Y(*)
      procedure(trvfunction) :: zf
      integer(c_int32_t), intent(in) :: n
      real(c_float), intent(in) :: tol
      integer(c_int32_t), intent(inout) :: status
      integer(c_int32_t), intent(out) :: count
      integer(c_int32_t), intent(inout) :: index(*)
    end subroutine

    !> Carries a point along when the line through it is moved.
    !! status: outcome: 0 not_moved: the three points are not collinear, or Q1 is at P; 3
    !! moved_one_side: Q2 is moved, Q1 and Q2 are on one side of P; 4 moved_either_side: Q2 is
    !! moved, Q1 and Q2 are on either side of P; 6 moved_skew: Q2 is moved, although the lines count
    !! as skew because of rounding; 7 moved_at_p: Q2 is moved, Q2 coincides with P, or each
    !! coordinate of Q1 is within the tolerance of P's although their distance is above it.
    subroutine trvlpc(xp, yp, zp, x1, y1, z1, x2, y2, z2, dxp, dyp, dzp, dx1, dy1, dz1, &
        status) bind(c, name="trvlpc")
      import :: c_float, c_int32_t
      TRELVIN_CALL trvlpc
      real(c_float), intent(in) :: xp, yp, zp, x1, y1, z1
      real(c_float), intent(inout) :: x2, y2, z2
      real(c_float), intent(in) :: dxp, dyp, dzp, dx1, dy1, dz1
      integer(c_int32_t), intent(out) :: status
    end subroutine

  end interface
end module trelvin
