// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <fstream>
#include <iterator>
#include <string>

/// Whether the database has a journal that must be rolled back: one with an empty header only reserves room
/// on the disk.
inline bool hasHotJournal(const std::string& databasePath) {
    std::ifstream in(databasePath + "-journal", std::ios::binary);
    std::string start(512, '\0');
    in.read(start.data(), static_cast<std::streamsize>(start.size()));
    return start.find_first_not_of('\0') != std::string::npos;
}
