Attribute VB_Name = "Trelvin"
' Generated from include/trelvin by tools/generate.py.
'
' Every routine of Trelvin for Visual Basic 6 and for Basic in Office. Every argument goes by its
' address, an array by the first element that counts: X(0), or X(1). A literal is passed as the type
' it has: 1! is a Single, 1& a Long. The contracts are in include/trelvin.
Option Explicit

Public Const TrelvinVersion As String = "1.1.1"


' Whether a computation was done.
Public Const trvStatusDone As Long = 0
Public Const trvStatusRefused As Long = -1

' Whether a point of an arc was found. Caution: here 1 means done.
Public Const trvArcDone As Long = 1
Public Const trvArcRefused As Long = 0

' Whether a frame was found.
Public Const trvFrameDone As Long = 0
Public Const trvFrameNoFrame As Long = -2

' Whether two points coincide: each difference of their coordinates is within the tolerance.
Public Const trvCoincidenceDistinct As Long = 0
Public Const trvCoincidenceCoincident As Long = 1

' How many points were found.
Public Const trvPointsNone As Long = 0
Public Const trvPointsOne As Long = 1
Public Const trvPointsTwo As Long = 2

' Which of three components are above the tolerance.
Public Const trvComponentsNone As Long = 0
Public Const trvComponentsAll As Long = 1
Public Const trvComponentsFirst As Long = 2
Public Const trvComponentsSecond As Long = 3
Public Const trvComponentsThird As Long = 4
Public Const trvComponentsFirstSecond As Long = 5
Public Const trvComponentsSecondThird As Long = 6
Public Const trvComponentsFirstThird As Long = 7

' Whether a point lies on a line of space.
Public Const trvOnLineNo As Long = 0
Public Const trvOnLineYes As Long = 1

' Whether a point lies on a plane. Caution: 0 means yes.
Public Const trvOnPlaneYes As Long = 0
Public Const trvOnPlaneNo As Long = -1
Public Const trvOnPlaneZeroNormal As Long = 1

' How two lines of the plane lie to each other.
Public Const trvPlaneLinesOnePoint As Long = 0
Public Const trvPlaneLinesSameLine As Long = 1
Public Const trvPlaneLinesParallel As Long = 2

' Three-point test (trvpsl): where P2 is, seen from P0 and P1.
Public Const trvThreePointsSpansPlane As Long = 0
Public Const trvThreePointsAtP0 As Long = 1
Public Const trvThreePointsAtP1 As Long = 2
Public Const trvThreePointsBetween As Long = 3
Public Const trvThreePointsBeyondP0 As Long = 4
Public Const trvThreePointsBeyondP1 As Long = 5

' How two lines of space lie to each other (trvdirl).
Public Const trvLinesCrossing As Long = 0
Public Const trvLinesParallelSame As Long = 1
Public Const trvLinesParallelOpposite As Long = 2
Public Const trvLinesSameLine As Long = 3
Public Const trvLinesOppositeLine As Long = 4
Public Const trvLinesPerpendicular As Long = 5
Public Const trvLinesSkew As Long = 6
Public Const trvLinesCoincident As Long = 7

' Outcome for two lines of space: a result, or the relation that allows no result.
Public Const trvTwoLinesDone As Long = 0
Public Const trvTwoLinesSameLine As Long = 3
Public Const trvTwoLinesOppositeLine As Long = 4
Public Const trvTwoLinesSkew As Long = 6
Public Const trvTwoLinesNoLength As Long = 7

' Kind of a part of a section.
Public Const trvPartConcentrated As Long = 1
Public Const trvPartPolygon As Long = 2
Public Const trvPartCircle As Long = 3
Public Const trvPartSmallerSegment As Long = 4
Public Const trvPartLargerSegment As Long = 5

' trvcin: class.
Public Const trvcinUncutAbove As Long = 1
Public Const trvcinUncutBelow As Long = 2
Public Const trvcinCutBelow As Long = 3
Public Const trvcinCutAbove As Long = 4

' trvapp: where each point is.
Public Const trvappInside As Long = 1
Public Const trvappOutside As Long = 2
Public Const trvappNoSector As Long = -1

' trvcer10: outcome.
Public Const trvcer10CrossingOrRefused As Long = 0
Public Const trvcer10AlongChord As Long = 1
Public Const trvcer10Parallel As Long = 2

' trvptp1: which points of A match a point of B.
Public Const trvptp1NoPair As Long = 0
Public Const trvptp1SomePairs As Long = 1
Public Const trvptp1AllPaired As Long = 2

' trvpin: where P1 is.
Public Const trvpinInside As Long = 1
Public Const trvpinOutside As Long = 0
Public Const trvpinRefused As Long = -1

' trvcnt1: test.
Public Const trvcnt1Zero As Long = 1
Public Const trvcnt1Nonzero As Long = 0

' trvvin: sign.
Public Const trvvinPositive As Long = 1
Public Const trvvinNotPositive As Long = 2

' trvpos1: what was found.
Public Const trvpos1AtEntry As Long = 1
Public Const trvpos1Between As Long = 2
Public Const trvpos1Neither As Long = 0

' trvphip: outcome.
Public Const trvphipNoLength As Long = -1

' trvcnv: test.
Public Const trvcnvConvex As Long = 1
Public Const trvcnvNotConvex As Long = 0
Public Const trvcnvRefused As Long = -1

' trvdir: relation.
Public Const trvdirOblique As Long = 0
Public Const trvdirSame As Long = 1
Public Const trvdirOpposite As Long = 2
Public Const trvdirPerpendicular As Long = 3
Public Const trvdirZero As Long = 4

' trvdirp: relation.
Public Const trvdirpCrossing As Long = 0
Public Const trvdirpParallelSame As Long = 1
Public Const trvdirpParallelOpposite As Long = 2
Public Const trvdirpCoincidentSame As Long = 3
Public Const trvdirpCoincidentOpposite As Long = 4
Public Const trvdirpPerpendicular As Long = 5
Public Const trvdirpZeroNormal As Long = 6

' trvppc: outcome.
Public Const trvppcDone As Long = 0
Public Const trvppcNoFrame As Long = -1

' trvpl5: outcome.
Public Const trvpl5Done As Long = 0
Public Const trvpl5NoPlane As Long = 1

' trvplv: relation.
Public Const trvplvZeroU As Long = -1
Public Const trvplvOblique As Long = 0
Public Const trvplvSame As Long = 3
Public Const trvplvOpposite As Long = 4
Public Const trvplvPerpendicular As Long = 5
Public Const trvplvZero As Long = 7

' trv3sp: test.
Public Const trv3spFlat As Long = 0
Public Const trv3spSpanning As Long = 1

' trvpli: outcome.
Public Const trvpliDone As Long = 0
Public Const trvpliParallel As Long = 3
Public Const trvpliZero As Long = 4

' trvplp: position.
Public Const trvplpGeneral As Long = 1
Public Const trvplpParallelX As Long = 2
Public Const trvplpParallelY As Long = 3
Public Const trvplpParallelZ As Long = 4
Public Const trvplpNormalZ As Long = 5
Public Const trvplpNormalX As Long = 6
Public Const trvplpNormalY As Long = 7
Public Const trvplpAtZZero As Long = 8
Public Const trvplpAtXZero As Long = 9
Public Const trvplpAtYZero As Long = 10

' trvlpc: outcome.
Public Const trvlpcNotMoved As Long = 0
Public Const trvlpcMovedOneSide As Long = 3
Public Const trvlpcMovedEitherSide As Long = 4
Public Const trvlpcMovedSkew As Long = 6
Public Const trvlpcMovedAtP As Long = 7

' Names of version 1.1, which the next version drops.
Public Const trvcer3Done As Long = 1
Public Const trvcer3Refused As Long = 0
Public Const trvcer8Done As Long = 1
Public Const trvcer8Refused As Long = 0
Public Const trvcer6Done As Long = 1
Public Const trvcer6Refused As Long = 0
Public Const trvcer9Done As Long = 1
Public Const trvcer9Refused As Long = 0
Public Const trvarc1Done As Long = 1
Public Const trvarc1Refused As Long = 0
Public Const trvcer4Done As Long = 1
Public Const trvcer4Refused As Long = 0
Public Const trvcer5Done As Long = 1
Public Const trvcer5Refused As Long = 0
Public Const trvcer7Done As Long = 1
Public Const trvcer7Refused As Long = 0
Public Const trvardDone As Long = 1
Public Const trvardRefused As Long = 0
Public Const trvporOrdered As Long = 0
Public Const trvporRefused As Long = -1
Public Const trvcntCoincident As Long = 1
Public Const trvcntDistinct As Long = 0
Public Const trv123Done As Long = 0
Public Const trv123Coincident As Long = 1
Public Const trvchiDone As Long = 0
Public Const trvchiCoincident As Long = 1
Public Const trvtrgDone As Long = 0
Public Const trvtrgCoincident As Long = 1
Public Const trvpl4Done As Long = 0
Public Const trvpl4Coincident As Long = 1
Public Const trvlniOnePoint As Long = 0
Public Const trvlniSameLine As Long = 1
Public Const trvlniParallel As Long = 2
Public Const trvlulOnePoint As Long = 0
Public Const trvlulSameLine As Long = 1
Public Const trvlulParallel As Long = 2
Public Const trvpsnNone As Long = 0
Public Const trvpsnAll As Long = 1
Public Const trvpsnFirst As Long = 2
Public Const trvpsnSecond As Long = 3
Public Const trvpsnThird As Long = 4
Public Const trvpsnFirstSecond As Long = 5
Public Const trvpsnSecondThird As Long = 6
Public Const trvpsnFirstThird As Long = 7
Public Const trvln6None As Long = 0
Public Const trvln6All As Long = 1
Public Const trvln6First As Long = 2
Public Const trvln6Second As Long = 3
Public Const trvln6Third As Long = 4
Public Const trvln6FirstSecond As Long = 5
Public Const trvln6SecondThird As Long = 6
Public Const trvln6FirstThird As Long = 7
Public Const trvln7None As Long = 0
Public Const trvln7All As Long = 1
Public Const trvln7First As Long = 2
Public Const trvln7Second As Long = 3
Public Const trvln7Third As Long = 4
Public Const trvln7FirstSecond As Long = 5
Public Const trvln7SecondThird As Long = 6
Public Const trvln7FirstThird As Long = 7
Public Const trvln6OnLine As Long = 1
Public Const trvln6OffLine As Long = 0
Public Const trvln7OnLine As Long = 1
Public Const trvln7OffLine As Long = 0
Public Const trvmxtDone As Long = 0
Public Const trvmxtRefused As Long = -1
Public Const trvmxtFbDone As Long = 0
Public Const trvmxtFbRefused As Long = -1
Public Const trvpslSpansPlane As Long = 0
Public Const trvpslAtP0 As Long = 1
Public Const trvpslAtP1 As Long = 2
Public Const trvpslBetween As Long = 3
Public Const trvpslBeyondP0 As Long = 4
Public Const trvpslBeyondP1 As Long = 5
Public Const trvpl1Done As Long = 0
Public Const trvpl1AtP0 As Long = 1
Public Const trvpl1AtP1 As Long = 2
Public Const trvpl1Between As Long = 3
Public Const trvpl1BeyondP0 As Long = 4
Public Const trvpl1BeyondP1 As Long = 5
Public Const trvpl7Done As Long = 0
Public Const trvpl7AtP0 As Long = 1
Public Const trvpl7AtP1 As Long = 2
Public Const trvpl7Between As Long = 3
Public Const trvpl7BeyondP0 As Long = 4
Public Const trvpl7BeyondP1 As Long = 5
Public Const trvaxeDone As Long = 0
Public Const trvaxeNoFrame As Long = -2
Public Const trvaxelDone As Long = 0
Public Const trvaxelNoFrame As Long = -2
Public Const trvptrlDone As Long = 0
Public Const trvptrlNoFrame As Long = -2
Public Const trvpraDone As Long = 0
Public Const trvpraNoFrame As Long = -2
Public Const trvpl2Done As Long = 0
Public Const trvpl2SameLine As Long = 3
Public Const trvpl2OppositeLine As Long = 4
Public Const trvpl2Coincident As Long = 7
Public Const trvpl3Done As Long = 0
Public Const trvpl3SameLine As Long = 3
Public Const trvpl3OppositeLine As Long = 4
Public Const trvpl3Coincident As Long = 7
Public Const trvpl6Done As Long = 0
Public Const trvpl6SameLine As Long = 3
Public Const trvpl6OppositeLine As Long = 4
Public Const trvpl6Skew As Long = 6
Public Const trvpl6Zero As Long = 7
Public Const trv3lniDone As Long = 0
Public Const trv3lniSameLine As Long = 3
Public Const trv3lniOppositeLine As Long = 4
Public Const trv3lniSkew As Long = 6
Public Const trv3lniZero As Long = 7
Public Const trvpspOnPlane As Long = 0
Public Const trvpspOffPlane As Long = -1
Public Const trvpspgOnPlane As Long = 0
Public Const trvpspgOffPlane As Long = -1
Public Const trvpspgZeroNormal As Long = 1
Public Const trvdirlCrossing As Long = 0
Public Const trvdirlParallelSame As Long = 1
Public Const trvdirlParallelOpposite As Long = 2
Public Const trvdirlSameLine As Long = 3
Public Const trvdirlOppositeLine As Long = 4
Public Const trvdirlPerpendicular As Long = 5
Public Const trvdirlSkew As Long = 6
Public Const trvdirlCoincident As Long = 7
Public Const trv3ldbDone As Long = 0
Public Const trv3ldaDone As Long = 0
Public Const trvpnlDone As Long = 0

#If VBA7 And Win64 Then

' Circle from its centre and radius: D = -2*xc, E = -2*yc, F = xc*xc + yc*yc - r*r.
Public Declare PtrSafe Sub trvcer Lib "Trelvin64.dll" Alias "trvcer" (ByRef xc As Single, _
    ByRef yc As Single, ByRef r As Single, ByRef D As Single, ByRef E As Single, _
    ByRef F As Single)

' Intersection of a line and a circle.
' n: number of points (TrvPoints): 0 none: the line misses the circle; 1 one: the line touches the
' circle; 2 two: the line cuts the circle.
Public Declare PtrSafe Sub trvlci Lib "Trelvin64.dll" Alias "trvlci" (ByRef a As Single, _
    ByRef b As Single, ByRef c As Single, ByRef D As Single, ByRef E As Single, ByRef F As Single, _
    ByRef n As Long, ByRef x1 As Single, ByRef y1 As Single, ByRef x2 As Single, _
    ByRef y2 As Single)

' Intersection of two circles, computed as that of their radical line and the first circle (trvlci).
' n: number of points (TrvPoints): 0 none: the circles have no common point, or are concentric: |D2
' - D1| + |E2 - E1| is within the tolerance; 1 one: the circles touch; 2 two: the circles cut each
' other.
Public Declare PtrSafe Sub trvc12 Lib "Trelvin64.dll" Alias "trvc12" (ByRef D1 As Single, _
    ByRef E1 As Single, ByRef F1 As Single, ByRef D2 As Single, ByRef E2 As Single, _
    ByRef F2 As Single, ByRef n As Long, ByRef x1 As Single, ByRef y1 As Single, _
    ByRef x2 As Single, ByRef y2 As Single)

' Centres of the circles of a radius through two points.
' n: number of centres (TrvPoints): 0 none: P1 = P2 exactly, r is at most 1e-5 or less than half the
' chord, the discriminant is NaN, or the chord is horizontal; 1 one: both candidates are the same
' point; 2 two: there are two points.
Public Declare PtrSafe Sub trvcer2 Lib "Trelvin64.dll" Alias "trvcer2" (ByRef x1 As Single, _
    ByRef y1 As Single, ByRef x2 As Single, ByRef y2 As Single, ByRef side As Long, _
    ByRef r As Single, ByRef xa As Single, ByRef ya As Single, ByRef xb As Single, _
    ByRef yb As Single, ByRef xc As Single, ByRef yc As Single, ByRef n As Long)

' Circle through two points with a given sagitta.
' n: number of centres of trvcer2 (TrvPoints): 0 none: h < 1e-5, P1 = P2 exactly, r is at most 1e-5
' or less than half the chord, the discriminant is NaN, or the chord is horizontal; 1 one: both
' candidates are the same point; 2 two: there are two points.
Public Declare PtrSafe Sub trvcer1 Lib "Trelvin64.dll" Alias "trvcer1" (ByRef x1 As Single, _
    ByRef y1 As Single, ByRef x2 As Single, ByRef y2 As Single, ByRef side As Long, _
    ByRef h As Single, ByRef r As Single, ByRef xc As Single, ByRef yc As Single, ByRef n As Long)

' Classifies a circle cut by a line, with a trace.
' position: class: 1 uncut_above: the circle is not cut, its centre is above the x axis; 2
' uncut_below: the circle is not cut, its centre is on or below the x axis; 3 cut_below: the circle
' is cut, its centre is below the x axis; 4 cut_above: the circle is cut, its centre is on or above
' the x axis.
Public Declare PtrSafe Sub trvcin Lib "Trelvin64.dll" Alias "trvcin" (ByRef X As Single, _
    ByRef Y As Single, ByRef a As Single, ByRef b As Single, ByRef c As Single, _
    ByRef position As Long, ByRef x1 As Single, ByRef y1 As Single, ByRef x2 As Single, _
    ByRef y2 As Single)

