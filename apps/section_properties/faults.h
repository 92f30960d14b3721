// Dimensions that fit together: why those of a profile cannot form a section, or nullptr when they
// can. They come in the profile's order.
#pragma once

namespace host {

const char *fault_of_i_section(const float *d);
const char *fault_of_filleted_i(const float *d);
const char *fault_of_c(const float *d);
const char *fault_of_t(const float *d);
const char *fault_of_h1b(const float *d);
const char *fault_of_box(const float *d);
const char *fault_of_rhs(const float *d);
const char *fault_of_angle(const float *d);
const char *fault_of_l2(const float *d);
const char *fault_of_tab(const float *d);
const char *fault_of_h2b(const float *d);
const char *fault_of_rolled(const float *d);

}  // namespace host
