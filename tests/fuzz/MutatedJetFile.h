#pragma once

#include <cstdint>
#include <span>
#include <string>

/// Jet files for fuzzing: sound ones with patches over them.
namespace mutated {

/// Where the file lies while one input is tried; each process has its own.
std::string fileName();
void removeFiles();

/// Writes the file that an input stands for, in place of one that was there; syncs are left out from here on,
/// since the disk is no part of what is tried.
///
/// The first byte of the input chooses a sound file, then patches of four bytes (page, u16 offset, value) are
/// put over it; so most inputs come far. Below 80 the file is one made here; from 80 on it is a sample of the
/// shared folder, where that is at hand. First byte FF: the rest is the file itself.
void writeFile(std::span<const uint8_t> input);

}  // namespace mutated