' Rotates a point about a centre.
' status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the point's distance from
' the centre is within the tolerance.
Public Declare PtrSafe Sub trvcer3 Lib "Trelvin64.dll" Alias "trvcer3" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef x As Single, ByRef y As Single, ByRef angle As Single, _
    ByRef xr As Single, ByRef yr As Single, ByRef status As Long)

' Point of an arc above a station of its chord, perpendicular to the chord.
' status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the radius or the chord is
' at most 0.001, the radii of A and B differ by more than 0.001, or the station is not more than
' 0.001 inside both ends of the chord.
Public Declare PtrSafe Sub trvcer8 Lib "Trelvin64.dll" Alias "trvcer8" (ByRef xc As Single, _
    ByRef yc As Single, ByRef xa As Single, ByRef ya As Single, ByRef xb As Single, _
    ByRef yb As Single, ByRef side As Long, ByRef d As Single, ByRef x As Single, _
    ByRef y As Single, ByRef status As Long)

' Point of an arc on the line from its centre through a station of its chord.
' status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the radius or the chord is
' at most 0.001, the radii of A and B differ by more than 0.001, the station is not more than 0.001
' inside both ends of the chord, or d differs from the diameter by less than 0.001.
Public Declare PtrSafe Sub trvcer6 Lib "Trelvin64.dll" Alias "trvcer6" (ByRef xc As Single, _
    ByRef yc As Single, ByRef xa As Single, ByRef ya As Single, ByRef xb As Single, _
    ByRef yb As Single, ByRef side As Long, ByRef d As Single, ByRef x As Single, _
    ByRef y As Single, ByRef status As Long)

' Points of an arc above the two edges of a strip on its chord, perpendicular to the chord.
' status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the radius, the chord, d,
' the rest of the chord beyond d or the width is at most 0.001, the radii of A and B differ by more
' than 0.001, or an edge of the strip is less than 0.001 inside an end of the chord.
Public Declare PtrSafe Sub trvcer9 Lib "Trelvin64.dll" Alias "trvcer9" (ByRef xc As Single, _
    ByRef yc As Single, ByRef xa As Single, ByRef ya As Single, ByRef xb As Single, _
    ByRef yb As Single, ByRef side As Long, ByRef d As Single, ByRef w As Single, _
    ByRef x1 As Single, ByRef y1 As Single, ByRef x2 As Single, ByRef y2 As Single, _
    ByRef status As Long)

' Lengths of the two arcs between two points of a circle.
' status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the radius, or the distance
' of A and B, is within the tolerance.
Public Declare PtrSafe Sub trvarc1 Lib "Trelvin64.dll" Alias "trvarc1" (ByRef xc As Single, _
    ByRef yc As Single, ByRef xa As Single, ByRef ya As Single, ByRef xb As Single, _
    ByRef yb As Single, ByRef s1 As Single, ByRef s2 As Single, ByRef status As Long)

' Signed angle of a direction against the x axis.
Public Declare PtrSafe Sub trvaxph Lib "Trelvin64.dll" Alias "trvaxph" (ByRef dx As Single, _
    ByRef dy As Single, ByRef phi As Single)

' Distances of two points from the line of a segment, and their stations along it.
Public Declare PtrSafe Sub trvhin Lib "Trelvin64.dll" Alias "trvhin" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef z0 As Single, ByRef x1 As Single, ByRef y1 As Single, _
    ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, ByRef z2 As Single, _
    ByRef x3 As Single, ByRef y3 As Single, ByRef z3 As Single, ByRef h0 As Single, _
    ByRef s0 As Single, ByRef h3 As Single, ByRef s3 As Single, ByRef len_ As Single)

' Marks points as inside or outside a sector.
' mark: where each point is: 1 inside: the point is inside the sector; 2 outside: the point is
' outside the sector; -1 no_sector: the angle of the rays by trvphi is within the tolerance, so all
' points have this value.
Public Declare PtrSafe Sub trvapp Lib "Trelvin64.dll" Alias "trvapp" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef x1 As Single, ByRef y1 As Single, ByRef x2 As Single, _
    ByRef y2 As Single, ByRef n As Long, ByRef X As Single, ByRef Y As Single, ByRef mark As Long)

' Point of an arc on a line through a station of its chord.
' status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the radius or the chord is
' within the tolerance, the radii of A and B differ by more than the tolerance, A and B coincide, or
' the line is tangent to the circle.
Public Declare PtrSafe Sub trvcer4 Lib "Trelvin64.dll" Alias "trvcer4" (ByRef xc As Single, _
    ByRef yc As Single, ByRef xa As Single, ByRef ya As Single, ByRef xb As Single, _
    ByRef yb As Single, ByRef s As Single, ByRef angle As Single, ByRef xo As Single, _
    ByRef yo As Single, ByRef status As Long)

' Intersection of an arc's chord with a line through its rotated end.
' status: outcome: 0 crossing_or_refused: the line crosses the chord, which is the normal result, or
' an intersection kept from an earlier call lies on the chord's line but not at A or B (trvpsl above
' 2), or the input is rejected, since the radius or the chord is within the tolerance or the radii
' of A and B differ by more than the tolerance; 1 along_chord: the line runs along the chord; 2
' parallel: the line is parallel to the chord.
Public Declare PtrSafe Sub trvcer10 Lib "Trelvin64.dll" Alias "trvcer10" (ByRef xc As Single, _
    ByRef yc As Single, ByRef xa As Single, ByRef ya As Single, ByRef xb As Single, _
    ByRef yb As Single, ByRef turn As Single, ByRef angle As Single, ByRef xo As Single, _
    ByRef yo As Single, ByRef status As Long)

' Point of an arc on the line from a station of its chord to a point of the sagitta.
' status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: s is negative, e, the
' radius, the chord or its rest beyond s is at most 1e-5, the radii of A and B differ by more than
' 1e-5, or the line is tangent to the circle.
Public Declare PtrSafe Sub trvcer5 Lib "Trelvin64.dll" Alias "trvcer5" (ByRef xc As Single, _
    ByRef yc As Single, ByRef xa As Single, ByRef ya As Single, ByRef xb As Single, _
    ByRef yb As Single, ByRef s As Single, ByRef side As Long, ByRef e As Single, _
    ByRef xo As Single, ByRef yo As Single, ByRef status As Long)

' Intersections of a line through a station of an arc's chord with the arc and with a line parallel
' to the chord.
' status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: s or e is negative, the
' radius or the chord's rest beyond s is at most 1e-4, the radii of A and B differ by more than 1e-4
' and the rounding, side is 0, the line is parallel to the chord, or the part of the line inside the
' circle is not longer than 2e-4.
Public Declare PtrSafe Sub trvcer7 Lib "Trelvin64.dll" Alias "trvcer7" (ByRef xc As Single, _
    ByRef yc As Single, ByRef xa As Single, ByRef ya As Single, ByRef xb As Single, _
    ByRef yb As Single, ByRef s As Single, ByRef side As Long, ByRef e As Single, _
    ByRef angle As Single, ByRef xp As Single, ByRef yp As Single, ByRef xt As Single, _
    ByRef yt As Single, ByRef xo As Single, ByRef yo As Single, ByRef len_ As Single, _
    ByRef status As Long)

' Rounds the corner at P0 between the segments to P1 and to P2.
' status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: r or the length of a
' segment is not above the tolerance, the sine of the angle between the segments is within the
' tolerance, or a tangent point lies beyond the end of its segment by more than the tolerance.
Public Declare PtrSafe Sub trvard Lib "Trelvin64.dll" Alias "trvard" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef x1 As Single, ByRef y1 As Single, ByRef x2 As Single, _
    ByRef y2 As Single, ByRef r As Single, ByRef xc As Single, ByRef yc As Single, _
    ByRef xt1 As Single, ByRef yt1 As Single, ByRef xt2 As Single, ByRef yt2 As Single, _
    ByRef status As Long)

' Bounding box of the arc that a point sweeps about a centre.
Public Declare PtrSafe Sub trvenv Lib "Trelvin64.dll" Alias "trvenv" (ByRef xc As Single, _
    ByRef yc As Single, ByRef xa As Single, ByRef ya As Single, ByRef sweep As Single, _
    ByRef xmin As Single, ByRef ymin As Single, ByRef xmax As Single, ByRef ymax As Single)

' Sorts Reals ascending, in place.
Public Declare PtrSafe Sub trvord Lib "Trelvin64.dll" Alias "trvord" (ByRef V As Single, _
    ByRef n As Long)

' Sorts Integers ascending, in place.
Public Declare PtrSafe Sub trvord1 Lib "Trelvin64.dll" Alias "trvord1" (ByRef V As Long, _
    ByRef n As Long)

' Positions of the elements of a list in ascending order; the list itself is not changed.
Public Declare PtrSafe Sub trvordi Lib "Trelvin64.dll" Alias "trvordi" (ByRef V As Single, _
    ByRef n As Long, ByRef IDX As Long)

' Order of parallel lines by their intersections with an axis.
' status: outcome (TrvStatus): 0 done: IDX holds the order; -1 refused: the lines are not a family
' of parallel and distinct lines, or n < 1.
Public Declare PtrSafe Sub trvpor Lib "Trelvin64.dll" Alias "trvpor" (ByRef n As Long, _
    ByRef A As Single, ByRef B As Single, ByRef C As Single, ByRef IDX As Long, _
    ByRef status As Long)

' Puts the corners of a quadrilateral of space in cyclic order, in place.
Public Declare PtrSafe Sub trvorv Lib "Trelvin64.dll" Alias "trvorv" (ByRef X As Single, _
    ByRef Y As Single, ByRef Z As Single, ByRef ORD As Long)

' All positions at which a list holds a value.
Public Declare PtrSafe Sub trvsel1 Lib "Trelvin64.dll" Alias "trvsel1" (ByRef n As Long, _
    ByRef V As Long, ByRef key As Long, ByRef count As Long, ByRef pos As Long)

' All pairs of elements of two lists that differ by at most a tolerance.
Public Declare PtrSafe Sub trvmer13 Lib "Trelvin64.dll" Alias "trvmer13" (ByRef na As Long, _
    ByRef A As Single, ByRef nb As Long, ByRef B As Single, ByRef count As Long, ByRef IA As Long, _
    ByRef IB As Long, ByRef tol As Single)

' Joins two lists end to end. Elements are copied bit for bit, so the lists may also hold Reals.
Public Declare PtrSafe Sub trvmer1 Lib "Trelvin64.dll" Alias "trvmer1" (ByRef na As Long, _
    ByRef A As Long, ByRef nb As Long, ByRef B As Long, ByRef nout As Long, ByRef OUT As Long)

' Joins two lists end to end: trvmer1 under another name.
Public Declare PtrSafe Sub trvmer11 Lib "Trelvin64.dll" Alias "trvmer11" (ByRef na As Long, _
    ByRef A As Long, ByRef nb As Long, ByRef B As Long, ByRef nout As Long, ByRef OUT As Long)

' Sorts Integers ascending and removes duplicates, in place.
Public Declare PtrSafe Sub trvmer2 Lib "Trelvin64.dll" Alias "trvmer2" (ByRef V As Long, _
    ByRef n As Long)

' Sorts Reals ascending and removes duplicates within a tolerance, in place.
Public Declare PtrSafe Sub trvmer3 Lib "Trelvin64.dll" Alias "trvmer3" (ByRef V As Single, _
    ByRef n As Long)

' Sorts Reals ascending and removes duplicates within a tolerance, in place.
Public Declare PtrSafe Sub trvmer12 Lib "Trelvin64.dll" Alias "trvmer12" (ByRef V As Single, _
    ByRef n As Long, ByRef tol As Single)

' Appends to a list those elements of another that it does not hold yet.
Public Declare PtrSafe Sub trvmer4 Lib "Trelvin64.dll" Alias "trvmer4" (ByRef na As Long, _
    ByRef A As Single, ByRef nb As Long, ByRef B As Single, ByRef tol As Single, _
    ByRef nout As Long, ByRef OUT As Single, ByRef IB As Long)

' Elements of a list that another holds too.
Public Declare PtrSafe Sub trvmer14 Lib "Trelvin64.dll" Alias "trvmer14" (ByRef na As Long, _
    ByRef A As Long, ByRef nb As Long, ByRef B As Long, ByRef nout As Long, ByRef OUT As Long)

' Removes from a list the elements that another holds, in place.
Public Declare PtrSafe Sub trvmer15 Lib "Trelvin64.dll" Alias "trvmer15" (ByRef na As Long, _
    ByRef A As Long, ByRef nb As Long, ByRef B As Long, ByRef count As Long)

' Removes repeated vertices of a closed outline, in place.
Public Declare PtrSafe Sub trvmer16 Lib "Trelvin64.dll" Alias "trvmer16" (ByRef X As Single, _
    ByRef Y As Single, ByRef n As Long, ByRef tol As Single)

' All pairs of points of two lists that match within a tolerance in each coordinate.
' status: which points of A match a point of B: 0 no_pair: no point of A matches a point of B; 1
' some_pairs: some points of A match points of B, others do not; 2 all_paired: every point of A
' matches a point of B.
Public Declare PtrSafe Sub trvptp1 Lib "Trelvin64.dll" Alias "trvptp1" (ByRef na As Long, _
    ByRef XA As Single, ByRef YA As Single, ByRef ZA As Single, ByRef nb As Long, _
    ByRef XB As Single, ByRef YB As Single, ByRef ZB As Single, ByRef tol As Single, _
    ByRef count As Long, ByRef IA As Long, ByRef IB As Long, ByRef status As Long)

' Merges three lists of points into one list.
Public Declare PtrSafe Sub trvptp2 Lib "Trelvin64.dll" Alias "trvptp2" (ByRef na As Long, _
    ByRef XA As Single, ByRef YA As Single, ByRef ZA As Single, ByRef nb As Long, _
    ByRef XB As Single, ByRef YB As Single, ByRef ZB As Single, ByRef nc As Long, _
    ByRef XC As Single, ByRef YC As Single, ByRef ZC As Single, ByRef tol As Single, _
    ByRef nab As Long, ByRef IAB As Long, ByRef JAB As Long, ByRef nbc As Long, ByRef IBC As Long, _
    ByRef JBC As Long, ByRef nca As Long, ByRef ICA As Long, ByRef JCA As Long, _
    ByRef nout As Long, ByRef XO As Single, ByRef YO As Single, ByRef ZO As Single, _
    ByRef MA As Long, ByRef MB As Long, ByRef MC As Long, ByRef k As Long, ByRef nk As Long, _
    ByRef PK As Long, ByRef nz As Long, ByRef ZL As Single)

' Crossings of the horizontal line y = y0 with a closed outline.
Public Declare PtrSafe Sub trvppp Lib "Trelvin64.dll" Alias "trvppp" (ByRef X As Single, _
    ByRef Y As Single, ByRef n As Long, ByRef y0 As Single, ByRef count As Long, _
    ByRef XC As Single)

' Crossings of the segment from P1 to P2 with a closed outline.
' status: where P1 is: 1 inside: P1 is inside the outline by the even-odd rule; 0 outside: P1 is
' outside the outline by the even-odd rule; -1 refused: n < 3, or P1 and P2 coincide within the
' tolerance in both coordinates.
Public Declare PtrSafe Sub trvpin Lib "Trelvin64.dll" Alias "trvpin" (ByRef X As Single, _
    ByRef Y As Single, ByRef n As Long, ByRef x1 As Single, ByRef y1 As Single, _
    ByRef x2 As Single, ByRef y2 As Single, ByRef count As Long, ByRef XI As Single, _
    ByRef YI As Single, ByRef T As Single, ByRef EDGE As Long, ByRef status As Long)

' Distance between two points.
Public Declare PtrSafe Sub trvpds Lib "Trelvin64.dll" Alias "trvpds" (ByRef x1 As Single, _
    ByRef y1 As Single, ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, _
    ByRef z2 As Single, ByRef d As Single)

' Dot product of the difference vectors P2 - P1 and P4 - P3.
Public Declare PtrSafe Sub trvpri Lib "Trelvin64.dll" Alias "trvpri" (ByRef x1 As Single, _
    ByRef y1 As Single, ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, _
    ByRef z2 As Single, ByRef x3 As Single, ByRef y3 As Single, ByRef z3 As Single, _
    ByRef x4 As Single, ByRef y4 As Single, ByRef z4 As Single, ByRef s As Single)

' Cross product (P2 - P1) x (P4 - P3).
Public Declare PtrSafe Sub trvpre Lib "Trelvin64.dll" Alias "trvpre" (ByRef x1 As Single, _
    ByRef y1 As Single, ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, _
    ByRef z2 As Single, ByRef x3 As Single, ByRef y3 As Single, ByRef z3 As Single, _
    ByRef x4 As Single, ByRef y4 As Single, ByRef z4 As Single, ByRef c As Single)

' Difference vector of two points, and whether they coincide.
' status: coincidence (TrvCoincidence): 1 coincident: each difference is within the tolerance; 0
' distinct: a difference is above the tolerance or NaN.
Public Declare PtrSafe Sub trvcnt Lib "Trelvin64.dll" Alias "trvcnt" (ByRef x1 As Single, _
    ByRef y1 As Single, ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, _
    ByRef z2 As Single, ByRef dx As Single, ByRef dy As Single, ByRef dz As Single, _
    ByRef status As Long)

