#include "harvest/UntilLoaded.h"
