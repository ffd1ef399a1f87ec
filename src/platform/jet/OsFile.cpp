// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/OsFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/uio.h>
#include <sys/vfs.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <ctime>
#include <iterator>
#include <vector>

#include "platform/jet/DiskTrouble.h"
#include "platform/jet/Failure.h"

namespace jet {

namespace {

constexpr size_t mostPlaces = 16;

DiskHook diskHook;

DiskStep::Outcome ask(const DiskStep& step) {
    return diskHook ? diskHook(step) : DiskStep::Outcome::Proceed;
}

// Whether the step is to be done.
bool proceed(const DiskStep& step, OwnText doing) {
    const DiskStep::Outcome outcome = ask(step);
    if (outcome == DiskStep::Outcome::Full) failIo(doing, step.path, ENOSPC);
    if (outcome == DiskStep::Outcome::Fail || outcome == DiskStep::Outcome::Half)
        failIo(doing, step.path, EIO);
    return outcome == DiskStep::Outcome::Proceed;
}

FileState toState(const struct stat& s) {
    return {s.st_dev, s.st_ino, static_cast<uint64_t>(s.st_size),
            s.st_mtim.tv_sec * int64_t{1000000000} + s.st_mtim.tv_nsec};
}

FileRights toRights(const struct stat& s) {
    return {s.st_uid, s.st_gid, s.st_mode & 0777u, s.st_nlink, S_ISREG(s.st_mode)};
}

void writeAll(int fd, uint64_t offset, std::span<const uint8_t> bytes, const std::string& path) {
    while (!bytes.empty()) {
        const ssize_t n = ::pwrite(fd, bytes.data(), bytes.size(), static_cast<off_t>(offset));
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) failIo("scrittura"_tr, path, n < 0 ? errno : ENOSPC);
        bytes = bytes.subspan(static_cast<size_t>(n));
        offset += static_cast<uint64_t>(n);
    }
}

struct flock requestFor(OsFile::Range range) {
    constexpr off_t behind = off_t{1} << 62;
    struct flock request {};
    request.l_whence = SEEK_SET;
    switch (range) {
        case OsFile::Range::Content:
            request.l_len = behind;
            break;
        case OsFile::Range::Aside:
            request.l_start = behind;
            request.l_len = 3;
            break;
        case OsFile::Range::Entrance:
            request.l_len = behind + 1;
            break;
        case OsFile::Range::Everything:
            request.l_len = behind + 3;
            break;
        default:
            request.l_start = behind + static_cast<off_t>(range) - 1;
            request.l_len = 1;
    }
    return request;
}

constexpr const char* accessListName = "system.posix_acl_access";

// The rights of single users and groups beside the mode; empty where there are none. A folder can pass some
// to each file that is made in it.
std::vector<char> accessList(int fd) {
    const ssize_t size = ::fgetxattr(fd, accessListName, nullptr, 0);
    if (size <= 0) return {};
    std::vector<char> list(static_cast<size_t>(size));
    const ssize_t read = ::fgetxattr(fd, accessListName, list.data(), list.size());
    list.resize(read < 0 ? 0 : static_cast<size_t>(read));
    return list;
}

bool setAccessList(int fd, const std::vector<char>& list) {
    return list.empty() ? ::fremovexattr(fd, accessListName) == 0
                        : ::fsetxattr(fd, accessListName, list.data(), list.size(), 0) == 0;
}

}  // namespace

void setDiskHook(DiskHook hook) {
    diskHook = std::move(hook);
}

bool fileState(const std::string& path, FileState& state, FileRights* rights) {
    struct stat s;
    if (::stat(path.c_str(), &s) != 0) return false;
    state = toState(s);
    if (rights) *rights = toRights(s);
    return true;
}

// Without the times: after a question for them a system with fine time stamps gives the file another one at
// its next write, and some have to write that to the disk at the next sync.
bool nameIs(const std::string& path, FileState& identity, FileRights* rights) {
    constexpr unsigned wanted = STATX_TYPE | STATX_MODE | STATX_NLINK | STATX_UID | STATX_GID | STATX_INO;
    struct statx s {};
    if (::statx(AT_FDCWD, path.c_str(), AT_SYMLINK_NOFOLLOW, wanted, &s) != 0) return false;
    identity = {makedev(s.stx_dev_major, s.stx_dev_minor), s.stx_ino, 0, 0};
    if (rights) *rights = {s.stx_uid, s.stx_gid, s.stx_mode & 0777u, s.stx_nlink, S_ISREG(s.stx_mode)};
    return true;
}

