// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

/// A consistency check of the pages, maps, rows, definitions and indexes of a Jet 4 file. It parses the bytes
/// itself and uses nothing of the engine, so a mistake there does not hide itself here. Returns one sentence
/// for each contradiction found; an empty list is a sound file.
///   - pages: none belongs to two, none that has an owner is free, none in use is past the end
///   - row pages: owner, free field, order of the slots, moved rows and their bodies one to one
///   - rows: offsets rise, column counts fit the definition, the definition's row count is the walk's
///   - indexes: free fields, chains, tails, greatest entries in nodes, levels, strict order, exactly
///     the rows,
///     keys made again from the rows, unique and required
///   - memo and OLE values: whole, each of their rows used once, nothing else on their pages
std::vector<std::string> checkJetFile(const std::string& path);
