// Torsion by the theory that fits a section.
#pragma once

#include <initializer_list>
#include <vector>

#include "thin_plates.h"

namespace host {

constexpr const char *thin_walls = "Torsion: thin walls on centre lines (V. Z. Vlasov).";
constexpr const char *thin_walls_without_fillets =
    "Torsion: thin walls on centre lines (V. Z. Vlasov), fillets left out.";

// Torsion of an open section, from thin walls on their centre lines.
Torsion open_torsion(const std::vector<Plate> &plates, const char *note);

// The web first, so that the halves of both flanges start at its ends. E moves the web.
std::vector<Plate> plates_of_i(float H, float B1, float B2, float T1, float T2, float TW,
                               float E = 0);

struct Wall {
  double length, t;
};

// Shear flow around one cell, 4*Am^2/sum(l/t), and l*t^3/3 of its walls, by their centre lines, and
// of what else there is, clear of the walls.
Torsion closed_torsion(double width, double height, std::initializer_list<Wall> walls,
                       std::initializer_list<Wall> others);

// The torsion constant as the tables of European sections have it (ArcelorMittal, Sections and
// merchant bars, notations and formulae): the flanges' free ends and the junctions with the web
// with their fillets after G. W. Trayer, H. W. March, NACA report 334, 1930.
double torsion_constant_of_rolled(double H, double B, double TW, double TF, double R);

Torsion torsion_of_bar(float B, float H);

}  // namespace host
