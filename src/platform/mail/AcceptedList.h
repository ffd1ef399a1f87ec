// SPDX-License-Identifier: GPL-3.0-or-later
// The recipients whose message a server has accepted and who are not marked in their database yet.
#pragma once

#include <optional>
#include <QStringList>
#include <QVector>
#include <utility>

#include "platform/mail/AcceptedEntry.h"
#include "platform/mail/AcceptedFile.h"
#include "platform/Status.h"

namespace mail {

/// Remembers accepted messages until their rows are marked, in memory and in a file, so that a kill loses no
/// more than the message under way. Each process has its own file. The entries of a process that has ended
/// are taken over, those of a running one are read too. An address is compared octet by octet, as it is in
/// the row.
class AcceptedList {
  public:
    /// A list that was not opened is kept in memory alone.
    AcceptedList() = default;

    /// Belongs to the files of this folder from now on (its name ends in "/"), and takes over what processes
    /// that have ended left there. The process's own file is made by the first reserve(); before that there
    /// is no room.
    void open(const QString& folder);
    /// Reads the entries of other processes again, and takes over those that they left.
    void refresh();
    /// Names under which damaged files were put aside since the last call.
    QStringList takeSetAside() { return std::exchange(m_setAside, {}); }

    /// Reserves room for `count` further entries of a run over this database, up to a bound. Fails with
    /// PathAccess where no file can be opened and with DeviceIo where the disk is full; the room is unchanged
    /// then.
    Status reserve(const DatabaseFile& database, qsizetype count);
    /// After a run: if the list is empty, the file and its room are removed.
    void release();
    /// How many further entries have reserved room.
    qsizetype room() const { return m_room - m_entries.size(); }

    bool holds(const DatabaseFile& database, qint64 number, const QString& address) const;
    /// What this and the other processes remember of a database.
    QVector<AcceptedEntry> of(const DatabaseFile& database) const;
    /// To be called before the acceptance is reported. An entry that exists is not added twice.
    void add(const DatabaseFile& database, qint64 number, const QString& address);
    /// The row is marked, or the user chose it again: its entries are removed.
    void remove(const DatabaseFile& database, qint64 number);

  private:
    struct Foreign {
        QString file;
        AcceptedContent::Place place;
    };

    Status makeFile();
    void adopt(const QString& path);
    bool use(AcceptedFile file);
    void keep(const AcceptedEntry& entry);
    void readOwn();
    qsizetype freeSlot() const;

    static constexpr qsizetype memoryRoom = 4096;

    QString m_folder;
    std::optional<AcceptedFile> m_file;
    qsizetype m_room = memoryRoom;
    DatabaseFile m_last;  ///< as it was found by reserve(); its file may be gone when a message is accepted
    QVector<AcceptedContent::Place> m_entries;
    QVector<Foreign> m_foreign;  ///< of running processes
    QStringList m_setAside;
};

}  // namespace mail
