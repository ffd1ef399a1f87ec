// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>

#include "modules/strumenti/RigaControllo.h"

/// The sign of a level: a shape of its own in its colour, with a light rim for dark rows. Empty while it is
/// not known.
QIcon SegnoDi(Semaforo semaforo);