' Whether a vector is exactly zero; unlike trvcnt, no tolerance applies.
' status: test: 1 zero: all components are zero, of either sign; 0 nonzero: a component is not zero,
' or is NaN.
Public Declare PtrSafe Sub trvcnt1 Lib "Trelvin64.dll" Alias "trvcnt1" (ByRef dx As Single, _
    ByRef dy As Single, ByRef dz As Single, ByRef status As Long)

' Point P1 + t*(P2 - P1) on the line through two points.
' status: outcome (TrvCoincidence): 0 distinct: the output is written; 1 coincident: P1 and P2
' coincide within the tolerance (trvcnt).
Public Declare PtrSafe Sub trv123 Lib "Trelvin64.dll" Alias "trv123" (ByRef x1 As Single, _
    ByRef y1 As Single, ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, _
    ByRef z2 As Single, ByRef t As Single, ByRef x As Single, ByRef y As Single, _
    ByRef z As Single, ByRef status As Long)

' Midpoint of two points.
Public Declare PtrSafe Sub trvmed Lib "Trelvin64.dll" Alias "trvmed" (ByRef x1 As Single, _
    ByRef y1 As Single, ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, _
    ByRef z2 As Single, ByRef xm As Single, ByRef ym As Single, ByRef zm As Single)

' Determinant of the 2 x 2 matrix with rows (a, b) and (c, d).
Public Declare PtrSafe Sub trvdtr2 Lib "Trelvin64.dll" Alias "trvdtr2" (ByRef a As Single, _
    ByRef b As Single, ByRef c As Single, ByRef d As Single, ByRef det As Single)

' Determinant of a 3 x 3 matrix, expanded along its first row.
Public Declare PtrSafe Sub trvdtr3 Lib "Trelvin64.dll" Alias "trvdtr3" (ByRef a1 As Single, _
    ByRef a2 As Single, ByRef a3 As Single, ByRef b1 As Single, ByRef b2 As Single, _
    ByRef b3 As Single, ByRef c1 As Single, ByRef c2 As Single, ByRef c3 As Single, _
    ByRef det As Single)

' Divides two coefficients by a third, or gives zeros if the third is zero within the tolerance.
Public Declare PtrSafe Sub trvgrc Lib "Trelvin64.dll" Alias "trvgrc" (ByRef a As Single, _
    ByRef b As Single, ByRef c As Single, ByRef q1 As Single, ByRef q2 As Single)

' Linear interpolation, or extrapolation, through two samples.
Public Declare PtrSafe Sub trvint Lib "Trelvin64.dll" Alias "trvint" (ByRef x1 As Single, _
    ByRef x2 As Single, ByRef y1 As Single, ByRef y2 As Single, ByRef x As Single, _
    ByRef y As Single)

' Sign of a value.
' status: sign: 1 positive: v is positive; 2 not_positive: v is zero, negative or NaN.
Public Declare PtrSafe Sub trvvin Lib "Trelvin64.dll" Alias "trvvin" (ByRef u1 As Single, _
    ByRef v As Single, ByRef u3 As Single, ByRef u4 As Single, ByRef u5 As Single, _
    ByRef status As Long)

' Interval of an ascending table that holds a value.
Public Declare PtrSafe Sub trvpos Lib "Trelvin64.dll" Alias "trvpos" (ByRef n As Long, _
    ByRef A As Single, ByRef x As Single, ByRef i As Long)

' Element of an ascending table that equals a value, or the interval that holds it.
' status: what was found: 1 at_entry: A(i) equals x within the tolerance; 2 between: A(i) < x <
' A(i+1); 0 neither: x equals no element and lies in no interval.
Public Declare PtrSafe Sub trvpos1 Lib "Trelvin64.dll" Alias "trvpos1" (ByRef n As Long, _
    ByRef A As Single, ByRef x As Single, ByRef status As Long, ByRef i As Long)

' Line through two points.
Public Declare PtrSafe Sub trvln3 Lib "Trelvin64.dll" Alias "trvln3" (ByRef x1 As Single, _
    ByRef y1 As Single, ByRef x2 As Single, ByRef y2 As Single, ByRef a As Single, _
    ByRef b As Single, ByRef c As Single)

' Line through a point at an angle to the x axis.
Public Declare PtrSafe Sub trvln1 Lib "Trelvin64.dll" Alias "trvln1" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef phi As Single, ByRef a As Single, ByRef b As Single, _
    ByRef c As Single)

' Line through a point with a direction.
Public Declare PtrSafe Sub trvln4 Lib "Trelvin64.dll" Alias "trvln4" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef dx As Single, ByRef dy As Single, ByRef u As Single, _
    ByRef a As Single, ByRef b As Single, ByRef c As Single)

' Line parallel to a line at a signed distance.
Public Declare PtrSafe Sub trvln2 Lib "Trelvin64.dll" Alias "trvln2" (ByRef a As Single, _
    ByRef b As Single, ByRef c As Single, ByRef d As Single, ByRef a2 As Single, _
    ByRef b2 As Single, ByRef c2 As Single)

' Internal bisector of the angle at P0 between the rays to P1 and P2.
Public Declare PtrSafe Sub trvln5 Lib "Trelvin64.dll" Alias "trvln5" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef x1 As Single, ByRef y1 As Single, ByRef x2 As Single, _
    ByRef y2 As Single, ByRef a As Single, ByRef b As Single, ByRef c As Single)

' Signed distance of a point from a line.
Public Declare PtrSafe Sub trvlds Lib "Trelvin64.dll" Alias "trvlds" (ByRef x As Single, _
    ByRef y As Single, ByRef a As Single, ByRef b As Single, ByRef c As Single, ByRef d As Single)

' Intersection of two lines.
' status: relation (TrvPlaneLines): 0 one_point: the lines have one point in common; 1 same_line:
' the lines are the same; 2 parallel: the lines are parallel and distinct.
Public Declare PtrSafe Sub trvlni Lib "Trelvin64.dll" Alias "trvlni" (ByRef a1 As Single, _
    ByRef b1 As Single, ByRef c1 As Single, ByRef a2 As Single, ByRef b2 As Single, _
    ByRef c2 As Single, ByRef status As Long, ByRef x As Single, ByRef y As Single)

' Distance of two parallel lines.
' status: relation (TrvPlaneLines): 0 one_point: the lines have one point in common; 1 same_line:
' the lines are the same; 2 parallel: the lines are parallel and distinct, as trvlni finds.
Public Declare PtrSafe Sub trvlul Lib "Trelvin64.dll" Alias "trvlul" (ByRef a1 As Single, _
    ByRef b1 As Single, ByRef c1 As Single, ByRef a2 As Single, ByRef b2 As Single, _
    ByRef c2 As Single, ByRef d As Single, ByRef status As Long)

' Which components of two triples differ by more than the tolerance.
' code: which components of p - q are above the tolerance (TrvComponents): 0 none: no component is
' above the tolerance; 1 all: all three components are above the tolerance; 2 first: only the first
' component is above the tolerance; 3 second: only the second component is above the tolerance; 4
' third: only the third component is above the tolerance; 5 first_second: only the first and the
' second are above the tolerance; 6 second_third: only the second and the third are above the
' tolerance; 7 first_third: only the first and the third are above the tolerance.
Public Declare PtrSafe Sub trvpsn Lib "Trelvin64.dll" Alias "trvpsn" (ByRef p1 As Single, _
    ByRef p2 As Single, ByRef p3 As Single, ByRef q1 As Single, ByRef q2 As Single, _
    ByRef q3 As Single, ByRef code As Long)

' Whether a point lies on the line of space through P0 with direction D.
' code: which components of (P0 + D) - P0 are above the tolerance (TrvComponents): 0 none: no
' component is above the tolerance; 1 all: all three components are above the tolerance; 2 first:
' only the first component is above the tolerance; 3 second: only the second component is above the
' tolerance; 4 third: only the third component is above the tolerance; 5 first_second: only the
' first and the second are above the tolerance; 6 second_third: only the second and the third are
' above the tolerance; 7 first_third: only the first and the third are above the tolerance.
' on: test (TrvOnLine): 1 yes: P lies on the line; 0 no: P does not lie on the line, or code is 0.
Public Declare PtrSafe Sub trvln6 Lib "Trelvin64.dll" Alias "trvln6" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef z0 As Single, ByRef dx As Single, ByRef dy As Single, _
    ByRef dz As Single, ByRef px As Single, ByRef py As Single, ByRef pz As Single, _
    ByRef tol As Single, ByRef code As Long, ByRef on_ As Long)

' Direction of the line of two planes, and whether a point matches it at a retained coordinate.
' code: which components of (ex, ey, ez) are above the tolerance (TrvComponents): 0 none: no
' component is above the tolerance; 1 all: all three components are above the tolerance; 2 first:
' only the first component is above the tolerance; 3 second: only the second component is above the
' tolerance; 4 third: only the third component is above the tolerance; 5 first_second: only the
' first and the second are above the tolerance; 6 second_third: only the second and the third are
' above the tolerance; 7 first_third: only the first and the third are above the tolerance.
' on: test (TrvOnLine): 1 yes: P matches the line at the kept coordinate; 0 no: P does not match the
' line at the kept coordinate.
Public Declare PtrSafe Sub trvln7 Lib "Trelvin64.dll" Alias "trvln7" (ByRef a1 As Single, _
    ByRef b1 As Single, ByRef c1 As Single, ByRef d1 As Single, ByRef a2 As Single, _
    ByRef b2 As Single, ByRef c2 As Single, ByRef d2 As Single, ByRef px As Single, _
    ByRef py As Single, ByRef pz As Single, ByRef ex As Single, ByRef ey As Single, _
    ByRef ez As Single, ByRef tol As Single, ByRef code As Long, ByRef on_ As Long)

' Angle at P0 between the rays to P1 and P2, in the plane.
Public Declare PtrSafe Sub trvphi Lib "Trelvin64.dll" Alias "trvphi" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef x1 As Single, ByRef y1 As Single, ByRef x2 As Single, _
    ByRef y2 As Single, ByRef phi As Single)

' Angle at P0 between the rays to P1 and P2, in space.
Public Declare PtrSafe Sub trvphi3 Lib "Trelvin64.dll" Alias "trvphi3" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef z0 As Single, ByRef x1 As Single, ByRef y1 As Single, _
    ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, ByRef z2 As Single, _
    ByRef phi As Single)

' Angle between two vectors.
Public Declare PtrSafe Sub trvphi1 Lib "Trelvin64.dll" Alias "trvphi1" (ByRef ux As Single, _
    ByRef uy As Single, ByRef uz As Single, ByRef vx As Single, ByRef vy As Single, _
    ByRef vz As Single, ByRef phi As Single)

' Angle between two lines given by their directions.
' status: outcome: -1 no_length: a direction's length is within the tolerance; unwritten on a
' condition: neither direction's length is within the tolerance, so it must be set beforehand.
Public Declare PtrSafe Sub trvphip Lib "Trelvin64.dll" Alias "trvphip" (ByRef ux As Single, _
    ByRef uy As Single, ByRef uz As Single, ByRef vx As Single, ByRef vy As Single, _
    ByRef vz As Single, ByRef phi As Single, ByRef status As Long)

' Directed angle at P0 from the ray to P1 to the ray to P2.
' status: outcome (TrvCoincidence): 0 distinct: the output is written; 1 coincident: P1 or P2
' coincides with P0 (trvcnt).
Public Declare PtrSafe Sub trvchi Lib "Trelvin64.dll" Alias "trvchi" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef z0 As Single, ByRef x1 As Single, ByRef y1 As Single, _
    ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, ByRef z2 As Single, _
    ByRef chi As Single, ByRef status As Long)

' Convexity of a closed outline, of either orientation.
' status: test: 1 convex: the outline is convex; 0 not_convex: the outline is not convex, or winds
' more than once; -1 refused: n < 3, or the length of a side is within the tolerance.
Public Declare PtrSafe Sub trvcnv Lib "Trelvin64.dll" Alias "trvcnv" (ByRef X As Single, _
    ByRef Y As Single, ByRef n As Long, ByRef status As Long)

' Cosine and sine of the angle between P2 - P1 and P4 - P3.
' status: outcome (TrvCoincidence): 0 distinct: the output is written; 1 coincident: P1 and P2, or
' P3 and P4, coincide (trvcnt).
Public Declare PtrSafe Sub trvtrg Lib "Trelvin64.dll" Alias "trvtrg" (ByRef x1 As Single, _
    ByRef y1 As Single, ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, _
    ByRef z2 As Single, ByRef x3 As Single, ByRef y3 As Single, ByRef z3 As Single, _
    ByRef x4 As Single, ByRef y4 As Single, ByRef z4 As Single, ByRef cphi As Single, _
    ByRef sphi As Single, ByRef status As Long)

' Relation of two directions.
' code: relation: 0 oblique: u and v have neither the same, opposite nor perpendicular directions; 1
' same: the directions are the same; 2 opposite: the directions are opposite; 3 perpendicular: the
' directions are perpendicular; 4 zero: all components of u, or of v, are within the tolerance.
Public Declare PtrSafe Sub trvdir Lib "Trelvin64.dll" Alias "trvdir" (ByRef ux As Single, _
    ByRef uy As Single, ByRef uz As Single, ByRef vx As Single, ByRef vy As Single, _
    ByRef vz As Single, ByRef code As Long)

' Relation of two planes.
' code: relation: 0 crossing: the planes cross, not at a right angle; 1 parallel_same: the planes
' are parallel and distinct, their normals in the same direction; 2 parallel_opposite: the planes
' are parallel and distinct, their normals opposite; 3 coincident_same: the planes coincide, their
' normals in the same direction; 4 coincident_opposite: the planes coincide, their normals opposite;
' 5 perpendicular: the planes are perpendicular; 6 zero_normal: a normal is zero.
Public Declare PtrSafe Sub trvdirp Lib "Trelvin64.dll" Alias "trvdirp" (ByRef a1 As Single, _
    ByRef b1 As Single, ByRef c1 As Single, ByRef d1 As Single, ByRef a2 As Single, _
    ByRef b2 As Single, ByRef c2 As Single, ByRef d2 As Single, ByRef code As Long)

' Angles between the projections of P2 - P1 and P4 - P3 onto the coordinate planes.
Public Declare PtrSafe Sub trvmov Lib "Trelvin64.dll" Alias "trvmov" (ByRef x1 As Single, _
    ByRef y1 As Single, ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, _
    ByRef z2 As Single, ByRef x3 As Single, ByRef y3 As Single, ByRef z3 As Single, _
    ByRef x4 As Single, ByRef y4 As Single, ByRef z4 As Single, ByRef ax As Single, _
    ByRef ay As Single, ByRef az As Single)

' Moves the origin of plane points to (x0, y0), in place.
Public Declare PtrSafe Sub trvtra Lib "Trelvin64.dll" Alias "trvtra" (ByRef X As Single, _
    ByRef Y As Single, ByRef n As Long, ByRef x0 As Single, ByRef y0 As Single)

' Reverses a list, in place. Elements move bit for bit, so the list may also hold Reals.
Public Declare PtrSafe Sub trvinv Lib "Trelvin64.dll" Alias "trvinv" (ByRef V As Long, _
    ByRef n As Long)

' Inserts a list into another. Elements move bit for bit, so the lists may also hold Reals.
Public Declare PtrSafe Sub trvadr Lib "Trelvin64.dll" Alias "trvadr" (ByRef V As Long, _
    ByRef n As Long, ByRef k As Long, ByRef A As Long, ByRef m As Long)

' Area of a polygon.
Public Declare PtrSafe Sub trvapl Lib "Trelvin64.dll" Alias "trvapl" (ByRef x As Single, _
    ByRef y As Single, ByRef n As Long, ByRef area As Single)

' First moments of a polygon.
Public Declare PtrSafe Sub trvspl Lib "Trelvin64.dll" Alias "trvspl" (ByRef x As Single, _
    ByRef y As Single, ByRef n As Long, ByRef sx As Single, ByRef sy As Single)

' Second moments of a polygon.
Public Declare PtrSafe Sub trvipl Lib "Trelvin64.dll" Alias "trvipl" (ByRef x As Single, _
    ByRef y As Single, ByRef n As Long, ByRef ix As Single, ByRef iy As Single, _
    ByRef ixy As Single)

' Area and centroid of a circular segment, the region between an arc and its chord.
Public Declare PtrSafe Sub trvacp Lib "Trelvin64.dll" Alias "trvacp" (ByRef xc As Single, _
    ByRef yc As Single, ByRef x1 As Single, ByRef y1 As Single, ByRef x2 As Single, _
    ByRef y2 As Single, ByRef kind As Long, ByRef area As Single, ByRef xs As Single, _
    ByRef ys As Single)

' Second moments of a circular segment, the region between an arc and its chord.
Public Declare PtrSafe Sub trvicp Lib "Trelvin64.dll" Alias "trvicp" (ByRef xc As Single, _
    ByRef yc As Single, ByRef x1 As Single, ByRef y1 As Single, ByRef x2 As Single, _
    ByRef y2 As Single, ByRef kind As Long, ByRef ix As Single, ByRef iy As Single, _
    ByRef ixy As Single)

' Area of a part of a section.
Public Declare PtrSafe Sub trvair Lib "Trelvin64.dll" Alias "trvair" (ByRef x As Single, _
    ByRef y As Single, ByRef n As Long, ByRef kind As Long, ByRef value As Single, _
    ByRef factor As Single, ByRef area As Single)

