// Generated from include/trelvin by tools/generate.py.
//
// Every routine of Trelvin for C#, from .NET Framework 2.0 and Mono on. One source for all systems:
// the library "trelvin" is Trelvin.dll on Windows and libtrelvin.so elsewhere. The contracts are in
// include/trelvin.
using System;
using System.Runtime.InteropServices;

namespace Trelvin
{
    /// <summary>A function of the host's: a Real for a position. Passed to a routine, it must stay
    /// referenced until the call returns.</summary>
    public delegate float PositionFunction(ref int position);

    /// <summary>The routines. In the form with <c>ref</c> throughout, an output that a contract
    /// calls unwritten keeps its value; in the form with inputs by value it is zero.</summary>
    public static class Native
    {
        public const string Version = "1.1.1";
        private const string Library = "trelvin";


        // Whether a computation was done.
        public const int trvStatusDone = 0;
        public const int trvStatusRefused = -1;

        // Whether a point of an arc was found. Caution: here 1 means done.
        public const int trvArcDone = 1;
        public const int trvArcRefused = 0;

        // Whether a frame was found.
        public const int trvFrameDone = 0;
        public const int trvFrameNoFrame = -2;

        // Whether two points coincide: each difference of their coordinates is within the
        // tolerance.
        public const int trvCoincidenceDistinct = 0;
        public const int trvCoincidenceCoincident = 1;

        // How many points were found.
        public const int trvPointsNone = 0;
        public const int trvPointsOne = 1;
        public const int trvPointsTwo = 2;

        // Which of three components are above the tolerance.
        public const int trvComponentsNone = 0;
        public const int trvComponentsAll = 1;
        public const int trvComponentsFirst = 2;
        public const int trvComponentsSecond = 3;
        public const int trvComponentsThird = 4;
        public const int trvComponentsFirstSecond = 5;
        public const int trvComponentsSecondThird = 6;
        public const int trvComponentsFirstThird = 7;

        // Whether a point lies on a line of space.
        public const int trvOnLineNo = 0;
        public const int trvOnLineYes = 1;

        // Whether a point lies on a plane. Caution: 0 means yes.
        public const int trvOnPlaneYes = 0;
        public const int trvOnPlaneNo = -1;
        public const int trvOnPlaneZeroNormal = 1;

        // How two lines of the plane lie to each other.
        public const int trvPlaneLinesOnePoint = 0;
        public const int trvPlaneLinesSameLine = 1;
        public const int trvPlaneLinesParallel = 2;

        // Three-point test (trvpsl): where P2 is, seen from P0 and P1.
        public const int trvThreePointsSpansPlane = 0;
        public const int trvThreePointsAtP0 = 1;
        public const int trvThreePointsAtP1 = 2;
        public const int trvThreePointsBetween = 3;
        public const int trvThreePointsBeyondP0 = 4;
        public const int trvThreePointsBeyondP1 = 5;

        // How two lines of space lie to each other (trvdirl).
        public const int trvLinesCrossing = 0;
        public const int trvLinesParallelSame = 1;
        public const int trvLinesParallelOpposite = 2;
        public const int trvLinesSameLine = 3;
        public const int trvLinesOppositeLine = 4;
        public const int trvLinesPerpendicular = 5;
        public const int trvLinesSkew = 6;
        public const int trvLinesCoincident = 7;

        // Outcome for two lines of space: a result, or the relation that allows no result.
        public const int trvTwoLinesDone = 0;
        public const int trvTwoLinesSameLine = 3;
        public const int trvTwoLinesOppositeLine = 4;
        public const int trvTwoLinesSkew = 6;
        public const int trvTwoLinesNoLength = 7;

        // Kind of a part of a section.
        public const int trvPartConcentrated = 1;
        public const int trvPartPolygon = 2;
        public const int trvPartCircle = 3;
        public const int trvPartSmallerSegment = 4;
        public const int trvPartLargerSegment = 5;

        // trvcin: class.
        public const int trvcinUncutAbove = 1;
        public const int trvcinUncutBelow = 2;
        public const int trvcinCutBelow = 3;
        public const int trvcinCutAbove = 4;

        // trvapp: where each point is.
        public const int trvappInside = 1;
        public const int trvappOutside = 2;
        public const int trvappNoSector = -1;

        // trvcer10: outcome.
        public const int trvcer10CrossingOrRefused = 0;
        public const int trvcer10AlongChord = 1;
        public const int trvcer10Parallel = 2;

        // trvptp1: which points of A match a point of B.
        public const int trvptp1NoPair = 0;
        public const int trvptp1SomePairs = 1;
        public const int trvptp1AllPaired = 2;

        // trvpin: where P1 is.
        public const int trvpinInside = 1;
        public const int trvpinOutside = 0;
        public const int trvpinRefused = -1;

        // trvcnt1: test.
        public const int trvcnt1Zero = 1;
        public const int trvcnt1Nonzero = 0;

        // trvvin: sign.
        public const int trvvinPositive = 1;
        public const int trvvinNotPositive = 2;

        // trvpos1: what was found.
        public const int trvpos1AtEntry = 1;
        public const int trvpos1Between = 2;
        public const int trvpos1Neither = 0;

        // trvphip: outcome.
        public const int trvphipNoLength = -1;

        // trvcnv: test.
        public const int trvcnvConvex = 1;
        public const int trvcnvNotConvex = 0;
        public const int trvcnvRefused = -1;

        // trvdir: relation.
        public const int trvdirOblique = 0;
        public const int trvdirSame = 1;
        public const int trvdirOpposite = 2;
        public const int trvdirPerpendicular = 3;
        public const int trvdirZero = 4;

        // trvdirp: relation.
        public const int trvdirpCrossing = 0;
        public const int trvdirpParallelSame = 1;
        public const int trvdirpParallelOpposite = 2;
        public const int trvdirpCoincidentSame = 3;
        public const int trvdirpCoincidentOpposite = 4;
        public const int trvdirpPerpendicular = 5;
        public const int trvdirpZeroNormal = 6;

        // trvppc: outcome.
        public const int trvppcDone = 0;
        public const int trvppcNoFrame = -1;

        // trvpl5: outcome.
        public const int trvpl5Done = 0;
        public const int trvpl5NoPlane = 1;

        // trvplv: relation.
        public const int trvplvZeroU = -1;
        public const int trvplvOblique = 0;
        public const int trvplvSame = 3;
        public const int trvplvOpposite = 4;
        public const int trvplvPerpendicular = 5;
        public const int trvplvZero = 7;

        // trv3sp: test.
        public const int trv3spFlat = 0;
        public const int trv3spSpanning = 1;

        // trvpli: outcome.
        public const int trvpliDone = 0;
        public const int trvpliParallel = 3;
        public const int trvpliZero = 4;

        // trvplp: position.
        public const int trvplpGeneral = 1;
        public const int trvplpParallelX = 2;
        public const int trvplpParallelY = 3;
        public const int trvplpParallelZ = 4;
        public const int trvplpNormalZ = 5;
        public const int trvplpNormalX = 6;
        public const int trvplpNormalY = 7;
        public const int trvplpAtZZero = 8;
        public const int trvplpAtXZero = 9;
        public const int trvplpAtYZero = 10;

        // trvlpc: outcome.
        public const int trvlpcNotMoved = 0;
        public const int trvlpcMovedOneSide = 3;
        public const int trvlpcMovedEitherSide = 4;
        public const int trvlpcMovedSkew = 6;
        public const int trvlpcMovedAtP = 7;

        // Names of version 1.1, which the next version drops.
        public const int trvcer3Done = 1;
        public const int trvcer3Refused = 0;
        public const int trvcer8Done = 1;
        public const int trvcer8Refused = 0;
        public const int trvcer6Done = 1;
        public const int trvcer6Refused = 0;
        public const int trvcer9Done = 1;
        public const int trvcer9Refused = 0;
        public const int trvarc1Done = 1;
        public const int trvarc1Refused = 0;
        public const int trvcer4Done = 1;
        public const int trvcer4Refused = 0;
        public const int trvcer5Done = 1;
        public const int trvcer5Refused = 0;
        public const int trvcer7Done = 1;
        public const int trvcer7Refused = 0;
        public const int trvardDone = 1;
        public const int trvardRefused = 0;
        public const int trvporOrdered = 0;
        public const int trvporRefused = -1;
        public const int trvcntCoincident = 1;
        public const int trvcntDistinct = 0;
        public const int trv123Done = 0;
        public const int trv123Coincident = 1;
        public const int trvchiDone = 0;
        public const int trvchiCoincident = 1;
        public const int trvtrgDone = 0;
        public const int trvtrgCoincident = 1;
        public const int trvpl4Done = 0;
        public const int trvpl4Coincident = 1;
        public const int trvlniOnePoint = 0;
        public const int trvlniSameLine = 1;
        public const int trvlniParallel = 2;
        public const int trvlulOnePoint = 0;
        public const int trvlulSameLine = 1;
        public const int trvlulParallel = 2;
        public const int trvpsnNone = 0;
        public const int trvpsnAll = 1;
        public const int trvpsnFirst = 2;
        public const int trvpsnSecond = 3;
        public const int trvpsnThird = 4;
        public const int trvpsnFirstSecond = 5;
        public const int trvpsnSecondThird = 6;
        public const int trvpsnFirstThird = 7;
        public const int trvln6None = 0;
        public const int trvln6All = 1;
        public const int trvln6First = 2;
        public const int trvln6Second = 3;
        public const int trvln6Third = 4;
        public const int trvln6FirstSecond = 5;
        public const int trvln6SecondThird = 6;
        public const int trvln6FirstThird = 7;
        public const int trvln7None = 0;
        public const int trvln7All = 1;
        public const int trvln7First = 2;
        public const int trvln7Second = 3;
        public const int trvln7Third = 4;
        public const int trvln7FirstSecond = 5;
        public const int trvln7SecondThird = 6;
        public const int trvln7FirstThird = 7;
        public const int trvln6OnLine = 1;
        public const int trvln6OffLine = 0;
        public const int trvln7OnLine = 1;
        public const int trvln7OffLine = 0;
        public const int trvmxtDone = 0;
        public const int trvmxtRefused = -1;
        public const int trvmxtFbDone = 0;
        public const int trvmxtFbRefused = -1;
        public const int trvpslSpansPlane = 0;
        public const int trvpslAtP0 = 1;
        public const int trvpslAtP1 = 2;
        public const int trvpslBetween = 3;
        public const int trvpslBeyondP0 = 4;
        public const int trvpslBeyondP1 = 5;
        public const int trvpl1Done = 0;
        public const int trvpl1AtP0 = 1;
        public const int trvpl1AtP1 = 2;
        public const int trvpl1Between = 3;
        public const int trvpl1BeyondP0 = 4;
        public const int trvpl1BeyondP1 = 5;
        public const int trvpl7Done = 0;
        public const int trvpl7AtP0 = 1;
        public const int trvpl7AtP1 = 2;
        public const int trvpl7Between = 3;
        public const int trvpl7BeyondP0 = 4;
        public const int trvpl7BeyondP1 = 5;
        public const int trvaxeDone = 0;
        public const int trvaxeNoFrame = -2;
        public const int trvaxelDone = 0;
        public const int trvaxelNoFrame = -2;
        public const int trvptrlDone = 0;
        public const int trvptrlNoFrame = -2;
        public const int trvpraDone = 0;
        public const int trvpraNoFrame = -2;
        public const int trvpl2Done = 0;
        public const int trvpl2SameLine = 3;
        public const int trvpl2OppositeLine = 4;
        public const int trvpl2Coincident = 7;
        public const int trvpl3Done = 0;
        public const int trvpl3SameLine = 3;
        public const int trvpl3OppositeLine = 4;
        public const int trvpl3Coincident = 7;
        public const int trvpl6Done = 0;
        public const int trvpl6SameLine = 3;
        public const int trvpl6OppositeLine = 4;
        public const int trvpl6Skew = 6;
        public const int trvpl6Zero = 7;
        public const int trv3lniDone = 0;
        public const int trv3lniSameLine = 3;
        public const int trv3lniOppositeLine = 4;
        public const int trv3lniSkew = 6;
        public const int trv3lniZero = 7;
        public const int trvpspOnPlane = 0;
        public const int trvpspOffPlane = -1;
        public const int trvpspgOnPlane = 0;
        public const int trvpspgOffPlane = -1;
        public const int trvpspgZeroNormal = 1;
        public const int trvdirlCrossing = 0;
        public const int trvdirlParallelSame = 1;
        public const int trvdirlParallelOpposite = 2;
        public const int trvdirlSameLine = 3;
        public const int trvdirlOppositeLine = 4;
        public const int trvdirlPerpendicular = 5;
        public const int trvdirlSkew = 6;
        public const int trvdirlCoincident = 7;
        public const int trv3ldbDone = 0;
        public const int trv3ldaDone = 0;
        public const int trvpnlDone = 0;

        // Circles and arcs of the plane

        /// <summary>Circle from its centre and radius: D = -2*xc, E = -2*yc, F = xc*xc + yc*yc -
        /// r*r.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvcer(ref float xc, ref float yc, ref float r, ref float D,
            ref float E, ref float F);

        /// <summary>Circle from its centre and radius: D = -2*xc, E = -2*yc, F = xc*xc + yc*yc -
        /// r*r.</summary>
        public static void trvcer(float xc, float yc, float r, out float D, out float E,
            out float F)
        {
            D = E = F = 0;
            trvcer(ref xc, ref yc, ref r, ref D, ref E, ref F);
        }

