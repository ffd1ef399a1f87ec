#pragma once

#include <string>
#include <vector>

/// Holds the pages, maps, rows, definitions and indexes of a Jet 4 file against each other, with a reading of
/// the bytes of its own: nothing of the engine is used, so a mistake there does not hide itself here. Returns
/// one sentence for each contradiction found; an empty list is a sound file.
///   - pages: none belongs to two, none that belongs to somebody is free, none in use lies behind the end
///   - row pages: owner, free field, order of the slots, moved rows and their bodies one to one
///   - rows: offsets rise, column counts fit the definition, the definition's row count is the walk's
///   - indexes: free fields, chains, tails, greatest entries in nodes, levels, strict order, exactly the
///   rows,
///     keys made again from the rows, unique and required
///   - memo and OLE values: whole, each of their rows used once, nothing else on their pages
std::vector<std::string> checkJetFile(const std::string& path);
