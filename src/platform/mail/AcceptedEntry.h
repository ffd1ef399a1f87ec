// SPDX-License-Identifier: GPL-3.0-or-later
// One recipient whose message was accepted and whose row is not marked yet, and the file that keeps it.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QVector>

namespace mail {

/// The file that a recipient's number belongs to: its path when the message was sent, and its device and
/// inode, so that it is found again after a move.
struct DatabaseFile {
    QString path;
    quint64 device = 0;  ///< 0 with inode 0: there was no such file
    quint64 inode = 0;

    static DatabaseFile at(const QString& path);
    /// The same path, or the same file under another one.
    bool same(const DatabaseFile& other) const;
};

/// What docs/formats/accettati.md calls an entry. Of the path and of the address only digests are kept.
struct AcceptedEntry {
    static constexpr qsizetype size = 128;  ///< octets in the file; the head takes as many

    qint64 number = 0;
    quint64 device = 0;
    quint64 inode = 0;
    QByteArray path;     ///< SHA-256
    QByteArray address;  ///< SHA-256

    static AcceptedEntry of(const DatabaseFile& database, qint64 number, const QString& address);
    /// For sameDatabase() alone.
    static AcceptedEntry ofDatabase(const DatabaseFile& database);
    /// Whether both are rows of one database.
    bool sameDatabase(const AcceptedEntry& other) const;
    /// Whether it is of this address, compared octet by octet.
    bool bears(const QString& servedAddress) const;
    QByteArray bytes() const;
    friend bool operator==(const AcceptedEntry&, const AcceptedEntry&) = default;
};

/// The contents of a file of entries.
struct AcceptedContent {
    struct Place {
        qsizetype slot = 0;
        AcceptedEntry entry;
    };
    QVector<Place> entries;
    qsizetype room = 0;  ///< entries that the file has room for, used or not
    bool damaged =
        false;  ///< something in it is neither an entry nor empty; valid entries are returned all the same
};

/// Most entries of one file.
inline constexpr qsizetype mostAccepted = 65536;

/// The first octets of the file, an entry long.
QByteArray acceptedHead();
/// Reads any octets. An empty file is valid and has room for nothing.
AcceptedContent parseAccepted(QByteArrayView file);

}  // namespace mail
