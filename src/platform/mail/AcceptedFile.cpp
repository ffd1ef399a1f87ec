// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/AcceptedFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cassert>
#include <cerrno>
#include <chrono>
#include <QFile>
#include <QScopeGuard>
#include <thread>
#include <utility>

#include "platform/text/Words.h"

namespace mail {

namespace {

constexpr off_t ownerByte = 0;
constexpr off_t changeByte = 1;
// A change of an entry takes microseconds; only a process that was stopped in the middle takes longer.
constexpr int mostLooks = 200;
constexpr std::chrono::milliseconds betweenLooks{1};
constexpr off_t largestFile = (mostAccepted + 1) * AcceptedEntry::size;

bool setLock(int descriptor, short kind, off_t byte) {
    struct flock request {};
    request.l_type = kind;
    request.l_whence = SEEK_SET;
    request.l_start = byte;
    request.l_len = 1;
    return ::fcntl(descriptor, F_OFD_SETLK, &request) == 0;
}

bool lockForChange(int descriptor) {
    for (int look = 0; look < mostLooks; ++look) {
        if (setLock(descriptor, F_WRLCK, changeByte)) return true;
        std::this_thread::sleep_for(betweenLooks);
    }
    return false;
}

/// Of slot number mostAccepted: the end of the largest file.
off_t placeOf(qsizetype slot) {
    assert(slot >= 0 && slot <= mostAccepted);
    return (slot + 1) * AcceptedEntry::size;
}

bool writeAt(int descriptor, off_t place, const QByteArray& octets) {
    return ::pwrite(descriptor, octets.constData(), octets.size(), place) == octets.size();
}

bool isOurs(const struct stat& file) {
    return S_ISREG(file.st_mode) && file.st_uid == ::geteuid() && file.st_nlink == 1;
}

}  // namespace

std::optional<AcceptedFile> AcceptedFile::open(const QString& path, Create create) {
    const int creation = create == Create::IfMissing ? O_CREAT : 0;
    // O_NONBLOCK: opening a pipe of that name must not block
    const int descriptor = ::open(QFile::encodeName(path).constData(),
                                  O_RDWR | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK | creation, 0600);
    if (descriptor < 0) return std::nullopt;
    AcceptedFile file(descriptor, path);
    struct stat known {};
    if (::fstat(descriptor, &known) != 0 || !isOurs(known)) return std::nullopt;
    return file;
}

AcceptedFile::AcceptedFile(AcceptedFile&& other) noexcept
    : m_descriptor(std::exchange(other.m_descriptor, -1)), m_path(std::move(other.m_path)) {}

AcceptedFile& AcceptedFile::operator=(AcceptedFile&& other) noexcept {
    std::swap(m_descriptor, other.m_descriptor);
    std::swap(m_path, other.m_path);
    return *this;
}

AcceptedFile::~AcceptedFile() {
    if (m_descriptor >= 0) ::close(m_descriptor);
}

bool AcceptedFile::own() {
    if (!setLock(m_descriptor, F_WRLCK, ownerByte)) return false;
    // Its previous owner may have removed it in the meantime.
    struct stat held {};
    struct stat named {};
    return ::fstat(m_descriptor, &held) == 0 && ::lstat(QFile::encodeName(m_path).constData(), &named) == 0 &&
           held.st_ino == named.st_ino && held.st_dev == named.st_dev;
}

std::optional<AcceptedContent> AcceptedFile::read() const {
    struct stat known {};
    if (::fstat(m_descriptor, &known) != 0) return std::nullopt;
    // One entry above the maximum, so that an excess is noticed.
    QByteArray octets(std::min<off_t>(known.st_size, largestFile + AcceptedEntry::size), '\0');
    const ssize_t got = ::pread(m_descriptor, octets.data(), octets.size(), 0);
    if (got < 0) return std::nullopt;
    octets.truncate(got);
    return parseAccepted(octets);
}

qsizetype AcceptedFile::room() const {
    struct stat known {};
    if (::fstat(m_descriptor, &known) != 0 || known.st_size < AcceptedEntry::size) return 0;
    return std::min<qsizetype>(known.st_size / AcceptedEntry::size - 1, mostAccepted);
}

Status AcceptedFile::reserve(qsizetype entries) {
    const auto full = [this](int error) {
        return Status(ErrorCode::DeviceIo,
                      error == ENOSPC || error == EDQUOT
                          ? Words::tr("Il disco è pieno: il file \"%1\" non trova posto.").arg(m_path)
                          : Words::tr("Impossibile scrivere il file \"%1\".").arg(m_path));
    };
    struct stat known {};
    if (::fstat(m_descriptor, &known) != 0) return full(errno);
    if (known.st_size == 0 && !writeAt(m_descriptor, 0, acceptedHead())) {
        const int error = errno;
        if (::ftruncate(m_descriptor, 0) != 0) return full(errno);
        return full(error);
    }
    const off_t wanted = placeOf(std::min(entries, mostAccepted));
    if (wanted <= known.st_size) return {};
    // Returns the error, or 0. On failure the file may have grown already.
    const int error = ::posix_fallocate(m_descriptor, 0, wanted);
    if (error == 0) return {};
    const off_t before = std::max<off_t>(known.st_size, AcceptedEntry::size);
    if (::ftruncate(m_descriptor, before) != 0) return full(errno);
    return full(error);
}

bool AcceptedFile::write(qsizetype slot, const AcceptedEntry& entry) {
    // A process that holds the other lock for too long does not prevent the owner from writing.
    const bool locked = lockForChange(m_descriptor);
    const bool written = writeAt(m_descriptor, placeOf(slot), entry.bytes());
    if (locked) setLock(m_descriptor, F_UNLCK, changeByte);
    return written;
}

bool AcceptedFile::clear(qsizetype slot, const AcceptedEntry& entry) {
    if (!lockForChange(m_descriptor)) return false;
    const auto unlock = qScopeGuard([this] { setLock(m_descriptor, F_UNLCK, changeByte); });
    QByteArray there(AcceptedEntry::size, '\0');
    if (::pread(m_descriptor, there.data(), there.size(), placeOf(slot)) != there.size()) return false;
    if (there != entry.bytes()) return true;  // another process has done it
    return writeAt(m_descriptor, placeOf(slot), QByteArray(AcceptedEntry::size, '\0'));
}

void AcceptedFile::sync() const {
    // If it fails, a power loss has the effect of a kill before the write.
    static_cast<void>(::fdatasync(m_descriptor));
}

void AcceptedFile::remove() const {
    ::unlink(QFile::encodeName(m_path).constData());
}

QString AcceptedFile::setAside() const {
    const QString name = m_path + QStringLiteral(".scartato");
    const bool moved =
        ::rename(QFile::encodeName(m_path).constData(), QFile::encodeName(name).constData()) == 0;
    return moved ? name : QString();
}

}  // namespace mail
