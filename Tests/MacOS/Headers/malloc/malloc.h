#pragma once

#include <cstddef>

// The manual page malloc_zone_pressure_relief(3): a null zone stands for all zones, a goal of 0 for as much as can be.
typedef struct _malloc_zone_t malloc_zone_t;
extern "C" size_t malloc_zone_pressure_relief(malloc_zone_t *zone, size_t goal);
