// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/FileRights.h"

#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>

#include <algorithm>
#include <vector>

namespace jet {

namespace {

bool isMember(uint32_t user, uint32_t group) {
    passwd entry{};
    passwd* found = nullptr;
    std::vector<char> texts(16384);
    if (::getpwuid_r(user, &entry, texts.data(), texts.size(), &found) != 0 || !found) return false;
    std::vector<gid_t> groups(256);
    int count = static_cast<int>(groups.size());
    if (::getgrouplist(entry.pw_name, entry.pw_gid, groups.data(), &count) < 0) return false;
    return std::find(groups.begin(), groups.begin() + count, group) != groups.begin() + count;
}

}  // namespace

bool mayWrite(uint32_t user, const FileRights& file) {
    if (user == 0 || (file.mode & S_IWOTH)) return true;
    return (file.mode & S_IWGRP) && isMember(user, file.group);
}

bool isTrusted(const FileRights& journal, const FileRights& database, uint32_t ours) {
    if (!journal.regular || journal.links != 1) return false;
    return journal.owner == ours || journal.owner == database.owner || mayWrite(journal.owner, database);
}

}  // namespace jet
