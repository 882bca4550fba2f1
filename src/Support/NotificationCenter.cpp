// SPDX-License-Identifier: MIT
#include "Support/NotificationCenter.h"
