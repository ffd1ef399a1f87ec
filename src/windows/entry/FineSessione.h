// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The end of the desktop's session, and the signals by which the system asks a program to end (SIGTERM,
/// SIGINT, SIGHUP), act like the main window's close button: layout and placement are saved and the
/// program ends, whatever window is open. To be called once, before the main window is made.
void SeguiFineSessione();

/// What happens then. While the main window has not come up, or while a failure is on show, nothing is saved.
void FineSessione();
