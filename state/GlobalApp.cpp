// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/GlobalApp.h"

GlobalApp g_App;
