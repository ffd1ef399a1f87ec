// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/PrivateNetwork.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <net/if.h>
#include <netinet/in.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstring>
#include <QFileInfo>
#include <QTemporaryFile>
#include <string>

namespace testing_support {

namespace {

bool write(const char* path, const std::string& text) {
    const int file = ::open(path, O_WRONLY);
    if (file < 0) return false;
    const bool written = ::write(file, text.data(), text.size()) == ssize_t(text.size());
    ::close(file);
    return written;
}

/// Whether this process runs the tests of a source: its first argument names it, or none.
bool isRun(const char* source) {
    QFile file(QStringLiteral("/proc/self/cmdline"));
    if (!file.open(QIODevice::ReadOnly)) return false;
    const QByteArrayList words = file.readAll().split('\0');
    return words.value(1).isEmpty() || words[1] == QFileInfo(QFile::decodeName(source)).baseName().toUtf8();
}

/// With mounts that the rest of the system does not see.
bool leaveWorld() {
    return ::unshare(CLONE_NEWNET | CLONE_NEWNS) == 0 &&
           ::mount("none", "/", "none", MS_REC | MS_PRIVATE, nullptr) == 0;
}

/// Tried by a child process: one that fails half-way, as in a chroot, cannot undo the first half.
bool superuserMayEnter() {
    const pid_t child = ::fork();
    if (child == 0) ::_exit(leaveWorld() ? 0 : 1);
    int state = 0;
    return child > 0 && ::waitpid(child, &state, 0) == child && WIFEXITED(state) && WEXITSTATUS(state) == 0;
}

bool raiseLoopback() {
    const int any = ::socket(AF_INET, SOCK_DGRAM, 0);
    ifreq request{};
    std::strcpy(request.ifr_name, "lo");
    request.ifr_flags = IFF_UP | IFF_RUNNING;
    const bool up = any >= 0 && ::ioctl(any, SIOCSIFFLAGS, &request) == 0;
    ::close(any);
    return up;
}

}  // namespace

bool enterPrivateNetwork(const char* source) {
    if (!isRun(source)) return false;
    if (superuserMayEnter()) return leaveWorld() && raiseLoopback();
    const std::string user = std::to_string(::getuid()), group = std::to_string(::getgid());
    if (::unshare(CLONE_NEWUSER | CLONE_NEWNET | CLONE_NEWNS) != 0) return false;
    return write("/proc/self/setgroups", "deny") && write("/proc/self/uid_map", "0 " + user + " 1") &&
           write("/proc/self/gid_map", "0 " + group + " 1") && raiseLoopback();
}

bool addLoopbackAddress(const char* address) {
    const int any = ::socket(AF_INET, SOCK_DGRAM, 0);
    ifreq request{};
    std::strcpy(request.ifr_name, "lo:1");
    auto* const place = reinterpret_cast<sockaddr_in*>(&request.ifr_addr);
    place->sin_family = AF_INET;
    const bool added = any >= 0 && ::inet_pton(AF_INET, address, &place->sin_addr) == 1 &&
                       ::ioctl(any, SIOCSIFADDR, &request) == 0;
    ::close(any);
    return added;
}

bool replaceResolverConfiguration(const QByteArray& text) {
    static QTemporaryFile file;
    static bool mounted = false;
    if (!file.isOpen() && !file.open()) return false;
    if (!file.resize(0) || !file.seek(0) || file.write(text) != text.size() || !file.flush()) return false;
    if (mounted) return true;
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    mounted = ::mount(QFile::encodeName(file.fileName()).constData(), "/etc/resolv.conf", "none", MS_BIND,
                      nullptr) == 0;
    return mounted;
}

}  // namespace testing_support
