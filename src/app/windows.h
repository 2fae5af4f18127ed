#pragma once

#include "app/goto_window.h"
#include "app/help_window.h"
#include "app/splash_window.h"
#include "app/tip_window.h"