OsFile::OsFile(const std::string& path, Access access, Links links) : m_path(path) {
    if (access == Access::Create) (void)proceed({DiskStep::Kind::Create, m_path}, "creazione"_tr);
    // O_NONBLOCK: opening a pipe by mistake must not hang.
    const int mode = access == Access::Read ? O_RDONLY : O_RDWR;
    const int creation = access == Access::Create ? O_CREAT | O_EXCL : 0;
    const bool plain = links == Links::Refuse;
    m_fd = ::open(path.c_str(), mode | creation | (plain ? O_NOFOLLOW : 0) | O_CLOEXEC | O_NONBLOCK,
                  plain ? 0600 : 0666);
    if (m_fd < 0) failOpen(path, errno);
    struct stat s;
    if (::fstat(m_fd, &s) != 0 || !S_ISREG(s.st_mode)) {
        ::close(m_fd);
        m_fd = -1;
        fail(ErrorCode::PathAccess, "\"%1\" non è un file."_tr, path);
    }
}

OsFile::OsFile(OsFile&& other) noexcept : m_fd(other.m_fd), m_path(std::move(other.m_path)) {
    other.m_fd = -1;
}

OsFile& OsFile::operator=(OsFile&& other) noexcept {
    std::swap(m_fd, other.m_fd);
    std::swap(m_path, other.m_path);
    return *this;
}

OsFile::~OsFile() {
    if (m_fd >= 0) ::close(m_fd);
}

FileState OsFile::state() const {
    struct stat s;
    if (::fstat(m_fd, &s) != 0) failIo("lettura"_tr, m_path, errno);
    return toState(s);
}

size_t OsFile::read(uint64_t offset, std::span<uint8_t> bytes) const {
    size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t n =
            ::pread(m_fd, bytes.data() + done, bytes.size() - done, static_cast<off_t>(offset + done));
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) failIo("lettura"_tr, m_path, errno);
        if (n == 0) break;
        done += static_cast<size_t>(n);
    }
    return done;
}

size_t OsFile::read(uint64_t offset, std::span<const std::span<uint8_t>> places) const {
    std::array<iovec, mostPlaces> parts;
    const size_t count = std::min(places.size(), parts.size());
    for (size_t i = 0; i < count; ++i)
        parts[i] = {places[i].data(), places[i].size()};
    const ssize_t n = ::preadv(m_fd, parts.data(), static_cast<int>(count), static_cast<off_t>(offset));
    if (n < 0 && errno != EINTR) failIo("lettura"_tr, m_path, errno);
    return n < 0 ? 0 : static_cast<size_t>(n);
}

void OsFile::write(uint64_t offset, std::span<const uint8_t> bytes) {
    switch (ask({DiskStep::Kind::Write, m_path, offset, bytes})) {
        case DiskStep::Outcome::Proceed:
            return writeAll(m_fd, offset, bytes, m_path);
        case DiskStep::Outcome::Skip:
            return;
        case DiskStep::Outcome::Half:
            writeAll(m_fd, offset, bytes.first(bytes.size() / 2), m_path);
            break;
        case DiskStep::Outcome::Full:
            failIo("scrittura"_tr, m_path, ENOSPC);
        case DiskStep::Outcome::Fail:
            break;
    }
    failIo("scrittura"_tr, m_path, EIO);
}

void OsFile::truncate(uint64_t size) {
    if (!proceed({DiskStep::Kind::Truncate, m_path, size}, "accorciamento"_tr)) return;
    if (::ftruncate(m_fd, static_cast<off_t>(size)) != 0) failIo("accorciamento"_tr, m_path, errno);
}

bool OsFile::reserve(uint64_t size) {
    // Those that never write in place: the next change of a page needs new room, whatever is reserved.
    static constexpr uint32_t copiers[] = {0x9123683E, 0x2FC12FC1, 0xCA451A4E, 0xF2F52010, 0x3434};
    try {
        if (!proceed({DiskStep::Kind::Reserve, m_path, size}, "prenotazione"_tr)) return true;
    } catch (const Failure&) {
        return false;
    }
    struct statfs system;
    if (::fallocate(m_fd, 0, 0, static_cast<off_t>(size)) != 0 || ::fstatfs(m_fd, &system) != 0) return false;
    return std::find(std::begin(copiers), std::end(copiers), static_cast<uint32_t>(system.f_type)) ==
           std::end(copiers);
}

OsFile::Synced OsFile::sync() {
    if (proceed({DiskStep::Kind::Sync, m_path}, "sincronizzazione"_tr) && ::fdatasync(m_fd) != 0)
        failIo("sincronizzazione"_tr, m_path, errno);
    return {};
}

