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

/// Remembers accepted messages until their rows are marked, in memory and in a file, so that a kill costs no
/// more than the message that was under way. Each process has a file of its own; what a process that is gone
/// left in its file is taken over, and what a living one remembers is seen too. An address is compared octet
/// by octet, as it stands in the row.
class AcceptedList {
  public:
    /// A list that was not opened is kept in memory alone.
    AcceptedList() = default;

    /// Belongs to the files of this folder from now on (its name ends in "/"), and takes over what processes
    /// that are gone left there. The process's own file is made by the first reserve(); before that there is
    /// no room.
    void open(const QString& folder);
    /// Reads again what other processes remember or have taken out, and takes over what they left.
    void refresh();
    /// Names under which damaged files were put aside since the last call.
    QStringList takeSetAside() { return std::exchange(m_setAside, {}); }

    /// Makes sure of the room for `count` further entries of a run over this database, up to a bound. Fails
    /// with PathAccess where no file can be had and with DeviceIo where the disk has no room; then the room
    /// is what it was.
    Status reserve(const DatabaseFile& database, qsizetype count);
    /// After a run: where nobody is remembered the file goes, and with it the room.
    void release();
    /// How many further entries are sure to find room.
    qsizetype room() const { return m_room - m_entries.size(); }

    bool holds(const DatabaseFile& database, qint64 number, const QString& address) const;
    /// What this and the other processes remember of a database.
    QVector<AcceptedEntry> of(const DatabaseFile& database) const;
    /// Called before anybody learns of the acceptance. What stands there already is kept once.
    void add(const DatabaseFile& database, qint64 number, const QString& address);
    /// The row is marked, or the user chose it anew: whatever stands there for it goes.
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
    DatabaseFile m_last;  ///< as it was found by reserve(); its file may be away when a message is accepted
    QVector<AcceptedContent::Place> m_entries;
    QVector<Foreign> m_foreign;  ///< of processes that live
    QStringList m_setAside;
};

}  // namespace mail
