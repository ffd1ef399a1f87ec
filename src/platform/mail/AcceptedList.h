#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

namespace mail {

/// The file that a recipient's number belongs to: where it stood when the message was sent, and what the
/// system knows it by, so that it is found again where it was moved.
struct DatabaseFile {
    QString path;
    quint64 device = 0;  ///< 0 with inode 0: there was no such file
    quint64 inode = 0;

    static DatabaseFile at(const QString& path);
    /// The same path, or the same file under another one.
    bool same(const DatabaseFile& other) const;
};

/// Remembers accepted messages until their rows are marked. An address is compared octet by octet, as it
/// stands in the row.
class AcceptedList {
  public:
    bool holds(const DatabaseFile& database, qint64 number, const QString& address) const;
    /// How many further entries are sure to find room.
    int room() const { return capacity - int(m_entries.size()); }
    /// Called before anybody learns of the acceptance. What stands there already is kept once.
    void add(const DatabaseFile& database, qint64 number, const QString& address);
    /// The row is marked, or the user chose it anew: whatever stands there for it goes.
    void remove(const DatabaseFile& database, qint64 number);

  private:
    static constexpr int capacity = 4096;

    struct Entry {
        DatabaseFile database;
        qint64 number = 0;
        QByteArray digest;  ///< of the address
    };
    QVector<Entry> m_entries;
};

}  // namespace mail
