// SPDX-License-Identifier: GPL-3.0-or-later
// Files of the operating system, with a hook by which tests watch each change of the disk.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>

#include "platform/jet/FileRights.h"

namespace jet {

/// One step that changes the disk. Tests watch these, make them fail, cut them short or end the process at
/// one.
struct DiskStep {
    enum class Kind { Create, Write, Sync, Truncate, Reserve, Rename, Remove, SyncFolder };
    /// Half: half of a write is done, then it fails. Full: it fails for lack of room. Skip: nothing is done
    /// and success is reported, as by a disk that loses a write.
    enum class Outcome { Proceed, Fail, Half, Full, Skip };
    Kind kind;
    const std::string& path;
    uint64_t offset = 0;                  ///< of a write; the size of a truncation or reservation
    std::span<const uint8_t> bytes = {};  ///< of a write
};
using DiskHook = std::function<DiskStep::Outcome(const DiskStep&)>;
/// Installs the hook that is asked before each step; an empty one removes it. For tests, one thread.
void setDiskHook(DiskHook hook);

/// What distinguishes one state of a file from another.
struct FileState {
    uint64_t device = 0;
    uint64_t inode = 0;
    uint64_t size = 0;
    int64_t modifiedNs = 0;
    bool operator==(const FileState&) const = default;
};
/// State of the file at `path`, and its rights where they are wanted; false when there is none or it cannot
/// be asked.
bool fileState(const std::string& path, FileState& state, FileRights* rights = nullptr);
/// The file that has the name itself, which may be a link: its device and inode, no more of its state.
bool nameIs(const std::string& path, FileState& identity, FileRights* rights = nullptr);
/// Whether two states are of one file.
inline bool sameFile(const FileState& one, const FileState& other) {
    return one.inode == other.inode && one.device == other.device;
}

/// An open file. Its members throw Failure; sizes and offsets are bytes. Paths are in the file system's
/// encoding.
class OsFile {
  public:
    enum class Access { Read, ReadWrite, Create };  ///< Create: the file must not exist yet
    /// Refuse: a symbolic link is not followed, and a file that is made is its owner's alone.
    enum class Links { Follow, Refuse };

    OsFile() = default;
    OsFile(const std::string& path, Access access, Links links = Links::Follow);
    OsFile(OsFile&& other) noexcept;
    OsFile& operator=(OsFile&& other) noexcept;
    ~OsFile();

    bool isOpen() const { return m_fd >= 0; }
    const std::string& path() const { return m_path; }
    FileState state() const;
    /// Reads up to bytes.size() bytes and returns how many there were.
    size_t read(uint64_t offset, std::span<uint8_t> bytes) const;
    /// The same by one call into several places, one after the other; at most 16 of them. It may end early
    /// without reason.
    size_t read(uint64_t offset, std::span<const std::span<uint8_t>> places) const;
    void write(uint64_t offset, std::span<const uint8_t> bytes);
    void truncate(uint64_t size);
    /// Takes room on the disk for the first `size` bytes, whatever is there; a shorter file grows to that
    /// size, with zeros. False where there is no room, or the file system cannot promise it for writes in
    /// place (some write each change to a new place).
    bool reserve(uint64_t size);
    /// Returned by sync(), for what must not begin before it.
    class Synced {
        friend class OsFile;
        Synced() = default;
    };
    Synced sync();
    /// Sets a modification time later than `previousNs`, so that no two states written by this engine carry
    /// the same one however coarse the file system's clock is: FAT counts in steps of two seconds, and many
    /// changes in a short time bring its files ahead of the clock. Not allowed to some users: then nothing
    /// happens. Returns the state of the file afterwards.
    FileState stampAfter(int64_t previousNs);

    FileRights rights() const;
    /// Gives this file the group and the access rights of `other`, its access list included; those of the
    /// group not where it cannot have that group. Fails (PathAccess) when this file would keep more rights
    /// than `other`.
    void takeRights(const OsFile& other) { takeRights(other, rights(), other.rights()); }
    /// The same where the rights of both are known.
    void takeRights(const OsFile& other, FileRights now, const FileRights& wanted);

    enum class Lock { None, Shared, Exclusive };
    /// What a lock covers: all content, however the file grows, or one of three bytes far beyond it. Gate:
    /// who locks the content has to pass it. Writer: held for a whole transaction. Author: held while the
    /// journal is hot by the one who wrote it. Aside: these three together. Entrance: the content and the
    /// gate. Everything: all four.
    enum class Range { Content, Gate, Writer, Author, Aside, Entrance, Everything };
    /// Changes the advisory lock on a range at once; false when another holder forbids it. The lock belongs
    /// to this open file, so two in one process exclude each other as well.
    bool tryLock(Lock lock, Range range);
    /// Whether somebody else holds a lock on the range, or any on the file.
    bool lockedByOthers(Range range) const;
    bool lockedByOthers() const;

    /// For asserts: whether this open file holds a lock that keeps all others out of the range; true as well
    /// where that cannot be asked.
    bool isHeld(Range range) const;

    /// Whether the name is taken, even by a dangling link.
    static bool exists(const std::string& path);
    static void remove(const std::string& path);
    /// Renames a file; one that has the new name is replaced. False when that was not wanted and there is
    /// one.
    static bool rename(const std::string& from, const std::string& to, bool replace);
    /// Makes the creation or removal of `path` itself durable.
    static void syncFolderOf(const std::string& path);

  private:
    int m_fd = -1;
    std::string m_path;
};

}  // namespace jet
