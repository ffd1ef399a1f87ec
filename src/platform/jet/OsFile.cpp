#include "platform/jet/OsFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <ctime>

#include "platform/jet/Failure.h"

namespace jet {

namespace {

DiskHook diskHook;

DiskStep::Outcome ask(const DiskStep& step) {
    return diskHook ? diskHook(step) : DiskStep::Outcome::Proceed;
}

[[noreturn]] void failIo(const char* doing, const std::string& path, int error) {
    fail(ErrorCode::DeviceIo, "Errore del disco (", doing, ") sul file \"", path,
         "\": ", std::strerror(error), ".");
}

[[noreturn]] void failOpen(const std::string& path, int error) {
    if (error == ENOENT || error == ENOTDIR)
        fail(ErrorCode::FileNotFound, "Impossibile trovare il file \"", path, "\".");
    fail(ErrorCode::PathAccess, "Impossibile aprire il file \"", path, "\": ", std::strerror(error), ".");
}

// Whether the step is to be done.
bool proceed(const DiskStep& step, const char* doing) {
    const DiskStep::Outcome outcome = ask(step);
    if (outcome == DiskStep::Outcome::Fail || outcome == DiskStep::Outcome::Half)
        failIo(doing, step.path, EIO);
    return outcome == DiskStep::Outcome::Proceed;
}

FileState toState(const struct stat& s) {
    return {s.st_dev, s.st_ino, static_cast<uint64_t>(s.st_size),
            s.st_mtim.tv_sec * int64_t{1000000000} + s.st_mtim.tv_nsec};
}

void writeAll(int fd, uint64_t offset, std::span<const uint8_t> bytes, const std::string& path) {
    while (!bytes.empty()) {
        const ssize_t n = ::pwrite(fd, bytes.data(), bytes.size(), static_cast<off_t>(offset));
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) failIo("scrittura", path, n < 0 ? errno : ENOSPC);
        bytes = bytes.subspan(static_cast<size_t>(n));
        offset += static_cast<uint64_t>(n);
    }
}

}  // namespace

void setDiskHook(DiskHook hook) {
    diskHook = std::move(hook);
}

bool fileState(const std::string& path, FileState& state) {
    struct stat s;
    if (::stat(path.c_str(), &s) != 0) return false;
    state = toState(s);
    return true;
}

OsFile::OsFile(const std::string& path, Access access) : m_path(path) {
    if (access == Access::Create) (void)proceed({DiskStep::Kind::Create, m_path}, "creazione");
    // O_NONBLOCK: opening a pipe by mistake must not hang.
    const int mode = access == Access::Read ? O_RDONLY : O_RDWR;
    const int creation = access == Access::Create ? O_CREAT | O_EXCL : 0;
    m_fd = ::open(path.c_str(), mode | creation | O_CLOEXEC | O_NONBLOCK, 0666);
    if (m_fd < 0) failOpen(path, errno);
    struct stat s;
    if (::fstat(m_fd, &s) != 0 || !S_ISREG(s.st_mode)) {
        ::close(m_fd);
        m_fd = -1;
        fail(ErrorCode::PathAccess, "\"", path, "\" non è un file.");
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
    if (::fstat(m_fd, &s) != 0) failIo("lettura", m_path, errno);
    return toState(s);
}

size_t OsFile::read(uint64_t offset, std::span<uint8_t> bytes) const {
    size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t n =
            ::pread(m_fd, bytes.data() + done, bytes.size() - done, static_cast<off_t>(offset + done));
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) failIo("lettura", m_path, errno);
        if (n == 0) break;
        done += static_cast<size_t>(n);
    }
    return done;
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
        case DiskStep::Outcome::Fail:
            break;
    }
    failIo("scrittura", m_path, EIO);
}

void OsFile::truncate(uint64_t size) {
    if (!proceed({DiskStep::Kind::Truncate, m_path, size}, "accorciamento")) return;
    if (::ftruncate(m_fd, static_cast<off_t>(size)) != 0) failIo("accorciamento", m_path, errno);
}

void OsFile::sync() {
    if (!proceed({DiskStep::Kind::Sync, m_path}, "sincronizzazione")) return;
    if (::fdatasync(m_fd) != 0) failIo("sincronizzazione", m_path, errno);
}

void OsFile::stampAfter(int64_t previousNs) {
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    const int64_t ns = std::max(now.tv_sec * int64_t{1000000000} + now.tv_nsec, previousNs + 1);
    const timespec times[2] = {{0, UTIME_OMIT}, {ns / 1000000000, ns % 1000000000}};
    if (::futimens(m_fd, times) != 0) return;
}

void OsFile::copyRights(const OsFile& other) {
    struct stat s;
    if (::fstat(other.m_fd, &s) != 0 || ::fchmod(m_fd, s.st_mode & 0777) != 0)
        failIo("diritti", m_path, errno);
}

bool OsFile::tryLock(Lock lock, Range range) {
    constexpr off_t gate = off_t{1} << 62;
    struct flock request {};
    request.l_start = range == Range::Gate ? gate : 0;
    request.l_len = range == Range::Gate ? 1 : gate;
    request.l_type = lock == Lock::Shared ? F_RDLCK : lock == Lock::Exclusive ? F_WRLCK : F_UNLCK;
    request.l_whence = SEEK_SET;
    if (::fcntl(m_fd, F_OFD_SETLK, &request) == 0) return true;
    if (errno == EAGAIN || errno == EACCES || errno == EINTR) return false;
    failIo("blocco", m_path, errno);
}

bool OsFile::lockedByOthers() const {
    struct flock request {};
    request.l_type = F_WRLCK;
    request.l_whence = SEEK_SET;
    return ::fcntl(m_fd, F_OFD_GETLK, &request) != 0 || request.l_type != F_UNLCK;
}

bool OsFile::exists(const std::string& path) {
    return ::access(path.c_str(), F_OK) == 0;
}

void OsFile::remove(const std::string& path) {
    if (!proceed({DiskStep::Kind::Remove, path}, "cancellazione")) return;
    if (::unlink(path.c_str()) != 0 && errno != ENOENT) failIo("cancellazione", path, errno);
}

void OsFile::syncFolderOf(const std::string& path) {
    if (!proceed({DiskStep::Kind::SyncFolder, path}, "sincronizzazione")) return;
    const size_t slash = path.rfind('/');
    const std::string folder = slash == std::string::npos ? "." : slash == 0 ? "/" : path.substr(0, slash);
    const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) failIo("sincronizzazione", folder, errno);
    const int outcome = ::fsync(fd);
    const int error = errno;
    ::close(fd);
    // Some file systems cannot sync a folder and need not.
    if (outcome != 0 && error != EINVAL) failIo("sincronizzazione", folder, error);
}

}  // namespace jet
