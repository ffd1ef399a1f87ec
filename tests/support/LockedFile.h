// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <fcntl.h>
#include <unistd.h>
#include <QFile>
#include <QString>

namespace testing_support {

/// An exclusive lock on a database file, as of a program that writes: nobody else can read or write.
class LockedFile {
  public:
    explicit LockedFile(const QString& path)
        : m_file(::open(QFile::encodeName(path).constData(), O_RDWR | O_CLOEXEC)) {
        struct flock all = {};
        all.l_type = F_WRLCK;
        all.l_len = (off_t{1} << 62) + 1024;  // the engine's range; a run's mark is far beyond
        if (::fcntl(m_file, F_OFD_SETLK, &all) != 0) qFatal("somebody else holds the file");
    }
    ~LockedFile() { release(); }
    LockedFile(const LockedFile&) = delete;

    void release() {
        if (m_file >= 0) ::close(m_file);
        m_file = -1;
    }

  private:
    int m_file;
};

}  // namespace testing_support
