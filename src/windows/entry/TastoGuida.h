// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The key F1: it opens the help at the place about the window that has the focus, or about the one it
/// belongs to. In the main window the key is that of the command "Guida in linea". To be called once.
void SeguiTastoGuida();