' First moments of a part of a section.
Public Declare PtrSafe Sub trvstm Lib "Trelvin64.dll" Alias "trvstm" (ByRef x As Single, _
    ByRef y As Single, ByRef n As Long, ByRef kind As Long, ByRef value As Single, _
    ByRef factor As Single, ByRef sx As Single, ByRef sy As Single)

' Second moments of a part of a section.
Public Declare PtrSafe Sub trvinm Lib "Trelvin64.dll" Alias "trvinm" (ByRef x As Single, _
    ByRef y As Single, ByRef n As Long, ByRef kind As Long, ByRef value As Single, _
    ByRef angle As Single, ByRef factor As Single, ByRef ix As Single, ByRef iy As Single, _
    ByRef ixy As Single)

' Principal moments and their direction.
Public Declare PtrSafe Sub trvinp Lib "Trelvin64.dll" Alias "trvinp" (ByRef ix As Single, _
    ByRef iy As Single, ByRef ixy As Single, ByRef i1 As Single, ByRef i2 As Single, _
    ByRef alpha As Single)

' Integral of equally spaced samples over [a, b] by the trapezoidal rule.
Public Declare PtrSafe Sub trvinr Lib "Trelvin64.dll" Alias "trvinr" (ByRef n As Long, _
    ByRef f As Single, ByRef a As Single, ByRef b As Single, ByRef result As Single)

' Reduction factor of an internal compression element, EN 1993-1-5, 4.4(2).
Public Declare PtrSafe Sub trvro2 Lib "Trelvin64.dll" Alias "trvro2" (ByRef b As Single, _
    ByRef t As Single, ByRef r1 As Single, ByRef r2 As Single, ByRef psi As Single, _
    ByRef ks As Single, ByRef rho As Single)

' Effective width of an edge fold on a plate it stiffens, after EN 1993-1-3, 5.5.3.2.
Public Declare PtrSafe Sub trvefr Lib "Trelvin64.dll" Alias "trvefr" (ByRef c As Single, _
    ByRef bp As Single, ByRef t As Single, ByRef r1 As Single, ByRef r2 As Single, _
    ByRef ceff As Single)

' Effective widths at the edges of an internal element, EN 1993-1-5, table 4.1.
Public Declare PtrSafe Sub trvef2 Lib "Trelvin64.dll" Alias "trvef2" (ByRef bl As Single, _
    ByRef w As Single, ByRef t As Single, ByRef r1 As Single, ByRef r2 As Single, _
    ByRef s1 As Single, ByRef s2 As Single, ByRef be1 As Single, ByRef be2 As Single)

' I section with unequal flanges.
Public Declare PtrSafe Sub trvsec_ia Lib "Trelvin64.dll" Alias "trvsec_ia" (ByRef H As Single, _
    ByRef B1 As Single, ByRef B2 As Single, ByRef T1 As Single, ByRef T2 As Single, _
    ByRef TW As Single, ByRef q As Single, ByRef np As Long, ByRef nv As Long, ByRef X As Single, _
    ByRef Y As Single, ByRef code As Long, ByRef sign As Single, ByRef z1 As Single, _
    ByRef z2 As Single, ByRef z3 As Single, ByRef z4 As Single, ByRef z5 As Single, _
    ByRef q1 As Single, ByRef q2 As Single)

' I section lying on its side.
Public Declare PtrSafe Sub trvsec_h Lib "Trelvin64.dll" Alias "trvsec_h" (ByRef H As Single, _
    ByRef B1 As Single, ByRef B2 As Single, ByRef T1 As Single, ByRef T2 As Single, _
    ByRef TW As Single, ByRef q As Single, ByRef np As Long, ByRef nv As Long, ByRef X As Single, _
    ByRef Y As Single, ByRef code As Long, ByRef sign As Single, ByRef z1 As Single, _
    ByRef z2 As Single, ByRef z3 As Single, ByRef z4 As Single, ByRef z5 As Single, _
    ByRef q1 As Single, ByRef q2 As Single)

' T section, flange at the top.
Public Declare PtrSafe Sub trvsec_t Lib "Trelvin64.dll" Alias "trvsec_t" (ByRef B As Single, _
    ByRef H As Single, ByRef TF As Single, ByRef TW As Single, ByRef q As Single, _
    ByRef np As Long, ByRef nv As Long, ByRef X As Single, ByRef Y As Single, ByRef code As Long, _
    ByRef sign As Single, ByRef z1 As Single, ByRef z2 As Single, ByRef z3 As Single, _
    ByRef z4 As Single, ByRef z5 As Single, ByRef q1 As Single, ByRef q2 As Single)

' Flat bar.
Public Declare PtrSafe Sub trvsec_b Lib "Trelvin64.dll" Alias "trvsec_b" (ByRef B As Long, _
    ByRef H As Single, ByRef q As Single, ByRef np As Long, ByRef nv As Long, ByRef X As Single, _
    ByRef Y As Single, ByRef code As Long, ByRef sign As Single, ByRef z1 As Single, _
    ByRef z2 As Single, ByRef z3 As Single, ByRef z4 As Single, ByRef z5 As Single, _
    ByRef q1 As Single, ByRef q2 As Single)

' I section lying on its side with a cover plate on its flanges' top edges, closing one cell.
Public Declare PtrSafe Sub trvsec_h1b Lib "Trelvin64.dll" Alias "trvsec_h1b" (ByRef W As Single, _
    ByRef D As Single, ByRef P As Single, ByRef T1 As Single, ByRef T2 As Single, _
    ByRef TW As Single, ByRef TP As Single, ByRef q As Single, ByRef np As Long, ByRef nv As Long, _
    ByRef X As Single, ByRef Y As Single, ByRef code As Long, ByRef sign As Single, _
    ByRef z1 As Single, ByRef z2 As Single, ByRef z3 As Single, ByRef z4 As Single, _
    ByRef z5 As Single, ByRef q1 As Single, ByRef q2 As Single)

' Box girder with overhanging flanges.
Public Declare PtrSafe Sub trvsec_box Lib "Trelvin64.dll" Alias "trvsec_box" (ByRef BT As Single, _
    ByRef BB As Single, ByRef TT As Single, ByRef TB As Single, ByRef H As Single, _
    ByRef TW As Single, ByRef G As Single, ByRef q As Single, ByRef np As Long, ByRef nv As Long, _
    ByRef X As Single, ByRef Y As Single, ByRef code As Long, ByRef sign As Single, _
    ByRef z1 As Single, ByRef z2 As Single, ByRef z3 As Single, ByRef z4 As Single, _
    ByRef z5 As Single, ByRef q1 As Single, ByRef q2 As Single)

' Rectangular hollow section with sharp corners.
Public Declare PtrSafe Sub trvsec_rhs Lib "Trelvin64.dll" Alias "trvsec_rhs" (ByRef B As Single, _
    ByRef H As Single, ByRef T As Single, ByRef q As Single, ByRef np As Long, ByRef nv As Long, _
    ByRef X As Single, ByRef Y As Single, ByRef code As Long, ByRef sign As Single, _
    ByRef z1 As Single, ByRef z2 As Single, ByRef z3 As Single, ByRef z4 As Single, _
    ByRef z5 As Single, ByRef q1 As Single, ByRef q2 As Single)

' Two equal angles back to back, horizontal legs at the top.
Public Declare PtrSafe Sub trvsec_l2 Lib "Trelvin64.dll" Alias "trvsec_l2" (ByRef B As Single, _
    ByRef H As Single, ByRef G As Single, ByRef T As Single, ByRef TV As Single, _
    ByRef q As Single, ByRef np As Long, ByRef nv As Long, ByRef X As Single, ByRef Y As Single, _
    ByRef code As Long, ByRef sign As Single, ByRef z1 As Single, ByRef z2 As Single, _
    ByRef z3 As Single, ByRef z4 As Single, ByRef z5 As Single, ByRef q1 As Single, _
    ByRef q2 As Single)

' Top plate on a closed cell of two webs and a bottom plate between them.
Public Declare PtrSafe Sub trvsec_tab Lib "Trelvin64.dll" Alias "trvsec_tab" (ByRef B As Single, _
    ByRef H As Single, ByRef BW As Single, ByRef E As Single, ByRef T As Single, _
    ByRef TW As Single, ByRef TB As Single, ByRef q As Single, ByRef np As Long, ByRef nv As Long, _
    ByRef X As Single, ByRef Y As Single, ByRef code As Long, ByRef sign As Single, _
    ByRef z1 As Single, ByRef z2 As Single, ByRef z3 As Single, ByRef z4 As Single, _
    ByRef z5 As Single, ByRef q1 As Single, ByRef q2 As Single)

' Two flanges joined by two webs and a middle plate, closing two cells.
Public Declare PtrSafe Sub trvsec_h2b Lib "Trelvin64.dll" Alias "trvsec_h2b" (ByRef B As Single, _
    ByRef W As Single, ByRef HI As Single, ByRef TW1 As Single, ByRef TW2 As Single, _
    ByRef TM As Single, ByRef TF As Single, ByRef q As Single, ByRef np As Long, ByRef nv As Long, _
    ByRef X As Single, ByRef Y As Single, ByRef code As Long, ByRef sign As Single, _
    ByRef z1 As Single, ByRef z2 As Single, ByRef z3 As Single, ByRef z4 As Single, _
    ByRef z5 As Single, ByRef q1 As Single, ByRef q2 As Single)

' I section with unequal flanges, an eccentric web and 45-degree fillets.
Public Declare PtrSafe Sub trvsec_i Lib "Trelvin64.dll" Alias "trvsec_i" (ByRef H As Single, _
    ByRef B1 As Single, ByRef B2 As Single, ByRef T1 As Single, ByRef T2 As Single, _
    ByRef TW As Single, ByRef S1 As Single, ByRef S2 As Single, ByRef E As Single, _
    ByRef q As Single, ByRef np As Long, ByRef nv As Long, ByRef X As Single, ByRef Y As Single, _
    ByRef code As Long, ByRef sign As Single, ByRef z1 As Single, ByRef z2 As Single, _
    ByRef z3 As Single, ByRef z4 As Single, ByRef z5 As Single, ByRef q1 As Single, _
    ByRef q2 As Single)

' Channel open to the right, with lips turned inwards and folds turned back towards the web.
Public Declare PtrSafe Sub trvsec_c Lib "Trelvin64.dll" Alias "trvsec_c" (ByRef H As Single, _
    ByRef B1 As Single, ByRef B2 As Single, ByRef C1 As Single, ByRef C2 As Single, _
    ByRef D1 As Single, ByRef D2 As Single, ByRef TW As Single, ByRef T1 As Single, _
    ByRef T2 As Single, ByRef TC1 As Single, ByRef TC2 As Single, ByRef TD1 As Single, _
    ByRef TD2 As Single, ByRef q As Single, ByRef np As Long, ByRef nv As Long, ByRef X As Single, _
    ByRef Y As Single, ByRef code As Long, ByRef sign As Single, ByRef z1 As Single, _
    ByRef z2 As Single, ByRef z3 As Single, ByRef z4 As Single, ByRef z5 As Single, _
    ByRef q1 As Single, ByRef q2 As Single)

' Distance of a channel's shear centre from its centroid.
Public Declare PtrSafe Sub trvshc_c Lib "Trelvin64.dll" Alias "trvshc_c" (ByRef B As Single, _
    ByRef H As Single, ByRef C As Single, ByRef t As Single, ByRef e0 As Single)

' Warping constant of a channel.
Public Declare PtrSafe Sub trvwar_c Lib "Trelvin64.dll" Alias "trvwar_c" (ByRef B As Single, _
    ByRef H As Single, ByRef C As Single, ByRef t As Single, ByRef Iw As Single)

' Properties of an open section of thin plates.
' status: outcome (TrvStatus): 0 done: the outputs are computed; -1 refused: n < 1, a coordinate or
' a thickness is infinite or NaN, or a length or a thickness is not above the tolerance; 2 to n:
' number of the first faulty plate, which does not start at an end of an earlier plate, or closes a
' cell by ending at one; n+2 to 2*n: n plus the number of the first faulty plate, which crosses,
' touches or overlaps an earlier plate elsewhere than at its start, and may close a cell.
Public Declare PtrSafe Sub trvmxt Lib "Trelvin64.dll" Alias "trvmxt" (ByRef n As Long, _
    ByRef X1 As Single, ByRef Y1 As Single, ByRef X2 As Single, ByRef Y2 As Single, _
    ByRef T As Single, ByRef A As Single, ByRef xs As Single, ByRef ys As Single, _
    ByRef Ix As Single, ByRef Iy As Single, ByRef Ixy As Single, ByRef I1 As Single, _
    ByRef I2 As Single, ByRef alpha As Single, ByRef rx As Single, ByRef ry As Single, _
    ByRef Wx1 As Single, ByRef Wx2 As Single, ByRef Wy1 As Single, ByRef Wy2 As Single, _
    ByRef Wpx As Single, ByRef Wpy As Single, ByRef xp As Single, ByRef yp As Single, _
    ByRef It As Single, ByRef Wt As Single, ByRef xm As Single, ByRef ym As Single, _
    ByRef Iw As Single, ByRef r0 As Single, ByRef W1 As Single, ByRef W2 As Single, _
    ByRef status As Long)

' Properties of a flat bar, centred on the origin.
' status: outcome (TrvStatus): 0 done: the outputs are computed; -1 refused: a side is infinite, NaN
' or not above the tolerance.
Public Declare PtrSafe Sub trvmxt_fb Lib "Trelvin64.dll" Alias "trvmxt_fb" (ByRef B As Single, _
    ByRef H As Single, ByRef A As Single, ByRef xs As Single, ByRef ys As Single, _
    ByRef Ix As Single, ByRef Iy As Single, ByRef Ixy As Single, ByRef I1 As Single, _
    ByRef I2 As Single, ByRef alpha As Single, ByRef rx As Single, ByRef ry As Single, _
    ByRef Wx1 As Single, ByRef Wx2 As Single, ByRef Wy1 As Single, ByRef Wy2 As Single, _
    ByRef Wpx As Single, ByRef Wpy As Single, ByRef xp As Single, ByRef yp As Single, _
    ByRef It As Single, ByRef Wt As Single, ByRef xm As Single, ByRef ym As Single, _
    ByRef Iw As Single, ByRef r0 As Single, ByRef W1 As Single, ByRef W2 As Single, _
    ByRef status As Long)

' Rotates plane points about the origin, in place.
Public Declare PtrSafe Sub trvrot Lib "Trelvin64.dll" Alias "trvrot" (ByRef mode As Long, _
    ByRef x As Single, ByRef y As Single, ByRef n As Long, ByRef angle As Single)

' Rotates points about the x axis, in place.
Public Declare PtrSafe Sub trvrotx Lib "Trelvin64.dll" Alias "trvrotx" (ByRef mode As Long, _
    ByRef x As Single, ByRef y As Single, ByRef z As Single, ByRef n As Long, _
    ByRef angle As Single)

' Rotates points about the y axis, in place.
Public Declare PtrSafe Sub trvroty Lib "Trelvin64.dll" Alias "trvroty" (ByRef mode As Long, _
    ByRef x As Single, ByRef y As Single, ByRef z As Single, ByRef n As Long, _
    ByRef angle As Single)

' Rotates points about the z axis, in place.
Public Declare PtrSafe Sub trvrotz Lib "Trelvin64.dll" Alias "trvrotz" (ByRef mode As Long, _
    ByRef x As Single, ByRef y As Single, ByRef z As Single, ByRef n As Long, _
    ByRef angle As Single)

' Three-point test: whether P0, P1 and P2 span a plane.
' status: three-point test (TrvThreePoints): 0 spans_plane: P0, P1 and P2 span a plane; 1 at_p0: P2
' is at P0; 2 at_p1: P2 is at P1; 3 between: P2 is between P0 and P1; 4 beyond_p0: P2 is beyond P0
' on the line of P0 and P1; 5 beyond_p1: P2 is beyond P1 on the line of P0 and P1.
Public Declare PtrSafe Sub trvpsl Lib "Trelvin64.dll" Alias "trvpsl" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef z0 As Single, ByRef x1 As Single, ByRef y1 As Single, _
    ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, ByRef z2 As Single, _
    ByRef status As Long)

' Moves the origin of points to (dx, dy, dz), in place.
Public Declare PtrSafe Sub trv3tra Lib "Trelvin64.dll" Alias "trv3tra" (ByRef X As Single, _
    ByRef Y As Single, ByRef Z As Single, ByRef n As Long, ByRef dx As Single, ByRef dy As Single, _
    ByRef dz As Single)

' Applies a frame matrix to one point, in place.
Public Declare PtrSafe Sub trvtrn Lib "Trelvin64.dll" Alias "trvtrn" (ByRef p As Single, _
    ByRef a1 As Single, ByRef a2 As Single, ByRef a3 As Single, ByRef a4 As Single, _
    ByRef a5 As Single, ByRef a6 As Single, ByRef a7 As Single, ByRef a8 As Single, _
    ByRef a9 As Single, ByRef mode As Long)

