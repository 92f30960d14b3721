! A welded box girder in sagging bending, S355: which part of its plates counts once they buckle,
! and the properties of what is left. Then an arc cut by a chord. Lengths in mm.
!
! The top plate is compressed evenly, the webs bend. The neutral axis lies where the reduced top
! plate puts it; the webs are reduced once for that axis.
program girder
  use trelvin
  implicit none

  integer, parameter :: rk = c_float, ik = c_int32_t
  integer, parameter :: most_plates = 12

  type :: plate_list
    integer(ik) :: n = 0
    real(rk), dimension(most_plates) :: x1, y1, x2, y2, t
  end type

  type :: section_figures
    real(rk) :: A, xs, ys, Ix, Iy, Ixy, I1, I2, alpha, rx, ry, Wx1, Wx2, Wy1, Wy2, Wpx, Wpy, xp, yp
  end type

  real(rk), parameter :: b = 1200, h = 1600  ! between the centre lines of the plates
  real(rk), parameter :: t_top = 12, t_bottom = 20, t_web = 8
  real(rk), parameter :: r1 = sqrt(355.0_rk), r2 = sqrt(235.0_rk)  ! strength and reference, roots
  real(rk), parameter :: stress = 355  ! at the top edge, compression positive
  real(rk), parameter :: left = -b / 2, right = b / 2
  ! An arc about C from A to B, and the station of its chord above which a point is wanted.
  real(rk), parameter :: xc = 250, yc = -400, xa = 850, ya = 400, xb = -550, yb = 200, station = 500
  integer(ik), parameter :: side = -1

  character(*), parameter :: one = "(a, t15, 2f10.1, 1x, a)", two = "(a, t15, 2f10.2, 1x, a)"

  type(plate_list) :: gross_webs, reduced
  type(section_figures) :: first, last
  real(rk) :: top1, top2, web1, web2, compressed, x, y, shorter, longer
  integer(ik) :: status

  ! The top plate in pure compression.
  call trvef2(b, b, t_top, r1, r2, stress, stress, top1, top2)

  call add(gross_webs, left, 0.0_rk, right, 0.0_rk, t_bottom)
  call add(gross_webs, left, 0.0_rk, left, h, t_web)
  call add(gross_webs, right, 0.0_rk, right, h, t_web)
  call add(gross_webs, left, h, left + top1, h, t_top)
  call add(gross_webs, right, h, right - top2, h, t_top)
  first = figures_of(gross_webs)

  ! The webs in bending about that axis.
  compressed = h - first%ys
  call trvef2(h, compressed, t_web, r1, r2, stress, -stress * first%ys / compressed, web1, web2)

  call add(reduced, left, 0.0_rk, right, 0.0_rk, t_bottom)
  call add(reduced, left, 0.0_rk, left, first%ys + web2, t_web)
  call add(reduced, right, 0.0_rk, right, first%ys + web2, t_web)
  call add(reduced, left, h, left + top1, h, t_top)
  call add(reduced, right, h, right - top2, h, t_top)
  call add(reduced, left, h, left, h - web1, t_web)
  call add(reduced, right, h, right, h - web1, t_web)
  last = figures_of(reduced)

  call trvcer8(xc, yc, xa, ya, xb, yb, side, station, x, y, status)
  if (status /= trv_arc_done) error stop "no point above the station"
  call trvarc1(xc, yc, xa, ya, xb, yb, shorter, longer, status)

  print two, "top plate", top1, top2, "mm"
  print two, "web", web1, web2, "mm"
  print two, "neutral axis", first%ys, last%ys, "mm"
  print two, "area", first%A / 100, last%A / 100, "cm2"
  print one, "I1, I2", last%I1 / 1e7_rk, last%I2 / 1e7_rk, "1000 cm4"
  print "(a, t15, f10.5, 1x, a)", "alpha", last%alpha, "rad"
  print one, "Wx top, bottom", last%Wx1 / 1000, last%Wx2 / 1000, "cm3"
  print two, "arc above 500", x, y, "mm"
  print two, "arc lengths", shorter, longer, "mm"

contains

  subroutine add(plates, x1, y1, x2, y2, t)
    type(plate_list), intent(inout) :: plates
    real(rk), intent(in) :: x1, y1, x2, y2, t

    plates%n = plates%n + 1
    plates%x1(plates%n) = x1
    plates%y1(plates%n) = y1
    plates%x2(plates%n) = x2
    plates%y2(plates%n) = y2
    plates%t(plates%n) = t
  end subroutine

  ! Bending figures; those of torsion are not written for a closed section.
  function figures_of(p) result(f)
    type(plate_list), intent(in) :: p
    type(section_figures) :: f
    real(rk) :: It, Wt, xm, ym, Iw, r0
    real(rk), dimension(most_plates) :: w1, w2
    integer(ik) :: status

    call trvmxt(p%n, p%x1, p%y1, p%x2, p%y2, p%t, f%A, f%xs, f%ys, f%Ix, f%Iy, f%Ixy, f%I1, f%I2, &
                f%alpha, f%rx, f%ry, f%Wx1, f%Wx2, f%Wy1, f%Wy2, f%Wpx, f%Wpy, f%xp, f%yp, &
                It, Wt, xm, ym, Iw, r0, w1, w2, status)
    if (status == trv_status_refused) error stop "a plate without length or thickness"
  end function
end program
