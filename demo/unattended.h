// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <QStringList>

/// Starts the program over the program folder that the first argument names, as an Italian user would see it
/// but with nobody before the screen, and calls `play` when its main window is shown. The arguments are
/// passed on without the name of the program; another number of them than `usage` names (words apart from the
/// first) only prints it. Returns the exit status of the process.
int runUnattended(int argc, char** argv, const char* usage,
                  const std::function<void(const QStringList& arguments)>& play);
