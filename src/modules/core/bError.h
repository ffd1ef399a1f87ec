// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Writes the time of this start over "Error.txt" in the program folder. Any failure is ignored.
void ScriviInizioLog();
