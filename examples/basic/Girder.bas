Attribute VB_Name = "Girder"
' A welded box girder in sagging bending, S355: which part of its plates counts once they buckle,
' and the properties of what is left. Then an arc cut by a chord. Lengths in mm.
'
' The top plate is compressed evenly, the webs bend. The neutral axis lies where the reduced top
' plate puts it; the webs are reduced once for that axis. The table goes to the Immediate window.
Option Explicit

Private Const MOST_PLATES As Long = 12

Private Type Plates
    n As Long
    x1(1 To MOST_PLATES) As Single
    y1(1 To MOST_PLATES) As Single
    x2(1 To MOST_PLATES) As Single
    y2(1 To MOST_PLATES) As Single
    t(1 To MOST_PLATES) As Single
End Type

Private Type Figures
    A As Single
    xs As Single
    ys As Single
    Ix As Single
    Iy As Single
    Ixy As Single
    I1 As Single
    I2 As Single
    alpha As Single
    rx As Single
    ry As Single
    Wx1 As Single
    Wx2 As Single
    Wy1 As Single
    Wy2 As Single
    Wpx As Single
    Wpy As Single
    xp As Single
    yp As Single
End Type

Public Sub PrintGirder()
    Const b As Single = 1200   ' between the centre lines of the plates
    Const h As Single = 1600
    Const tTop As Single = 12
    Const tBottom As Single = 20
    Const tWeb As Single = 8
    Const stress As Single = 355   ' at the top edge, compression positive
    Const xLeft As Single = -b / 2
    Const xRight As Single = b / 2
    Dim r1 As Single, r2 As Single   ' strength and reference, square roots
    r1 = Sqr(355)
    r2 = Sqr(235)

    ' The top plate in pure compression.
    Dim top1 As Single, top2 As Single
    trvef2 b, b, tTop, r1, r2, stress, stress, top1, top2

    Dim grossWebs As Plates, first As Figures
    AddPlate grossWebs, xLeft, 0, xRight, 0, tBottom
    AddPlate grossWebs, xLeft, 0, xLeft, h, tWeb
    AddPlate grossWebs, xRight, 0, xRight, h, tWeb
    AddPlate grossWebs, xLeft, h, xLeft + top1, h, tTop
    AddPlate grossWebs, xRight, h, xRight - top2, h, tTop
    first = FiguresOf(grossWebs)

    ' The webs in bending about that axis.
    Dim compressed As Single, tension As Single, web1 As Single, web2 As Single
    compressed = h - first.ys
    tension = -stress * first.ys / compressed
    trvef2 h, compressed, tWeb, r1, r2, stress, tension, web1, web2

    Dim reduced As Plates, last As Figures
    AddPlate reduced, xLeft, 0, xRight, 0, tBottom
    AddPlate reduced, xLeft, 0, xLeft, first.ys + web2, tWeb
    AddPlate reduced, xRight, 0, xRight, first.ys + web2, tWeb
    AddPlate reduced, xLeft, h, xLeft + top1, h, tTop
    AddPlate reduced, xRight, h, xRight - top2, h, tTop
    AddPlate reduced, xLeft, h, xLeft, h - web1, tWeb
    AddPlate reduced, xRight, h, xRight, h - web1, tWeb
    last = FiguresOf(reduced)

    ' An arc about (250, -400) from A to B, and the point of it above a station of its chord.
    Dim x As Single, y As Single, shorter As Single, longer As Single, status As Long
    trvcer8 250!, -400!, 850!, 400!, -550!, 200!, -1&, 500!, x, y, status
    trvarc1 250!, -400!, 850!, 400!, -550!, 200!, shorter, longer, status

    PrintRow "top plate", top1, top2, 2, "mm"
    PrintRow "web", web1, web2, 2, "mm"
    PrintRow "neutral axis", first.ys, last.ys, 2, "mm"
    PrintRow "area", first.A / 100, last.A / 100, 2, "cm2"
    PrintRow "I1, I2", last.I1 / 1E7, last.I2 / 1E7, 1, "1000 cm4"
    Debug.Print "alpha          " & Column(last.alpha, 5) & " rad"
    PrintRow "Wx top, bottom", last.Wx1 / 1000, last.Wx2 / 1000, 1, "cm3"
    PrintRow "arc above 500", x, y, 2, "mm"
    PrintRow "arc lengths", shorter, longer, 2, "mm"
End Sub

Private Sub AddPlate(p As Plates, ByVal x1 As Single, ByVal y1 As Single, ByVal x2 As Single, _
                     ByVal y2 As Single, ByVal t As Single)
    p.n = p.n + 1
    p.x1(p.n) = x1
    p.y1(p.n) = y1
    p.x2(p.n) = x2
    p.y2(p.n) = y2
    p.t(p.n) = t
End Sub

' Bending figures; those of torsion are not written for a closed section.
Private Function FiguresOf(p As Plates) As Figures
    Dim f As Figures, w1(1 To MOST_PLATES) As Single, w2(1 To MOST_PLATES) As Single
    Dim It As Single, Wt As Single, xm As Single, ym As Single, Iw As Single, r0 As Single
    Dim status As Long
    trvmxt p.n, p.x1(1), p.y1(1), p.x2(1), p.y2(1), p.t(1), f.A, f.xs, f.ys, f.Ix, f.Iy, f.Ixy, _
           f.I1, f.I2, f.alpha, f.rx, f.ry, f.Wx1, f.Wx2, f.Wy1, f.Wy2, f.Wpx, f.Wpy, f.xp, f.yp, _
           It, Wt, xm, ym, Iw, r0, w1(1), w2(1), status
    If status = trvStatusRefused Then Err.Raise 5, , "a plate without length or thickness"
    FiguresOf = f
End Function

Private Sub PrintRow(ByVal label As String, ByVal first As Double, ByVal second As Double, _
                     ByVal decimals As Long, ByVal unit As String)
    Debug.Print Left$(label & Space$(15), 15) & Column(first, decimals) & " " & _
                Column(second, decimals) & " " & unit
End Sub

' Nine characters wide, whatever sign the system has for decimals.
Private Function Column(ByVal value As Double, ByVal decimals As Long) As String
    Dim digits As String
    digits = Replace(Format$(value, "0." & String$(decimals, "0")), ",", ".")
    Column = Right$(Space$(9) & digits, 9)
End Function
