// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/AcceptedEntry.h"

#include <sys/stat.h>

#include <algorithm>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include "platform/mail/Sha256.h"
#include "platform/text/SameText.h"

namespace mail {

namespace {

constexpr QByteArrayView magic("Vestrola accettati 1\r\n");
constexpr qsizetype digestSize = 32;

// Places of the fields in an entry
constexpr qsizetype stateAt = 0;
constexpr qsizetype numberAt = 8;
constexpr qsizetype deviceAt = 16;
constexpr qsizetype inodeAt = 24;
constexpr qsizetype pathAt = 32;
constexpr qsizetype addressAt = 64;
constexpr qsizetype sealAt = 96;
constexpr char used = 1;

QByteArray sha256(QByteArrayView octets) {
    static thread_local Sha256 kept;
    kept.begin();
    kept.add(octets);
    const QByteArray digest = kept.end();
    return digest.isEmpty() ? QCryptographicHash::hash(octets, QCryptographicHash::Sha256) : digest;
}

// The path of a run's database is the same for each of its messages.
QByteArray digestOfPath(const QString& path) {
    static thread_local QString knownPath;
    static thread_local QByteArray known;
    if (!known.isEmpty() && text::sameText(path, knownPath)) return known;
    QByteArray digest = sha256(QDir::cleanPath(QFileInfo(path).absoluteFilePath()).toUtf8());
    // What a relative one means changes with the working folder.
    if (!QDir::isAbsolutePath(path)) return digest;
    knownPath = path;
    known = digest;
    return digest;
}

bool isEmpty(QByteArrayView entry) {
    return std::all_of(entry.begin(), entry.end(), [](char octet) { return octet == 0; });
}

AcceptedEntry decode(QByteArrayView entry) {
    AcceptedEntry read;
    read.number = qFromLittleEndian<qint64>(entry.data() + numberAt);
    read.device = qFromLittleEndian<quint64>(entry.data() + deviceAt);
    read.inode = qFromLittleEndian<quint64>(entry.data() + inodeAt);
    read.path = entry.sliced(pathAt, digestSize).toByteArray();
    read.address = entry.sliced(addressAt, digestSize).toByteArray();
    return read;
}

}  // namespace

DatabaseFile DatabaseFile::at(const QString& path) {
    DatabaseFile file{path};
    struct stat known {};
    if (::stat(QFile::encodeName(path).constData(), &known) == 0) {
        file.device = known.st_dev;
        file.inode = known.st_ino;
    }
    return file;
}

bool DatabaseFile::same(const DatabaseFile& other) const {
    return path == other.path || (inode != 0 && inode == other.inode && device == other.device);
}

AcceptedEntry AcceptedEntry::of(const DatabaseFile& database, qint64 number, const QString& address) {
    return {number, database.device, database.inode, digestOfPath(database.path), sha256(address.toUtf8())};
}

AcceptedEntry AcceptedEntry::ofDatabase(const DatabaseFile& database) {
    return {0, database.device, database.inode, digestOfPath(database.path), {}};
}

bool AcceptedEntry::sameDatabase(const AcceptedEntry& other) const {
    return path == other.path || (inode != 0 && inode == other.inode && device == other.device);
}

bool AcceptedEntry::bears(const QString& servedAddress) const {
    return address == sha256(servedAddress.toUtf8());
}

QByteArray AcceptedEntry::bytes() const {
    QByteArray entry(size, '\0');
    entry[stateAt] = used;
    qToLittleEndian(number, entry.data() + numberAt);
    qToLittleEndian(device, entry.data() + deviceAt);
    qToLittleEndian(inode, entry.data() + inodeAt);
    entry.replace(pathAt, digestSize, path);
    entry.replace(addressAt, digestSize, address);
    entry.replace(sealAt, digestSize, sha256(QByteArrayView(entry).first(sealAt)));
    return entry;
}

QByteArray acceptedHead() {
    return magic.toByteArray().leftJustified(AcceptedEntry::size, '\0');
}

AcceptedContent parseAccepted(QByteArrayView file) {
    AcceptedContent content;
    if (file.isEmpty()) return content;
    if (!file.startsWith(acceptedHead())) {
        content.damaged = true;
        return content;
    }
    const qsizetype most = file.size() / AcceptedEntry::size - 1;
    content.room = std::min(most, mostAccepted);
    content.damaged = file.size() % AcceptedEntry::size != 0 || most > mostAccepted;
    for (qsizetype slot = 0; slot < content.room; ++slot) {
        const QByteArrayView entry = file.sliced((slot + 1) * AcceptedEntry::size, AcceptedEntry::size);
        if (isEmpty(entry)) continue;
        const AcceptedEntry read = decode(entry);
        if (read.bytes() == entry)
            content.entries.append({slot, read});
        else
            content.damaged = true;
    }
    return content;
}

}  // namespace mail
