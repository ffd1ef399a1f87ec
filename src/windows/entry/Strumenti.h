// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "windows/shell/frmMain.h"

namespace finestre {

/// The menu "Strumenti", in its order: what each command is called, and what it opens. Makes no window.
std::vector<::frmMain::GruppoStrumenti> Strumenti();

}  // namespace finestre