' Frame of the plane through three points.
' status: outcome (TrvFrame): 0 done: the outputs are computed; -2 no_frame: P2 is at P0 or P1, or
' the three points are on one line (trvpsl).
Public Declare PtrSafe Sub trvaxe Lib "Trelvin64.dll" Alias "trvaxe" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef z0 As Single, ByRef x1 As Single, ByRef y1 As Single, _
    ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, ByRef z2 As Single, _
    ByRef e1x As Single, ByRef e1y As Single, ByRef e1z As Single, ByRef e2x As Single, _
    ByRef e2y As Single, ByRef e2z As Single, ByRef e3x As Single, ByRef e3y As Single, _
    ByRef e3z As Single, ByRef status As Long)

' Frame of an axis from P0 to P1.
' status: outcome (TrvFrame): 0 done: also for an axis along y; -2 no_frame: the distance of P0 and
' P1 is within the tolerance.
Public Declare PtrSafe Sub trvaxel Lib "Trelvin64.dll" Alias "trvaxel" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef z0 As Single, ByRef x1 As Single, ByRef y1 As Single, _
    ByRef z1 As Single, ByRef angle As Single, ByRef e1x As Single, ByRef e1y As Single, _
    ByRef e1z As Single, ByRef e2x As Single, ByRef e2y As Single, ByRef e2z As Single, _
    ByRef e3x As Single, ByRef e3y As Single, ByRef e3z As Single, ByRef status As Long)

' Shifts points and rotates them about the global axes x, y and z, in this order and in place.
Public Declare PtrSafe Sub trvptr Lib "Trelvin64.dll" Alias "trvptr" (ByRef X As Single, _
    ByRef Y As Single, ByRef Z As Single, ByRef n As Long, ByRef x0 As Single, ByRef y0 As Single, _
    ByRef z0 As Single, ByRef ax As Single, ByRef ay As Single, ByRef az As Single)

' Shifts points and rotates them in the frame of three points, in place.
' status: outcome (TrvFrame): 0 done: the outputs are computed; -2 no_frame: P2 is at P0 or P1, or
' the three points are on one line (trvpsl).
Public Declare PtrSafe Sub trvptrl Lib "Trelvin64.dll" Alias "trvptrl" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef z0 As Single, ByRef x1 As Single, ByRef y1 As Single, _
    ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, ByRef z2 As Single, _
    ByRef X As Single, ByRef Y As Single, ByRef Z As Single, ByRef n As Long, ByRef dx As Single, _
    ByRef dy As Single, ByRef dz As Single, ByRef ax As Single, ByRef ay As Single, _
    ByRef az As Single, ByRef status As Long)

' Rotates points about the axis from P0 through P1, in place.
' status: outcome (TrvFrame): 0 done: also for an axis along y; -2 no_frame: the distance of P0 and
' P1 is within the tolerance.
Public Declare PtrSafe Sub trvpra Lib "Trelvin64.dll" Alias "trvpra" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef z0 As Single, ByRef x1 As Single, ByRef y1 As Single, _
    ByRef z1 As Single, ByRef X As Single, ByRef Y As Single, ByRef Z As Single, ByRef n As Long, _
    ByRef angle As Single, ByRef status As Long)

' Rotates points of a plane in the frame of the three points that span it, then shifts them, in
' place.
' status: outcome: 0 done: the points are moved; -1 no_frame: P2 is at P0 or P1, or the three points
' are on one line (trvpsl); 1 to n: position of the first point off the plane.
Public Declare PtrSafe Sub trvppc Lib "Trelvin64.dll" Alias "trvppc" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef z0 As Single, ByRef x1 As Single, ByRef y1 As Single, _
    ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, ByRef z2 As Single, _
    ByRef dx As Single, ByRef dy As Single, ByRef dz As Single, ByRef ax As Single, _
    ByRef ay As Single, ByRef az As Single, ByRef n As Long, ByRef X As Single, ByRef Y As Single, _
    ByRef Z As Single, ByRef tol As Single, ByRef status As Long)

' Plane through a point, spanned by two directions.
Public Declare PtrSafe Sub trvplg Lib "Trelvin64.dll" Alias "trvplg" (ByRef x As Single, _
    ByRef y As Single, ByRef z As Single, ByRef ux As Single, ByRef uy As Single, _
    ByRef uz As Single, ByRef wx As Single, ByRef wy As Single, ByRef wz As Single, _
    ByRef a As Single, ByRef b As Single, ByRef c As Single, ByRef d As Single)

' Plane through three points: (a, b, c) = (P1 - P0) x (P2 - P0).
' status: three-point test (TrvThreePoints): 0 spans_plane: P0, P1 and P2 span a plane; 1 at_p0: P2
' is at P0; 2 at_p1: P2 is at P1; 3 between: P2 is between P0 and P1; 4 beyond_p0: P2 is beyond P0
' on the line of P0 and P1; 5 beyond_p1: P2 is beyond P1 on the line of P0 and P1.
Public Declare PtrSafe Sub trvpl1 Lib "Trelvin64.dll" Alias "trvpl1" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef z0 As Single, ByRef x1 As Single, ByRef y1 As Single, _
    ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, ByRef z2 As Single, _
    ByRef a As Single, ByRef b As Single, ByRef c As Single, ByRef d As Single, _
    ByRef status As Long)

' Plane through a point, parallel to two lines.
' status: outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line: the lines are the
' same, of the same direction; 4 opposite_line: the lines are the same, of opposite direction; 7
' no_length: A and B, or C and D, coincide (trvcnt).
Public Declare PtrSafe Sub trvpl2 Lib "Trelvin64.dll" Alias "trvpl2" (ByRef x As Single, _
    ByRef y As Single, ByRef z As Single, ByRef xa As Single, ByRef ya As Single, _
    ByRef za As Single, ByRef xb As Single, ByRef yb As Single, ByRef zb As Single, _
    ByRef xc As Single, ByRef yc As Single, ByRef zc As Single, ByRef xd As Single, _
    ByRef yd As Single, ByRef zd As Single, ByRef a As Single, ByRef b As Single, _
    ByRef c As Single, ByRef d As Single, ByRef status As Long)

' Plane that contains one line and is parallel to another: trvpl2 through A.
' status: outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line: the lines are the
' same, of the same direction; 4 opposite_line: the lines are the same, of opposite direction; 7
' no_length: A and B, or C and D, coincide (trvcnt).
Public Declare PtrSafe Sub trvpl3 Lib "Trelvin64.dll" Alias "trvpl3" (ByRef xa As Single, _
    ByRef ya As Single, ByRef za As Single, ByRef xb As Single, ByRef yb As Single, _
    ByRef zb As Single, ByRef xc As Single, ByRef yc As Single, ByRef zc As Single, _
    ByRef xd As Single, ByRef yd As Single, ByRef zd As Single, ByRef a As Single, _
    ByRef b As Single, ByRef c As Single, ByRef d As Single, ByRef status As Long)

' Plane through a point, perpendicular to a segment.
' status: outcome (TrvCoincidence): 0 distinct: the plane is computed; 1 coincident: A and B
' coincide within the tolerance in each coordinate (trvcnt).
Public Declare PtrSafe Sub trvpl4 Lib "Trelvin64.dll" Alias "trvpl4" (ByRef x As Single, _
    ByRef y As Single, ByRef z As Single, ByRef xa As Single, ByRef ya As Single, _
    ByRef za As Single, ByRef xb As Single, ByRef yb As Single, ByRef zb As Single, _
    ByRef a As Single, ByRef b As Single, ByRef c As Single, ByRef d As Single, _
    ByRef status As Long)

' Plane with given intercepts on the axes.
' status: outcome: 0 done: the plane is computed; 1 no_plane: there is no plane, since an intercept
' is within the tolerance or NaN.
Public Declare PtrSafe Sub trvpl5 Lib "Trelvin64.dll" Alias "trvpl5" (ByRef ix As Single, _
    ByRef iy As Single, ByRef iz As Single, ByRef a As Single, ByRef b As Single, _
    ByRef c As Single, ByRef d As Single, ByRef status As Long)

' Plane of two lines, each given by a point and a direction.
' status: outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line: the lines are the
' same, of the same direction; 4 opposite_line: the lines are the same, of opposite direction; 6
' skew: the lines are skew; 7 no_length: all components of a direction are within the tolerance.
Public Declare PtrSafe Sub trvpl6 Lib "Trelvin64.dll" Alias "trvpl6" (ByRef xa As Single, _
    ByRef ya As Single, ByRef za As Single, ByRef ux As Single, ByRef uy As Single, _
    ByRef uz As Single, ByRef xc As Single, ByRef yc As Single, ByRef zc As Single, _
    ByRef wx As Single, ByRef wy As Single, ByRef wz As Single, ByRef a As Single, _
    ByRef b As Single, ByRef c As Single, ByRef d As Single, ByRef status As Long)

' Plane of three points, rotated about the line from P0 to P1.
' status: three-point test (TrvThreePoints): 0 spans_plane: P0, P1 and P2 span a plane; 1 at_p0: P2
' is at P0, or P0 and P0 + normal coincide (trvcnt); 2 at_p1: P2 is at P1; 3 between: P2 is between
' P0 and P1; 4 beyond_p0: P2 is beyond P0 on the line of P0 and P1; 5 beyond_p1: P2 is beyond P1 on
' the line of P0 and P1.
Public Declare PtrSafe Sub trvpl7 Lib "Trelvin64.dll" Alias "trvpl7" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef z0 As Single, ByRef x1 As Single, ByRef y1 As Single, _
    ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, ByRef z2 As Single, _
    ByRef angle As Single, ByRef a As Single, ByRef b As Single, ByRef c As Single, _
    ByRef d As Single, ByRef status As Long)

' Whether a point lies on the plane of three points.
' status: test (TrvOnPlane): 0 yes: the point lies on the plane, or P0 = P1, for which any point
' does; -1 no: the point does not lie on the plane, or the three points span no plane (trvpsl).
Public Declare PtrSafe Sub trvpsp Lib "Trelvin64.dll" Alias "trvpsp" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef z0 As Single, ByRef x1 As Single, ByRef y1 As Single, _
    ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, ByRef z2 As Single, _
    ByRef x As Single, ByRef y As Single, ByRef z As Single, ByRef tol As Single, _
    ByRef status As Long)

' Signed distance of a point from a plane.
Public Declare PtrSafe Sub trvpld Lib "Trelvin64.dll" Alias "trvpld" (ByRef x As Single, _
    ByRef y As Single, ByRef z As Single, ByRef a As Single, ByRef b As Single, ByRef c As Single, _
    ByRef d As Single, ByRef dist As Single)

' Whether a point lies on a plane.
' status: test (TrvOnPlane): 0 yes: the point lies on the plane; -1 no: the point does not lie on
' the plane, or the distance is NaN; 1 zero_normal: the normal of the plane is exactly zero.
Public Declare PtrSafe Sub trvpspg Lib "Trelvin64.dll" Alias "trvpspg" (ByRef x As Single, _
    ByRef y As Single, ByRef z As Single, ByRef a As Single, ByRef b As Single, ByRef c As Single, _
    ByRef d As Single, ByRef tol As Single, ByRef status As Long)

' Relation of two directions, taken as lines through the origin.
' status: relation: -1 zero_u: u is exactly zero; 0 oblique: u and w have neither the same, opposite
' nor perpendicular directions; 3 same: the directions are the same; 4 opposite: the directions are
' opposite; 5 perpendicular: the directions are perpendicular; 7 zero: all components of u, or of w,
' are within the tolerance.
Public Declare PtrSafe Sub trvplv Lib "Trelvin64.dll" Alias "trvplv" (ByRef ux As Single, _
    ByRef uy As Single, ByRef uz As Single, ByRef wx As Single, ByRef wy As Single, _
    ByRef wz As Single, ByRef v7 As Single, ByRef v8 As Single, ByRef status As Long)

' Points of a list on a plane, by a running residual.
Public Declare PtrSafe Sub trvpnp Lib "Trelvin64.dll" Alias "trvpnp" (ByRef X As Single, _
    ByRef Y As Single, ByRef Z As Single, ByRef a As Single, ByRef b As Single, ByRef c As Single, _
    ByRef d As Single, ByRef n As Long, ByRef count As Long, ByRef index As Long)

' Relation of two lines.
' status: relation (TrvLines): 0 crossing: the lines cross, not at a right angle; 1 parallel_same:
' parallel and distinct lines of the same direction; 2 parallel_opposite: parallel and distinct
' lines of opposite direction; 3 same_line: the same line, of the same direction; 4 opposite_line:
' the same line, of opposite direction; 5 perpendicular: the lines cross at a right angle; 6 skew:
' the lines are skew; 7 coincident: A and B, or C and D, coincide, each coordinate within the
' tolerance.
Public Declare PtrSafe Sub trvdirl Lib "Trelvin64.dll" Alias "trvdirl" (ByRef xa As Single, _
    ByRef ya As Single, ByRef za As Single, ByRef xb As Single, ByRef yb As Single, _
    ByRef zb As Single, ByRef xc As Single, ByRef yc As Single, ByRef zc As Single, _
    ByRef xd As Single, ByRef yd As Single, ByRef zd As Single, ByRef status As Long)

' Whether three segments span space.
' status: test: 0 flat: the triple product of B - A, D - C and F - E is within the tolerance; 1
' spanning: the triple product is above the tolerance, in the cube of the length unit.
Public Declare PtrSafe Sub trv3sp Lib "Trelvin64.dll" Alias "trv3sp" (ByRef xa As Single, _
    ByRef ya As Single, ByRef za As Single, ByRef xb As Single, ByRef yb As Single, _
    ByRef zb As Single, ByRef xc As Single, ByRef yc As Single, ByRef zc As Single, _
    ByRef xd As Single, ByRef yd As Single, ByRef zd As Single, ByRef xe As Single, _
    ByRef ye As Single, ByRef ze As Single, ByRef xf As Single, ByRef yf As Single, _
    ByRef zf As Single, ByRef status As Long)

' Distance of a point from a line.
' status: outcome (TrvStatus): 0 done: always.
Public Declare PtrSafe Sub trv3ldb Lib "Trelvin64.dll" Alias "trv3ldb" (ByRef xa As Single, _
    ByRef ya As Single, ByRef za As Single, ByRef xb As Single, ByRef yb As Single, _
    ByRef zb As Single, ByRef xq As Single, ByRef yq As Single, ByRef zq As Single, _
    ByRef status As Long, ByRef dist As Single)

' Signed distance of a point from a line, in the plane of both.
' status: outcome (TrvStatus): 0 done: always.
Public Declare PtrSafe Sub trv3lda Lib "Trelvin64.dll" Alias "trv3lda" (ByRef xa As Single, _
    ByRef ya As Single, ByRef za As Single, ByRef xb As Single, ByRef yb As Single, _
    ByRef zb As Single, ByRef xq As Single, ByRef yq As Single, ByRef zq As Single, _
    ByRef status As Long, ByRef dist As Single)

' Intersection of the lines A + t*u and C + s*w.
' status: outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line: the lines are the
' same, of the same direction; 4 opposite_line: the lines are the same, of opposite direction; 6
' skew: the lines are skew; 7 no_length: all components of a direction are within the tolerance.
Public Declare PtrSafe Sub trv3lni Lib "Trelvin64.dll" Alias "trv3lni" (ByRef xa As Single, _
    ByRef ya As Single, ByRef za As Single, ByRef ux As Single, ByRef uy As Single, _
    ByRef uz As Single, ByRef xc As Single, ByRef yc As Single, ByRef zc As Single, _
    ByRef wx As Single, ByRef wy As Single, ByRef wz As Single, ByRef status As Long, _
    ByRef xi As Single, ByRef yi As Single, ByRef zi As Single)

' Intersection of the line P + t*u with a plane.
' status: outcome: 0 done: the point is computed; 3 parallel: the line is parallel to the plane,
' since the cosine of the angle between u and the normal is within the tolerance; 4 zero: all
' components of u, or of the normal, are within the tolerance.
Public Declare PtrSafe Sub trvpli Lib "Trelvin64.dll" Alias "trvpli" (ByRef x As Single, _
    ByRef y As Single, ByRef z As Single, ByRef ux As Single, ByRef uy As Single, _
    ByRef uz As Single, ByRef a As Single, ByRef b As Single, ByRef c As Single, _
    ByRef d As Single, ByRef xi As Single, ByRef yi As Single, ByRef zi As Single, _
    ByRef status As Long)

' Position of a plane relative to the axes.
' position: position: 1 general: the plane is parallel to no axis; 2 parallel_x: the plane is
' parallel to the x axis; 3 parallel_y: the plane is parallel to the y axis; 4 parallel_z: the plane
' is parallel to the z axis; 5 normal_z: the plane is normal to the z axis; 6 normal_x: the plane is
' normal to the x axis; 7 normal_y: the plane is normal to the y axis; 8 at_z_zero: the plane is z =
' 0; 9 at_x_zero: the plane is x = 0; 10 at_y_zero: the plane is y = 0.
Public Declare PtrSafe Sub trvplp Lib "Trelvin64.dll" Alias "trvplp" (ByRef a As Single, _
    ByRef b As Single, ByRef c As Single, ByRef d As Single, ByRef position As Long)

' Points of a list near a line.
' status: outcome (TrvStatus): 0 done: always; unwritten if n < 1.
Public Declare PtrSafe Sub trvpnl Lib "Trelvin64.dll" Alias "trvpnl" (ByRef xa As Single, _
    ByRef ya As Single, ByRef za As Single, ByRef xb As Single, ByRef yb As Single, _
    ByRef zb As Single, ByRef X As Single, ByRef Y As Single, ByVal zf As LongPtr, _
    ByRef n As Long, ByRef tol As Single, ByRef status As Long, ByRef count As Long, _
    ByRef index As Long)

