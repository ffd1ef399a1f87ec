// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The folders of the selected recipients with their counts, as a list to show: "Soci 19, Nuovo gruppo
/// 997"; those that are unreachable from the root count as "cartelle perdute". The largest come first, and
/// after ten the rest is summed up. Empty where nobody is selected, and where it cannot be read.
QString CartelleSelezionate();
