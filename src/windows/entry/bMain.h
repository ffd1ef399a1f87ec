// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The entry routine of the program: writes the log of starts, finds the recipient database and brings up the
/// main window. Ignores every failure. From its return on the program lives on window events.
void SubMain();
