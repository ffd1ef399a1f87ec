// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/html/browser/Browser.h"
#include "platform/Status.h"

/// Makes a browser inside the parent. The plug-in is loaded at the first call; it is looked for in the
/// folders that the build names relative to the program's own. On failure nothing is created.
Status createBrowserOf(QWidget* parent, const BrowserEvents& events, Browser& browser);
