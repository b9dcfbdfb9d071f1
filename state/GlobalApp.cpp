#include "state/GlobalApp.h"

GlobalApp g_App;
