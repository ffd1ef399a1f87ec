#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>

namespace jet {

/// One step that changes the disk. Tests watch these, make them fail, cut them short or end the process at
/// one.
struct DiskStep {
    enum class Kind { Create, Write, Sync, Truncate, Remove, SyncFolder };
    /// Half: half of a write is done, then it fails. Skip: nothing is done and success is told, as by a disk
    /// that does not keep its word.
    enum class Outcome { Proceed, Fail, Half, Skip };
    Kind kind;
    const std::string& path;
    uint64_t offset = 0;                  ///< of a write; the new size of a truncation
    std::span<const uint8_t> bytes = {};  ///< of a write
};
using DiskHook = std::function<DiskStep::Outcome(const DiskStep&)>;
/// Installs the hook that is asked before each step; an empty one removes it. For tests, one thread.
void setDiskHook(DiskHook hook);

/// What tells one state of a file from another.
struct FileState {
    uint64_t device = 0;
    uint64_t inode = 0;
    uint64_t size = 0;
    int64_t modifiedNs = 0;
    bool operator==(const FileState&) const = default;
};
/// State of the file at `path`; false when there is none or it cannot be asked.
bool fileState(const std::string& path, FileState& state);

/// An open file. Its members throw Failure; sizes and offsets are bytes. Paths are in the file system's
/// encoding.
class OsFile {
  public:
    enum class Access { Read, ReadWrite, Create };  ///< Create: the file must not exist yet

    OsFile() = default;
    OsFile(const std::string& path, Access access);
    OsFile(OsFile&& other) noexcept;
    OsFile& operator=(OsFile&& other) noexcept;
    ~OsFile();

    bool isOpen() const { return m_fd >= 0; }
    const std::string& path() const { return m_path; }
    FileState state() const;
    /// Reads up to bytes.size() bytes and tells how many there were.
    size_t read(uint64_t offset, std::span<uint8_t> bytes) const;
    void write(uint64_t offset, std::span<const uint8_t> bytes);
    void truncate(uint64_t size);
    void sync();
    /// Sets a modification time later than `previousNs`, so that no two states written by this engine carry
    /// the same one however coarse the file system's clock is. Not allowed to some users: then nothing
    /// happens.
    void stampAfter(int64_t previousNs);

    /// Gives this file the access rights of `other`.
    void copyRights(const OsFile& other);

    enum class Lock { None, Shared, Exclusive };
    /// What a lock covers: all content, however the file grows, or a byte far behind it, through which
    /// whoever wants the content has to pass.
    enum class Range { Content, Gate };
    /// Changes the advisory lock on a range at once; false when another holder forbids it. The lock belongs
    /// to this open file, so two in one process exclude each other as well.
    bool tryLock(Lock lock, Range range);
    /// Whether somebody else holds any lock on the file.
    bool lockedByOthers() const;

    static bool exists(const std::string& path);
    static void remove(const std::string& path);
    /// Makes the creation or removal of `path` itself durable.
    static void syncFolderOf(const std::string& path);

  private:
    int m_fd = -1;
    std::string m_path;
};

}  // namespace jet
