// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/FileModes.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <QFile>

namespace sys {

std::function<long(int)>& diskKind() {
    static std::function<long(int)> kind = systemDiskKind;
    return kind;
}

long systemDiskKind(int file) {
    struct statfs disk {};
    return ::fstatfs(file, &disk) == 0 ? static_cast<long>(disk.f_type) : -1;
}

bool keepsModes(int file) {
    const long kind = diskKind()(file);
    return kind != MSDOS_SUPER_MAGIC && kind != EXFAT_SUPER_MAGIC;
}

bool keepsModes(const QString& folder) {
    const int opened = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (opened < 0) return true;
    const bool kept = keepsModes(opened);
    ::close(opened);
    return kept;
}

}  // namespace sys