' Carries a point along when the line through it is moved.
' status: outcome: 0 not_moved: the three points are not collinear, or Q1 is at P; 3 moved_one_side:
' Q2 is moved, Q1 and Q2 are on one side of P; 4 moved_either_side: Q2 is moved, Q1 and Q2 are on
' either side of P; 6 moved_skew: Q2 is moved, although the lines count as skew because of rounding;
' 7 moved_at_p: Q2 is moved, Q2 coincides with P, or each coordinate of Q1 is within the tolerance
' of P's although their distance is above it.
Public Declare PtrSafe Sub trvlpc Lib "Trelvin64.dll" Alias "trvlpc" (ByRef xp As Single, _
    ByRef yp As Single, ByRef zp As Single, ByRef x1 As Single, ByRef y1 As Single, _
    ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, ByRef z2 As Single, _
    ByRef dxp As Single, ByRef dyp As Single, ByRef dzp As Single, ByRef dx1 As Single, _
    ByRef dy1 As Single, ByRef dz1 As Single, ByRef status As Long)

#Else
' The same for 32 bits.

Public Declare Sub trvcer Lib "Trelvin.dll" Alias "trvcer" (ByRef xc As Single, _
    ByRef yc As Single, ByRef r As Single, ByRef D As Single, ByRef E As Single, _
    ByRef F As Single)

Public Declare Sub trvlci Lib "Trelvin.dll" Alias "trvlci" (ByRef a As Single, ByRef b As Single, _
    ByRef c As Single, ByRef D As Single, ByRef E As Single, ByRef F As Single, ByRef n As Long, _
    ByRef x1 As Single, ByRef y1 As Single, ByRef x2 As Single, ByRef y2 As Single)

Public Declare Sub trvc12 Lib "Trelvin.dll" Alias "trvc12" (ByRef D1 As Single, _
    ByRef E1 As Single, ByRef F1 As Single, ByRef D2 As Single, ByRef E2 As Single, _
    ByRef F2 As Single, ByRef n As Long, ByRef x1 As Single, ByRef y1 As Single, _
    ByRef x2 As Single, ByRef y2 As Single)

Public Declare Sub trvcer2 Lib "Trelvin.dll" Alias "trvcer2" (ByRef x1 As Single, _
    ByRef y1 As Single, ByRef x2 As Single, ByRef y2 As Single, ByRef side As Long, _
    ByRef r As Single, ByRef xa As Single, ByRef ya As Single, ByRef xb As Single, _
    ByRef yb As Single, ByRef xc As Single, ByRef yc As Single, ByRef n As Long)

Public Declare Sub trvcer1 Lib "Trelvin.dll" Alias "trvcer1" (ByRef x1 As Single, _
    ByRef y1 As Single, ByRef x2 As Single, ByRef y2 As Single, ByRef side As Long, _
    ByRef h As Single, ByRef r As Single, ByRef xc As Single, ByRef yc As Single, ByRef n As Long)

Public Declare Sub trvcin Lib "Trelvin.dll" Alias "trvcin" (ByRef X As Single, ByRef Y As Single, _
    ByRef a As Single, ByRef b As Single, ByRef c As Single, ByRef position As Long, _
    ByRef x1 As Single, ByRef y1 As Single, ByRef x2 As Single, ByRef y2 As Single)

Public Declare Sub trvcer3 Lib "Trelvin.dll" Alias "trvcer3" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef x As Single, ByRef y As Single, ByRef angle As Single, _
    ByRef xr As Single, ByRef yr As Single, ByRef status As Long)

Public Declare Sub trvcer8 Lib "Trelvin.dll" Alias "trvcer8" (ByRef xc As Single, _
    ByRef yc As Single, ByRef xa As Single, ByRef ya As Single, ByRef xb As Single, _
    ByRef yb As Single, ByRef side As Long, ByRef d As Single, ByRef x As Single, _
    ByRef y As Single, ByRef status As Long)

Public Declare Sub trvcer6 Lib "Trelvin.dll" Alias "trvcer6" (ByRef xc As Single, _
    ByRef yc As Single, ByRef xa As Single, ByRef ya As Single, ByRef xb As Single, _
    ByRef yb As Single, ByRef side As Long, ByRef d As Single, ByRef x As Single, _
    ByRef y As Single, ByRef status As Long)

Public Declare Sub trvcer9 Lib "Trelvin.dll" Alias "trvcer9" (ByRef xc As Single, _
    ByRef yc As Single, ByRef xa As Single, ByRef ya As Single, ByRef xb As Single, _
    ByRef yb As Single, ByRef side As Long, ByRef d As Single, ByRef w As Single, _
    ByRef x1 As Single, ByRef y1 As Single, ByRef x2 As Single, ByRef y2 As Single, _
    ByRef status As Long)

Public Declare Sub trvarc1 Lib "Trelvin.dll" Alias "trvarc1" (ByRef xc As Single, _
    ByRef yc As Single, ByRef xa As Single, ByRef ya As Single, ByRef xb As Single, _
    ByRef yb As Single, ByRef s1 As Single, ByRef s2 As Single, ByRef status As Long)

Public Declare Sub trvaxph Lib "Trelvin.dll" Alias "trvaxph" (ByRef dx As Single, _
    ByRef dy As Single, ByRef phi As Single)

Public Declare Sub trvhin Lib "Trelvin.dll" Alias "trvhin" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef z0 As Single, ByRef x1 As Single, ByRef y1 As Single, _
    ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, ByRef z2 As Single, _
    ByRef x3 As Single, ByRef y3 As Single, ByRef z3 As Single, ByRef h0 As Single, _
    ByRef s0 As Single, ByRef h3 As Single, ByRef s3 As Single, ByRef len_ As Single)

Public Declare Sub trvapp Lib "Trelvin.dll" Alias "trvapp" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef x1 As Single, ByRef y1 As Single, ByRef x2 As Single, _
    ByRef y2 As Single, ByRef n As Long, ByRef X As Single, ByRef Y As Single, ByRef mark As Long)

Public Declare Sub trvcer4 Lib "Trelvin.dll" Alias "trvcer4" (ByRef xc As Single, _
    ByRef yc As Single, ByRef xa As Single, ByRef ya As Single, ByRef xb As Single, _
    ByRef yb As Single, ByRef s As Single, ByRef angle As Single, ByRef xo As Single, _
    ByRef yo As Single, ByRef status As Long)

Public Declare Sub trvcer10 Lib "Trelvin.dll" Alias "trvcer10" (ByRef xc As Single, _
    ByRef yc As Single, ByRef xa As Single, ByRef ya As Single, ByRef xb As Single, _
    ByRef yb As Single, ByRef turn As Single, ByRef angle As Single, ByRef xo As Single, _
    ByRef yo As Single, ByRef status As Long)

Public Declare Sub trvcer5 Lib "Trelvin.dll" Alias "trvcer5" (ByRef xc As Single, _
    ByRef yc As Single, ByRef xa As Single, ByRef ya As Single, ByRef xb As Single, _
    ByRef yb As Single, ByRef s As Single, ByRef side As Long, ByRef e As Single, _
    ByRef xo As Single, ByRef yo As Single, ByRef status As Long)

Public Declare Sub trvcer7 Lib "Trelvin.dll" Alias "trvcer7" (ByRef xc As Single, _
    ByRef yc As Single, ByRef xa As Single, ByRef ya As Single, ByRef xb As Single, _
    ByRef yb As Single, ByRef s As Single, ByRef side As Long, ByRef e As Single, _
    ByRef angle As Single, ByRef xp As Single, ByRef yp As Single, ByRef xt As Single, _
    ByRef yt As Single, ByRef xo As Single, ByRef yo As Single, ByRef len_ As Single, _
    ByRef status As Long)

Public Declare Sub trvard Lib "Trelvin.dll" Alias "trvard" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef x1 As Single, ByRef y1 As Single, ByRef x2 As Single, _
    ByRef y2 As Single, ByRef r As Single, ByRef xc As Single, ByRef yc As Single, _
    ByRef xt1 As Single, ByRef yt1 As Single, ByRef xt2 As Single, ByRef yt2 As Single, _
    ByRef status As Long)

Public Declare Sub trvenv Lib "Trelvin.dll" Alias "trvenv" (ByRef xc As Single, _
    ByRef yc As Single, ByRef xa As Single, ByRef ya As Single, ByRef sweep As Single, _
    ByRef xmin As Single, ByRef ymin As Single, ByRef xmax As Single, ByRef ymax As Single)

Public Declare Sub trvord Lib "Trelvin.dll" Alias "trvord" (ByRef V As Single, ByRef n As Long)

Public Declare Sub trvord1 Lib "Trelvin.dll" Alias "trvord1" (ByRef V As Long, ByRef n As Long)

Public Declare Sub trvordi Lib "Trelvin.dll" Alias "trvordi" (ByRef V As Single, ByRef n As Long, _
    ByRef IDX As Long)

Public Declare Sub trvpor Lib "Trelvin.dll" Alias "trvpor" (ByRef n As Long, ByRef A As Single, _
    ByRef B As Single, ByRef C As Single, ByRef IDX As Long, ByRef status As Long)

Public Declare Sub trvorv Lib "Trelvin.dll" Alias "trvorv" (ByRef X As Single, ByRef Y As Single, _
    ByRef Z As Single, ByRef ORD As Long)

Public Declare Sub trvsel1 Lib "Trelvin.dll" Alias "trvsel1" (ByRef n As Long, ByRef V As Long, _
    ByRef key As Long, ByRef count As Long, ByRef pos As Long)

Public Declare Sub trvmer13 Lib "Trelvin.dll" Alias "trvmer13" (ByRef na As Long, _
    ByRef A As Single, ByRef nb As Long, ByRef B As Single, ByRef count As Long, ByRef IA As Long, _
    ByRef IB As Long, ByRef tol As Single)

Public Declare Sub trvmer1 Lib "Trelvin.dll" Alias "trvmer1" (ByRef na As Long, ByRef A As Long, _
    ByRef nb As Long, ByRef B As Long, ByRef nout As Long, ByRef OUT As Long)

Public Declare Sub trvmer11 Lib "Trelvin.dll" Alias "trvmer11" (ByRef na As Long, ByRef A As Long, _
    ByRef nb As Long, ByRef B As Long, ByRef nout As Long, ByRef OUT As Long)

Public Declare Sub trvmer2 Lib "Trelvin.dll" Alias "trvmer2" (ByRef V As Long, ByRef n As Long)

Public Declare Sub trvmer3 Lib "Trelvin.dll" Alias "trvmer3" (ByRef V As Single, ByRef n As Long)

Public Declare Sub trvmer12 Lib "Trelvin.dll" Alias "trvmer12" (ByRef V As Single, _
    ByRef n As Long, ByRef tol As Single)

Public Declare Sub trvmer4 Lib "Trelvin.dll" Alias "trvmer4" (ByRef na As Long, ByRef A As Single, _
    ByRef nb As Long, ByRef B As Single, ByRef tol As Single, ByRef nout As Long, _
    ByRef OUT As Single, ByRef IB As Long)

Public Declare Sub trvmer14 Lib "Trelvin.dll" Alias "trvmer14" (ByRef na As Long, ByRef A As Long, _
    ByRef nb As Long, ByRef B As Long, ByRef nout As Long, ByRef OUT As Long)

Public Declare Sub trvmer15 Lib "Trelvin.dll" Alias "trvmer15" (ByRef na As Long, ByRef A As Long, _
    ByRef nb As Long, ByRef B As Long, ByRef count As Long)

Public Declare Sub trvmer16 Lib "Trelvin.dll" Alias "trvmer16" (ByRef X As Single, _
    ByRef Y As Single, ByRef n As Long, ByRef tol As Single)

Public Declare Sub trvptp1 Lib "Trelvin.dll" Alias "trvptp1" (ByRef na As Long, _
    ByRef XA As Single, ByRef YA As Single, ByRef ZA As Single, ByRef nb As Long, _
    ByRef XB As Single, ByRef YB As Single, ByRef ZB As Single, ByRef tol As Single, _
    ByRef count As Long, ByRef IA As Long, ByRef IB As Long, ByRef status As Long)

Public Declare Sub trvptp2 Lib "Trelvin.dll" Alias "trvptp2" (ByRef na As Long, _
    ByRef XA As Single, ByRef YA As Single, ByRef ZA As Single, ByRef nb As Long, _
    ByRef XB As Single, ByRef YB As Single, ByRef ZB As Single, ByRef nc As Long, _
    ByRef XC As Single, ByRef YC As Single, ByRef ZC As Single, ByRef tol As Single, _
    ByRef nab As Long, ByRef IAB As Long, ByRef JAB As Long, ByRef nbc As Long, ByRef IBC As Long, _
    ByRef JBC As Long, ByRef nca As Long, ByRef ICA As Long, ByRef JCA As Long, _
    ByRef nout As Long, ByRef XO As Single, ByRef YO As Single, ByRef ZO As Single, _
    ByRef MA As Long, ByRef MB As Long, ByRef MC As Long, ByRef k As Long, ByRef nk As Long, _
    ByRef PK As Long, ByRef nz As Long, ByRef ZL As Single)

Public Declare Sub trvppp Lib "Trelvin.dll" Alias "trvppp" (ByRef X As Single, ByRef Y As Single, _
    ByRef n As Long, ByRef y0 As Single, ByRef count As Long, ByRef XC As Single)

Public Declare Sub trvpin Lib "Trelvin.dll" Alias "trvpin" (ByRef X As Single, ByRef Y As Single, _
    ByRef n As Long, ByRef x1 As Single, ByRef y1 As Single, ByRef x2 As Single, _
    ByRef y2 As Single, ByRef count As Long, ByRef XI As Single, ByRef YI As Single, _
    ByRef T As Single, ByRef EDGE As Long, ByRef status As Long)

Public Declare Sub trvpds Lib "Trelvin.dll" Alias "trvpds" (ByRef x1 As Single, _
    ByRef y1 As Single, ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, _
    ByRef z2 As Single, ByRef d As Single)

Public Declare Sub trvpri Lib "Trelvin.dll" Alias "trvpri" (ByRef x1 As Single, _
    ByRef y1 As Single, ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, _
    ByRef z2 As Single, ByRef x3 As Single, ByRef y3 As Single, ByRef z3 As Single, _
    ByRef x4 As Single, ByRef y4 As Single, ByRef z4 As Single, ByRef s As Single)

Public Declare Sub trvpre Lib "Trelvin.dll" Alias "trvpre" (ByRef x1 As Single, _
    ByRef y1 As Single, ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, _
    ByRef z2 As Single, ByRef x3 As Single, ByRef y3 As Single, ByRef z3 As Single, _
    ByRef x4 As Single, ByRef y4 As Single, ByRef z4 As Single, ByRef c As Single)

Public Declare Sub trvcnt Lib "Trelvin.dll" Alias "trvcnt" (ByRef x1 As Single, _
    ByRef y1 As Single, ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, _
    ByRef z2 As Single, ByRef dx As Single, ByRef dy As Single, ByRef dz As Single, _
    ByRef status As Long)

Public Declare Sub trvcnt1 Lib "Trelvin.dll" Alias "trvcnt1" (ByRef dx As Single, _
    ByRef dy As Single, ByRef dz As Single, ByRef status As Long)

Public Declare Sub trv123 Lib "Trelvin.dll" Alias "trv123" (ByRef x1 As Single, _
    ByRef y1 As Single, ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, _
    ByRef z2 As Single, ByRef t As Single, ByRef x As Single, ByRef y As Single, _
    ByRef z As Single, ByRef status As Long)

Public Declare Sub trvmed Lib "Trelvin.dll" Alias "trvmed" (ByRef x1 As Single, _
    ByRef y1 As Single, ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, _
    ByRef z2 As Single, ByRef xm As Single, ByRef ym As Single, ByRef zm As Single)

Public Declare Sub trvdtr2 Lib "Trelvin.dll" Alias "trvdtr2" (ByRef a As Single, _
    ByRef b As Single, ByRef c As Single, ByRef d As Single, ByRef det As Single)

Public Declare Sub trvdtr3 Lib "Trelvin.dll" Alias "trvdtr3" (ByRef a1 As Single, _
    ByRef a2 As Single, ByRef a3 As Single, ByRef b1 As Single, ByRef b2 As Single, _
    ByRef b3 As Single, ByRef c1 As Single, ByRef c2 As Single, ByRef c3 As Single, _
    ByRef det As Single)

Public Declare Sub trvgrc Lib "Trelvin.dll" Alias "trvgrc" (ByRef a As Single, ByRef b As Single, _
    ByRef c As Single, ByRef q1 As Single, ByRef q2 As Single)

Public Declare Sub trvint Lib "Trelvin.dll" Alias "trvint" (ByRef x1 As Single, _
    ByRef x2 As Single, ByRef y1 As Single, ByRef y2 As Single, ByRef x As Single, _
    ByRef y As Single)

Public Declare Sub trvvin Lib "Trelvin.dll" Alias "trvvin" (ByRef u1 As Single, ByRef v As Single, _
    ByRef u3 As Single, ByRef u4 As Single, ByRef u5 As Single, ByRef status As Long)