FileState OsFile::stampAfter(int64_t previousNs) {
    static constexpr int64_t steps[] = {1, 10'000'000, 2'000'000'000};  // of most disks, exFAT, FAT
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    FileState stamped;
    for (const int64_t step : steps) {
        const int64_t ns = std::max(now.tv_sec * int64_t{1000000000} + now.tv_nsec, previousNs + step);
        const timespec times[2] = {{0, UTIME_OMIT}, {ns / 1000000000, ns % 1000000000}};
        const bool refused = ::futimens(m_fd, times) != 0;
        stamped = state();
        if (refused || stamped.modifiedNs > previousNs) break;
    }
    return stamped;
}

FileRights OsFile::rights() const {
    struct stat s;
    if (::fstat(m_fd, &s) != 0) failIo("lettura"_tr, m_path, errno);
    return toRights(s);
}

// At no moment has the file a right that `other` has not.
void OsFile::takeRights(const OsFile& other, FileRights now, const FileRights& wanted) {
    uint32_t mode = wanted.mode & 0666;
    const std::vector<char> list = accessList(other.m_fd);
    const bool otherList = list != accessList(m_fd);
    const bool strange = now.group != wanted.group || now.owner != wanted.owner;
    const bool administrator = strange && ::geteuid() == 0;
    // As where the disk keeps no modes, and gives all its files the same.
    const bool same = now.mode == mode || now.mode == wanted.mode;
    const bool moves = now.group != wanted.group || administrator;
    if (!moves && !otherList && same) return;
    if (moves && ::fchmod(m_fd, 0600) == 0 &&
        ::fchown(m_fd, administrator ? wanted.owner : static_cast<uid_t>(-1), wanted.group) == 0)
        now.group = wanted.group;
    if (now.group != wanted.group) mode &= ~uint32_t{070};
    // Without the group the bits of the group are closed, and they bound the list as well.
    const bool listed = !otherList || (mode & 070) == 0 || setAccessList(m_fd, list);
    if (listed && (::fchmod(m_fd, mode) == 0 || (rights().mode & ~mode) == 0)) return;
    fail(ErrorCode::PathAccess,
         "Il file \"%1\" può essere letto o scritto da chi non può farlo con \"%2\"."_tr, m_path,
         other.path());
}

bool OsFile::tryLock(Lock lock, Range range) {
    struct flock request = requestFor(range);
    request.l_type = lock == Lock::Shared ? F_RDLCK : lock == Lock::Exclusive ? F_WRLCK : F_UNLCK;
    if (::fcntl(m_fd, F_OFD_SETLK, &request) == 0) return true;
    if (errno == EAGAIN || errno == EACCES || errno == EINTR) return false;
    failIo("blocco"_tr, m_path, errno);
}

bool OsFile::lockedByOthers(Range range) const {
    struct flock request = requestFor(range);
    request.l_type = F_WRLCK;
    return ::fcntl(m_fd, F_OFD_GETLK, &request) != 0 || request.l_type != F_UNLCK;
}

bool OsFile::lockedByOthers() const {
    struct flock request {};
    request.l_type = F_WRLCK;
    request.l_whence = SEEK_SET;
    return ::fcntl(m_fd, F_OFD_GETLK, &request) != 0 || request.l_type != F_UNLCK;
}

bool OsFile::isHeld(Range range) const {
    // A second opening of the file counts as another process.
    const int other = ::open(("/proc/self/fd/" + std::to_string(m_fd)).c_str(), O_RDONLY | O_CLOEXEC);
    if (other < 0) return true;
    struct flock request = requestFor(range);
    request.l_type = F_RDLCK;
    const bool held = ::fcntl(other, F_OFD_GETLK, &request) != 0 || request.l_type == F_WRLCK;
    ::close(other);
    return held;
}

bool OsFile::exists(const std::string& path) {
    struct stat s;
    return ::lstat(path.c_str(), &s) == 0;
}

void OsFile::remove(const std::string& path) {
    if (!proceed({DiskStep::Kind::Remove, path}, "cancellazione"_tr)) return;
    if (::unlink(path.c_str()) != 0 && errno != ENOENT) failIo("cancellazione"_tr, path, errno);
}

bool OsFile::rename(const std::string& from, const std::string& to, bool replace) {
    if (!proceed({DiskStep::Kind::Rename, to}, "cambio di nome"_tr)) return true;
    if (!replace) {
        if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return true;
        if (errno == EEXIST) return false;
        if (errno != EINVAL && errno != ENOSYS) failIo("cambio di nome"_tr, to, errno);
        // A file system without that rename: the locks of its callers keep our own processes out.
        if (exists(to)) return false;
    }
    if (::rename(from.c_str(), to.c_str()) != 0) failIo("cambio di nome"_tr, to, errno);
    return true;
}

void OsFile::syncFolderOf(const std::string& path) {
    if (!proceed({DiskStep::Kind::SyncFolder, path}, "sincronizzazione"_tr)) return;
    const size_t slash = path.rfind('/');
    const std::string folder = slash == std::string::npos ? "." : slash == 0 ? "/" : path.substr(0, slash);
    const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) failIo("sincronizzazione"_tr, folder, errno);
    const int outcome = ::fsync(fd);
    const int error = errno;
    ::close(fd);
    // Some file systems cannot sync a folder and need not.
    if (outcome != 0 && error != EINVAL) failIo("sincronizzazione"_tr, folder, error);
}

}  // namespace jet
