// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/RunLock.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <QFile>
#include <utility>

namespace mail {

namespace {

constexpr off_t runByte = (off_t{1} << 62) + (off_t{1} << 40);

bool sameFile(int one, int other) {
    struct stat first {};
    struct stat second {};
    return ::fstat(one, &first) == 0 && ::fstat(other, &second) == 0 && first.st_ino == second.st_ino &&
           first.st_dev == second.st_dev;
}

}  // namespace

bool RunLock::take(const QString& path) {
    const int descriptor =
        ::open(QFile::encodeName(path).constData(), O_RDWR | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (descriptor >= 0 && m_descriptor >= 0 && sameFile(descriptor, m_descriptor)) {
        ::close(descriptor);
        return true;
    }
    release();
    if (descriptor < 0) return true;
    struct flock request {};
    request.l_type = F_WRLCK;
    request.l_whence = SEEK_SET;
    request.l_start = runByte;
    request.l_len = 1;
    if (::fcntl(descriptor, F_OFD_SETLK, &request) == 0) {
        m_descriptor = descriptor;
        return true;
    }
    const bool taken = errno == EAGAIN || errno == EACCES;
    ::close(descriptor);
    return !taken;
}

void RunLock::release() {
    if (m_descriptor >= 0) ::close(std::exchange(m_descriptor, -1));
}

}  // namespace mail
