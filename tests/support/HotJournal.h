#pragma once

#include <fstream>
#include <iterator>
#include <string>

/// Whether the file beside the database says that something was left behind: one with an empty header only
/// keeps room on the disk.
inline bool hasHotJournal(const std::string& databasePath) {
    std::ifstream in(databasePath + "-journal", std::ios::binary);
    std::string start(512, '\0');
    in.read(start.data(), static_cast<std::streamsize>(start.size()));
    return start.find_first_not_of('\0') != std::string::npos;
}
