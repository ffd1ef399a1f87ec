// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

/// Jet files for fuzzing: sound ones with patches over them.
namespace mutated {

/// Path of the file while one input is tried; each process has its own.
std::string fileName();
void removeFiles();

using Files = std::vector<std::string>;
/// The contents of sound files that are made here.
const Files& soundFiles();
/// Those of the samples of the shared folder up to that length, by name; none where they are missing.
Files samples(uintmax_t longest);

/// From now on the files are not synced, since the disk is not tested.
void leaveOutSyncs();

/// Writes the file that an input describes, over an existing one, without syncs.
///
/// The first byte of the input chooses a sound file, then patches of four bytes (page, u16 offset, value) are
/// applied to it; so most inputs get past the first checks. Below 80 the file is one made here; from 80 on it
/// is a sample of the shared folder, where that is at hand. First byte FF: the rest is the file itself.
void writeFile(std::span<const uint8_t> input);

}  // namespace mutated
