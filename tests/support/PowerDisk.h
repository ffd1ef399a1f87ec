// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/jet/OsFile.h"

/// The states of a disk after a power failure: any selection of the writes that were not synced, torn at any
/// sector. Writes that reach the disk in another order need no case of their own: the selections contain
/// what they leave.
namespace power {

struct Recorded {
    jet::DiskStep::Kind kind;
    bool journal;  ///< of the journal, else of the database
    uint64_t offset;
    std::string bytes;
};

/// A database with its journal.
struct Disk {
    std::string data;
    std::string journal;
    bool journalThere = false;
};

/// The steps that `work` takes on the disk.
template <class Work>
std::vector<Recorded> recordSteps(Work&& work) {
    std::vector<Recorded> steps;
    jet::setDiskHook([&](const jet::DiskStep& disk) {
        steps.push_back({disk.kind, disk.path.ends_with("-journal"), disk.offset,
                         std::string(reinterpret_cast<const char*>(disk.bytes.data()), disk.bytes.size())});
        return jet::DiskStep::Outcome::Proceed;
    });
    work();
    jet::setDiskHook({});
    return steps;
}

/// The sectors of a write that `reached` selects.
template <class Reached>
void apply(Disk& disk, const Recorded& step, Reached&& reached) {
    using Kind = jet::DiskStep::Kind;
    std::string& file = step.journal ? disk.journal : disk.data;
    if (step.kind == Kind::Write) {
        for (size_t at = 0; at < step.bytes.size(); at += 512) {
            if (!reached()) continue;
            const size_t length = std::min<size_t>(512, step.bytes.size() - at);
            const size_t end = step.offset + at + length;
            if (file.size() < end) file.resize(end, '\0');
            file.replace(step.offset + at, length, step.bytes, at, length);
        }
    } else if (step.kind == Kind::Truncate || (step.kind == Kind::Reserve && file.size() < step.offset)) {
        if (reached()) file.resize(step.offset, '\0');
    }
}

/// The disk as it may look when power fails before step `end`.
template <class Random>
Disk afterPowerFailure(Disk disk, const std::vector<Recorded>& steps, size_t end, Random& random) {
    using Kind = jet::DiskStep::Kind;
    // What was synced is on the disk; the folder's own entries are as of its last sync.
    size_t dataSynced = 0;
    size_t journalSynced = 0;
    size_t folderSynced = 0;
    for (size_t i = 0; i < end; ++i) {
        if (steps[i].kind == Kind::Sync) (steps[i].journal ? journalSynced : dataSynced) = i;
        if (steps[i].kind == Kind::SyncFolder) folderSynced = i;
    }
    for (size_t i = 0; i < end; ++i) {
        const Recorded& step = steps[i];
        const bool certain = i < (step.journal ? journalSynced : dataSynced);
        if (step.kind == Kind::Create || step.kind == Kind::Remove) {
            if (i < folderSynced || random() % 2) disk.journalThere = step.kind == Kind::Create;
            continue;
        }
        const uint32_t luck = static_cast<uint32_t>(random() % 4);
        if (certain || luck == 0)
            apply(disk, step, [] { return true; });
        else if (luck == 1)  // torn
            apply(disk, step, [&] { return random() % 2 == 0; });
    }
    return disk;
}

}  // namespace power
