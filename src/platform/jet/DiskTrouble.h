// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "platform/Phrase.h"

namespace jet {

/// The meaning of the system's error number, a text that completes "Errore del disco … : ".
Phrase diskTrouble(int error);

/// A disk operation on `path` has failed (DeviceIo).
[[noreturn]] void failIo(OwnText doing, const std::string& path, int error);
/// `path` cannot be opened (FileNotFound or PathAccess; DeviceIo where the disk itself is the reason).
[[noreturn]] void failOpen(const std::string& path, int error);

}  // namespace jet