        /// <summary>Intersection of a line and a circle.</summary>
        /// <remarks>n: number of points (TrvPoints): 0 none: the line misses the circle; 1 one: the
        /// line touches the circle; 2 two: the line cuts the circle.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvlci(ref float a, ref float b, ref float c, ref float D,
            ref float E, ref float F, ref int n, ref float x1, ref float y1, ref float x2,
            ref float y2);

        /// <summary>Intersection of a line and a circle.</summary>
        /// <remarks>n: number of points (TrvPoints): 0 none: the line misses the circle; 1 one: the
        /// line touches the circle; 2 two: the line cuts the circle.</remarks>
        public static void trvlci(float a, float b, float c, float D, float E, float F, out int n,
            out float x1, out float y1, out float x2, out float y2)
        {
            x1 = y1 = x2 = y2 = 0;
            n = 0;
            trvlci(ref a, ref b, ref c, ref D, ref E, ref F, ref n, ref x1, ref y1, ref x2, ref y2);
        }

        /// <summary>Intersection of two circles, computed as that of their radical line and the
        /// first circle (trvlci).</summary>
        /// <remarks>n: number of points (TrvPoints): 0 none: the circles have no common point, or
        /// are concentric: |D2 - D1| + |E2 - E1| is within the tolerance; 1 one: the circles touch;
        /// 2 two: the circles cut each other.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvc12(ref float D1, ref float E1, ref float F1, ref float D2,
            ref float E2, ref float F2, ref int n, ref float x1, ref float y1, ref float x2,
            ref float y2);

        /// <summary>Intersection of two circles, computed as that of their radical line and the
        /// first circle (trvlci).</summary>
        /// <remarks>n: number of points (TrvPoints): 0 none: the circles have no common point, or
        /// are concentric: |D2 - D1| + |E2 - E1| is within the tolerance; 1 one: the circles touch;
        /// 2 two: the circles cut each other.</remarks>
        public static void trvc12(float D1, float E1, float F1, float D2, float E2, float F2,
            out int n, out float x1, out float y1, out float x2, out float y2)
        {
            x1 = y1 = x2 = y2 = 0;
            n = 0;
            trvc12(ref D1, ref E1, ref F1, ref D2, ref E2, ref F2, ref n, ref x1, ref y1, ref x2,
                ref y2);
        }

        /// <summary>Centres of the circles of a radius through two points.</summary>
        /// <remarks>n: number of centres (TrvPoints): 0 none: P1 = P2 exactly, r is at most 1e-5 or
        /// less than half the chord, the discriminant is NaN, or the chord is horizontal; 1 one:
        /// both candidates are the same point; 2 two: there are two points.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvcer2(ref float x1, ref float y1, ref float x2, ref float y2,
            ref int side, ref float r, ref float xa, ref float ya, ref float xb, ref float yb,
            ref float xc, ref float yc, ref int n);

        /// <summary>Centres of the circles of a radius through two points.</summary>
        /// <remarks>n: number of centres (TrvPoints): 0 none: P1 = P2 exactly, r is at most 1e-5 or
        /// less than half the chord, the discriminant is NaN, or the chord is horizontal; 1 one:
        /// both candidates are the same point; 2 two: there are two points.</remarks>
        public static void trvcer2(float x1, float y1, float x2, float y2, int side, float r,
            out float xa, out float ya, out float xb, out float yb, out float xc, out float yc,
            out int n)
        {
            xa = ya = xb = yb = xc = yc = 0;
            n = 0;
            trvcer2(ref x1, ref y1, ref x2, ref y2, ref side, ref r, ref xa, ref ya, ref xb, ref yb,
                ref xc, ref yc, ref n);
        }

        /// <summary>Circle through two points with a given sagitta.</summary>
        /// <remarks>n: number of centres of trvcer2 (TrvPoints): 0 none: h &lt; 1e-5, P1 = P2
        /// exactly, r is at most 1e-5 or less than half the chord, the discriminant is NaN, or the
        /// chord is horizontal; 1 one: both candidates are the same point; 2 two: there are two
        /// points.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvcer1(ref float x1, ref float y1, ref float x2, ref float y2,
            ref int side, ref float h, ref float r, ref float xc, ref float yc, ref int n);

        /// <summary>Circle through two points with a given sagitta.</summary>
        /// <remarks>n: number of centres of trvcer2 (TrvPoints): 0 none: h &lt; 1e-5, P1 = P2
        /// exactly, r is at most 1e-5 or less than half the chord, the discriminant is NaN, or the
        /// chord is horizontal; 1 one: both candidates are the same point; 2 two: there are two
        /// points.</remarks>
        public static void trvcer1(float x1, float y1, float x2, float y2, int side, float h,
            out float r, out float xc, out float yc, out int n)
        {
            r = xc = yc = 0;
            n = 0;
            trvcer1(ref x1, ref y1, ref x2, ref y2, ref side, ref h, ref r, ref xc, ref yc, ref n);
        }

        /// <summary>Classifies a circle cut by a line, with a trace.</summary>
        /// <remarks>position: class: 1 uncut_above: the circle is not cut, its centre is above the
        /// x axis; 2 uncut_below: the circle is not cut, its centre is on or below the x axis; 3
        /// cut_below: the circle is cut, its centre is below the x axis; 4 cut_above: the circle is
        /// cut, its centre is on or above the x axis.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvcin([In] float[] X, [In] float[] Y, ref float a, ref float b,
            ref float c, ref int position, ref float x1, ref float y1, ref float x2, ref float y2);

        /// <summary>Classifies a circle cut by a line, with a trace.</summary>
        /// <remarks>position: class: 1 uncut_above: the circle is not cut, its centre is above the
        /// x axis; 2 uncut_below: the circle is not cut, its centre is on or below the x axis; 3
        /// cut_below: the circle is cut, its centre is below the x axis; 4 cut_above: the circle is
        /// cut, its centre is on or above the x axis.</remarks>
        public static void trvcin(float[] X, float[] Y, float a, float b, float c, out int position,
            out float x1, out float y1, out float x2, out float y2)
        {
            x1 = y1 = x2 = y2 = 0;
            position = 0;
            trvcin(X, Y, ref a, ref b, ref c, ref position, ref x1, ref y1, ref x2, ref y2);
        }

        /// <summary>Rotates a point about a centre.</summary>
        /// <remarks>status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the
        /// point's distance from the centre is within the tolerance.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvcer3(ref float x0, ref float y0, ref float x, ref float y,
            ref float angle, ref float xr, ref float yr, ref int status);

        /// <summary>Rotates a point about a centre.</summary>
        /// <remarks>status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the
        /// point's distance from the centre is within the tolerance.</remarks>
        public static void trvcer3(float x0, float y0, ref float x, ref float y, float angle,
            out float xr, out float yr, out int status)
        {
            xr = yr = 0;
            status = 0;
            trvcer3(ref x0, ref y0, ref x, ref y, ref angle, ref xr, ref yr, ref status);
        }

        /// <summary>Point of an arc above a station of its chord, perpendicular to the
        /// chord.</summary>
        /// <remarks>status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the
        /// radius or the chord is at most 0.001, the radii of A and B differ by more than 0.001, or
        /// the station is not more than 0.001 inside both ends of the chord.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvcer8(ref float xc, ref float yc, ref float xa, ref float ya,
            ref float xb, ref float yb, ref int side, ref float d, ref float x, ref float y,
            ref int status);

        /// <summary>Point of an arc above a station of its chord, perpendicular to the
        /// chord.</summary>
        /// <remarks>status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the
        /// radius or the chord is at most 0.001, the radii of A and B differ by more than 0.001, or
        /// the station is not more than 0.001 inside both ends of the chord.</remarks>
        public static void trvcer8(float xc, float yc, float xa, float ya, float xb, float yb,
            int side, float d, out float x, out float y, out int status)
        {
            x = y = 0;
            status = 0;
            trvcer8(ref xc, ref yc, ref xa, ref ya, ref xb, ref yb, ref side, ref d, ref x, ref y,
                ref status);
        }

        /// <summary>Point of an arc on the line from its centre through a station of its
        /// chord.</summary>
        /// <remarks>status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the
        /// radius or the chord is at most 0.001, the radii of A and B differ by more than 0.001,
        /// the station is not more than 0.001 inside both ends of the chord, or d differs from the
        /// diameter by less than 0.001.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvcer6(ref float xc, ref float yc, ref float xa, ref float ya,
            ref float xb, ref float yb, ref int side, ref float d, ref float x, ref float y,
            ref int status);

        /// <summary>Point of an arc on the line from its centre through a station of its
        /// chord.</summary>
        /// <remarks>status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the
        /// radius or the chord is at most 0.001, the radii of A and B differ by more than 0.001,
        /// the station is not more than 0.001 inside both ends of the chord, or d differs from the
        /// diameter by less than 0.001.</remarks>
        public static void trvcer6(float xc, float yc, float xa, float ya, float xb, float yb,
            int side, float d, out float x, out float y, out int status)
        {
            x = y = 0;
            status = 0;
            trvcer6(ref xc, ref yc, ref xa, ref ya, ref xb, ref yb, ref side, ref d, ref x, ref y,
                ref status);
        }

        /// <summary>Points of an arc above the two edges of a strip on its chord, perpendicular to
        /// the chord.</summary>
        /// <remarks>status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the
        /// radius, the chord, d, the rest of the chord beyond d or the width is at most 0.001, the
        /// radii of A and B differ by more than 0.001, or an edge of the strip is less than 0.001
        /// inside an end of the chord.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvcer9(ref float xc, ref float yc, ref float xa, ref float ya,
            ref float xb, ref float yb, ref int side, ref float d, ref float w, ref float x1,
            ref float y1, ref float x2, ref float y2, ref int status);

        /// <summary>Points of an arc above the two edges of a strip on its chord, perpendicular to
        /// the chord.</summary>
        /// <remarks>status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the
        /// radius, the chord, d, the rest of the chord beyond d or the width is at most 0.001, the
        /// radii of A and B differ by more than 0.001, or an edge of the strip is less than 0.001
        /// inside an end of the chord.</remarks>
        public static void trvcer9(float xc, float yc, float xa, float ya, float xb, float yb,
            int side, float d, float w, out float x1, out float y1, out float x2, out float y2,
            out int status)
        {
            x1 = y1 = x2 = y2 = 0;
            status = 0;
            trvcer9(ref xc, ref yc, ref xa, ref ya, ref xb, ref yb, ref side, ref d, ref w, ref x1,
                ref y1, ref x2, ref y2, ref status);
        }

        /// <summary>Lengths of the two arcs between two points of a circle.</summary>
        /// <remarks>status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the
        /// radius, or the distance of A and B, is within the tolerance.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvarc1(ref float xc, ref float yc, ref float xa, ref float ya,
            ref float xb, ref float yb, ref float s1, ref float s2, ref int status);

        /// <summary>Lengths of the two arcs between two points of a circle.</summary>
        /// <remarks>status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the
        /// radius, or the distance of A and B, is within the tolerance.</remarks>
        public static void trvarc1(float xc, float yc, float xa, float ya, float xb, float yb,
            out float s1, out float s2, out int status)
        {
            s1 = s2 = 0;
            status = 0;
            trvarc1(ref xc, ref yc, ref xa, ref ya, ref xb, ref yb, ref s1, ref s2, ref status);
        }

        /// <summary>Signed angle of a direction against the x axis.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvaxph(ref float dx, ref float dy, ref float phi);

        /// <summary>Signed angle of a direction against the x axis.</summary>
        public static void trvaxph(float dx, float dy, out float phi)
        {
            phi = 0;
            trvaxph(ref dx, ref dy, ref phi);
        }

        /// <summary>Distances of two points from the line of a segment, and their stations along
        /// it.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvhin(ref float x0, ref float y0, ref float z0, ref float x1,
            ref float y1, ref float z1, ref float x2, ref float y2, ref float z2, ref float x3,
            ref float y3, ref float z3, ref float h0, ref float s0, ref float h3, ref float s3,
            ref float len);

        /// <summary>Distances of two points from the line of a segment, and their stations along
        /// it.</summary>
        public static void trvhin(float x0, float y0, float z0, float x1, float y1, float z1,
            float x2, float y2, float z2, float x3, float y3, float z3, out float h0, out float s0,
            out float h3, out float s3, out float len)
        {
            h0 = s0 = h3 = s3 = len = 0;
            trvhin(ref x0, ref y0, ref z0, ref x1, ref y1, ref z1, ref x2, ref y2, ref z2, ref x3,
                ref y3, ref z3, ref h0, ref s0, ref h3, ref s3, ref len);
        }

        /// <summary>Marks points as inside or outside a sector.</summary>
        /// <remarks>mark: where each point is: 1 inside: the point is inside the sector; 2 outside:
        /// the point is outside the sector; -1 no_sector: the angle of the rays by trvphi is within
        /// the tolerance, so all points have this value.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvapp(ref float x0, ref float y0, ref float x1, ref float y1,
            ref float x2, ref float y2, ref int n, [In] float[] X, [In] float[] Y,
            [In, Out] int[] mark);

        /// <summary>Marks points as inside or outside a sector.</summary>
        /// <remarks>mark: where each point is: 1 inside: the point is inside the sector; 2 outside:
        /// the point is outside the sector; -1 no_sector: the angle of the rays by trvphi is within
        /// the tolerance, so all points have this value.</remarks>
        public static void trvapp(float x0, float y0, float x1, float y1, float x2, float y2, int n,
            float[] X, float[] Y, int[] mark)
        {
            trvapp(ref x0, ref y0, ref x1, ref y1, ref x2, ref y2, ref n, X, Y, mark);
        }

        /// <summary>Point of an arc on a line through a station of its chord.</summary>
        /// <remarks>status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the
        /// radius or the chord is within the tolerance, the radii of A and B differ by more than
        /// the tolerance, A and B coincide, or the line is tangent to the circle.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvcer4(ref float xc, ref float yc, ref float xa, ref float ya,
            ref float xb, ref float yb, ref float s, ref float angle, ref float xo, ref float yo,
            ref int status);

        /// <summary>Point of an arc on a line through a station of its chord.</summary>
        /// <remarks>status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the
        /// radius or the chord is within the tolerance, the radii of A and B differ by more than
        /// the tolerance, A and B coincide, or the line is tangent to the circle.</remarks>
        public static void trvcer4(ref float xc, ref float yc, ref float xa, ref float ya,
            ref float xb, ref float yb, float s, float angle, out float xo, out float yo,
            out int status)
        {
            xo = yo = 0;
            status = 0;
            trvcer4(ref xc, ref yc, ref xa, ref ya, ref xb, ref yb, ref s, ref angle, ref xo,
                ref yo, ref status);
        }

        /// <summary>Intersection of an arc's chord with a line through its rotated end.</summary>
        /// <remarks>status: outcome: 0 crossing_or_refused: the line crosses the chord, which is
        /// the normal result, or an intersection kept from an earlier call lies on the chord's line
        /// but not at A or B (trvpsl above 2), or the input is rejected, since the radius or the
        /// chord is within the tolerance or the radii of A and B differ by more than the tolerance;
        /// 1 along_chord: the line runs along the chord; 2 parallel: the line is parallel to the
        /// chord.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvcer10(ref float xc, ref float yc, ref float xa, ref float ya,
            ref float xb, ref float yb, ref float turn, ref float angle, ref float xo, ref float yo,
            ref int status);

        /// <summary>Intersection of an arc's chord with a line through its rotated end.</summary>
        /// <remarks>status: outcome: 0 crossing_or_refused: the line crosses the chord, which is
        /// the normal result, or an intersection kept from an earlier call lies on the chord's line
        /// but not at A or B (trvpsl above 2), or the input is rejected, since the radius or the
        /// chord is within the tolerance or the radii of A and B differ by more than the tolerance;
        /// 1 along_chord: the line runs along the chord; 2 parallel: the line is parallel to the
        /// chord.</remarks>
        public static void trvcer10(ref float xc, ref float yc, ref float xa, ref float ya,
            ref float xb, ref float yb, float turn, float angle, out float xo, out float yo,
            out int status)
        {
            xo = yo = 0;
            status = 0;
            trvcer10(ref xc, ref yc, ref xa, ref ya, ref xb, ref yb, ref turn, ref angle, ref xo,
                ref yo, ref status);
        }

        /// <summary>Point of an arc on the line from a station of its chord to a point of the
        /// sagitta.</summary>
        /// <remarks>status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: s is
        /// negative, e, the radius, the chord or its rest beyond s is at most 1e-5, the radii of A
        /// and B differ by more than 1e-5, or the line is tangent to the circle.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvcer5(ref float xc, ref float yc, ref float xa, ref float ya,
            ref float xb, ref float yb, ref float s, ref int side, ref float e, ref float xo,
            ref float yo, ref int status);

        /// <summary>Point of an arc on the line from a station of its chord to a point of the
        /// sagitta.</summary>
        /// <remarks>status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: s is
        /// negative, e, the radius, the chord or its rest beyond s is at most 1e-5, the radii of A
        /// and B differ by more than 1e-5, or the line is tangent to the circle.</remarks>
        public static void trvcer5(ref float xc, ref float yc, ref float xa, ref float ya,
            ref float xb, ref float yb, float s, int side, float e, out float xo, out float yo,
            out int status)
        {
            xo = yo = 0;
            status = 0;
            trvcer5(ref xc, ref yc, ref xa, ref ya, ref xb, ref yb, ref s, ref side, ref e, ref xo,
                ref yo, ref status);
        }

        /// <summary>Intersections of a line through a station of an arc's chord with the arc and
        /// with a line parallel to the chord.</summary>
        /// <remarks>status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: s or e
        /// is negative, the radius or the chord's rest beyond s is at most 1e-4, the radii of A and
        /// B differ by more than 1e-4 and the rounding, side is 0, the line is parallel to the
        /// chord, or the part of the line inside the circle is not longer than 2e-4.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvcer7(ref float xc, ref float yc, ref float xa, ref float ya,
            ref float xb, ref float yb, ref float s, ref int side, ref float e, ref float angle,
            ref float xp, ref float yp, ref float xt, ref float yt, ref float xo, ref float yo,
            ref float len, ref int status);

        /// <summary>Intersections of a line through a station of an arc's chord with the arc and
        /// with a line parallel to the chord.</summary>
        /// <remarks>status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: s or e
        /// is negative, the radius or the chord's rest beyond s is at most 1e-4, the radii of A and
        /// B differ by more than 1e-4 and the rounding, side is 0, the line is parallel to the
        /// chord, or the part of the line inside the circle is not longer than 2e-4.</remarks>
        public static void trvcer7(ref float xc, ref float yc, ref float xa, ref float ya,
            ref float xb, ref float yb, float s, int side, float e, float angle, out float xp,
            out float yp, out float xt, out float yt, out float xo, out float yo, out float len,
            out int status)
        {
            xp = yp = xt = yt = xo = yo = len = 0;
            status = 0;
            trvcer7(ref xc, ref yc, ref xa, ref ya, ref xb, ref yb, ref s, ref side, ref e,
                ref angle, ref xp, ref yp, ref xt, ref yt, ref xo, ref yo, ref len, ref status);
        }

        /// <summary>Rounds the corner at P0 between the segments to P1 and to P2.</summary>
        /// <remarks>status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: r or the
        /// length of a segment is not above the tolerance, the sine of the angle between the
        /// segments is within the tolerance, or a tangent point lies beyond the end of its segment
        /// by more than the tolerance.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvard(ref float x0, ref float y0, ref float x1, ref float y1,
            ref float x2, ref float y2, ref float r, ref float xc, ref float yc, ref float xt1,
            ref float yt1, ref float xt2, ref float yt2, ref int status);

        /// <summary>Rounds the corner at P0 between the segments to P1 and to P2.</summary>
        /// <remarks>status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: r or the
        /// length of a segment is not above the tolerance, the sine of the angle between the
        /// segments is within the tolerance, or a tangent point lies beyond the end of its segment
        /// by more than the tolerance.</remarks>
        public static void trvard(float x0, float y0, float x1, float y1, float x2, float y2,
            float r, out float xc, out float yc, out float xt1, out float yt1, out float xt2,
            out float yt2, out int status)
        {
            xc = yc = xt1 = yt1 = xt2 = yt2 = 0;
            status = 0;
            trvard(ref x0, ref y0, ref x1, ref y1, ref x2, ref y2, ref r, ref xc, ref yc, ref xt1,
                ref yt1, ref xt2, ref yt2, ref status);
        }

        /// <summary>Bounding box of the arc that a point sweeps about a centre.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvenv(ref float xc, ref float yc, ref float xa, ref float ya,
            ref float sweep, ref float xmin, ref float ymin, ref float xmax, ref float ymax);

        /// <summary>Bounding box of the arc that a point sweeps about a centre.</summary>
        public static void trvenv(float xc, float yc, float xa, float ya, float sweep,
            out float xmin, out float ymin, out float xmax, out float ymax)
        {
            xmin = ymin = xmax = ymax = 0;
            trvenv(ref xc, ref yc, ref xa, ref ya, ref sweep, ref xmin, ref ymin, ref xmax,
                ref ymax);
        }

        // Ordering, searching, matching and joining of lists

        /// <summary>Sorts Reals ascending, in place.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvord([In, Out] float[] V, ref int n);

        /// <summary>Sorts Reals ascending, in place.</summary>
        public static void trvord(float[] V, int n)
        {
            trvord(V, ref n);
        }

        /// <summary>Sorts Integers ascending, in place.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvord1([In, Out] int[] V, ref int n);

        /// <summary>Sorts Integers ascending, in place.</summary>
        public static void trvord1(int[] V, int n)
        {
            trvord1(V, ref n);
        }

        /// <summary>Positions of the elements of a list in ascending order; the list itself is not
        /// changed.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvordi([In] float[] V, ref int n, [In, Out] int[] IDX);

        /// <summary>Positions of the elements of a list in ascending order; the list itself is not
        /// changed.</summary>
        public static void trvordi(float[] V, int n, int[] IDX)
        {
            trvordi(V, ref n, IDX);
        }

        /// <summary>Order of parallel lines by their intersections with an axis.</summary>
        /// <remarks>status: outcome (TrvStatus): 0 done: IDX holds the order; -1 refused: the lines
        /// are not a family of parallel and distinct lines, or n &lt; 1.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvpor(ref int n, [In] float[] A, [In] float[] B, [In] float[] C,
            [In, Out] int[] IDX, ref int status);

        /// <summary>Order of parallel lines by their intersections with an axis.</summary>
        /// <remarks>status: outcome (TrvStatus): 0 done: IDX holds the order; -1 refused: the lines
        /// are not a family of parallel and distinct lines, or n &lt; 1.</remarks>
        public static void trvpor(int n, float[] A, float[] B, float[] C, int[] IDX, out int status)
        {
            status = 0;
            trvpor(ref n, A, B, C, IDX, ref status);
        }

        /// <summary>Puts the corners of a quadrilateral of space in cyclic order, in
        /// place.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvorv([In, Out] float[] X, [In, Out] float[] Y,
            [In, Out] float[] Z, [In, Out] int[] ORD);

        /// <summary>All positions at which a list holds a value.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvsel1(ref int n, [In] int[] V, ref int key, ref int count,
            [In, Out] int[] pos);

        /// <summary>All positions at which a list holds a value.</summary>
        public static void trvsel1(int n, int[] V, int key, out int count, int[] pos)
        {
            count = 0;
            trvsel1(ref n, V, ref key, ref count, pos);
        }

        /// <summary>All pairs of elements of two lists that differ by at most a
        /// tolerance.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvmer13(ref int na, [In] float[] A, ref int nb, [In] float[] B,
            ref int count, [In, Out] int[] IA, [In, Out] int[] IB, ref float tol);

        /// <summary>All pairs of elements of two lists that differ by at most a
        /// tolerance.</summary>
        public static void trvmer13(int na, float[] A, int nb, float[] B, out int count, int[] IA,
            int[] IB, float tol)
        {
            count = 0;
            trvmer13(ref na, A, ref nb, B, ref count, IA, IB, ref tol);
        }

        /// <summary>Joins two lists end to end. Elements are copied bit for bit, so the lists may
        /// also hold Reals.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvmer1(ref int na, [In] int[] A, ref int nb, [In] int[] B,
            ref int nout, [In, Out] int[] OUT);

        /// <summary>Joins two lists end to end. Elements are copied bit for bit, so the lists may
        /// also hold Reals.</summary>
        public static void trvmer1(int na, int[] A, int nb, int[] B, out int nout, int[] OUT)
        {
            nout = 0;
            trvmer1(ref na, A, ref nb, B, ref nout, OUT);
        }

        /// <summary>Joins two lists end to end: trvmer1 under another name.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvmer11(ref int na, [In] int[] A, ref int nb, [In] int[] B,
            ref int nout, [In, Out] int[] OUT);

        /// <summary>Joins two lists end to end: trvmer1 under another name.</summary>
        public static void trvmer11(int na, int[] A, int nb, int[] B, out int nout, int[] OUT)
        {
            nout = 0;
            trvmer11(ref na, A, ref nb, B, ref nout, OUT);
        }

        /// <summary>Sorts Integers ascending and removes duplicates, in place.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvmer2([In, Out] int[] V, ref int n);

        /// <summary>Sorts Reals ascending and removes duplicates within a tolerance, in
        /// place.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvmer3([In, Out] float[] V, ref int n);

        /// <summary>Sorts Reals ascending and removes duplicates within a tolerance, in
        /// place.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvmer12([In, Out] float[] V, ref int n, ref float tol);

        /// <summary>Sorts Reals ascending and removes duplicates within a tolerance, in
        /// place.</summary>
        public static void trvmer12(float[] V, ref int n, float tol)
        {
            trvmer12(V, ref n, ref tol);
        }

        /// <summary>Appends to a list those elements of another that it does not hold
        /// yet.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvmer4(ref int na, [In] float[] A, ref int nb, [In] float[] B,
            ref float tol, ref int nout, [In, Out] float[] OUT, [In, Out] int[] IB);

        /// <summary>Appends to a list those elements of another that it does not hold
        /// yet.</summary>
        public static void trvmer4(int na, float[] A, int nb, float[] B, float tol, out int nout,
            float[] OUT, int[] IB)
        {
            nout = 0;
            trvmer4(ref na, A, ref nb, B, ref tol, ref nout, OUT, IB);
        }

        /// <summary>Elements of a list that another holds too.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvmer14(ref int na, [In] int[] A, ref int nb, [In] int[] B,
            ref int nout, [In, Out] int[] OUT);

        /// <summary>Elements of a list that another holds too.</summary>
        public static void trvmer14(int na, int[] A, int nb, int[] B, out int nout, int[] OUT)
        {
            nout = 0;
            trvmer14(ref na, A, ref nb, B, ref nout, OUT);
        }

        /// <summary>Removes from a list the elements that another holds, in place.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvmer15(ref int na, [In, Out] int[] A, ref int nb, [In] int[] B,
            ref int count);

        /// <summary>Removes from a list the elements that another holds, in place.</summary>
        public static void trvmer15(ref int na, int[] A, int nb, int[] B, out int count)
        {
            count = 0;
            trvmer15(ref na, A, ref nb, B, ref count);
        }

        /// <summary>Removes repeated vertices of a closed outline, in place.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvmer16([In, Out] float[] X, [In, Out] float[] Y, ref int n,
            ref float tol);

        /// <summary>Removes repeated vertices of a closed outline, in place.</summary>
        public static void trvmer16(float[] X, float[] Y, ref int n, float tol)
        {
            trvmer16(X, Y, ref n, ref tol);
        }

        /// <summary>All pairs of points of two lists that match within a tolerance in each
        /// coordinate.</summary>
        /// <remarks>status: which points of A match a point of B: 0 no_pair: no point of A matches
        /// a point of B; 1 some_pairs: some points of A match points of B, others do not; 2
        /// all_paired: every point of A matches a point of B.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvptp1(ref int na, [In] float[] XA, [In] float[] YA,
            [In] float[] ZA, ref int nb, [In] float[] XB, [In] float[] YB, [In] float[] ZB,
            ref float tol, ref int count, [In, Out] int[] IA, [In, Out] int[] IB, ref int status);

        /// <summary>All pairs of points of two lists that match within a tolerance in each
        /// coordinate.</summary>
        /// <remarks>status: which points of A match a point of B: 0 no_pair: no point of A matches
        /// a point of B; 1 some_pairs: some points of A match points of B, others do not; 2
        /// all_paired: every point of A matches a point of B.</remarks>
        public static void trvptp1(int na, float[] XA, float[] YA, float[] ZA, int nb, float[] XB,
            float[] YB, float[] ZB, float tol, out int count, int[] IA, int[] IB, out int status)
        {
            count = status = 0;
            trvptp1(ref na, XA, YA, ZA, ref nb, XB, YB, ZB, ref tol, ref count, IA, IB, ref status);
        }

        /// <summary>Merges three lists of points into one list.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvptp2(ref int na, [In] float[] XA, [In] float[] YA,
            [In] float[] ZA, ref int nb, [In] float[] XB, [In] float[] YB, [In] float[] ZB,
            ref int nc, [In] float[] XC, [In] float[] YC, [In] float[] ZC, ref float tol,
            ref int nab, [In, Out] int[] IAB, [In, Out] int[] JAB, ref int nbc, [In, Out] int[] IBC,
            [In, Out] int[] JBC, ref int nca, [In, Out] int[] ICA, [In, Out] int[] JCA,
            ref int nout, [In, Out] float[] XO, [In, Out] float[] YO, [In, Out] float[] ZO,
            [In, Out] int[] MA, [In, Out] int[] MB, [In, Out] int[] MC, ref int k, ref int nk,
            [In, Out] int[] PK, ref int nz, [In, Out] float[] ZL);

        /// <summary>Merges three lists of points into one list.</summary>
        public static void trvptp2(int na, float[] XA, float[] YA, float[] ZA, int nb, float[] XB,
            float[] YB, float[] ZB, int nc, float[] XC, float[] YC, float[] ZC, float tol,
            out int nab, int[] IAB, int[] JAB, out int nbc, int[] IBC, int[] JBC, out int nca,
            int[] ICA, int[] JCA, out int nout, float[] XO, float[] YO, float[] ZO, int[] MA,
            int[] MB, int[] MC, int k, out int nk, int[] PK, out int nz, float[] ZL)
        {
            nab = nbc = nca = nout = nk = nz = 0;
            trvptp2(ref na, XA, YA, ZA, ref nb, XB, YB, ZB, ref nc, XC, YC, ZC, ref tol, ref nab,
                IAB, JAB, ref nbc, IBC, JBC, ref nca, ICA, JCA, ref nout, XO, YO, ZO, MA, MB, MC,
                ref k, ref nk, PK, ref nz, ZL);
        }

        /// <summary>Crossings of the horizontal line y = y0 with a closed outline.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvppp([In] float[] X, [In] float[] Y, ref int n, ref float y0,
            ref int count, [In, Out] float[] XC);

        /// <summary>Crossings of the horizontal line y = y0 with a closed outline.</summary>
        public static void trvppp(float[] X, float[] Y, int n, float y0, out int count, float[] XC)
        {
            count = 0;
            trvppp(X, Y, ref n, ref y0, ref count, XC);
        }

        /// <summary>Crossings of the segment from P1 to P2 with a closed outline.</summary>
        /// <remarks>status: where P1 is: 1 inside: P1 is inside the outline by the even-odd rule; 0
        /// outside: P1 is outside the outline by the even-odd rule; -1 refused: n &lt; 3, or P1 and
        /// P2 coincide within the tolerance in both coordinates.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvpin([In] float[] X, [In] float[] Y, ref int n, ref float x1,
            ref float y1, ref float x2, ref float y2, ref int count, [In, Out] float[] XI,
            [In, Out] float[] YI, [In, Out] float[] T, [In, Out] int[] EDGE, ref int status);

        /// <summary>Crossings of the segment from P1 to P2 with a closed outline.</summary>
        /// <remarks>status: where P1 is: 1 inside: P1 is inside the outline by the even-odd rule; 0
        /// outside: P1 is outside the outline by the even-odd rule; -1 refused: n &lt; 3, or P1 and
        /// P2 coincide within the tolerance in both coordinates.</remarks>
        public static void trvpin(float[] X, float[] Y, int n, float x1, float y1, float x2,
            float y2, out int count, float[] XI, float[] YI, float[] T, int[] EDGE, out int status)
        {
            count = status = 0;
            trvpin(X, Y, ref n, ref x1, ref y1, ref x2, ref y2, ref count, XI, YI, T, EDGE,
                ref status);
        }

        // Points, vectors, straight lines and angles

        /// <summary>Distance between two points.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvpds(ref float x1, ref float y1, ref float z1, ref float x2,
            ref float y2, ref float z2, ref float d);

        /// <summary>Distance between two points.</summary>
        public static void trvpds(float x1, float y1, float z1, float x2, float y2, float z2,
            out float d)
        {
            d = 0;
            trvpds(ref x1, ref y1, ref z1, ref x2, ref y2, ref z2, ref d);
        }

        /// <summary>Dot product of the difference vectors P2 - P1 and P4 - P3.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvpri(ref float x1, ref float y1, ref float z1, ref float x2,
            ref float y2, ref float z2, ref float x3, ref float y3, ref float z3, ref float x4,
            ref float y4, ref float z4, ref float s);

        /// <summary>Dot product of the difference vectors P2 - P1 and P4 - P3.</summary>
        public static void trvpri(float x1, float y1, float z1, float x2, float y2, float z2,
            float x3, float y3, float z3, float x4, float y4, float z4, out float s)
        {
            s = 0;
            trvpri(ref x1, ref y1, ref z1, ref x2, ref y2, ref z2, ref x3, ref y3, ref z3, ref x4,
                ref y4, ref z4, ref s);
        }

        /// <summary>Cross product (P2 - P1) x (P4 - P3).</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvpre(ref float x1, ref float y1, ref float z1, ref float x2,
            ref float y2, ref float z2, ref float x3, ref float y3, ref float z3, ref float x4,
            ref float y4, ref float z4, [In, Out] float[] c);

        /// <summary>Cross product (P2 - P1) x (P4 - P3).</summary>
        public static void trvpre(float x1, float y1, float z1, float x2, float y2, float z2,
            float x3, float y3, float z3, float x4, float y4, float z4, float[] c)
        {
            trvpre(ref x1, ref y1, ref z1, ref x2, ref y2, ref z2, ref x3, ref y3, ref z3, ref x4,
                ref y4, ref z4, c);
        }

        /// <summary>Difference vector of two points, and whether they coincide.</summary>
        /// <remarks>status: coincidence (TrvCoincidence): 1 coincident: each difference is within
        /// the tolerance; 0 distinct: a difference is above the tolerance or NaN.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvcnt(ref float x1, ref float y1, ref float z1, ref float x2,
            ref float y2, ref float z2, ref float dx, ref float dy, ref float dz, ref int status);

        /// <summary>Difference vector of two points, and whether they coincide.</summary>
        /// <remarks>status: coincidence (TrvCoincidence): 1 coincident: each difference is within
        /// the tolerance; 0 distinct: a difference is above the tolerance or NaN.</remarks>
        public static void trvcnt(float x1, float y1, float z1, float x2, float y2, float z2,
            out float dx, out float dy, out float dz, out int status)
        {
            dx = dy = dz = 0;
            status = 0;
            trvcnt(ref x1, ref y1, ref z1, ref x2, ref y2, ref z2, ref dx, ref dy, ref dz,
                ref status);
        }

        /// <summary>Whether a vector is exactly zero; unlike trvcnt, no tolerance
        /// applies.</summary>
        /// <remarks>status: test: 1 zero: all components are zero, of either sign; 0 nonzero: a
        /// component is not zero, or is NaN.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvcnt1(ref float dx, ref float dy, ref float dz, ref int status);

        /// <summary>Whether a vector is exactly zero; unlike trvcnt, no tolerance
        /// applies.</summary>
        /// <remarks>status: test: 1 zero: all components are zero, of either sign; 0 nonzero: a
        /// component is not zero, or is NaN.</remarks>
        public static void trvcnt1(float dx, float dy, float dz, out int status)
        {
            status = 0;
            trvcnt1(ref dx, ref dy, ref dz, ref status);
        }

        /// <summary>Point P1 + t*(P2 - P1) on the line through two points.</summary>
        /// <remarks>status: outcome (TrvCoincidence): 0 distinct: the output is written; 1
        /// coincident: P1 and P2 coincide within the tolerance (trvcnt).</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trv123(ref float x1, ref float y1, ref float z1, ref float x2,
            ref float y2, ref float z2, ref float t, ref float x, ref float y, ref float z,
            ref int status);

        /// <summary>Point P1 + t*(P2 - P1) on the line through two points.</summary>
        /// <remarks>status: outcome (TrvCoincidence): 0 distinct: the output is written; 1
        /// coincident: P1 and P2 coincide within the tolerance (trvcnt).</remarks>
        public static void trv123(float x1, float y1, float z1, float x2, float y2, float z2,
            float t, out float x, out float y, out float z, out int status)
        {
            x = y = z = 0;
            status = 0;
            trv123(ref x1, ref y1, ref z1, ref x2, ref y2, ref z2, ref t, ref x, ref y, ref z,
                ref status);
        }

        /// <summary>Midpoint of two points.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvmed(ref float x1, ref float y1, ref float z1, ref float x2,
            ref float y2, ref float z2, ref float xm, ref float ym, ref float zm);

        /// <summary>Midpoint of two points.</summary>
        public static void trvmed(float x1, float y1, float z1, float x2, float y2, float z2,
            out float xm, out float ym, out float zm)
        {
            xm = ym = zm = 0;
            trvmed(ref x1, ref y1, ref z1, ref x2, ref y2, ref z2, ref xm, ref ym, ref zm);
        }

        /// <summary>Determinant of the 2 x 2 matrix with rows (a, b) and (c, d).</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvdtr2(ref float a, ref float b, ref float c, ref float d,
            ref float det);

        /// <summary>Determinant of the 2 x 2 matrix with rows (a, b) and (c, d).</summary>
        public static void trvdtr2(float a, float b, float c, float d, out float det)
        {
            det = 0;
            trvdtr2(ref a, ref b, ref c, ref d, ref det);
        }

        /// <summary>Determinant of a 3 x 3 matrix, expanded along its first row.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvdtr3(ref float a1, ref float a2, ref float a3, ref float b1,
            ref float b2, ref float b3, ref float c1, ref float c2, ref float c3, ref float det);

        /// <summary>Determinant of a 3 x 3 matrix, expanded along its first row.</summary>
        public static void trvdtr3(float a1, float a2, float a3, float b1, float b2, float b3,
            float c1, float c2, float c3, out float det)
        {
            det = 0;
            trvdtr3(ref a1, ref a2, ref a3, ref b1, ref b2, ref b3, ref c1, ref c2, ref c3,
                ref det);
        }

        /// <summary>Divides two coefficients by a third, or gives zeros if the third is zero within
        /// the tolerance.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvgrc(ref float a, ref float b, ref float c, ref float q1,
            ref float q2);

        /// <summary>Divides two coefficients by a third, or gives zeros if the third is zero within
        /// the tolerance.</summary>
        public static void trvgrc(float a, float b, float c, out float q1, out float q2)
        {
            q1 = q2 = 0;
            trvgrc(ref a, ref b, ref c, ref q1, ref q2);
        }

        /// <summary>Linear interpolation, or extrapolation, through two samples.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvint(ref float x1, ref float x2, ref float y1, ref float y2,
            ref float x, ref float y);

        /// <summary>Linear interpolation, or extrapolation, through two samples.</summary>
        public static void trvint(float x1, float x2, float y1, float y2, float x, out float y)
        {
            y = 0;
            trvint(ref x1, ref x2, ref y1, ref y2, ref x, ref y);
        }

        /// <summary>Sign of a value.</summary>
        /// <remarks>status: sign: 1 positive: v is positive; 2 not_positive: v is zero, negative or
        /// NaN.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvvin(ref float u1, ref float v, ref float u3, ref float u4,
            ref float u5, ref int status);

        /// <summary>Sign of a value.</summary>
        /// <remarks>status: sign: 1 positive: v is positive; 2 not_positive: v is zero, negative or
        /// NaN.</remarks>
        public static void trvvin(float u1, float v, float u3, float u4, float u5, out int status)
        {
            status = 0;
            trvvin(ref u1, ref v, ref u3, ref u4, ref u5, ref status);
        }

        /// <summary>Interval of an ascending table that holds a value.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvpos(ref int n, [In] float[] A, ref float x, ref int i);

        /// <summary>Interval of an ascending table that holds a value.</summary>
        public static void trvpos(int n, float[] A, float x, out int i)
        {
            i = 0;
            trvpos(ref n, A, ref x, ref i);
        }

        /// <summary>Element of an ascending table that equals a value, or the interval that holds
        /// it.</summary>
        /// <remarks>status: what was found: 1 at_entry: A(i) equals x within the tolerance; 2
        /// between: A(i) &lt; x &lt; A(i+1); 0 neither: x equals no element and lies in no
        /// interval.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvpos1(ref int n, [In] float[] A, ref float x, ref int status,
            ref int i);

        /// <summary>Element of an ascending table that equals a value, or the interval that holds
        /// it.</summary>
        /// <remarks>status: what was found: 1 at_entry: A(i) equals x within the tolerance; 2
        /// between: A(i) &lt; x &lt; A(i+1); 0 neither: x equals no element and lies in no
        /// interval.</remarks>
        public static void trvpos1(int n, float[] A, float x, out int status, out int i)
        {
            status = i = 0;
            trvpos1(ref n, A, ref x, ref status, ref i);
        }

        /// <summary>Line through two points.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvln3(ref float x1, ref float y1, ref float x2, ref float y2,
            ref float a, ref float b, ref float c);

        /// <summary>Line through two points.</summary>
        public static void trvln3(float x1, float y1, float x2, float y2, out float a, out float b,
            out float c)
        {
            a = b = c = 0;
            trvln3(ref x1, ref y1, ref x2, ref y2, ref a, ref b, ref c);
        }

        /// <summary>Line through a point at an angle to the x axis.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvln1(ref float x0, ref float y0, ref float phi, ref float a,
            ref float b, ref float c);

        /// <summary>Line through a point at an angle to the x axis.</summary>
        public static void trvln1(float x0, float y0, float phi, out float a, out float b,
            out float c)
        {
            a = b = c = 0;
            trvln1(ref x0, ref y0, ref phi, ref a, ref b, ref c);
        }

        /// <summary>Line through a point with a direction.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvln4(ref float x0, ref float y0, ref float dx, ref float dy,
            ref float u, ref float a, ref float b, ref float c);

        /// <summary>Line through a point with a direction.</summary>
        public static void trvln4(float x0, float y0, float dx, float dy, float u, out float a,
            out float b, out float c)
        {
            a = b = c = 0;
            trvln4(ref x0, ref y0, ref dx, ref dy, ref u, ref a, ref b, ref c);
        }

        /// <summary>Line parallel to a line at a signed distance.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvln2(ref float a, ref float b, ref float c, ref float d,
            ref float a2, ref float b2, ref float c2);

        /// <summary>Line parallel to a line at a signed distance.</summary>
        public static void trvln2(float a, float b, float c, float d, out float a2, out float b2,
            out float c2)
        {
            a2 = b2 = c2 = 0;
            trvln2(ref a, ref b, ref c, ref d, ref a2, ref b2, ref c2);
        }

        /// <summary>Internal bisector of the angle at P0 between the rays to P1 and P2.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvln5(ref float x0, ref float y0, ref float x1, ref float y1,
            ref float x2, ref float y2, ref float a, ref float b, ref float c);

        /// <summary>Internal bisector of the angle at P0 between the rays to P1 and P2.</summary>
        public static void trvln5(float x0, float y0, float x1, float y1, float x2, float y2,
            out float a, out float b, out float c)
        {
            a = b = c = 0;
            trvln5(ref x0, ref y0, ref x1, ref y1, ref x2, ref y2, ref a, ref b, ref c);
        }

        /// <summary>Signed distance of a point from a line.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvlds(ref float x, ref float y, ref float a, ref float b,
            ref float c, ref float d);

        /// <summary>Signed distance of a point from a line.</summary>
        public static void trvlds(float x, float y, float a, float b, float c, out float d)
        {
            d = 0;
            trvlds(ref x, ref y, ref a, ref b, ref c, ref d);
        }

        /// <summary>Intersection of two lines.</summary>
        /// <remarks>status: relation (TrvPlaneLines): 0 one_point: the lines have one point in
        /// common; 1 same_line: the lines are the same; 2 parallel: the lines are parallel and
        /// distinct.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvlni(ref float a1, ref float b1, ref float c1, ref float a2,
            ref float b2, ref float c2, ref int status, ref float x, ref float y);

        /// <summary>Intersection of two lines.</summary>
        /// <remarks>status: relation (TrvPlaneLines): 0 one_point: the lines have one point in
        /// common; 1 same_line: the lines are the same; 2 parallel: the lines are parallel and
        /// distinct.</remarks>
        public static void trvlni(float a1, float b1, float c1, float a2, float b2, float c2,
            out int status, out float x, out float y)
        {
            x = y = 0;
            status = 0;
            trvlni(ref a1, ref b1, ref c1, ref a2, ref b2, ref c2, ref status, ref x, ref y);
        }

        /// <summary>Distance of two parallel lines.</summary>
        /// <remarks>status: relation (TrvPlaneLines): 0 one_point: the lines have one point in
        /// common; 1 same_line: the lines are the same; 2 parallel: the lines are parallel and
        /// distinct, as trvlni finds.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvlul(ref float a1, ref float b1, ref float c1, ref float a2,
            ref float b2, ref float c2, ref float d, ref int status);

        /// <summary>Distance of two parallel lines.</summary>
        /// <remarks>status: relation (TrvPlaneLines): 0 one_point: the lines have one point in
        /// common; 1 same_line: the lines are the same; 2 parallel: the lines are parallel and
        /// distinct, as trvlni finds.</remarks>
        public static void trvlul(float a1, float b1, float c1, float a2, float b2, float c2,
            out float d, out int status)
        {
            d = 0;
            status = 0;
            trvlul(ref a1, ref b1, ref c1, ref a2, ref b2, ref c2, ref d, ref status);
        }

        /// <summary>Which components of two triples differ by more than the tolerance.</summary>
        /// <remarks>code: which components of p - q are above the tolerance (TrvComponents): 0
        /// none: no component is above the tolerance; 1 all: all three components are above the
        /// tolerance; 2 first: only the first component is above the tolerance; 3 second: only the
        /// second component is above the tolerance; 4 third: only the third component is above the
        /// tolerance; 5 first_second: only the first and the second are above the tolerance; 6
        /// second_third: only the second and the third are above the tolerance; 7 first_third: only
        /// the first and the third are above the tolerance.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvpsn(ref float p1, ref float p2, ref float p3, ref float q1,
            ref float q2, ref float q3, ref int code);

        /// <summary>Which components of two triples differ by more than the tolerance.</summary>
        /// <remarks>code: which components of p - q are above the tolerance (TrvComponents): 0
        /// none: no component is above the tolerance; 1 all: all three components are above the
        /// tolerance; 2 first: only the first component is above the tolerance; 3 second: only the
        /// second component is above the tolerance; 4 third: only the third component is above the
        /// tolerance; 5 first_second: only the first and the second are above the tolerance; 6
        /// second_third: only the second and the third are above the tolerance; 7 first_third: only
        /// the first and the third are above the tolerance.</remarks>
        public static void trvpsn(float p1, float p2, float p3, float q1, float q2, float q3,
            out int code)
        {
            code = 0;
            trvpsn(ref p1, ref p2, ref p3, ref q1, ref q2, ref q3, ref code);
        }

        /// <summary>Whether a point lies on the line of space through P0 with direction
        /// D.</summary>
        /// <remarks>code: which components of (P0 + D) - P0 are above the tolerance
        /// (TrvComponents): 0 none: no component is above the tolerance; 1 all: all three
        /// components are above the tolerance; 2 first: only the first component is above the
        /// tolerance; 3 second: only the second component is above the tolerance; 4 third: only the
        /// third component is above the tolerance; 5 first_second: only the first and the second
        /// are above the tolerance; 6 second_third: only the second and the third are above the
        /// tolerance; 7 first_third: only the first and the third are above the
        /// tolerance.</remarks>
        /// <remarks>on: test (TrvOnLine): 1 yes: P lies on the line; 0 no: P does not lie on the
        /// line, or code is 0.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvln6(ref float x0, ref float y0, ref float z0, ref float dx,
            ref float dy, ref float dz, ref float px, ref float py, ref float pz, ref float tol,
            ref int code, ref int on);

        /// <summary>Whether a point lies on the line of space through P0 with direction
        /// D.</summary>
        /// <remarks>code: which components of (P0 + D) - P0 are above the tolerance
        /// (TrvComponents): 0 none: no component is above the tolerance; 1 all: all three
        /// components are above the tolerance; 2 first: only the first component is above the
        /// tolerance; 3 second: only the second component is above the tolerance; 4 third: only the
        /// third component is above the tolerance; 5 first_second: only the first and the second
        /// are above the tolerance; 6 second_third: only the second and the third are above the
        /// tolerance; 7 first_third: only the first and the third are above the
        /// tolerance.</remarks>
        /// <remarks>on: test (TrvOnLine): 1 yes: P lies on the line; 0 no: P does not lie on the
        /// line, or code is 0.</remarks>
        public static void trvln6(float x0, float y0, float z0, float dx, float dy, float dz,
            float px, float py, float pz, float tol, out int code, out int on)
        {
            code = on = 0;
            trvln6(ref x0, ref y0, ref z0, ref dx, ref dy, ref dz, ref px, ref py, ref pz, ref tol,
                ref code, ref on);
        }

        /// <summary>Direction of the line of two planes, and whether a point matches it at a
        /// retained coordinate.</summary>
        /// <remarks>code: which components of (ex, ey, ez) are above the tolerance (TrvComponents):
        /// 0 none: no component is above the tolerance; 1 all: all three components are above the
        /// tolerance; 2 first: only the first component is above the tolerance; 3 second: only the
        /// second component is above the tolerance; 4 third: only the third component is above the
        /// tolerance; 5 first_second: only the first and the second are above the tolerance; 6
        /// second_third: only the second and the third are above the tolerance; 7 first_third: only
        /// the first and the third are above the tolerance.</remarks>
        /// <remarks>on: test (TrvOnLine): 1 yes: P matches the line at the kept coordinate; 0 no: P
        /// does not match the line at the kept coordinate.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvln7(ref float a1, ref float b1, ref float c1, ref float d1,
            ref float a2, ref float b2, ref float c2, ref float d2, ref float px, ref float py,
            ref float pz, ref float ex, ref float ey, ref float ez, ref float tol, ref int code,
            ref int on);

        /// <summary>Direction of the line of two planes, and whether a point matches it at a
        /// retained coordinate.</summary>
        /// <remarks>code: which components of (ex, ey, ez) are above the tolerance (TrvComponents):
        /// 0 none: no component is above the tolerance; 1 all: all three components are above the
        /// tolerance; 2 first: only the first component is above the tolerance; 3 second: only the
        /// second component is above the tolerance; 4 third: only the third component is above the
        /// tolerance; 5 first_second: only the first and the second are above the tolerance; 6
        /// second_third: only the second and the third are above the tolerance; 7 first_third: only
        /// the first and the third are above the tolerance.</remarks>
        /// <remarks>on: test (TrvOnLine): 1 yes: P matches the line at the kept coordinate; 0 no: P
        /// does not match the line at the kept coordinate.</remarks>
        public static void trvln7(float a1, float b1, float c1, float d1, float a2, float b2,
            float c2, float d2, float px, float py, float pz, out float ex, out float ey, float ez,
            float tol, out int code, out int on)
        {
            ex = ey = 0;
            code = on = 0;
            trvln7(ref a1, ref b1, ref c1, ref d1, ref a2, ref b2, ref c2, ref d2, ref px, ref py,
                ref pz, ref ex, ref ey, ref ez, ref tol, ref code, ref on);
        }

        /// <summary>Angle at P0 between the rays to P1 and P2, in the plane.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvphi(ref float x0, ref float y0, ref float x1, ref float y1,
            ref float x2, ref float y2, ref float phi);

        /// <summary>Angle at P0 between the rays to P1 and P2, in the plane.</summary>
        public static void trvphi(float x0, float y0, float x1, float y1, float x2, float y2,
            out float phi)
        {
            phi = 0;
            trvphi(ref x0, ref y0, ref x1, ref y1, ref x2, ref y2, ref phi);
        }

        /// <summary>Angle at P0 between the rays to P1 and P2, in space.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvphi3(ref float x0, ref float y0, ref float z0, ref float x1,
            ref float y1, ref float z1, ref float x2, ref float y2, ref float z2, ref float phi);

        /// <summary>Angle at P0 between the rays to P1 and P2, in space.</summary>
        public static void trvphi3(float x0, float y0, float z0, float x1, float y1, float z1,
            float x2, float y2, float z2, out float phi)
        {
            phi = 0;
            trvphi3(ref x0, ref y0, ref z0, ref x1, ref y1, ref z1, ref x2, ref y2, ref z2,
                ref phi);
        }

        /// <summary>Angle between two vectors.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvphi1(ref float ux, ref float uy, ref float uz, ref float vx,
            ref float vy, ref float vz, ref float phi);

        /// <summary>Angle between two vectors.</summary>
        public static void trvphi1(float ux, float uy, float uz, float vx, float vy, float vz,
            out float phi)
        {
            phi = 0;
            trvphi1(ref ux, ref uy, ref uz, ref vx, ref vy, ref vz, ref phi);
        }

        /// <summary>Angle between two lines given by their directions.</summary>
        /// <remarks>status: outcome: -1 no_length: a direction's length is within the tolerance;
        /// unwritten on a condition: neither direction's length is within the tolerance, so it must
        /// be set beforehand.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvphip(ref float ux, ref float uy, ref float uz, ref float vx,
            ref float vy, ref float vz, ref float phi, ref int status);

        /// <summary>Angle between two lines given by their directions.</summary>
        /// <remarks>status: outcome: -1 no_length: a direction's length is within the tolerance;
        /// unwritten on a condition: neither direction's length is within the tolerance, so it must
        /// be set beforehand.</remarks>
        public static void trvphip(float ux, float uy, float uz, float vx, float vy, float vz,
            out float phi, out int status)
        {
            phi = 0;
            status = 0;
            trvphip(ref ux, ref uy, ref uz, ref vx, ref vy, ref vz, ref phi, ref status);
        }

        /// <summary>Directed angle at P0 from the ray to P1 to the ray to P2.</summary>
        /// <remarks>status: outcome (TrvCoincidence): 0 distinct: the output is written; 1
        /// coincident: P1 or P2 coincides with P0 (trvcnt).</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvchi(ref float x0, ref float y0, ref float z0, ref float x1,
            ref float y1, ref float z1, ref float x2, ref float y2, ref float z2, ref float chi,
            ref int status);

        /// <summary>Directed angle at P0 from the ray to P1 to the ray to P2.</summary>
        /// <remarks>status: outcome (TrvCoincidence): 0 distinct: the output is written; 1
        /// coincident: P1 or P2 coincides with P0 (trvcnt).</remarks>
        public static void trvchi(float x0, float y0, float z0, float x1, float y1, float z1,
            float x2, float y2, float z2, out float chi, out int status)
        {
            chi = 0;
            status = 0;
            trvchi(ref x0, ref y0, ref z0, ref x1, ref y1, ref z1, ref x2, ref y2, ref z2, ref chi,
                ref status);
        }

        /// <summary>Convexity of a closed outline, of either orientation.</summary>
        /// <remarks>status: test: 1 convex: the outline is convex; 0 not_convex: the outline is not
        /// convex, or winds more than once; -1 refused: n &lt; 3, or the length of a side is within
        /// the tolerance.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvcnv([In] float[] X, [In] float[] Y, ref int n, ref int status);

        /// <summary>Convexity of a closed outline, of either orientation.</summary>
        /// <remarks>status: test: 1 convex: the outline is convex; 0 not_convex: the outline is not
        /// convex, or winds more than once; -1 refused: n &lt; 3, or the length of a side is within
        /// the tolerance.</remarks>
        public static void trvcnv(float[] X, float[] Y, int n, out int status)
        {
            status = 0;
            trvcnv(X, Y, ref n, ref status);
        }

        /// <summary>Cosine and sine of the angle between P2 - P1 and P4 - P3.</summary>
        /// <remarks>status: outcome (TrvCoincidence): 0 distinct: the output is written; 1
        /// coincident: P1 and P2, or P3 and P4, coincide (trvcnt).</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvtrg(ref float x1, ref float y1, ref float z1, ref float x2,
            ref float y2, ref float z2, ref float x3, ref float y3, ref float z3, ref float x4,
            ref float y4, ref float z4, ref float cphi, ref float sphi, ref int status);

        /// <summary>Cosine and sine of the angle between P2 - P1 and P4 - P3.</summary>
        /// <remarks>status: outcome (TrvCoincidence): 0 distinct: the output is written; 1
        /// coincident: P1 and P2, or P3 and P4, coincide (trvcnt).</remarks>
        public static void trvtrg(float x1, float y1, float z1, float x2, float y2, float z2,
            float x3, float y3, float z3, float x4, float y4, float z4, out float cphi,
            out float sphi, out int status)
        {
            cphi = sphi = 0;
            status = 0;
            trvtrg(ref x1, ref y1, ref z1, ref x2, ref y2, ref z2, ref x3, ref y3, ref z3, ref x4,
                ref y4, ref z4, ref cphi, ref sphi, ref status);
        }

        /// <summary>Relation of two directions.</summary>
        /// <remarks>code: relation: 0 oblique: u and v have neither the same, opposite nor
        /// perpendicular directions; 1 same: the directions are the same; 2 opposite: the
        /// directions are opposite; 3 perpendicular: the directions are perpendicular; 4 zero: all
        /// components of u, or of v, are within the tolerance.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvdir(ref float ux, ref float uy, ref float uz, ref float vx,
            ref float vy, ref float vz, ref int code);

        /// <summary>Relation of two directions.</summary>
        /// <remarks>code: relation: 0 oblique: u and v have neither the same, opposite nor
        /// perpendicular directions; 1 same: the directions are the same; 2 opposite: the
        /// directions are opposite; 3 perpendicular: the directions are perpendicular; 4 zero: all
        /// components of u, or of v, are within the tolerance.</remarks>
        public static void trvdir(float ux, float uy, float uz, float vx, float vy, float vz,
            out int code)
        {
            code = 0;
            trvdir(ref ux, ref uy, ref uz, ref vx, ref vy, ref vz, ref code);
        }

        /// <summary>Relation of two planes.</summary>
        /// <remarks>code: relation: 0 crossing: the planes cross, not at a right angle; 1
        /// parallel_same: the planes are parallel and distinct, their normals in the same
        /// direction; 2 parallel_opposite: the planes are parallel and distinct, their normals
        /// opposite; 3 coincident_same: the planes coincide, their normals in the same direction; 4
        /// coincident_opposite: the planes coincide, their normals opposite; 5 perpendicular: the
        /// planes are perpendicular; 6 zero_normal: a normal is zero.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvdirp(ref float a1, ref float b1, ref float c1, ref float d1,
            ref float a2, ref float b2, ref float c2, ref float d2, ref int code);

        /// <summary>Relation of two planes.</summary>
        /// <remarks>code: relation: 0 crossing: the planes cross, not at a right angle; 1
        /// parallel_same: the planes are parallel and distinct, their normals in the same
        /// direction; 2 parallel_opposite: the planes are parallel and distinct, their normals
        /// opposite; 3 coincident_same: the planes coincide, their normals in the same direction; 4
        /// coincident_opposite: the planes coincide, their normals opposite; 5 perpendicular: the
        /// planes are perpendicular; 6 zero_normal: a normal is zero.</remarks>
        public static void trvdirp(float a1, float b1, float c1, float d1, float a2, float b2,
            float c2, float d2, out int code)
        {
            code = 0;
            trvdirp(ref a1, ref b1, ref c1, ref d1, ref a2, ref b2, ref c2, ref d2, ref code);
        }

        /// <summary>Angles between the projections of P2 - P1 and P4 - P3 onto the coordinate
        /// planes.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvmov(ref float x1, ref float y1, ref float z1, ref float x2,
            ref float y2, ref float z2, ref float x3, ref float y3, ref float z3, ref float x4,
            ref float y4, ref float z4, ref float ax, ref float ay, ref float az);

        /// <summary>Angles between the projections of P2 - P1 and P4 - P3 onto the coordinate
        /// planes.</summary>
        public static void trvmov(float x1, float y1, float z1, float x2, float y2, float z2,
            float x3, float y3, float z3, float x4, float y4, float z4, out float ax, out float ay,
            out float az)
        {
            ax = ay = az = 0;
            trvmov(ref x1, ref y1, ref z1, ref x2, ref y2, ref z2, ref x3, ref y3, ref z3, ref x4,
                ref y4, ref z4, ref ax, ref ay, ref az);
        }

        /// <summary>Moves the origin of plane points to (x0, y0), in place.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvtra([In, Out] float[] X, [In, Out] float[] Y, ref int n,
            ref float x0, ref float y0);

        /// <summary>Moves the origin of plane points to (x0, y0), in place.</summary>
        public static void trvtra(float[] X, float[] Y, int n, float x0, float y0)
        {
            trvtra(X, Y, ref n, ref x0, ref y0);
        }

        /// <summary>Reverses a list, in place. Elements move bit for bit, so the list may also hold
        /// Reals.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvinv([In, Out] int[] V, ref int n);

        /// <summary>Reverses a list, in place. Elements move bit for bit, so the list may also hold
        /// Reals.</summary>
        public static void trvinv(int[] V, int n)
        {
            trvinv(V, ref n);
        }

        /// <summary>Inserts a list into another. Elements move bit for bit, so the lists may also
        /// hold Reals.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvadr([In, Out] int[] V, ref int n, ref int k, [In] int[] A,
            ref int m);

        /// <summary>Inserts a list into another. Elements move bit for bit, so the lists may also
        /// hold Reals.</summary>
        public static void trvadr(int[] V, ref int n, int k, int[] A, int m)
        {
            trvadr(V, ref n, ref k, A, ref m);
        }

        // Area properties of polygons, circular segments and the parts of a section

        /// <summary>Area of a polygon.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvapl([In, Out] float[] x, [In, Out] float[] y, ref int n,
            ref float area);

        /// <summary>Area of a polygon.</summary>
        public static void trvapl(float[] x, float[] y, int n, out float area)
        {
            area = 0;
            trvapl(x, y, ref n, ref area);
        }

        /// <summary>First moments of a polygon.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvspl([In, Out] float[] x, [In, Out] float[] y, ref int n,
            ref float sx, ref float sy);

        /// <summary>First moments of a polygon.</summary>
        public static void trvspl(float[] x, float[] y, int n, out float sx, out float sy)
        {
            sx = sy = 0;
            trvspl(x, y, ref n, ref sx, ref sy);
        }

        /// <summary>Second moments of a polygon.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvipl([In, Out] float[] x, [In, Out] float[] y, ref int n,
            ref float ix, ref float iy, ref float ixy);

        /// <summary>Second moments of a polygon.</summary>
        public static void trvipl(float[] x, float[] y, int n, out float ix, out float iy,
            out float ixy)
        {
            ix = iy = ixy = 0;
            trvipl(x, y, ref n, ref ix, ref iy, ref ixy);
        }

        /// <summary>Area and centroid of a circular segment, the region between an arc and its
        /// chord.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvacp(ref float xc, ref float yc, ref float x1, ref float y1,
            ref float x2, ref float y2, ref int kind, ref float area, ref float xs, ref float ys);

        /// <summary>Area and centroid of a circular segment, the region between an arc and its
        /// chord.</summary>
        public static void trvacp(float xc, float yc, float x1, float y1, float x2, float y2,
            int kind, out float area, out float xs, out float ys)
        {
            area = xs = ys = 0;
            trvacp(ref xc, ref yc, ref x1, ref y1, ref x2, ref y2, ref kind, ref area, ref xs,
                ref ys);
        }

        /// <summary>Second moments of a circular segment, the region between an arc and its
        /// chord.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvicp(ref float xc, ref float yc, ref float x1, ref float y1,
            ref float x2, ref float y2, ref int kind, ref float ix, ref float iy, ref float ixy);

        /// <summary>Second moments of a circular segment, the region between an arc and its
        /// chord.</summary>
        public static void trvicp(float xc, float yc, float x1, float y1, float x2, float y2,
            int kind, out float ix, out float iy, out float ixy)
        {
            ix = iy = ixy = 0;
            trvicp(ref xc, ref yc, ref x1, ref y1, ref x2, ref y2, ref kind, ref ix, ref iy,
                ref ixy);
        }

        /// <summary>Area of a part of a section.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvair([In, Out] float[] x, [In, Out] float[] y, ref int n,
            ref int kind, ref float value, ref float factor, ref float area);

        /// <summary>Area of a part of a section.</summary>
        public static void trvair(float[] x, float[] y, int n, int kind, float value, float factor,
            ref float area)
        {
            trvair(x, y, ref n, ref kind, ref value, ref factor, ref area);
        }

        /// <summary>First moments of a part of a section.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvstm([In, Out] float[] x, [In, Out] float[] y, ref int n,
            ref int kind, ref float value, ref float factor, ref float sx, ref float sy);

        /// <summary>First moments of a part of a section.</summary>
        public static void trvstm(float[] x, float[] y, int n, int kind, float value, float factor,
            ref float sx, ref float sy)
        {
            trvstm(x, y, ref n, ref kind, ref value, ref factor, ref sx, ref sy);
        }

        /// <summary>Second moments of a part of a section.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvinm([In, Out] float[] x, [In, Out] float[] y, ref int n,
            ref int kind, ref float value, ref float angle, ref float factor, ref float ix,
            ref float iy, ref float ixy);

        /// <summary>Second moments of a part of a section.</summary>
        public static void trvinm(float[] x, float[] y, int n, int kind, float value, float angle,
            float factor, ref float ix, ref float iy, ref float ixy)
        {
            trvinm(x, y, ref n, ref kind, ref value, ref angle, ref factor, ref ix, ref iy,
                ref ixy);
        }

        /// <summary>Principal moments and their direction.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvinp(ref float ix, ref float iy, ref float ixy, ref float i1,
            ref float i2, ref float alpha);

        /// <summary>Principal moments and their direction.</summary>
        public static void trvinp(float ix, float iy, float ixy, out float i1, out float i2,
            out float alpha)
        {
            i1 = i2 = alpha = 0;
            trvinp(ref ix, ref iy, ref ixy, ref i1, ref i2, ref alpha);
        }

        /// <summary>Integral of equally spaced samples over [a, b] by the trapezoidal
        /// rule.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvinr(ref int n, [In] float[] f, ref float a, ref float b,
            ref float result);

        /// <summary>Integral of equally spaced samples over [a, b] by the trapezoidal
        /// rule.</summary>
        public static void trvinr(int n, float[] f, float a, float b, out float result)
        {
            result = 0;
            trvinr(ref n, f, ref a, ref b, ref result);
        }

        // Steel sections: buckling of plates, outlines of profiles, channels, thin plates

        /// <summary>Reduction factor of an internal compression element, EN 1993-1-5,
        /// 4.4(2).</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvro2(ref float b, ref float t, ref float r1, ref float r2,
            ref float psi, ref float ks, ref float rho);

        /// <summary>Reduction factor of an internal compression element, EN 1993-1-5,
        /// 4.4(2).</summary>
        public static void trvro2(float b, float t, float r1, float r2, float psi, float ks,
            out float rho)
        {
            rho = 0;
            trvro2(ref b, ref t, ref r1, ref r2, ref psi, ref ks, ref rho);
        }

        /// <summary>Effective width of an edge fold on a plate it stiffens, after EN 1993-1-3,
        /// 5.5.3.2.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvefr(ref float c, ref float bp, ref float t, ref float r1,
            ref float r2, ref float ceff);

        /// <summary>Effective width of an edge fold on a plate it stiffens, after EN 1993-1-3,
        /// 5.5.3.2.</summary>
        public static void trvefr(float c, float bp, float t, float r1, float r2, out float ceff)
        {
            ceff = 0;
            trvefr(ref c, ref bp, ref t, ref r1, ref r2, ref ceff);
        }

        /// <summary>Effective widths at the edges of an internal element, EN 1993-1-5, table
        /// 4.1.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvef2(ref float bl, ref float w, ref float t, ref float r1,
            ref float r2, ref float s1, ref float s2, ref float be1, ref float be2);

        /// <summary>Effective widths at the edges of an internal element, EN 1993-1-5, table
        /// 4.1.</summary>
        public static void trvef2(float bl, float w, float t, float r1, float r2, float s1,
            float s2, out float be1, out float be2)
        {
            be1 = be2 = 0;
            trvef2(ref bl, ref w, ref t, ref r1, ref r2, ref s1, ref s2, ref be1, ref be2);
        }

        /// <summary>I section with unequal flanges.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvsec_ia(ref float H, ref float B1, ref float B2, ref float T1,
            ref float T2, ref float TW, ref float q, ref int np, [In, Out] int[] nv,
            [In, Out] float[] X, [In, Out] float[] Y, [In, Out] int[] code, [In, Out] float[] sign,
            [In, Out] float[] z1, [In, Out] float[] z2, [In, Out] float[] z3, [In, Out] float[] z4,
            [In, Out] float[] z5, [In, Out] float[] q1, [In, Out] float[] q2);

        /// <summary>I section with unequal flanges.</summary>
        public static void trvsec_ia(float H, float B1, float B2, float T1, float T2, float TW,
            float q, out int np, int[] nv, float[] X, float[] Y, int[] code, float[] sign,
            float[] z1, float[] z2, float[] z3, float[] z4, float[] z5, float[] q1, float[] q2)
        {
            np = 0;
            trvsec_ia(ref H, ref B1, ref B2, ref T1, ref T2, ref TW, ref q, ref np, nv, X, Y, code,
                sign, z1, z2, z3, z4, z5, q1, q2);
        }

        /// <summary>I section lying on its side.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvsec_h(ref float H, ref float B1, ref float B2, ref float T1,
            ref float T2, ref float TW, ref float q, ref int np, [In, Out] int[] nv,
            [In, Out] float[] X, [In, Out] float[] Y, [In, Out] int[] code, [In, Out] float[] sign,
            [In, Out] float[] z1, [In, Out] float[] z2, [In, Out] float[] z3, [In, Out] float[] z4,
            [In, Out] float[] z5, [In, Out] float[] q1, [In, Out] float[] q2);

        /// <summary>I section lying on its side.</summary>
        public static void trvsec_h(float H, float B1, float B2, float T1, float T2, float TW,
            float q, out int np, int[] nv, float[] X, float[] Y, int[] code, float[] sign,
            float[] z1, float[] z2, float[] z3, float[] z4, float[] z5, float[] q1, float[] q2)
        {
            np = 0;
            trvsec_h(ref H, ref B1, ref B2, ref T1, ref T2, ref TW, ref q, ref np, nv, X, Y, code,
                sign, z1, z2, z3, z4, z5, q1, q2);
        }

        /// <summary>T section, flange at the top.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvsec_t(ref float B, ref float H, ref float TF, ref float TW,
            ref float q, ref int np, [In, Out] int[] nv, [In, Out] float[] X, [In, Out] float[] Y,
            [In, Out] int[] code, [In, Out] float[] sign, [In, Out] float[] z1,
            [In, Out] float[] z2, [In, Out] float[] z3, [In, Out] float[] z4, [In, Out] float[] z5,
            [In, Out] float[] q1, [In, Out] float[] q2);

        /// <summary>T section, flange at the top.</summary>
        public static void trvsec_t(float B, float H, float TF, float TW, float q, out int np,
            int[] nv, float[] X, float[] Y, int[] code, float[] sign, float[] z1, float[] z2,
            float[] z3, float[] z4, float[] z5, float[] q1, float[] q2)
        {
            np = 0;
            trvsec_t(ref B, ref H, ref TF, ref TW, ref q, ref np, nv, X, Y, code, sign, z1, z2, z3,
                z4, z5, q1, q2);
        }

        /// <summary>Flat bar.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvsec_b(ref int B, ref float H, ref float q, ref int np,
            [In, Out] int[] nv, [In, Out] float[] X, [In, Out] float[] Y, [In, Out] int[] code,
            [In, Out] float[] sign, [In, Out] float[] z1, [In, Out] float[] z2,
            [In, Out] float[] z3, [In, Out] float[] z4, [In, Out] float[] z5, [In, Out] float[] q1,
            [In, Out] float[] q2);

        /// <summary>Flat bar.</summary>
        public static void trvsec_b(int B, float H, float q, out int np, int[] nv, float[] X,
            float[] Y, int[] code, float[] sign, float[] z1, float[] z2, float[] z3, float[] z4,
            float[] z5, float[] q1, float[] q2)
        {
            np = 0;
            trvsec_b(ref B, ref H, ref q, ref np, nv, X, Y, code, sign, z1, z2, z3, z4, z5, q1, q2);
        }

        /// <summary>I section lying on its side with a cover plate on its flanges' top edges,
        /// closing one cell.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvsec_h1b(ref float W, ref float D, ref float P, ref float T1,
            ref float T2, ref float TW, ref float TP, ref float q, ref int np, [In, Out] int[] nv,
            [In, Out] float[] X, [In, Out] float[] Y, [In, Out] int[] code, [In, Out] float[] sign,
            [In, Out] float[] z1, [In, Out] float[] z2, [In, Out] float[] z3, [In, Out] float[] z4,
            [In, Out] float[] z5, [In, Out] float[] q1, [In, Out] float[] q2);

        /// <summary>I section lying on its side with a cover plate on its flanges' top edges,
        /// closing one cell.</summary>
        public static void trvsec_h1b(float W, float D, float P, float T1, float T2, float TW,
            float TP, float q, out int np, int[] nv, float[] X, float[] Y, int[] code, float[] sign,
            float[] z1, float[] z2, float[] z3, float[] z4, float[] z5, float[] q1, float[] q2)
        {
            np = 0;
            trvsec_h1b(ref W, ref D, ref P, ref T1, ref T2, ref TW, ref TP, ref q, ref np, nv, X, Y,
                code, sign, z1, z2, z3, z4, z5, q1, q2);
        }

        /// <summary>Box girder with overhanging flanges.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvsec_box(ref float BT, ref float BB, ref float TT, ref float TB,
            ref float H, ref float TW, ref float G, ref float q, ref int np, [In, Out] int[] nv,
            [In, Out] float[] X, [In, Out] float[] Y, [In, Out] int[] code, [In, Out] float[] sign,
            [In, Out] float[] z1, [In, Out] float[] z2, [In, Out] float[] z3, [In, Out] float[] z4,
            [In, Out] float[] z5, [In, Out] float[] q1, [In, Out] float[] q2);

        /// <summary>Box girder with overhanging flanges.</summary>
        public static void trvsec_box(float BT, float BB, float TT, float TB, float H, float TW,
            float G, float q, out int np, int[] nv, float[] X, float[] Y, int[] code, float[] sign,
            float[] z1, float[] z2, float[] z3, float[] z4, float[] z5, float[] q1, float[] q2)
        {
            np = 0;
            trvsec_box(ref BT, ref BB, ref TT, ref TB, ref H, ref TW, ref G, ref q, ref np, nv, X,
                Y, code, sign, z1, z2, z3, z4, z5, q1, q2);
        }

        /// <summary>Rectangular hollow section with sharp corners.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvsec_rhs(ref float B, ref float H, ref float T, ref float q,
            ref int np, [In, Out] int[] nv, [In, Out] float[] X, [In, Out] float[] Y,
            [In, Out] int[] code, [In, Out] float[] sign, [In, Out] float[] z1,
            [In, Out] float[] z2, [In, Out] float[] z3, [In, Out] float[] z4, [In, Out] float[] z5,
            [In, Out] float[] q1, [In, Out] float[] q2);

        /// <summary>Rectangular hollow section with sharp corners.</summary>
        public static void trvsec_rhs(float B, float H, float T, float q, out int np, int[] nv,
            float[] X, float[] Y, int[] code, float[] sign, float[] z1, float[] z2, float[] z3,
            float[] z4, float[] z5, float[] q1, float[] q2)
        {
            np = 0;
            trvsec_rhs(ref B, ref H, ref T, ref q, ref np, nv, X, Y, code, sign, z1, z2, z3, z4, z5,
                q1, q2);
        }

        /// <summary>Two equal angles back to back, horizontal legs at the top.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvsec_l2(ref float B, ref float H, ref float G, ref float T,
            ref float TV, ref float q, ref int np, [In, Out] int[] nv, [In, Out] float[] X,
            [In, Out] float[] Y, [In, Out] int[] code, [In, Out] float[] sign, [In, Out] float[] z1,
            [In, Out] float[] z2, [In, Out] float[] z3, [In, Out] float[] z4, [In, Out] float[] z5,
            [In, Out] float[] q1, [In, Out] float[] q2);

        /// <summary>Two equal angles back to back, horizontal legs at the top.</summary>
        public static void trvsec_l2(float B, float H, float G, float T, float TV, float q,
            out int np, int[] nv, float[] X, float[] Y, int[] code, float[] sign, float[] z1,
            float[] z2, float[] z3, float[] z4, float[] z5, float[] q1, float[] q2)
        {
            np = 0;
            trvsec_l2(ref B, ref H, ref G, ref T, ref TV, ref q, ref np, nv, X, Y, code, sign, z1,
                z2, z3, z4, z5, q1, q2);
        }

        /// <summary>Top plate on a closed cell of two webs and a bottom plate between
        /// them.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvsec_tab(ref float B, ref float H, ref float BW, ref float E,
            ref float T, ref float TW, ref float TB, ref float q, ref int np, [In, Out] int[] nv,
            [In, Out] float[] X, [In, Out] float[] Y, [In, Out] int[] code, [In, Out] float[] sign,
            [In, Out] float[] z1, [In, Out] float[] z2, [In, Out] float[] z3, [In, Out] float[] z4,
            [In, Out] float[] z5, [In, Out] float[] q1, [In, Out] float[] q2);

        /// <summary>Top plate on a closed cell of two webs and a bottom plate between
        /// them.</summary>
        public static void trvsec_tab(float B, float H, float BW, float E, float T, float TW,
            float TB, float q, out int np, int[] nv, float[] X, float[] Y, int[] code, float[] sign,
            float[] z1, float[] z2, float[] z3, float[] z4, float[] z5, float[] q1, float[] q2)
        {
            np = 0;
            trvsec_tab(ref B, ref H, ref BW, ref E, ref T, ref TW, ref TB, ref q, ref np, nv, X, Y,
                code, sign, z1, z2, z3, z4, z5, q1, q2);
        }

        /// <summary>Two flanges joined by two webs and a middle plate, closing two cells.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvsec_h2b(ref float B, ref float W, ref float HI, ref float TW1,
            ref float TW2, ref float TM, ref float TF, ref float q, ref int np, [In, Out] int[] nv,
            [In, Out] float[] X, [In, Out] float[] Y, [In, Out] int[] code, [In, Out] float[] sign,
            [In, Out] float[] z1, [In, Out] float[] z2, [In, Out] float[] z3, [In, Out] float[] z4,
            [In, Out] float[] z5, [In, Out] float[] q1, [In, Out] float[] q2);

        /// <summary>Two flanges joined by two webs and a middle plate, closing two cells.</summary>
        public static void trvsec_h2b(float B, float W, float HI, float TW1, float TW2, float TM,
            float TF, float q, out int np, int[] nv, float[] X, float[] Y, int[] code, float[] sign,
            float[] z1, float[] z2, float[] z3, float[] z4, float[] z5, float[] q1, float[] q2)
        {
            np = 0;
            trvsec_h2b(ref B, ref W, ref HI, ref TW1, ref TW2, ref TM, ref TF, ref q, ref np, nv, X,
                Y, code, sign, z1, z2, z3, z4, z5, q1, q2);
        }

        /// <summary>I section with unequal flanges, an eccentric web and 45-degree
        /// fillets.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvsec_i(ref float H, ref float B1, ref float B2, ref float T1,
            ref float T2, ref float TW, ref float S1, ref float S2, ref float E, ref float q,
            ref int np, [In, Out] int[] nv, [In, Out] float[] X, [In, Out] float[] Y,
            [In, Out] int[] code, [In, Out] float[] sign, [In, Out] float[] z1,
            [In, Out] float[] z2, [In, Out] float[] z3, [In, Out] float[] z4, [In, Out] float[] z5,
            [In, Out] float[] q1, [In, Out] float[] q2);

        /// <summary>I section with unequal flanges, an eccentric web and 45-degree
        /// fillets.</summary>
        public static void trvsec_i(float H, float B1, float B2, float T1, float T2, float TW,
            float S1, float S2, float E, float q, out int np, int[] nv, float[] X, float[] Y,
            int[] code, float[] sign, float[] z1, float[] z2, float[] z3, float[] z4, float[] z5,
            float[] q1, float[] q2)
        {
            np = 0;
            trvsec_i(ref H, ref B1, ref B2, ref T1, ref T2, ref TW, ref S1, ref S2, ref E, ref q,
                ref np, nv, X, Y, code, sign, z1, z2, z3, z4, z5, q1, q2);
        }

        /// <summary>Channel open to the right, with lips turned inwards and folds turned back
        /// towards the web.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvsec_c(ref float H, ref float B1, ref float B2, ref float C1,
            ref float C2, ref float D1, ref float D2, ref float TW, ref float T1, ref float T2,
            ref float TC1, ref float TC2, ref float TD1, ref float TD2, ref float q, ref int np,
            [In, Out] int[] nv, [In, Out] float[] X, [In, Out] float[] Y, [In, Out] int[] code,
            [In, Out] float[] sign, [In, Out] float[] z1, [In, Out] float[] z2,
            [In, Out] float[] z3, [In, Out] float[] z4, [In, Out] float[] z5, [In, Out] float[] q1,
            [In, Out] float[] q2);

        /// <summary>Channel open to the right, with lips turned inwards and folds turned back
        /// towards the web.</summary>
        public static void trvsec_c(float H, float B1, float B2, float C1, float C2, float D1,
            float D2, float TW, float T1, float T2, float TC1, float TC2, float TD1, float TD2,
            float q, out int np, int[] nv, float[] X, float[] Y, int[] code, float[] sign,
            float[] z1, float[] z2, float[] z3, float[] z4, float[] z5, float[] q1, float[] q2)
        {
            np = 0;
            trvsec_c(ref H, ref B1, ref B2, ref C1, ref C2, ref D1, ref D2, ref TW, ref T1, ref T2,
                ref TC1, ref TC2, ref TD1, ref TD2, ref q, ref np, nv, X, Y, code, sign, z1, z2, z3,
                z4, z5, q1, q2);
        }

        /// <summary>Distance of a channel's shear centre from its centroid.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvshc_c(ref float B, ref float H, ref float C, ref float t,
            ref float e0);

        /// <summary>Distance of a channel's shear centre from its centroid.</summary>
        public static void trvshc_c(float B, float H, float C, float t, out float e0)
        {
            e0 = 0;
            trvshc_c(ref B, ref H, ref C, ref t, ref e0);
        }

        /// <summary>Warping constant of a channel.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvwar_c(ref float B, ref float H, ref float C, ref float t,
            ref float Iw);

        /// <summary>Warping constant of a channel.</summary>
        public static void trvwar_c(float B, float H, float C, float t, out float Iw)
        {
            Iw = 0;
            trvwar_c(ref B, ref H, ref C, ref t, ref Iw);
        }

        /// <summary>Properties of an open section of thin plates.</summary>
        /// <remarks>status: outcome (TrvStatus): 0 done: the outputs are computed; -1 refused: n
        /// &lt; 1, a coordinate or a thickness is infinite or NaN, or a length or a thickness is
        /// not above the tolerance; 2 to n: number of the first faulty plate, which does not start
        /// at an end of an earlier plate, or closes a cell by ending at one; n+2 to 2*n: n plus the
        /// number of the first faulty plate, which crosses, touches or overlaps an earlier plate
        /// elsewhere than at its start, and may close a cell.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvmxt(ref int n, [In] float[] X1, [In] float[] Y1,
            [In] float[] X2, [In] float[] Y2, [In] float[] T, ref float A, ref float xs,
            ref float ys, ref float Ix, ref float Iy, ref float Ixy, ref float I1, ref float I2,
            ref float alpha, ref float rx, ref float ry, ref float Wx1, ref float Wx2,
            ref float Wy1, ref float Wy2, ref float Wpx, ref float Wpy, ref float xp, ref float yp,
            ref float It, ref float Wt, ref float xm, ref float ym, ref float Iw, ref float r0,
            [In, Out] float[] W1, [In, Out] float[] W2, ref int status);

        /// <summary>Properties of an open section of thin plates.</summary>
        /// <remarks>status: outcome (TrvStatus): 0 done: the outputs are computed; -1 refused: n
        /// &lt; 1, a coordinate or a thickness is infinite or NaN, or a length or a thickness is
        /// not above the tolerance; 2 to n: number of the first faulty plate, which does not start
        /// at an end of an earlier plate, or closes a cell by ending at one; n+2 to 2*n: n plus the
        /// number of the first faulty plate, which crosses, touches or overlaps an earlier plate
        /// elsewhere than at its start, and may close a cell.</remarks>
        public static void trvmxt(int n, float[] X1, float[] Y1, float[] X2, float[] Y2, float[] T,
            out float A, out float xs, out float ys, out float Ix, out float Iy, out float Ixy,
            out float I1, out float I2, out float alpha, out float rx, out float ry, out float Wx1,
            out float Wx2, out float Wy1, out float Wy2, out float Wpx, out float Wpy, out float xp,
            out float yp, out float It, out float Wt, out float xm, out float ym, out float Iw,
            out float r0, float[] W1, float[] W2, out int status)
        {
            A = xs = ys = Ix = Iy = Ixy = I1 = I2 = alpha = rx = ry = Wx1 = Wx2 = Wy1 = Wy2 = Wpx =
                Wpy = xp = yp = It = Wt = xm = ym = Iw = r0 = 0;
            status = 0;
            trvmxt(ref n, X1, Y1, X2, Y2, T, ref A, ref xs, ref ys, ref Ix, ref Iy, ref Ixy, ref I1,
                ref I2, ref alpha, ref rx, ref ry, ref Wx1, ref Wx2, ref Wy1, ref Wy2, ref Wpx,
                ref Wpy, ref xp, ref yp, ref It, ref Wt, ref xm, ref ym, ref Iw, ref r0, W1, W2,
                ref status);
        }

        /// <summary>Properties of a flat bar, centred on the origin.</summary>
        /// <remarks>status: outcome (TrvStatus): 0 done: the outputs are computed; -1 refused: a
        /// side is infinite, NaN or not above the tolerance.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvmxt_fb(ref float B, ref float H, ref float A, ref float xs,
            ref float ys, ref float Ix, ref float Iy, ref float Ixy, ref float I1, ref float I2,
            ref float alpha, ref float rx, ref float ry, ref float Wx1, ref float Wx2,
            ref float Wy1, ref float Wy2, ref float Wpx, ref float Wpy, ref float xp, ref float yp,
            ref float It, ref float Wt, ref float xm, ref float ym, ref float Iw, ref float r0,
            [In, Out] float[] W1, [In, Out] float[] W2, ref int status);

        /// <summary>Properties of a flat bar, centred on the origin.</summary>
        /// <remarks>status: outcome (TrvStatus): 0 done: the outputs are computed; -1 refused: a
        /// side is infinite, NaN or not above the tolerance.</remarks>
        public static void trvmxt_fb(float B, float H, out float A, out float xs, out float ys,
            out float Ix, out float Iy, out float Ixy, out float I1, out float I2, out float alpha,
            out float rx, out float ry, out float Wx1, out float Wx2, out float Wy1, out float Wy2,
            out float Wpx, out float Wpy, out float xp, out float yp, out float It, out float Wt,
            out float xm, out float ym, out float Iw, out float r0, float[] W1, float[] W2,
            out int status)
        {
            A = xs = ys = Ix = Iy = Ixy = I1 = I2 = alpha = rx = ry = Wx1 = Wx2 = Wy1 = Wy2 = Wpx =
                Wpy = xp = yp = It = Wt = xm = ym = Iw = r0 = 0;
            status = 0;
            trvmxt_fb(ref B, ref H, ref A, ref xs, ref ys, ref Ix, ref Iy, ref Ixy, ref I1, ref I2,
                ref alpha, ref rx, ref ry, ref Wx1, ref Wx2, ref Wy1, ref Wy2, ref Wpx, ref Wpy,
                ref xp, ref yp, ref It, ref Wt, ref xm, ref ym, ref Iw, ref r0, W1, W2, ref status);
        }

        // Rotations about the origin and the axes

        /// <summary>Rotates plane points about the origin, in place.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvrot(ref int mode, [In, Out] float[] x, [In, Out] float[] y,
            ref int n, ref float angle);

        /// <summary>Rotates plane points about the origin, in place.</summary>
        public static void trvrot(int mode, float[] x, float[] y, int n, float angle)
        {
            trvrot(ref mode, x, y, ref n, ref angle);
        }

        /// <summary>Rotates points about the x axis, in place.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvrotx(ref int mode, [In] float[] x, [In, Out] float[] y,
            [In, Out] float[] z, ref int n, ref float angle);

        /// <summary>Rotates points about the x axis, in place.</summary>
        public static void trvrotx(int mode, float[] x, float[] y, float[] z, int n, float angle)
        {
            trvrotx(ref mode, x, y, z, ref n, ref angle);
        }

        /// <summary>Rotates points about the y axis, in place.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvroty(ref int mode, [In, Out] float[] x, [In] float[] y,
            [In, Out] float[] z, ref int n, ref float angle);

        /// <summary>Rotates points about the y axis, in place.</summary>
        public static void trvroty(int mode, float[] x, float[] y, float[] z, int n, float angle)
        {
            trvroty(ref mode, x, y, z, ref n, ref angle);
        }

        /// <summary>Rotates points about the z axis, in place.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvrotz(ref int mode, [In, Out] float[] x, [In, Out] float[] y,
            [In] float[] z, ref int n, ref float angle);

        /// <summary>Rotates points about the z axis, in place.</summary>
        public static void trvrotz(int mode, float[] x, float[] y, float[] z, int n, float angle)
        {
            trvrotz(ref mode, x, y, z, ref n, ref angle);
        }

        // Frames of space, and transformations of points

        /// <summary>Three-point test: whether P0, P1 and P2 span a plane.</summary>
        /// <remarks>status: three-point test (TrvThreePoints): 0 spans_plane: P0, P1 and P2 span a
        /// plane; 1 at_p0: P2 is at P0; 2 at_p1: P2 is at P1; 3 between: P2 is between P0 and P1; 4
        /// beyond_p0: P2 is beyond P0 on the line of P0 and P1; 5 beyond_p1: P2 is beyond P1 on the
        /// line of P0 and P1.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvpsl(ref float x0, ref float y0, ref float z0, ref float x1,
            ref float y1, ref float z1, ref float x2, ref float y2, ref float z2, ref int status);

        /// <summary>Three-point test: whether P0, P1 and P2 span a plane.</summary>
        /// <remarks>status: three-point test (TrvThreePoints): 0 spans_plane: P0, P1 and P2 span a
        /// plane; 1 at_p0: P2 is at P0; 2 at_p1: P2 is at P1; 3 between: P2 is between P0 and P1; 4
        /// beyond_p0: P2 is beyond P0 on the line of P0 and P1; 5 beyond_p1: P2 is beyond P1 on the
        /// line of P0 and P1.</remarks>
        public static void trvpsl(float x0, float y0, float z0, float x1, float y1, float z1,
            float x2, float y2, float z2, out int status)
        {
            status = 0;
            trvpsl(ref x0, ref y0, ref z0, ref x1, ref y1, ref z1, ref x2, ref y2, ref z2,
                ref status);
        }

        /// <summary>Moves the origin of points to (dx, dy, dz), in place.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trv3tra([In, Out] float[] X, [In, Out] float[] Y,
            [In, Out] float[] Z, ref int n, ref float dx, ref float dy, ref float dz);

        /// <summary>Moves the origin of points to (dx, dy, dz), in place.</summary>
        public static void trv3tra(float[] X, float[] Y, float[] Z, int n, float dx, float dy,
            float dz)
        {
            trv3tra(X, Y, Z, ref n, ref dx, ref dy, ref dz);
        }

        /// <summary>Applies a frame matrix to one point, in place.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvtrn([In, Out] float[] p, ref float a1, ref float a2,
            ref float a3, ref float a4, ref float a5, ref float a6, ref float a7, ref float a8,
            ref float a9, ref int mode);

        /// <summary>Applies a frame matrix to one point, in place.</summary>
        public static void trvtrn(float[] p, float a1, float a2, float a3, float a4, float a5,
            float a6, float a7, float a8, float a9, int mode)
        {
            trvtrn(p, ref a1, ref a2, ref a3, ref a4, ref a5, ref a6, ref a7, ref a8, ref a9,
                ref mode);
        }

        /// <summary>Frame of the plane through three points.</summary>
        /// <remarks>status: outcome (TrvFrame): 0 done: the outputs are computed; -2 no_frame: P2
        /// is at P0 or P1, or the three points are on one line (trvpsl).</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvaxe(ref float x0, ref float y0, ref float z0, ref float x1,
            ref float y1, ref float z1, ref float x2, ref float y2, ref float z2, ref float e1x,
            ref float e1y, ref float e1z, ref float e2x, ref float e2y, ref float e2z,
            ref float e3x, ref float e3y, ref float e3z, ref int status);

        /// <summary>Frame of the plane through three points.</summary>
        /// <remarks>status: outcome (TrvFrame): 0 done: the outputs are computed; -2 no_frame: P2
        /// is at P0 or P1, or the three points are on one line (trvpsl).</remarks>
        public static void trvaxe(float x0, float y0, float z0, float x1, float y1, float z1,
            float x2, float y2, float z2, out float e1x, out float e1y, out float e1z,
            out float e2x, out float e2y, out float e2z, out float e3x, out float e3y,
            out float e3z, out int status)
        {
            e1x = e1y = e1z = e2x = e2y = e2z = e3x = e3y = e3z = 0;
            status = 0;
            trvaxe(ref x0, ref y0, ref z0, ref x1, ref y1, ref z1, ref x2, ref y2, ref z2, ref e1x,
                ref e1y, ref e1z, ref e2x, ref e2y, ref e2z, ref e3x, ref e3y, ref e3z, ref status);
        }

        /// <summary>Frame of an axis from P0 to P1.</summary>
        /// <remarks>status: outcome (TrvFrame): 0 done: also for an axis along y; -2 no_frame: the
        /// distance of P0 and P1 is within the tolerance.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvaxel(ref float x0, ref float y0, ref float z0, ref float x1,
            ref float y1, ref float z1, ref float angle, ref float e1x, ref float e1y,
            ref float e1z, ref float e2x, ref float e2y, ref float e2z, ref float e3x,
            ref float e3y, ref float e3z, ref int status);

        /// <summary>Frame of an axis from P0 to P1.</summary>
        /// <remarks>status: outcome (TrvFrame): 0 done: also for an axis along y; -2 no_frame: the
        /// distance of P0 and P1 is within the tolerance.</remarks>
        public static void trvaxel(float x0, float y0, float z0, float x1, float y1, float z1,
            float angle, out float e1x, out float e1y, out float e1z, out float e2x, out float e2y,
            out float e2z, out float e3x, out float e3y, out float e3z, out int status)
        {
            e1x = e1y = e1z = e2x = e2y = e2z = e3x = e3y = e3z = 0;
            status = 0;
            trvaxel(ref x0, ref y0, ref z0, ref x1, ref y1, ref z1, ref angle, ref e1x, ref e1y,
                ref e1z, ref e2x, ref e2y, ref e2z, ref e3x, ref e3y, ref e3z, ref status);
        }

        /// <summary>Shifts points and rotates them about the global axes x, y and z, in this order
        /// and in place.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvptr([In, Out] float[] X, [In, Out] float[] Y,
            [In, Out] float[] Z, ref int n, ref float x0, ref float y0, ref float z0, ref float ax,
            ref float ay, ref float az);

        /// <summary>Shifts points and rotates them about the global axes x, y and z, in this order
        /// and in place.</summary>
        public static void trvptr(float[] X, float[] Y, float[] Z, int n, float x0, float y0,
            float z0, float ax, float ay, float az)
        {
            trvptr(X, Y, Z, ref n, ref x0, ref y0, ref z0, ref ax, ref ay, ref az);
        }

        /// <summary>Shifts points and rotates them in the frame of three points, in
        /// place.</summary>
        /// <remarks>status: outcome (TrvFrame): 0 done: the outputs are computed; -2 no_frame: P2
        /// is at P0 or P1, or the three points are on one line (trvpsl).</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvptrl(ref float x0, ref float y0, ref float z0, ref float x1,
            ref float y1, ref float z1, ref float x2, ref float y2, ref float z2,
            [In, Out] float[] X, [In, Out] float[] Y, [In, Out] float[] Z, ref int n, ref float dx,
            ref float dy, ref float dz, ref float ax, ref float ay, ref float az, ref int status);

        /// <summary>Shifts points and rotates them in the frame of three points, in
        /// place.</summary>
        /// <remarks>status: outcome (TrvFrame): 0 done: the outputs are computed; -2 no_frame: P2
        /// is at P0 or P1, or the three points are on one line (trvpsl).</remarks>
        public static void trvptrl(float x0, float y0, float z0, float x1, float y1, float z1,
            float x2, float y2, float z2, float[] X, float[] Y, float[] Z, int n, float dx,
            float dy, float dz, float ax, float ay, float az, out int status)
        {
            status = 0;
            trvptrl(ref x0, ref y0, ref z0, ref x1, ref y1, ref z1, ref x2, ref y2, ref z2, X, Y, Z,
                ref n, ref dx, ref dy, ref dz, ref ax, ref ay, ref az, ref status);
        }

        /// <summary>Rotates points about the axis from P0 through P1, in place.</summary>
        /// <remarks>status: outcome (TrvFrame): 0 done: also for an axis along y; -2 no_frame: the
        /// distance of P0 and P1 is within the tolerance.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvpra(ref float x0, ref float y0, ref float z0, ref float x1,
            ref float y1, ref float z1, [In, Out] float[] X, [In, Out] float[] Y,
            [In, Out] float[] Z, ref int n, ref float angle, ref int status);

        /// <summary>Rotates points about the axis from P0 through P1, in place.</summary>
        /// <remarks>status: outcome (TrvFrame): 0 done: also for an axis along y; -2 no_frame: the
        /// distance of P0 and P1 is within the tolerance.</remarks>
        public static void trvpra(float x0, float y0, float z0, float x1, float y1, float z1,
            float[] X, float[] Y, float[] Z, int n, float angle, out int status)
        {
            status = 0;
            trvpra(ref x0, ref y0, ref z0, ref x1, ref y1, ref z1, X, Y, Z, ref n, ref angle,
                ref status);
        }

        /// <summary>Rotates points of a plane in the frame of the three points that span it, then
        /// shifts them, in place.</summary>
        /// <remarks>status: outcome: 0 done: the points are moved; -1 no_frame: P2 is at P0 or P1,
        /// or the three points are on one line (trvpsl); 1 to n: position of the first point off
        /// the plane.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvppc(ref float x0, ref float y0, ref float z0, ref float x1,
            ref float y1, ref float z1, ref float x2, ref float y2, ref float z2, ref float dx,
            ref float dy, ref float dz, ref float ax, ref float ay, ref float az, ref int n,
            [In, Out] float[] X, [In, Out] float[] Y, [In, Out] float[] Z, ref float tol,
            ref int status);

        /// <summary>Rotates points of a plane in the frame of the three points that span it, then
        /// shifts them, in place.</summary>
        /// <remarks>status: outcome: 0 done: the points are moved; -1 no_frame: P2 is at P0 or P1,
        /// or the three points are on one line (trvpsl); 1 to n: position of the first point off
        /// the plane.</remarks>
        public static void trvppc(float x0, float y0, float z0, float x1, float y1, float z1,
            float x2, float y2, float z2, float dx, float dy, float dz, float ax, float ay,
            float az, int n, float[] X, float[] Y, float[] Z, float tol, out int status)
        {
            status = 0;
            trvppc(ref x0, ref y0, ref z0, ref x1, ref y1, ref z1, ref x2, ref y2, ref z2, ref dx,
                ref dy, ref dz, ref ax, ref ay, ref az, ref n, X, Y, Z, ref tol, ref status);
        }

        // Planes of space

        /// <summary>Plane through a point, spanned by two directions.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvplg(ref float x, ref float y, ref float z, ref float ux,
            ref float uy, ref float uz, ref float wx, ref float wy, ref float wz, ref float a,
            ref float b, ref float c, ref float d);

        /// <summary>Plane through a point, spanned by two directions.</summary>
        public static void trvplg(float x, float y, float z, float ux, float uy, float uz, float wx,
            float wy, float wz, out float a, out float b, out float c, out float d)
        {
            a = b = c = d = 0;
            trvplg(ref x, ref y, ref z, ref ux, ref uy, ref uz, ref wx, ref wy, ref wz, ref a,
                ref b, ref c, ref d);
        }

        /// <summary>Plane through three points: (a, b, c) = (P1 - P0) x (P2 - P0).</summary>
        /// <remarks>status: three-point test (TrvThreePoints): 0 spans_plane: P0, P1 and P2 span a
        /// plane; 1 at_p0: P2 is at P0; 2 at_p1: P2 is at P1; 3 between: P2 is between P0 and P1; 4
        /// beyond_p0: P2 is beyond P0 on the line of P0 and P1; 5 beyond_p1: P2 is beyond P1 on the
        /// line of P0 and P1.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvpl1(ref float x0, ref float y0, ref float z0, ref float x1,
            ref float y1, ref float z1, ref float x2, ref float y2, ref float z2, ref float a,
            ref float b, ref float c, ref float d, ref int status);

        /// <summary>Plane through three points: (a, b, c) = (P1 - P0) x (P2 - P0).</summary>
        /// <remarks>status: three-point test (TrvThreePoints): 0 spans_plane: P0, P1 and P2 span a
        /// plane; 1 at_p0: P2 is at P0; 2 at_p1: P2 is at P1; 3 between: P2 is between P0 and P1; 4
        /// beyond_p0: P2 is beyond P0 on the line of P0 and P1; 5 beyond_p1: P2 is beyond P1 on the
        /// line of P0 and P1.</remarks>
        public static void trvpl1(float x0, float y0, float z0, float x1, float y1, float z1,
            float x2, float y2, float z2, out float a, out float b, out float c, out float d,
            out int status)
        {
            a = b = c = d = 0;
            status = 0;
            trvpl1(ref x0, ref y0, ref z0, ref x1, ref y1, ref z1, ref x2, ref y2, ref z2, ref a,
                ref b, ref c, ref d, ref status);
        }

        /// <summary>Plane through a point, parallel to two lines.</summary>
        /// <remarks>status: outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line:
        /// the lines are the same, of the same direction; 4 opposite_line: the lines are the same,
        /// of opposite direction; 7 no_length: A and B, or C and D, coincide (trvcnt).</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvpl2(ref float x, ref float y, ref float z, ref float xa,
            ref float ya, ref float za, ref float xb, ref float yb, ref float zb, ref float xc,
            ref float yc, ref float zc, ref float xd, ref float yd, ref float zd, ref float a,
            ref float b, ref float c, ref float d, ref int status);

        /// <summary>Plane through a point, parallel to two lines.</summary>
        /// <remarks>status: outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line:
        /// the lines are the same, of the same direction; 4 opposite_line: the lines are the same,
        /// of opposite direction; 7 no_length: A and B, or C and D, coincide (trvcnt).</remarks>
        public static void trvpl2(float x, float y, float z, float xa, float ya, float za, float xb,
            float yb, float zb, float xc, float yc, float zc, float xd, float yd, float zd,
            out float a, out float b, out float c, out float d, out int status)
        {
            a = b = c = d = 0;
            status = 0;
            trvpl2(ref x, ref y, ref z, ref xa, ref ya, ref za, ref xb, ref yb, ref zb, ref xc,
                ref yc, ref zc, ref xd, ref yd, ref zd, ref a, ref b, ref c, ref d, ref status);
        }

        /// <summary>Plane that contains one line and is parallel to another: trvpl2 through
        /// A.</summary>
        /// <remarks>status: outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line:
        /// the lines are the same, of the same direction; 4 opposite_line: the lines are the same,
        /// of opposite direction; 7 no_length: A and B, or C and D, coincide (trvcnt).</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvpl3(ref float xa, ref float ya, ref float za, ref float xb,
            ref float yb, ref float zb, ref float xc, ref float yc, ref float zc, ref float xd,
            ref float yd, ref float zd, ref float a, ref float b, ref float c, ref float d,
            ref int status);

        /// <summary>Plane that contains one line and is parallel to another: trvpl2 through
        /// A.</summary>
        /// <remarks>status: outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line:
        /// the lines are the same, of the same direction; 4 opposite_line: the lines are the same,
        /// of opposite direction; 7 no_length: A and B, or C and D, coincide (trvcnt).</remarks>
        public static void trvpl3(float xa, float ya, float za, float xb, float yb, float zb,
            float xc, float yc, float zc, float xd, float yd, float zd, out float a, out float b,
            out float c, out float d, out int status)
        {
            a = b = c = d = 0;
            status = 0;
            trvpl3(ref xa, ref ya, ref za, ref xb, ref yb, ref zb, ref xc, ref yc, ref zc, ref xd,
                ref yd, ref zd, ref a, ref b, ref c, ref d, ref status);
        }

        /// <summary>Plane through a point, perpendicular to a segment.</summary>
        /// <remarks>status: outcome (TrvCoincidence): 0 distinct: the plane is computed; 1
        /// coincident: A and B coincide within the tolerance in each coordinate (trvcnt).</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvpl4(ref float x, ref float y, ref float z, ref float xa,
            ref float ya, ref float za, ref float xb, ref float yb, ref float zb, ref float a,
            ref float b, ref float c, ref float d, ref int status);

        /// <summary>Plane through a point, perpendicular to a segment.</summary>
        /// <remarks>status: outcome (TrvCoincidence): 0 distinct: the plane is computed; 1
        /// coincident: A and B coincide within the tolerance in each coordinate (trvcnt).</remarks>
        public static void trvpl4(float x, float y, float z, float xa, float ya, float za, float xb,
            float yb, float zb, out float a, out float b, out float c, out float d, out int status)
        {
            a = b = c = d = 0;
            status = 0;
            trvpl4(ref x, ref y, ref z, ref xa, ref ya, ref za, ref xb, ref yb, ref zb, ref a,
                ref b, ref c, ref d, ref status);
        }

        /// <summary>Plane with given intercepts on the axes.</summary>
        /// <remarks>status: outcome: 0 done: the plane is computed; 1 no_plane: there is no plane,
        /// since an intercept is within the tolerance or NaN.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvpl5(ref float ix, ref float iy, ref float iz, ref float a,
            ref float b, ref float c, ref float d, ref int status);

        /// <summary>Plane with given intercepts on the axes.</summary>
        /// <remarks>status: outcome: 0 done: the plane is computed; 1 no_plane: there is no plane,
        /// since an intercept is within the tolerance or NaN.</remarks>
        public static void trvpl5(float ix, float iy, float iz, out float a, out float b,
            out float c, out float d, out int status)
        {
            a = b = c = d = 0;
            status = 0;
            trvpl5(ref ix, ref iy, ref iz, ref a, ref b, ref c, ref d, ref status);
        }

        /// <summary>Plane of two lines, each given by a point and a direction.</summary>
        /// <remarks>status: outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line:
        /// the lines are the same, of the same direction; 4 opposite_line: the lines are the same,
        /// of opposite direction; 6 skew: the lines are skew; 7 no_length: all components of a
        /// direction are within the tolerance.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvpl6(ref float xa, ref float ya, ref float za, ref float ux,
            ref float uy, ref float uz, ref float xc, ref float yc, ref float zc, ref float wx,
            ref float wy, ref float wz, ref float a, ref float b, ref float c, ref float d,
            ref int status);

        /// <summary>Plane of two lines, each given by a point and a direction.</summary>
        /// <remarks>status: outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line:
        /// the lines are the same, of the same direction; 4 opposite_line: the lines are the same,
        /// of opposite direction; 6 skew: the lines are skew; 7 no_length: all components of a
        /// direction are within the tolerance.</remarks>
        public static void trvpl6(float xa, float ya, float za, float ux, float uy, float uz,
            float xc, float yc, float zc, float wx, float wy, float wz, out float a, out float b,
            out float c, out float d, out int status)
        {
            a = b = c = d = 0;
            status = 0;
            trvpl6(ref xa, ref ya, ref za, ref ux, ref uy, ref uz, ref xc, ref yc, ref zc, ref wx,
                ref wy, ref wz, ref a, ref b, ref c, ref d, ref status);
        }

        /// <summary>Plane of three points, rotated about the line from P0 to P1.</summary>
        /// <remarks>status: three-point test (TrvThreePoints): 0 spans_plane: P0, P1 and P2 span a
        /// plane; 1 at_p0: P2 is at P0, or P0 and P0 + normal coincide (trvcnt); 2 at_p1: P2 is at
        /// P1; 3 between: P2 is between P0 and P1; 4 beyond_p0: P2 is beyond P0 on the line of P0
        /// and P1; 5 beyond_p1: P2 is beyond P1 on the line of P0 and P1.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvpl7(ref float x0, ref float y0, ref float z0, ref float x1,
            ref float y1, ref float z1, ref float x2, ref float y2, ref float z2, ref float angle,
            ref float a, ref float b, ref float c, ref float d, ref int status);

        /// <summary>Plane of three points, rotated about the line from P0 to P1.</summary>
        /// <remarks>status: three-point test (TrvThreePoints): 0 spans_plane: P0, P1 and P2 span a
        /// plane; 1 at_p0: P2 is at P0, or P0 and P0 + normal coincide (trvcnt); 2 at_p1: P2 is at
        /// P1; 3 between: P2 is between P0 and P1; 4 beyond_p0: P2 is beyond P0 on the line of P0
        /// and P1; 5 beyond_p1: P2 is beyond P1 on the line of P0 and P1.</remarks>
        public static void trvpl7(float x0, float y0, float z0, float x1, float y1, float z1,
            float x2, float y2, float z2, float angle, out float a, out float b, out float c,
            out float d, out int status)
        {
            a = b = c = d = 0;
            status = 0;
            trvpl7(ref x0, ref y0, ref z0, ref x1, ref y1, ref z1, ref x2, ref y2, ref z2,
                ref angle, ref a, ref b, ref c, ref d, ref status);
        }

        /// <summary>Whether a point lies on the plane of three points.</summary>
        /// <remarks>status: test (TrvOnPlane): 0 yes: the point lies on the plane, or P0 = P1, for
        /// which any point does; -1 no: the point does not lie on the plane, or the three points
        /// span no plane (trvpsl).</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvpsp(ref float x0, ref float y0, ref float z0, ref float x1,
            ref float y1, ref float z1, ref float x2, ref float y2, ref float z2, ref float x,
            ref float y, ref float z, ref float tol, ref int status);

        /// <summary>Whether a point lies on the plane of three points.</summary>
        /// <remarks>status: test (TrvOnPlane): 0 yes: the point lies on the plane, or P0 = P1, for
        /// which any point does; -1 no: the point does not lie on the plane, or the three points
        /// span no plane (trvpsl).</remarks>
        public static void trvpsp(float x0, float y0, float z0, float x1, float y1, float z1,
            float x2, float y2, float z2, float x, float y, float z, float tol, out int status)
        {
            status = 0;
            trvpsp(ref x0, ref y0, ref z0, ref x1, ref y1, ref z1, ref x2, ref y2, ref z2, ref x,
                ref y, ref z, ref tol, ref status);
        }

        /// <summary>Signed distance of a point from a plane.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvpld(ref float x, ref float y, ref float z, ref float a,
            ref float b, ref float c, ref float d, ref float dist);

        /// <summary>Signed distance of a point from a plane.</summary>
        public static void trvpld(float x, float y, float z, float a, float b, float c, float d,
            out float dist)
        {
            dist = 0;
            trvpld(ref x, ref y, ref z, ref a, ref b, ref c, ref d, ref dist);
        }

        /// <summary>Whether a point lies on a plane.</summary>
        /// <remarks>status: test (TrvOnPlane): 0 yes: the point lies on the plane; -1 no: the point
        /// does not lie on the plane, or the distance is NaN; 1 zero_normal: the normal of the
        /// plane is exactly zero.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvpspg(ref float x, ref float y, ref float z, ref float a,
            ref float b, ref float c, ref float d, ref float tol, ref int status);

        /// <summary>Whether a point lies on a plane.</summary>
        /// <remarks>status: test (TrvOnPlane): 0 yes: the point lies on the plane; -1 no: the point
        /// does not lie on the plane, or the distance is NaN; 1 zero_normal: the normal of the
        /// plane is exactly zero.</remarks>
        public static void trvpspg(float x, float y, float z, float a, float b, float c, float d,
            float tol, out int status)
        {
            status = 0;
            trvpspg(ref x, ref y, ref z, ref a, ref b, ref c, ref d, ref tol, ref status);
        }

        /// <summary>Relation of two directions, taken as lines through the origin.</summary>
        /// <remarks>status: relation: -1 zero_u: u is exactly zero; 0 oblique: u and w have neither
        /// the same, opposite nor perpendicular directions; 3 same: the directions are the same; 4
        /// opposite: the directions are opposite; 5 perpendicular: the directions are
        /// perpendicular; 7 zero: all components of u, or of w, are within the tolerance.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvplv(ref float ux, ref float uy, ref float uz, ref float wx,
            ref float wy, ref float wz, ref float v7, ref float v8, ref int status);

        /// <summary>Relation of two directions, taken as lines through the origin.</summary>
        /// <remarks>status: relation: -1 zero_u: u is exactly zero; 0 oblique: u and w have neither
        /// the same, opposite nor perpendicular directions; 3 same: the directions are the same; 4
        /// opposite: the directions are opposite; 5 perpendicular: the directions are
        /// perpendicular; 7 zero: all components of u, or of w, are within the tolerance.</remarks>
        public static void trvplv(float ux, float uy, float uz, float wx, float wy, float wz,
            float v7, float v8, out int status)
        {
            status = 0;
            trvplv(ref ux, ref uy, ref uz, ref wx, ref wy, ref wz, ref v7, ref v8, ref status);
        }

        /// <summary>Points of a list on a plane, by a running residual.</summary>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvpnp([In] float[] X, [In] float[] Y, [In] float[] Z,
            ref float a, ref float b, ref float c, ref float d, ref int n, ref int count,
            [In, Out] int[] index);

        /// <summary>Points of a list on a plane, by a running residual.</summary>
        public static void trvpnp(float[] X, float[] Y, float[] Z, float a, float b, float c,
            ref float d, int n, out int count, int[] index)
        {
            count = 0;
            trvpnp(X, Y, Z, ref a, ref b, ref c, ref d, ref n, ref count, index);
        }

        // Straight lines of space

        /// <summary>Relation of two lines.</summary>
        /// <remarks>status: relation (TrvLines): 0 crossing: the lines cross, not at a right angle;
        /// 1 parallel_same: parallel and distinct lines of the same direction; 2 parallel_opposite:
        /// parallel and distinct lines of opposite direction; 3 same_line: the same line, of the
        /// same direction; 4 opposite_line: the same line, of opposite direction; 5 perpendicular:
        /// the lines cross at a right angle; 6 skew: the lines are skew; 7 coincident: A and B, or
        /// C and D, coincide, each coordinate within the tolerance.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvdirl(ref float xa, ref float ya, ref float za, ref float xb,
            ref float yb, ref float zb, ref float xc, ref float yc, ref float zc, ref float xd,
            ref float yd, ref float zd, ref int status);

        /// <summary>Relation of two lines.</summary>
        /// <remarks>status: relation (TrvLines): 0 crossing: the lines cross, not at a right angle;
        /// 1 parallel_same: parallel and distinct lines of the same direction; 2 parallel_opposite:
        /// parallel and distinct lines of opposite direction; 3 same_line: the same line, of the
        /// same direction; 4 opposite_line: the same line, of opposite direction; 5 perpendicular:
        /// the lines cross at a right angle; 6 skew: the lines are skew; 7 coincident: A and B, or
        /// C and D, coincide, each coordinate within the tolerance.</remarks>
        public static void trvdirl(float xa, float ya, float za, float xb, float yb, float zb,
            float xc, float yc, float zc, float xd, float yd, float zd, out int status)
        {
            status = 0;
            trvdirl(ref xa, ref ya, ref za, ref xb, ref yb, ref zb, ref xc, ref yc, ref zc, ref xd,
                ref yd, ref zd, ref status);
        }

        /// <summary>Whether three segments span space.</summary>
        /// <remarks>status: test: 0 flat: the triple product of B - A, D - C and F - E is within
        /// the tolerance; 1 spanning: the triple product is above the tolerance, in the cube of the
        /// length unit.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trv3sp(ref float xa, ref float ya, ref float za, ref float xb,
            ref float yb, ref float zb, ref float xc, ref float yc, ref float zc, ref float xd,
            ref float yd, ref float zd, ref float xe, ref float ye, ref float ze, ref float xf,
            ref float yf, ref float zf, ref int status);

        /// <summary>Whether three segments span space.</summary>
        /// <remarks>status: test: 0 flat: the triple product of B - A, D - C and F - E is within
        /// the tolerance; 1 spanning: the triple product is above the tolerance, in the cube of the
        /// length unit.</remarks>
        public static void trv3sp(float xa, float ya, float za, float xb, float yb, float zb,
            float xc, float yc, float zc, float xd, float yd, float zd, float xe, float ye,
            float ze, float xf, float yf, float zf, out int status)
        {
            status = 0;
            trv3sp(ref xa, ref ya, ref za, ref xb, ref yb, ref zb, ref xc, ref yc, ref zc, ref xd,
                ref yd, ref zd, ref xe, ref ye, ref ze, ref xf, ref yf, ref zf, ref status);
        }

        /// <summary>Distance of a point from a line.</summary>
        /// <remarks>status: outcome (TrvStatus): 0 done: always.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trv3ldb(ref float xa, ref float ya, ref float za, ref float xb,
            ref float yb, ref float zb, ref float xq, ref float yq, ref float zq, ref int status,
            ref float dist);

        /// <summary>Distance of a point from a line.</summary>
        /// <remarks>status: outcome (TrvStatus): 0 done: always.</remarks>
        public static void trv3ldb(float xa, float ya, float za, float xb, float yb, float zb,
            float xq, float yq, float zq, out int status, out float dist)
        {
            dist = 0;
            status = 0;
            trv3ldb(ref xa, ref ya, ref za, ref xb, ref yb, ref zb, ref xq, ref yq, ref zq,
                ref status, ref dist);
        }

        /// <summary>Signed distance of a point from a line, in the plane of both.</summary>
        /// <remarks>status: outcome (TrvStatus): 0 done: always.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trv3lda(ref float xa, ref float ya, ref float za, ref float xb,
            ref float yb, ref float zb, ref float xq, ref float yq, ref float zq, ref int status,
            ref float dist);

        /// <summary>Signed distance of a point from a line, in the plane of both.</summary>
        /// <remarks>status: outcome (TrvStatus): 0 done: always.</remarks>
        public static void trv3lda(float xa, float ya, float za, float xb, float yb, float zb,
            float xq, float yq, float zq, out int status, out float dist)
        {
            dist = 0;
            status = 0;
            trv3lda(ref xa, ref ya, ref za, ref xb, ref yb, ref zb, ref xq, ref yq, ref zq,
                ref status, ref dist);
        }

        /// <summary>Intersection of the lines A + t*u and C + s*w.</summary>
        /// <remarks>status: outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line:
        /// the lines are the same, of the same direction; 4 opposite_line: the lines are the same,
        /// of opposite direction; 6 skew: the lines are skew; 7 no_length: all components of a
        /// direction are within the tolerance.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trv3lni(ref float xa, ref float ya, ref float za, ref float ux,
            ref float uy, ref float uz, ref float xc, ref float yc, ref float zc, ref float wx,
            ref float wy, ref float wz, ref int status, ref float xi, ref float yi, ref float zi);

        /// <summary>Intersection of the lines A + t*u and C + s*w.</summary>
        /// <remarks>status: outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line:
        /// the lines are the same, of the same direction; 4 opposite_line: the lines are the same,
        /// of opposite direction; 6 skew: the lines are skew; 7 no_length: all components of a
        /// direction are within the tolerance.</remarks>
        public static void trv3lni(ref float xa, ref float ya, ref float za, float ux, float uy,
            float uz, ref float xc, ref float yc, ref float zc, float wx, float wy, float wz,
            out int status, ref float xi, ref float yi, out float zi)
        {
            zi = 0;
            status = 0;
            trv3lni(ref xa, ref ya, ref za, ref ux, ref uy, ref uz, ref xc, ref yc, ref zc, ref wx,
                ref wy, ref wz, ref status, ref xi, ref yi, ref zi);
        }

        /// <summary>Intersection of the line P + t*u with a plane.</summary>
        /// <remarks>status: outcome: 0 done: the point is computed; 3 parallel: the line is
        /// parallel to the plane, since the cosine of the angle between u and the normal is within
        /// the tolerance; 4 zero: all components of u, or of the normal, are within the
        /// tolerance.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvpli(ref float x, ref float y, ref float z, ref float ux,
            ref float uy, ref float uz, ref float a, ref float b, ref float c, ref float d,
            ref float xi, ref float yi, ref float zi, ref int status);

        /// <summary>Intersection of the line P + t*u with a plane.</summary>
        /// <remarks>status: outcome: 0 done: the point is computed; 3 parallel: the line is
        /// parallel to the plane, since the cosine of the angle between u and the normal is within
        /// the tolerance; 4 zero: all components of u, or of the normal, are within the
        /// tolerance.</remarks>
        public static void trvpli(float x, float y, float z, float ux, float uy, float uz, float a,
            float b, float c, float d, out float xi, out float yi, out float zi, out int status)
        {
            xi = yi = zi = 0;
            status = 0;
            trvpli(ref x, ref y, ref z, ref ux, ref uy, ref uz, ref a, ref b, ref c, ref d, ref xi,
                ref yi, ref zi, ref status);
        }

        /// <summary>Position of a plane relative to the axes.</summary>
        /// <remarks>position: position: 1 general: the plane is parallel to no axis; 2 parallel_x:
        /// the plane is parallel to the x axis; 3 parallel_y: the plane is parallel to the y axis;
        /// 4 parallel_z: the plane is parallel to the z axis; 5 normal_z: the plane is normal to
        /// the z axis; 6 normal_x: the plane is normal to the x axis; 7 normal_y: the plane is
        /// normal to the y axis; 8 at_z_zero: the plane is z = 0; 9 at_x_zero: the plane is x = 0;
        /// 10 at_y_zero: the plane is y = 0.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvplp(ref float a, ref float b, ref float c, ref float d,
            ref int position);

        /// <summary>Position of a plane relative to the axes.</summary>
        /// <remarks>position: position: 1 general: the plane is parallel to no axis; 2 parallel_x:
        /// the plane is parallel to the x axis; 3 parallel_y: the plane is parallel to the y axis;
        /// 4 parallel_z: the plane is parallel to the z axis; 5 normal_z: the plane is normal to
        /// the z axis; 6 normal_x: the plane is normal to the x axis; 7 normal_y: the plane is
        /// normal to the y axis; 8 at_z_zero: the plane is z = 0; 9 at_x_zero: the plane is x = 0;
        /// 10 at_y_zero: the plane is y = 0.</remarks>
        public static void trvplp(float a, float b, float c, float d, out int position)
        {
            position = 0;
            trvplp(ref a, ref b, ref c, ref d, ref position);
        }

        /// <summary>Points of a list near a line.</summary>
        /// <remarks>status: outcome (TrvStatus): 0 done: always; unwritten if n &lt; 1.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvpnl(ref float xa, ref float ya, ref float za, ref float xb,
            ref float yb, ref float zb, [In] float[] X, [In] float[] Y, PositionFunction zf,
            ref int n, ref float tol, ref int status, ref int count, [In, Out] int[] index);

        /// <summary>Points of a list near a line.</summary>
        /// <remarks>status: outcome (TrvStatus): 0 done: always; unwritten if n &lt; 1.</remarks>
        public static void trvpnl(float xa, float ya, float za, float xb, float yb, float zb,
            float[] X, float[] Y, PositionFunction zf, int n, float tol, out int status,
            out int count, int[] index)
        {
            status = count = 0;
            trvpnl(ref xa, ref ya, ref za, ref xb, ref yb, ref zb, X, Y, zf, ref n, ref tol,
                ref status, ref count, index);
        }

        /// <summary>Carries a point along when the line through it is moved.</summary>
        /// <remarks>status: outcome: 0 not_moved: the three points are not collinear, or Q1 is at
        /// P; 3 moved_one_side: Q2 is moved, Q1 and Q2 are on one side of P; 4 moved_either_side:
        /// Q2 is moved, Q1 and Q2 are on either side of P; 6 moved_skew: Q2 is moved, although the
        /// lines count as skew because of rounding; 7 moved_at_p: Q2 is moved, Q2 coincides with P,
        /// or each coordinate of Q1 is within the tolerance of P's although their distance is above
        /// it.</remarks>
        [DllImport(Library, ExactSpelling = true)]
        public static extern void trvlpc(ref float xp, ref float yp, ref float zp, ref float x1,
            ref float y1, ref float z1, ref float x2, ref float y2, ref float z2, ref float dxp,
            ref float dyp, ref float dzp, ref float dx1, ref float dy1, ref float dz1,
            ref int status);

        /// <summary>Carries a point along when the line through it is moved.</summary>
        /// <remarks>status: outcome: 0 not_moved: the three points are not collinear, or Q1 is at
        /// P; 3 moved_one_side: Q2 is moved, Q1 and Q2 are on one side of P; 4 moved_either_side:
        /// Q2 is moved, Q1 and Q2 are on either side of P; 6 moved_skew: Q2 is moved, although the
        /// lines count as skew because of rounding; 7 moved_at_p: Q2 is moved, Q2 coincides with P,
        /// or each coordinate of Q1 is within the tolerance of P's although their distance is above
        /// it.</remarks>
        public static void trvlpc(float xp, float yp, float zp, float x1, float y1, float z1,
            ref float x2, ref float y2, ref float z2, float dxp, float dyp, float dzp, float dx1,
            float dy1, float dz1, out int status)
        {
            status = 0;
            trvlpc(ref xp, ref yp, ref zp, ref x1, ref y1, ref z1, ref x2, ref y2, ref z2, ref dxp,
                ref dyp, ref dzp, ref dx1, ref dy1, ref dz1, ref status);
        }
    }
}
