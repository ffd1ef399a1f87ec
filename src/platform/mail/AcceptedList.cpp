#include "platform/mail/AcceptedList.h"

#include <sys/stat.h>

#include <algorithm>
#include <QCryptographicHash>
#include <QFile>

namespace mail {

namespace {

QByteArray digestOf(const QString& address) {
    return QCryptographicHash::hash(address.toUtf8(), QCryptographicHash::Sha256);
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

bool AcceptedList::holds(const DatabaseFile& database, qint64 number, const QString& address) const {
    return std::any_of(
        m_entries.begin(), m_entries.end(), [&, digest = digestOf(address)](const Entry& entry) {
            return entry.number == number && entry.digest == digest && entry.database.same(database);
        });
}

void AcceptedList::add(const DatabaseFile& database, qint64 number, const QString& address) {
    if (!holds(database, number, address)) m_entries.append({database, number, digestOf(address)});
}

void AcceptedList::remove(const DatabaseFile& database, qint64 number) {
    m_entries.removeIf(
        [&](const Entry& entry) { return entry.number == number && entry.database.same(database); });
}

}  // namespace mail
