// A file of accepted and not marked recipients, which belongs to the process that holds its lock.
#pragma once

#include <optional>
#include <QString>
#include <utility>

#include "platform/mail/AcceptedEntry.h"
#include "platform/Status.h"

namespace mail {

/// One of the numbered files of the data folder (docs/formats/accettati.md). Two locks stand in it (OFD
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
    /// How many entries find room in it.
    qsizetype room() const;
    /// Writes the head where there is none and makes sure of the room for so many entries in all; fails with
    /// DeviceIo where the disk has none. The room that there was stays.
    Status reserve(qsizetype entries);
    /// Fills an entry whose room was reserved.
    bool write(qsizetype slot, const AcceptedEntry& entry);
    /// Empties the entry where it still is this one.
    bool clear(qsizetype slot, const AcceptedEntry& entry);
    /// Hands what was written to the disk.
    void sync() const;
    /// Takes the file away, for its owner.
    void remove() const;
    /// Puts the file out of the way, under a name that tells so; gives the name, empty where that fails.
    QString setAside() const;

  private:
    AcceptedFile(int descriptor, QString path) : m_descriptor(descriptor), m_path(std::move(path)) {}

    int m_descriptor = -1;
    QString m_path;
};

}  // namespace mail
