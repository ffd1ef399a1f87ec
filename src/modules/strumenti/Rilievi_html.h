// SPDX-License-Identifier: GPL-3.0-or-later
// The findings in the markup of a body: its links and images.
#pragma once

#include "modules/strumenti/Rilievi.h"

/// Links without a target, images that are missing or cannot travel, and images that stay on the web. Reads
/// the image files that the body names.
QList<Rilievo> RilieviHtml(const QString& corpo);
