// The profiles in letters, each with its dimensions.
#pragma once

namespace host {

constexpr const char *letters_ia = R"(
             B2
         |---------|
         ===========  T2     -
              ||             |
           TW ||             | H
              ||             |
     ==================  T1  -
     |----------------|
             B1
)";

constexpr const char *letters_h = R"(
              H
     |----------------|
     T1               T2
     ||               ||  -
  -  ||               ||  |
B1|  ||===============||  | B2
  -  ||      TW       ||  |
     ||               ||  -
)";

constexpr const char *letters_i = R"(
             B2
         |---------|
         ===========  T2     -
             \|||/  S2       |
           TW |||            |
              |||            | H
             /|||\  S1       |
     ==================  T1  -
     |----------------|
             B1        E: web from the middle, to the right
)";

constexpr const char *letters_t = R"(
             B
     |----------------|
     ==================  TF  -
             ||              |
          TW ||              | H
             ||              |
             ||              -
)";

constexpr const char *letters_b = R"(
             B
     |----------------|
     ==================  -
     ==================  | H
     ==================  -
)";

constexpr const char *letters_c = R"(
             B2
     |----------------|
     ==================  T2     -
     ||         D2 |---|  -     |
     ||            ==||   | C2  |
     ||            TD2 TC2 -    |
  TW ||                         | H
     ||                         |
     ||            TD1 TC1 -    |
     ||            ==||   | C1  |
     ||         D1 |---|  -     |
     ==================  T1     -
     |----------------|
             B1
)";

constexpr const char *letters_h1b = R"(
                W
     |---------------------|
     =======================  TP
        ||             ||  -
        ||             ||  |
        ||=============||  | P
        ||     TW      ||  |
        ||             ||  -
        T1             T2
        |---------------|
                D
)";

constexpr const char *letters_box = R"(
                BT
     |---------------------|
     =======================  TT  -
         ||           ||          |
      TW ||     G     || TW       | H
         ||<--------->||          |
       ===================    TB  -
       |-----------------|
                BB
)";

constexpr const char *letters_rhs = R"(
            B
     |--------------|
     ================  -
     ||            ||  |
   T ||            ||  | H
     ||            ||  |
     ================  -
)";

constexpr const char *letters_l = R"(
     ||             -
   T ||             |
     ||             | H
     ||\  R         |
     =============  -
     |-----------|
           B
)";

constexpr const char *letters_l2 = R"(
          B    G    B
     |--------|-|--------|
     ========== ==========  T  -
             || ||             |
          TV || || TV          | H
             || ||             |
             || ||             -
)";

constexpr const char *letters_tab = R"(
                 B
     |-----------------------|
     =========================  T
         ||             ||  -
      TW ||             ||  | H
         ||=============||  |  TB  -
         ||             ||  |      | E
         ||             ||  -      -
         |---------------|
                BW
)";

constexpr const char *letters_h2b = R"(
                 B
     |-----------------------|
     =========================  TF
         ||             ||  -
         ||     TM      ||  |
     TW1 ||=============||  | HI
         ||             ||  |
         ||             ||  -
     =========================  TF
        TW1             TW2
         |---------------|
                 W
)";

constexpr const char *letters_rolled = R"(
             B
     |----------------|
     ==================  TF  -
            /||\  R          |
          TW ||              | H
            \||/             |
     ==================      -
)";

}  // namespace host
