// Cairo's handle types under their own tags, so that headers can name them without <cairo.h>.
#pragma once

typedef struct _cairo cairo_t;
typedef struct _cairo_surface cairo_surface_t;
typedef struct _cairo_pattern cairo_pattern_t;
