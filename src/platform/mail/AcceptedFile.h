// SPDX-License-Identifier: GPL-3.0-or-later
// A file of recipients who are accepted and not marked, which belongs to the process that holds its lock.
#pragma once

#include <optional>
#include <QString>
#include <utility>

#include "platform/mail/AcceptedEntry.h"
#include "platform/Status.h"

namespace mail {

/// One of the numbered files of the data folder (docs/formats/accettati.md). It has two locks (OFD
/// locks, which end with the process): one for as long as its owner lives, one for each change of an entry,
/// so that another process may take an entry out of it too.
class AcceptedFile {
  public:
    enum class Create { No, IfMissing };
    /// Opens a regular file of the user's own that has one name and is no link; none for any other.
    static std::optional<AcceptedFile> open(const QString& path, Create create);

    AcceptedFile(AcceptedFile&& other) noexcept;
    AcceptedFile& operator=(AcceptedFile&& other) noexcept;
    AcceptedFile(const AcceptedFile&) = delete;
    AcceptedFile& operator=(const AcceptedFile&) = delete;
    ~AcceptedFile();

    const QString& path() const { return m_path; }
    /// Becomes the owner, unless another process is or the path leads elsewhere by now.
    bool own();
    /// None where it cannot be read.
    std::optional<AcceptedContent> read() const;
    /// How many entries it has room for.
    qsizetype room() const;
    /// Writes the head where it is missing and reserves room for this many entries in all; fails with
    /// DeviceIo where the disk is full. Room that was reserved before stays.
    Status reserve(qsizetype entries);
    /// Fills an entry whose room was reserved.
    bool write(qsizetype slot, const AcceptedEntry& entry);
    /// Empties the slot if it still contains this entry.
    bool clear(qsizetype slot, const AcceptedEntry& entry);
    /// Syncs what was written to the disk.
    void sync() const;
    /// Removes the file; only for its owner.
    void remove() const;
    /// Renames a damaged file, so that its name says so; returns the new name, empty where that fails.
    QString setAside() const;

  private:
    AcceptedFile(int descriptor, QString path) : m_descriptor(descriptor), m_path(std::move(path)) {}

    int m_descriptor = -1;
    QString m_path;
};

}  // namespace mail
