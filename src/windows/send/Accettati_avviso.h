// SPDX-License-Identifier: GPL-3.0-or-later
// The notice about damaged files of accepted messages.
#pragma once

/// Shows a box for each file that was put aside since the last call.
void AvvisaAccettatiScartati();
