// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "platform/Status.h"

/// The standard Italian text of an error number, used where a failure brings no text of its own.
QString testoErrore(ErrorCode codice);