Public Declare Sub trvpos Lib "Trelvin.dll" Alias "trvpos" (ByRef n As Long, ByRef A As Single, _
    ByRef x As Single, ByRef i As Long)

Public Declare Sub trvpos1 Lib "Trelvin.dll" Alias "trvpos1" (ByRef n As Long, ByRef A As Single, _
    ByRef x As Single, ByRef status As Long, ByRef i As Long)

Public Declare Sub trvln3 Lib "Trelvin.dll" Alias "trvln3" (ByRef x1 As Single, _
    ByRef y1 As Single, ByRef x2 As Single, ByRef y2 As Single, ByRef a As Single, _
    ByRef b As Single, ByRef c As Single)

Public Declare Sub trvln1 Lib "Trelvin.dll" Alias "trvln1" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef phi As Single, ByRef a As Single, ByRef b As Single, _
    ByRef c As Single)

Public Declare Sub trvln4 Lib "Trelvin.dll" Alias "trvln4" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef dx As Single, ByRef dy As Single, ByRef u As Single, _
    ByRef a As Single, ByRef b As Single, ByRef c As Single)

Public Declare Sub trvln2 Lib "Trelvin.dll" Alias "trvln2" (ByRef a As Single, ByRef b As Single, _
    ByRef c As Single, ByRef d As Single, ByRef a2 As Single, ByRef b2 As Single, _
    ByRef c2 As Single)

Public Declare Sub trvln5 Lib "Trelvin.dll" Alias "trvln5" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef x1 As Single, ByRef y1 As Single, ByRef x2 As Single, _
    ByRef y2 As Single, ByRef a As Single, ByRef b As Single, ByRef c As Single)

Public Declare Sub trvlds Lib "Trelvin.dll" Alias "trvlds" (ByRef x As Single, ByRef y As Single, _
    ByRef a As Single, ByRef b As Single, ByRef c As Single, ByRef d As Single)

Public Declare Sub trvlni Lib "Trelvin.dll" Alias "trvlni" (ByRef a1 As Single, _
    ByRef b1 As Single, ByRef c1 As Single, ByRef a2 As Single, ByRef b2 As Single, _
    ByRef c2 As Single, ByRef status As Long, ByRef x As Single, ByRef y As Single)

Public Declare Sub trvlul Lib "Trelvin.dll" Alias "trvlul" (ByRef a1 As Single, _
    ByRef b1 As Single, ByRef c1 As Single, ByRef a2 As Single, ByRef b2 As Single, _
    ByRef c2 As Single, ByRef d As Single, ByRef status As Long)

Public Declare Sub trvpsn Lib "Trelvin.dll" Alias "trvpsn" (ByRef p1 As Single, _
    ByRef p2 As Single, ByRef p3 As Single, ByRef q1 As Single, ByRef q2 As Single, _
    ByRef q3 As Single, ByRef code As Long)

Public Declare Sub trvln6 Lib "Trelvin.dll" Alias "trvln6" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef z0 As Single, ByRef dx As Single, ByRef dy As Single, _
    ByRef dz As Single, ByRef px As Single, ByRef py As Single, ByRef pz As Single, _
    ByRef tol As Single, ByRef code As Long, ByRef on_ As Long)

Public Declare Sub trvln7 Lib "Trelvin.dll" Alias "trvln7" (ByRef a1 As Single, _
    ByRef b1 As Single, ByRef c1 As Single, ByRef d1 As Single, ByRef a2 As Single, _
    ByRef b2 As Single, ByRef c2 As Single, ByRef d2 As Single, ByRef px As Single, _
    ByRef py As Single, ByRef pz As Single, ByRef ex As Single, ByRef ey As Single, _
    ByRef ez As Single, ByRef tol As Single, ByRef code As Long, ByRef on_ As Long)

Public Declare Sub trvphi Lib "Trelvin.dll" Alias "trvphi" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef x1 As Single, ByRef y1 As Single, ByRef x2 As Single, _
    ByRef y2 As Single, ByRef phi As Single)

Public Declare Sub trvphi3 Lib "Trelvin.dll" Alias "trvphi3" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef z0 As Single, ByRef x1 As Single, ByRef y1 As Single, _
    ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, ByRef z2 As Single, _
    ByRef phi As Single)

Public Declare Sub trvphi1 Lib "Trelvin.dll" Alias "trvphi1" (ByRef ux As Single, _
    ByRef uy As Single, ByRef uz As Single, ByRef vx As Single, ByRef vy As Single, _
    ByRef vz As Single, ByRef phi As Single)

Public Declare Sub trvphip Lib "Trelvin.dll" Alias "trvphip" (ByRef ux As Single, _
    ByRef uy As Single, ByRef uz As Single, ByRef vx As Single, ByRef vy As Single, _
    ByRef vz As Single, ByRef phi As Single, ByRef status As Long)

Public Declare Sub trvchi Lib "Trelvin.dll" Alias "trvchi" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef z0 As Single, ByRef x1 As Single, ByRef y1 As Single, _
    ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, ByRef z2 As Single, _
    ByRef chi As Single, ByRef status As Long)

Public Declare Sub trvcnv Lib "Trelvin.dll" Alias "trvcnv" (ByRef X As Single, ByRef Y As Single, _
    ByRef n As Long, ByRef status As Long)

Public Declare Sub trvtrg Lib "Trelvin.dll" Alias "trvtrg" (ByRef x1 As Single, _
    ByRef y1 As Single, ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, _
    ByRef z2 As Single, ByRef x3 As Single, ByRef y3 As Single, ByRef z3 As Single, _
    ByRef x4 As Single, ByRef y4 As Single, ByRef z4 As Single, ByRef cphi As Single, _
    ByRef sphi As Single, ByRef status As Long)

Public Declare Sub trvdir Lib "Trelvin.dll" Alias "trvdir" (ByRef ux As Single, _
    ByRef uy As Single, ByRef uz As Single, ByRef vx As Single, ByRef vy As Single, _
    ByRef vz As Single, ByRef code As Long)

Public Declare Sub trvdirp Lib "Trelvin.dll" Alias "trvdirp" (ByRef a1 As Single, _
    ByRef b1 As Single, ByRef c1 As Single, ByRef d1 As Single, ByRef a2 As Single, _
    ByRef b2 As Single, ByRef c2 As Single, ByRef d2 As Single, ByRef code As Long)

Public Declare Sub trvmov Lib "Trelvin.dll" Alias "trvmov" (ByRef x1 As Single, _
    ByRef y1 As Single, ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, _
    ByRef z2 As Single, ByRef x3 As Single, ByRef y3 As Single, ByRef z3 As Single, _
    ByRef x4 As Single, ByRef y4 As Single, ByRef z4 As Single, ByRef ax As Single, _
    ByRef ay As Single, ByRef az As Single)

Public Declare Sub trvtra Lib "Trelvin.dll" Alias "trvtra" (ByRef X As Single, ByRef Y As Single, _
    ByRef n As Long, ByRef x0 As Single, ByRef y0 As Single)

Public Declare Sub trvinv Lib "Trelvin.dll" Alias "trvinv" (ByRef V As Long, ByRef n As Long)

Public Declare Sub trvadr Lib "Trelvin.dll" Alias "trvadr" (ByRef V As Long, ByRef n As Long, _
    ByRef k As Long, ByRef A As Long, ByRef m As Long)

Public Declare Sub trvapl Lib "Trelvin.dll" Alias "trvapl" (ByRef x As Single, ByRef y As Single, _
    ByRef n As Long, ByRef area As Single)

Public Declare Sub trvspl Lib "Trelvin.dll" Alias "trvspl" (ByRef x As Single, ByRef y As Single, _
    ByRef n As Long, ByRef sx As Single, ByRef sy As Single)

Public Declare Sub trvipl Lib "Trelvin.dll" Alias "trvipl" (ByRef x As Single, ByRef y As Single, _
    ByRef n As Long, ByRef ix As Single, ByRef iy As Single, ByRef ixy As Single)

Public Declare Sub trvacp Lib "Trelvin.dll" Alias "trvacp" (ByRef xc As Single, _
    ByRef yc As Single, ByRef x1 As Single, ByRef y1 As Single, ByRef x2 As Single, _
    ByRef y2 As Single, ByRef kind As Long, ByRef area As Single, ByRef xs As Single, _
    ByRef ys As Single)

Public Declare Sub trvicp Lib "Trelvin.dll" Alias "trvicp" (ByRef xc As Single, _
    ByRef yc As Single, ByRef x1 As Single, ByRef y1 As Single, ByRef x2 As Single, _
    ByRef y2 As Single, ByRef kind As Long, ByRef ix As Single, ByRef iy As Single, _
    ByRef ixy As Single)

Public Declare Sub trvair Lib "Trelvin.dll" Alias "trvair" (ByRef x As Single, ByRef y As Single, _
    ByRef n As Long, ByRef kind As Long, ByRef value As Single, ByRef factor As Single, _
    ByRef area As Single)

Public Declare Sub trvstm Lib "Trelvin.dll" Alias "trvstm" (ByRef x As Single, ByRef y As Single, _
    ByRef n As Long, ByRef kind As Long, ByRef value As Single, ByRef factor As Single, _
    ByRef sx As Single, ByRef sy As Single)

Public Declare Sub trvinm Lib "Trelvin.dll" Alias "trvinm" (ByRef x As Single, ByRef y As Single, _
    ByRef n As Long, ByRef kind As Long, ByRef value As Single, ByRef angle As Single, _
    ByRef factor As Single, ByRef ix As Single, ByRef iy As Single, ByRef ixy As Single)

Public Declare Sub trvinp Lib "Trelvin.dll" Alias "trvinp" (ByRef ix As Single, _
    ByRef iy As Single, ByRef ixy As Single, ByRef i1 As Single, ByRef i2 As Single, _
    ByRef alpha As Single)

Public Declare Sub trvinr Lib "Trelvin.dll" Alias "trvinr" (ByRef n As Long, ByRef f As Single, _
    ByRef a As Single, ByRef b As Single, ByRef result As Single)

Public Declare Sub trvro2 Lib "Trelvin.dll" Alias "trvro2" (ByRef b As Single, ByRef t As Single, _
    ByRef r1 As Single, ByRef r2 As Single, ByRef psi As Single, ByRef ks As Single, _
    ByRef rho As Single)

Public Declare Sub trvefr Lib "Trelvin.dll" Alias "trvefr" (ByRef c As Single, ByRef bp As Single, _
    ByRef t As Single, ByRef r1 As Single, ByRef r2 As Single, ByRef ceff As Single)

Public Declare Sub trvef2 Lib "Trelvin.dll" Alias "trvef2" (ByRef bl As Single, ByRef w As Single, _
    ByRef t As Single, ByRef r1 As Single, ByRef r2 As Single, ByRef s1 As Single, _
    ByRef s2 As Single, ByRef be1 As Single, ByRef be2 As Single)

Public Declare Sub trvsec_ia Lib "Trelvin.dll" Alias "trvsec_ia" (ByRef H As Single, _
    ByRef B1 As Single, ByRef B2 As Single, ByRef T1 As Single, ByRef T2 As Single, _
    ByRef TW As Single, ByRef q As Single, ByRef np As Long, ByRef nv As Long, ByRef X As Single, _
    ByRef Y As Single, ByRef code As Long, ByRef sign As Single, ByRef z1 As Single, _
    ByRef z2 As Single, ByRef z3 As Single, ByRef z4 As Single, ByRef z5 As Single, _
    ByRef q1 As Single, ByRef q2 As Single)

Public Declare Sub trvsec_h Lib "Trelvin.dll" Alias "trvsec_h" (ByRef H As Single, _
    ByRef B1 As Single, ByRef B2 As Single, ByRef T1 As Single, ByRef T2 As Single, _
    ByRef TW As Single, ByRef q As Single, ByRef np As Long, ByRef nv As Long, ByRef X As Single, _
    ByRef Y As Single, ByRef code As Long, ByRef sign As Single, ByRef z1 As Single, _
    ByRef z2 As Single, ByRef z3 As Single, ByRef z4 As Single, ByRef z5 As Single, _
    ByRef q1 As Single, ByRef q2 As Single)

Public Declare Sub trvsec_t Lib "Trelvin.dll" Alias "trvsec_t" (ByRef B As Single, _
    ByRef H As Single, ByRef TF As Single, ByRef TW As Single, ByRef q As Single, _
    ByRef np As Long, ByRef nv As Long, ByRef X As Single, ByRef Y As Single, ByRef code As Long, _
    ByRef sign As Single, ByRef z1 As Single, ByRef z2 As Single, ByRef z3 As Single, _
    ByRef z4 As Single, ByRef z5 As Single, ByRef q1 As Single, ByRef q2 As Single)

Public Declare Sub trvsec_b Lib "Trelvin.dll" Alias "trvsec_b" (ByRef B As Long, _
    ByRef H As Single, ByRef q As Single, ByRef np As Long, ByRef nv As Long, ByRef X As Single, _
    ByRef Y As Single, ByRef code As Long, ByRef sign As Single, ByRef z1 As Single, _
    ByRef z2 As Single, ByRef z3 As Single, ByRef z4 As Single, ByRef z5 As Single, _
    ByRef q1 As Single, ByRef q2 As Single)

Public Declare Sub trvsec_h1b Lib "Trelvin.dll" Alias "trvsec_h1b" (ByRef W As Single, _
    ByRef D As Single, ByRef P As Single, ByRef T1 As Single, ByRef T2 As Single, _
    ByRef TW As Single, ByRef TP As Single, ByRef q As Single, ByRef np As Long, ByRef nv As Long, _
    ByRef X As Single, ByRef Y As Single, ByRef code As Long, ByRef sign As Single, _
    ByRef z1 As Single, ByRef z2 As Single, ByRef z3 As Single, ByRef z4 As Single, _
    ByRef z5 As Single, ByRef q1 As Single, ByRef q2 As Single)

Public Declare Sub trvsec_box Lib "Trelvin.dll" Alias "trvsec_box" (ByRef BT As Single, _
    ByRef BB As Single, ByRef TT As Single, ByRef TB As Single, ByRef H As Single, _
    ByRef TW As Single, ByRef G As Single, ByRef q As Single, ByRef np As Long, ByRef nv As Long, _
    ByRef X As Single, ByRef Y As Single, ByRef code As Long, ByRef sign As Single, _
    ByRef z1 As Single, ByRef z2 As Single, ByRef z3 As Single, ByRef z4 As Single, _
    ByRef z5 As Single, ByRef q1 As Single, ByRef q2 As Single)

Public Declare Sub trvsec_rhs Lib "Trelvin.dll" Alias "trvsec_rhs" (ByRef B As Single, _
    ByRef H As Single, ByRef T As Single, ByRef q As Single, ByRef np As Long, ByRef nv As Long, _
    ByRef X As Single, ByRef Y As Single, ByRef code As Long, ByRef sign As Single, _
    ByRef z1 As Single, ByRef z2 As Single, ByRef z3 As Single, ByRef z4 As Single, _
    ByRef z5 As Single, ByRef q1 As Single, ByRef q2 As Single)

Public Declare Sub trvsec_l2 Lib "Trelvin.dll" Alias "trvsec_l2" (ByRef B As Single, _
    ByRef H As Single, ByRef G As Single, ByRef T As Single, ByRef TV As Single, _
    ByRef q As Single, ByRef np As Long, ByRef nv As Long, ByRef X As Single, ByRef Y As Single, _
    ByRef code As Long, ByRef sign As Single, ByRef z1 As Single, ByRef z2 As Single, _
    ByRef z3 As Single, ByRef z4 As Single, ByRef z5 As Single, ByRef q1 As Single, _
    ByRef q2 As Single)

Public Declare Sub trvsec_tab Lib "Trelvin.dll" Alias "trvsec_tab" (ByRef B As Single, _
    ByRef H As Single, ByRef BW As Single, ByRef E As Single, ByRef T As Single, _
    ByRef TW As Single, ByRef TB As Single, ByRef q As Single, ByRef np As Long, ByRef nv As Long, _
    ByRef X As Single, ByRef Y As Single, ByRef code As Long, ByRef sign As Single, _
    ByRef z1 As Single, ByRef z2 As Single, ByRef z3 As Single, ByRef z4 As Single, _
    ByRef z5 As Single, ByRef q1 As Single, ByRef q2 As Single)

Public Declare Sub trvsec_h2b Lib "Trelvin.dll" Alias "trvsec_h2b" (ByRef B As Single, _
    ByRef W As Single, ByRef HI As Single, ByRef TW1 As Single, ByRef TW2 As Single, _
    ByRef TM As Single, ByRef TF As Single, ByRef q As Single, ByRef np As Long, ByRef nv As Long, _
    ByRef X As Single, ByRef Y As Single, ByRef code As Long, ByRef sign As Single, _
    ByRef z1 As Single, ByRef z2 As Single, ByRef z3 As Single, ByRef z4 As Single, _
    ByRef z5 As Single, ByRef q1 As Single, ByRef q2 As Single)

