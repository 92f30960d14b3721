#include "profiles.h"

#include "faults.h"
#include "letters.h"
#include "measures.h"
#include "shapes.h"
#include "torsion.h"

namespace host {

namespace {

constexpr std::array<Profile, number_of_profiles> all = {{
    {"ia",
     "I section with unequal flanges, 1 at the bottom",
     {"H", "B1", "B2", "T1", "T2", "TW"},
     fault_of_i_section,
     [](const float *d) { return section_from(trvsec_ia, d[0], d[1], d[2], d[3], d[4], d[5]); },
     torsion_of_ia,
     measure_i_section,
     letters_ia},
    {"h",
     "I section on its side, flange 1 on the left",
     {"H", "B1", "B2", "T1", "T2", "TW"},
     fault_of_i_section,
     [](const float *d) { return section_from(trvsec_h, d[0], d[1], d[2], d[3], d[4], d[5]); },
     torsion_of_h,
     measure_h,
     letters_h},
    {"i",
     "as ia, the web moved by E, with 45-degree fillets S",
     {"H", "B1", "B2", "T1", "T2", "TW", "S1", "S2", "E"},
     fault_of_filleted_i,
     [](const float *d) {
       return section_from(trvsec_i, d[0], d[1], d[2], d[3], d[4], d[5], d[6], d[7], d[8]);
     },
     torsion_of_i,
     measure_filleted_i,
     letters_i,
     {"S1", "S2", "E"}},
    {"t",
     "T section, flange at the top",
     {"B", "H", "TF", "TW"},
     fault_of_t,
     [](const float *d) { return section_from(trvsec_t, d[0], d[1], d[2], d[3]); },
     torsion_of_t,
     measure_t,
     letters_t},
    {"b", "flat bar", {"B", "H"}, nullptr, flat_bar, torsion_of_bar, measure_bar, letters_b},
    {"c",
     "channel with lips C and folds D, or without",
     {"H", "B1", "B2", "C1", "C2", "D1", "D2", "TW", "T1", "T2", "TC1", "TC2", "TD1", "TD2"},
     fault_of_c,
     [](const float *d) {
       return section_from(trvsec_c, d[0], d[1], d[2], d[3], d[4], d[5], d[6], d[7], d[8], d[9],
                           d[10], d[11], d[12], d[13]);
     },
     torsion_of_c,
     measure_c,
     letters_c,
     {"C1", "C2", "D1", "D2", "TC1", "TC2", "TD1", "TD2"}},
    {"h1b",
     "I section on its side under a cover plate",
     {"W", "D", "P", "T1", "T2", "TW", "TP"},
     fault_of_h1b,
     [](const float *d) {
       return section_from(trvsec_h1b, d[0], d[1], d[2], d[3], d[4], d[5], d[6]);
     },
     torsion_of_h1b,
     measure_h1b,
     letters_h1b},
    {"box",
     "box girder with overhanging flanges",
     {"BT", "BB", "TT", "TB", "H", "TW", "G"},
     fault_of_box,
     [](const float *d) {
       return section_from(trvsec_box, d[0], d[1], d[2], d[3], d[4], d[5], d[6]);
     },
     torsion_of_box,
     measure_box,
     letters_box},
    {"rhs",
     "rectangular hollow section with sharp corners",
     {"B", "H", "T"},
     fault_of_rhs,
     [](const float *d) { return section_from(trvsec_rhs, d[0], d[1], d[2]); },
     torsion_of_rhs,
     measure_rhs,
     letters_rhs},
    {"l",
     "angle with sharp toes and a root fillet, or without",
     {"B", "H", "T", "R"},
     fault_of_angle,
     angle,
     torsion_of_angle,
     measure_angle,
     letters_l,
     {"R"}},
    {"l2",
     "two equal angles back to back",
     {"B", "H", "G", "T", "TV"},
     fault_of_l2,
     [](const float *d) { return section_from(trvsec_l2, d[0], d[1], d[2], d[3], d[4]); },
     torsion_of_two_angles,
     measure_l2,
     letters_l2},
    {"tab",
     "top plate on a closed cell",
     {"B", "H", "BW", "E", "T", "TW", "TB"},
     fault_of_tab,
     [](const float *d) {
       return section_from(trvsec_tab, d[0], d[1], d[2], d[3], d[4], d[5], d[6]);
     },
     torsion_of_tab,
     measure_tab,
     letters_tab},
    {"h2b",
     "two flanges, two webs and a middle plate",
     {"B", "W", "HI", "TW1", "TW2", "TM", "TF"},
     fault_of_h2b,
     [](const float *d) {
       return section_from(trvsec_h2b, d[0], d[1], d[2], d[3], d[4], d[5], d[6]);
     },
     torsion_of_h2b,
     measure_h2b,
     letters_h2b},
    {"rolled",
     "hot-rolled I section with root fillets",
     {"H", "B", "TW", "TF", "R"},
     fault_of_rolled,
     rolled,
     torsion_of_rolled,
     measure_rolled,
     letters_rolled},
}};

}  // namespace

const std::array<Profile, number_of_profiles> &profiles() { return all; }

}  // namespace host
