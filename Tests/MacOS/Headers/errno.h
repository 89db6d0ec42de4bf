#pragma once

#include_next <errno.h>

// The manual page intro(2).
#define ENOATTR 93