Public Declare Sub trvsec_i Lib "Trelvin.dll" Alias "trvsec_i" (ByRef H As Single, _
    ByRef B1 As Single, ByRef B2 As Single, ByRef T1 As Single, ByRef T2 As Single, _
    ByRef TW As Single, ByRef S1 As Single, ByRef S2 As Single, ByRef E As Single, _
    ByRef q As Single, ByRef np As Long, ByRef nv As Long, ByRef X As Single, ByRef Y As Single, _
    ByRef code As Long, ByRef sign As Single, ByRef z1 As Single, ByRef z2 As Single, _
    ByRef z3 As Single, ByRef z4 As Single, ByRef z5 As Single, ByRef q1 As Single, _
    ByRef q2 As Single)

Public Declare Sub trvsec_c Lib "Trelvin.dll" Alias "trvsec_c" (ByRef H As Single, _
    ByRef B1 As Single, ByRef B2 As Single, ByRef C1 As Single, ByRef C2 As Single, _
    ByRef D1 As Single, ByRef D2 As Single, ByRef TW As Single, ByRef T1 As Single, _
    ByRef T2 As Single, ByRef TC1 As Single, ByRef TC2 As Single, ByRef TD1 As Single, _
    ByRef TD2 As Single, ByRef q As Single, ByRef np As Long, ByRef nv As Long, ByRef X As Single, _
    ByRef Y As Single, ByRef code As Long, ByRef sign As Single, ByRef z1 As Single, _
    ByRef z2 As Single, ByRef z3 As Single, ByRef z4 As Single, ByRef z5 As Single, _
    ByRef q1 As Single, ByRef q2 As Single)

Public Declare Sub trvshc_c Lib "Trelvin.dll" Alias "trvshc_c" (ByRef B As Single, _
    ByRef H As Single, ByRef C As Single, ByRef t As Single, ByRef e0 As Single)

Public Declare Sub trvwar_c Lib "Trelvin.dll" Alias "trvwar_c" (ByRef B As Single, _
    ByRef H As Single, ByRef C As Single, ByRef t As Single, ByRef Iw As Single)

Public Declare Sub trvmxt Lib "Trelvin.dll" Alias "trvmxt" (ByRef n As Long, ByRef X1 As Single, _
    ByRef Y1 As Single, ByRef X2 As Single, ByRef Y2 As Single, ByRef T As Single, _
    ByRef A As Single, ByRef xs As Single, ByRef ys As Single, ByRef Ix As Single, _
    ByRef Iy As Single, ByRef Ixy As Single, ByRef I1 As Single, ByRef I2 As Single, _
    ByRef alpha As Single, ByRef rx As Single, ByRef ry As Single, ByRef Wx1 As Single, _
    ByRef Wx2 As Single, ByRef Wy1 As Single, ByRef Wy2 As Single, ByRef Wpx As Single, _
    ByRef Wpy As Single, ByRef xp As Single, ByRef yp As Single, ByRef It As Single, _
    ByRef Wt As Single, ByRef xm As Single, ByRef ym As Single, ByRef Iw As Single, _
    ByRef r0 As Single, ByRef W1 As Single, ByRef W2 As Single, ByRef status As Long)

Public Declare Sub trvmxt_fb Lib "Trelvin.dll" Alias "trvmxt_fb" (ByRef B As Single, _
    ByRef H As Single, ByRef A As Single, ByRef xs As Single, ByRef ys As Single, _
    ByRef Ix As Single, ByRef Iy As Single, ByRef Ixy As Single, ByRef I1 As Single, _
    ByRef I2 As Single, ByRef alpha As Single, ByRef rx As Single, ByRef ry As Single, _
    ByRef Wx1 As Single, ByRef Wx2 As Single, ByRef Wy1 As Single, ByRef Wy2 As Single, _
    ByRef Wpx As Single, ByRef Wpy As Single, ByRef xp As Single, ByRef yp As Single, _
    ByRef It As Single, ByRef Wt As Single, ByRef xm As Single, ByRef ym As Single, _
    ByRef Iw As Single, ByRef r0 As Single, ByRef W1 As Single, ByRef W2 As Single, _
    ByRef status As Long)

Public Declare Sub trvrot Lib "Trelvin.dll" Alias "trvrot" (ByRef mode As Long, ByRef x As Single, _
    ByRef y As Single, ByRef n As Long, ByRef angle As Single)

Public Declare Sub trvrotx Lib "Trelvin.dll" Alias "trvrotx" (ByRef mode As Long, _
    ByRef x As Single, ByRef y As Single, ByRef z As Single, ByRef n As Long, _
    ByRef angle As Single)

Public Declare Sub trvroty Lib "Trelvin.dll" Alias "trvroty" (ByRef mode As Long, _
    ByRef x As Single, ByRef y As Single, ByRef z As Single, ByRef n As Long, _
    ByRef angle As Single)

Public Declare Sub trvrotz Lib "Trelvin.dll" Alias "trvrotz" (ByRef mode As Long, _
    ByRef x As Single, ByRef y As Single, ByRef z As Single, ByRef n As Long, _
    ByRef angle As Single)

Public Declare Sub trvpsl Lib "Trelvin.dll" Alias "trvpsl" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef z0 As Single, ByRef x1 As Single, ByRef y1 As Single, _
    ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, ByRef z2 As Single, _
    ByRef status As Long)

Public Declare Sub trv3tra Lib "Trelvin.dll" Alias "trv3tra" (ByRef X As Single, _
    ByRef Y As Single, ByRef Z As Single, ByRef n As Long, ByRef dx As Single, ByRef dy As Single, _
    ByRef dz As Single)

Public Declare Sub trvtrn Lib "Trelvin.dll" Alias "trvtrn" (ByRef p As Single, ByRef a1 As Single, _
    ByRef a2 As Single, ByRef a3 As Single, ByRef a4 As Single, ByRef a5 As Single, _
    ByRef a6 As Single, ByRef a7 As Single, ByRef a8 As Single, ByRef a9 As Single, _
    ByRef mode As Long)

Public Declare Sub trvaxe Lib "Trelvin.dll" Alias "trvaxe" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef z0 As Single, ByRef x1 As Single, ByRef y1 As Single, _
    ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, ByRef z2 As Single, _
    ByRef e1x As Single, ByRef e1y As Single, ByRef e1z As Single, ByRef e2x As Single, _
    ByRef e2y As Single, ByRef e2z As Single, ByRef e3x As Single, ByRef e3y As Single, _
    ByRef e3z As Single, ByRef status As Long)

Public Declare Sub trvaxel Lib "Trelvin.dll" Alias "trvaxel" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef z0 As Single, ByRef x1 As Single, ByRef y1 As Single, _
    ByRef z1 As Single, ByRef angle As Single, ByRef e1x As Single, ByRef e1y As Single, _
    ByRef e1z As Single, ByRef e2x As Single, ByRef e2y As Single, ByRef e2z As Single, _
    ByRef e3x As Single, ByRef e3y As Single, ByRef e3z As Single, ByRef status As Long)

Public Declare Sub trvptr Lib "Trelvin.dll" Alias "trvptr" (ByRef X As Single, ByRef Y As Single, _
    ByRef Z As Single, ByRef n As Long, ByRef x0 As Single, ByRef y0 As Single, _
    ByRef z0 As Single, ByRef ax As Single, ByRef ay As Single, ByRef az As Single)

Public Declare Sub trvptrl Lib "Trelvin.dll" Alias "trvptrl" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef z0 As Single, ByRef x1 As Single, ByRef y1 As Single, _
    ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, ByRef z2 As Single, _
    ByRef X As Single, ByRef Y As Single, ByRef Z As Single, ByRef n As Long, ByRef dx As Single, _
    ByRef dy As Single, ByRef dz As Single, ByRef ax As Single, ByRef ay As Single, _
    ByRef az As Single, ByRef status As Long)

Public Declare Sub trvpra Lib "Trelvin.dll" Alias "trvpra" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef z0 As Single, ByRef x1 As Single, ByRef y1 As Single, _
    ByRef z1 As Single, ByRef X As Single, ByRef Y As Single, ByRef Z As Single, ByRef n As Long, _
    ByRef angle As Single, ByRef status As Long)

Public Declare Sub trvppc Lib "Trelvin.dll" Alias "trvppc" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef z0 As Single, ByRef x1 As Single, ByRef y1 As Single, _
    ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, ByRef z2 As Single, _
    ByRef dx As Single, ByRef dy As Single, ByRef dz As Single, ByRef ax As Single, _
    ByRef ay As Single, ByRef az As Single, ByRef n As Long, ByRef X As Single, ByRef Y As Single, _
    ByRef Z As Single, ByRef tol As Single, ByRef status As Long)

Public Declare Sub trvplg Lib "Trelvin.dll" Alias "trvplg" (ByRef x As Single, ByRef y As Single, _
    ByRef z As Single, ByRef ux As Single, ByRef uy As Single, ByRef uz As Single, _
    ByRef wx As Single, ByRef wy As Single, ByRef wz As Single, ByRef a As Single, _
    ByRef b As Single, ByRef c As Single, ByRef d As Single)

Public Declare Sub trvpl1 Lib "Trelvin.dll" Alias "trvpl1" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef z0 As Single, ByRef x1 As Single, ByRef y1 As Single, _
    ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, ByRef z2 As Single, _
    ByRef a As Single, ByRef b As Single, ByRef c As Single, ByRef d As Single, _
    ByRef status As Long)

Public Declare Sub trvpl2 Lib "Trelvin.dll" Alias "trvpl2" (ByRef x As Single, ByRef y As Single, _
    ByRef z As Single, ByRef xa As Single, ByRef ya As Single, ByRef za As Single, _
    ByRef xb As Single, ByRef yb As Single, ByRef zb As Single, ByRef xc As Single, _
    ByRef yc As Single, ByRef zc As Single, ByRef xd As Single, ByRef yd As Single, _
    ByRef zd As Single, ByRef a As Single, ByRef b As Single, ByRef c As Single, _
    ByRef d As Single, ByRef status As Long)

Public Declare Sub trvpl3 Lib "Trelvin.dll" Alias "trvpl3" (ByRef xa As Single, _
    ByRef ya As Single, ByRef za As Single, ByRef xb As Single, ByRef yb As Single, _
    ByRef zb As Single, ByRef xc As Single, ByRef yc As Single, ByRef zc As Single, _
    ByRef xd As Single, ByRef yd As Single, ByRef zd As Single, ByRef a As Single, _
    ByRef b As Single, ByRef c As Single, ByRef d As Single, ByRef status As Long)

Public Declare Sub trvpl4 Lib "Trelvin.dll" Alias "trvpl4" (ByRef x As Single, ByRef y As Single, _
    ByRef z As Single, ByRef xa As Single, ByRef ya As Single, ByRef za As Single, _
    ByRef xb As Single, ByRef yb As Single, ByRef zb As Single, ByRef a As Single, _
    ByRef b As Single, ByRef c As Single, ByRef d As Single, ByRef status As Long)

Public Declare Sub trvpl5 Lib "Trelvin.dll" Alias "trvpl5" (ByRef ix As Single, _
    ByRef iy As Single, ByRef iz As Single, ByRef a As Single, ByRef b As Single, _
    ByRef c As Single, ByRef d As Single, ByRef status As Long)

Public Declare Sub trvpl6 Lib "Trelvin.dll" Alias "trvpl6" (ByRef xa As Single, _
    ByRef ya As Single, ByRef za As Single, ByRef ux As Single, ByRef uy As Single, _
    ByRef uz As Single, ByRef xc As Single, ByRef yc As Single, ByRef zc As Single, _
    ByRef wx As Single, ByRef wy As Single, ByRef wz As Single, ByRef a As Single, _
    ByRef b As Single, ByRef c As Single, ByRef d As Single, ByRef status As Long)

Public Declare Sub trvpl7 Lib "Trelvin.dll" Alias "trvpl7" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef z0 As Single, ByRef x1 As Single, ByRef y1 As Single, _
    ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, ByRef z2 As Single, _
    ByRef angle As Single, ByRef a As Single, ByRef b As Single, ByRef c As Single, _
    ByRef d As Single, ByRef status As Long)

Public Declare Sub trvpsp Lib "Trelvin.dll" Alias "trvpsp" (ByRef x0 As Single, _
    ByRef y0 As Single, ByRef z0 As Single, ByRef x1 As Single, ByRef y1 As Single, _
    ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, ByRef z2 As Single, _
    ByRef x As Single, ByRef y As Single, ByRef z As Single, ByRef tol As Single, _
    ByRef status As Long)

Public Declare Sub trvpld Lib "Trelvin.dll" Alias "trvpld" (ByRef x As Single, ByRef y As Single, _
    ByRef z As Single, ByRef a As Single, ByRef b As Single, ByRef c As Single, ByRef d As Single, _
    ByRef dist As Single)

Public Declare Sub trvpspg Lib "Trelvin.dll" Alias "trvpspg" (ByRef x As Single, _
    ByRef y As Single, ByRef z As Single, ByRef a As Single, ByRef b As Single, ByRef c As Single, _
    ByRef d As Single, ByRef tol As Single, ByRef status As Long)

Public Declare Sub trvplv Lib "Trelvin.dll" Alias "trvplv" (ByRef ux As Single, _
    ByRef uy As Single, ByRef uz As Single, ByRef wx As Single, ByRef wy As Single, _
    ByRef wz As Single, ByRef v7 As Single, ByRef v8 As Single, ByRef status As Long)

Public Declare Sub trvpnp Lib "Trelvin.dll" Alias "trvpnp" (ByRef X As Single, ByRef Y As Single, _
    ByRef Z As Single, ByRef a As Single, ByRef b As Single, ByRef c As Single, ByRef d As Single, _
    ByRef n As Long, ByRef count As Long, ByRef index As Long)

Public Declare Sub trvdirl Lib "Trelvin.dll" Alias "trvdirl" (ByRef xa As Single, _
    ByRef ya As Single, ByRef za As Single, ByRef xb As Single, ByRef yb As Single, _
    ByRef zb As Single, ByRef xc As Single, ByRef yc As Single, ByRef zc As Single, _
    ByRef xd As Single, ByRef yd As Single, ByRef zd As Single, ByRef status As Long)

Public Declare Sub trv3sp Lib "Trelvin.dll" Alias "trv3sp" (ByRef xa As Single, _
    ByRef ya As Single, ByRef za As Single, ByRef xb As Single, ByRef yb As Single, _
    ByRef zb As Single, ByRef xc As Single, ByRef yc As Single, ByRef zc As Single, _
    ByRef xd As Single, ByRef yd As Single, ByRef zd As Single, ByRef xe As Single, _
    ByRef ye As Single, ByRef ze As Single, ByRef xf As Single, ByRef yf As Single, _
    ByRef zf As Single, ByRef status As Long)

Public Declare Sub trv3ldb Lib "Trelvin.dll" Alias "trv3ldb" (ByRef xa As Single, _
    ByRef ya As Single, ByRef za As Single, ByRef xb As Single, ByRef yb As Single, _
    ByRef zb As Single, ByRef xq As Single, ByRef yq As Single, ByRef zq As Single, _
    ByRef status As Long, ByRef dist As Single)

Public Declare Sub trv3lda Lib "Trelvin.dll" Alias "trv3lda" (ByRef xa As Single, _
    ByRef ya As Single, ByRef za As Single, ByRef xb As Single, ByRef yb As Single, _
    ByRef zb As Single, ByRef xq As Single, ByRef yq As Single, ByRef zq As Single, _
    ByRef status As Long, ByRef dist As Single)

Public Declare Sub trv3lni Lib "Trelvin.dll" Alias "trv3lni" (ByRef xa As Single, _
    ByRef ya As Single, ByRef za As Single, ByRef ux As Single, ByRef uy As Single, _
    ByRef uz As Single, ByRef xc As Single, ByRef yc As Single, ByRef zc As Single, _
    ByRef wx As Single, ByRef wy As Single, ByRef wz As Single, ByRef status As Long, _
    ByRef xi As Single, ByRef yi As Single, ByRef zi As Single)

Public Declare Sub trvpli Lib "Trelvin.dll" Alias "trvpli" (ByRef x As Single, ByRef y As Single, _
    ByRef z As Single, ByRef ux As Single, ByRef uy As Single, ByRef uz As Single, _
    ByRef a As Single, ByRef b As Single, ByRef c As Single, ByRef d As Single, _
    ByRef xi As Single, ByRef yi As Single, ByRef zi As Single, ByRef status As Long)

Public Declare Sub trvplp Lib "Trelvin.dll" Alias "trvplp" (ByRef a As Single, ByRef b As Single, _
    ByRef c As Single, ByRef d As Single, ByRef position As Long)

Public Declare Sub trvpnl Lib "Trelvin.dll" Alias "trvpnl" (ByRef xa As Single, _
    ByRef ya As Single, ByRef za As Single, ByRef xb As Single, ByRef yb As Single, _
    ByRef zb As Single, ByRef X As Single, ByRef Y As Single, ByVal zf As Long, ByRef n As Long, _
    ByRef tol As Single, ByRef status As Long, ByRef count As Long, ByRef index As Long)

Public Declare Sub trvlpc Lib "Trelvin.dll" Alias "trvlpc" (ByRef xp As Single, _
    ByRef yp As Single, ByRef zp As Single, ByRef x1 As Single, ByRef y1 As Single, _
    ByRef z1 As Single, ByRef x2 As Single, ByRef y2 As Single, ByRef z2 As Single, _
    ByRef dxp As Single, ByRef dyp As Single, ByRef dzp As Single, ByRef dx1 As Single, _
    ByRef dy1 As Single, ByRef dz1 As Single, ByRef status As Long)

#End If
