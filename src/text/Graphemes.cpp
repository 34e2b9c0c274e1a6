#include "text/Graphemes.h"
