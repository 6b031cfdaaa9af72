#include "support/drag_source.h"
