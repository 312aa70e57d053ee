// The numbers of errors, with those that some systems do not name. A unit of the layer may need
// another header of the system's own; everybody else tells errors by these.
#pragma once

#include <cerrno>

#ifndef EDQUOT
#define EDQUOT 1133
#endif
#ifndef ESTALE
#define ESTALE 1116
#endif
