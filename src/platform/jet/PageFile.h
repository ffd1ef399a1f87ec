// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/jet/Format.h"
#include "platform/jet/Header.h"
#include "platform/jet/Journal.h"
#include "platform/jet/LockWait.h"
#include "platform/jet/OsFile.h"

namespace jet {

/// The pages of a Jet file: bounded cache, locks against other processes, and transactions through the
/// rollback journal. All members throw Failure.
///
/// Locks are advisory locks on the database file. A reader holds the content shared; a writer holds the
/// writer's lock from the start of the transaction and the content exclusive from the first page that is
/// written to the end. One that waits to write pages blocks new readers. A cached page is trusted only as
/// long as device, inode, size and modification time of the file at the path are what they were when a lock
/// was last held.
class PageFile {
  public:
    struct Limits {
        size_t cachedPages = 8192;
        size_t changedPages = 8192;  ///< more are written ahead of the commit
        LockWait lockWait = {};
    };

    /// Opens the file, checks page 0, rolls a journal back, takes room for one where it may write.
    PageFile(const std::string& path, bool readOnly, const Limits& limits);
    ~PageFile();
    PageFile(const PageFile&) = delete;

    const Header& header() const { return m_header; }
    /// Bytes of a page in the file. Pages of Jet 3 are half as long; page() returns them in the form of Jet
    /// 4 (see Jet3.h).
    size_t bytesPerPage() const;
    bool readOnly() const { return m_readOnly || m_header.jet3; }
    /// Grows whenever the pages were found changed by somebody else, or a transaction was rolled back.
    uint64_t generation() const { return m_generation; }
    uint32_t pageCount() const { return m_pageCount; }
    /// What is at `path` now: this file as it was when a lock was last held, this file changed
    /// since, or another one, or none. Takes no lock.
    enum class Seen { Unchanged, Changed, Other };
    Seen look(const std::string& path) const;
    const LockWait& lockWait() const { return m_limits.lockWait; }
    void setLockWait(LockWait wait) { m_limits.lockWait = std::move(wait); }

    /// Reading happens between these two; they may be nested.
    void beginRead();
    void endRead();
    /// Page n. The bytes stay as long as the pointer is kept.
    PagePtr page(uint32_t n);
    /// Before the pages from `first` to `last` are asked for: reads those that are not in memory by few
    /// calls, where they are few. What cannot be read is reported by page().
    void bring(uint32_t first, uint32_t last);
    /// Page n if it is in memory, else nothing.
    PagePtr cached(uint32_t n) const { return n < m_cache.size() ? m_cache[n].page : PagePtr(); }
    /// Whether the cache has room for all pages.
    bool fitsCache() const { return m_pageCount <= m_limits.cachedPages; }
    /// Reads the pages from `first` on as they are in the file, past the cache; the number of those that
    /// there are.
    size_t readPages(uint32_t first, std::span<Page> pages) const;

    /// Whether the room for a small transaction's journal is taken; tries to take it where it is not.
    bool roomReserved();
    /// Appends the whole file to `out`, which is empty.
    void copyTo(OsFile& out);

    /// Fails (ReadOnlyDatabase) where beginWrite() would.
    void requireWritable() const;
    void beginWrite();
    bool writing() const { return m_writing; }
    /// Page n for changing, valid until the end of the statement (endStatement). Its original goes to the
    /// journal.
    Page& change(uint32_t n);
    /// A new zeroed page at the end of the file.
    uint32_t append();
    /// Writes changed pages ahead if there are too many. Between two statements of a transaction.
    void endStatement();
    void commit();
    void rollback() noexcept;

    /// For asserts alone, so nothing in a build without them: the pages that the statement has changed as
    /// they were before it; no page where there was none.
    const std::map<uint32_t, PagePtr>& touched() const { return m_touched; }
    /// Whether a page was taken for free that does not look so: what it was before says nothing.
    bool touchedInDoubt() const { return m_touchedInDoubt; }
    bool noteTaken(uint32_t n);
    /// Whether the page kept the rules after the last statement that has touched it, which was one on that
    /// table: then it need not be asked before the next one.
    bool wasSound(uint32_t n, uint32_t table) const;
    /// Says so of the pages that the statement has touched.
    void noteSound(uint32_t table);
    /// Of no page any more: a statement was not checked.
    void forgetSound() { m_sound.clear(); }

  private:
    void open();
    void readHeader();
    [[noreturn]] void failMissing() const;
    FileState lockCurrent(OsFile::Range range);
    void startJournal();
    void unlock();
    bool isJournalLeft() const;
    void recover();
    FileState lockForWriting();
    void lockPages();
    void letGoOfRoom() noexcept;
    void refreshState(const FileState& now);
    void dropCache();
    void keep(uint32_t n, std::shared_ptr<Page> page);
    void evict();
    void writeChanged();
    Page inFileForm(uint32_t n, const Page& page) const;
    bool noteTouched(uint32_t n);
    bool forgetTouched();
    bool canHaveJournal() const { return !m_header.jet3; }

    struct Slot {
        std::shared_ptr<Page> page;
        bool used = false;  ///< since the clock's hand last passed
    };

    std::string m_path;
    Limits m_limits;
    bool m_wantReadOnly;
    bool m_readOnly = false;
    OsFile m_file;
    FileState m_opened;   ///< as it was opened: device and inode stay
    FileState m_state;    ///< that the cache belongs to
    FileRights m_rights;  ///< when a lock was last taken
    Header m_header;
    uint32_t m_pageCount = 0;
    uint64_t m_generation = 1;
    int m_readers = 0;

    std::vector<Slot> m_cache;       // by page number
    std::vector<uint32_t> m_cached;  // the numbers of those in memory
    size_t m_hand = 0;               // among them

    Journal m_journal;
    bool m_writing = false;
    bool m_pagesWritten = false;  // step 4 has begun
    uint32_t m_originalPages = 0;
    std::vector<bool> m_journaled;
    std::map<uint32_t, std::shared_ptr<Page>> m_changed;

    std::map<uint32_t, PagePtr> m_touched;
    bool m_touchedInDoubt = false;
    std::unordered_map<uint32_t, uint32_t> m_sound;  // a page and its table
};

/// Holds the shared lock for a stretch of reading.
class Reading {
  public:
    explicit Reading(PageFile& file) : m_file(file) { m_file.beginRead(); }
    ~Reading() { m_file.endRead(); }
    Reading(const Reading&) = delete;

  private:
    PageFile& m_file;
};

}  // namespace jet
