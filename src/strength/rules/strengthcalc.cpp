#include "strength/rules/strengthcalc.h"
