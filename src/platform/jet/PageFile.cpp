#include "platform/jet/PageFile.h"

#include <chrono>
#include <thread>

#include "platform/jet/Failure.h"
#include "platform/jet/Jet3.h"

namespace jet {

namespace {

QString shown(const std::string& path) {
    return QString::fromLocal8Bit(path.data(), qsizetype(path.size()));
}

// Between two looks at a lock that others hold. Busy writers leave it free for moments only, so whoever looks
// seldom may not get it at all.
constexpr std::chrono::milliseconds longestPause{4};

// NAME.ldb beside NAME.mdb: made by other programs while they have the database open.
std::string foreignLockFile(const std::string& path) {
    const size_t slash = path.rfind('/');
    const size_t dot = path.rfind('.');
    const bool hasSuffix = dot != std::string::npos && (slash == std::string::npos || dot > slash);
    return path.substr(0, hasSuffix ? dot : path.size()) + ".ldb";
}

}  // namespace

PageFile::PageFile(std::string path, bool readOnly, const Limits& limits)
    : m_path(std::move(path)), m_limits(limits), m_wantReadOnly(readOnly), m_journal(m_path) {
    open();
    beginRead();
    endRead();
}

PageFile::~PageFile() {
    if (m_writing) rollback();
}

void PageFile::open() {
    m_readOnly = m_wantReadOnly;
    if (!m_readOnly) {
        try {
            m_file = OsFile(m_path, OsFile::Access::ReadWrite);
        } catch (const Failure& failure) {
            if (failure.status.code() != ErrorCode::PathAccess) throw;
            m_readOnly = true;
        }
    }
    if (m_readOnly) m_file = OsFile(m_path, OsFile::Access::Read);
    m_opened = m_file.state();
    // Before the journal is looked at: nothing is ever rolled back into a file of another kind.
    readHeader();
}

void PageFile::readHeader() {
    Page page0;
    const size_t length = m_file.read(0, page0);
    m_header = parseHeader(std::span(page0).first(length));
}

size_t PageFile::bytesPerPage() const {
    return m_header.jet3 ? jet3::pageSize : pageSize;
}

// A writer closes the gate first, so that it does not wait for ever while others come and go to read.
void PageFile::lock(OsFile& file, OsFile::Lock kind) const {
    using Clock = std::chrono::steady_clock;
    using Lock = OsFile::Lock;
    using Range = OsFile::Range;
    const auto deadline = Clock::now() + std::chrono::milliseconds(m_limits.lockWaitMs);
    const auto until = [&](const auto& attempt) {
        for (auto pause = std::chrono::milliseconds(1); !attempt();
             pause = std::min(pause * 2, longestPause)) {
            if (Clock::now() >= deadline)
                fail(ErrorCode::FileInUse,
                     QStringLiteral("Il database \"%1\" è in uso da un altro programma.").arg(shown(m_path)));
            std::this_thread::sleep_for(pause);
        }
    };
    if (kind == Lock::Exclusive) {
        until([&] { return file.tryLock(kind, Range::Gate); });
        until([&] { return file.tryLock(kind, Range::Content); });
        return;
    }
    until([&] {
        if (!file.tryLock(kind, Range::Gate)) return false;
        const bool got = file.tryLock(kind, Range::Content);
        file.tryLock(Lock::None, Range::Gate);
        return got;
    });
}

// Locks the file that the path names now, which may have been replaced since it was opened. Returns its
// state.
FileState PageFile::lockCurrent(OsFile::Lock kind) {
    for (int attempt = 0; attempt < 10; ++attempt) {
        lock(m_file, kind);
        FileState now;
        if (!fileState(m_path, now))
            fail(ErrorCode::FileNotFound,
                 QStringLiteral("Impossibile trovare il file \"%1\".").arg(shown(m_path)));
        if (now.inode == m_opened.inode && now.device == m_opened.device) return now;
        m_file = OsFile();
        dropCache();
        open();
    }
    fail(ErrorCode::FileInUse,
         QStringLiteral("Il database \"%1\" viene sostituito di continuo da un altro programma.")
             .arg(shown(m_path)));
}

void PageFile::unlock() {
    if (!m_file.isOpen()) return;
    m_file.tryLock(m_readers > 0 ? OsFile::Lock::Shared : OsFile::Lock::None, OsFile::Range::Content);
    m_file.tryLock(OsFile::Lock::None, OsFile::Range::Gate);
}

void PageFile::beginRead() {
    if (m_readers == 0 && !m_writing) {
        try {
            if (!m_file.isOpen()) open();
            FileState now = lockCurrent(OsFile::Lock::Shared);
            // With this lock held no writer is alive: a journal is what a dead one left.
            while (canHaveJournal() && m_journal.exists() && (!m_readOnly || m_journal.isHot())) {
                recover();
                now = lockCurrent(OsFile::Lock::Shared);
            }
            refreshState(now);
        } catch (...) {
            unlock();
            throw;
        }
    }
    ++m_readers;
}

void PageFile::endRead() {
    if (--m_readers == 0 && !m_writing) unlock();
}

// Invariant J3. Another process may have done it while this one waited for the exclusive lock.
void PageFile::recover() {
    OsFile file;
    try {
        file = OsFile(m_path, OsFile::Access::ReadWrite);
    } catch (const Failure&) {
        fail(ErrorCode::ReadOnlyDatabase,
             QStringLiteral(
                 "Il database \"%1\" va ripristinato dopo un'interruzione, ma non può essere scritto.")
                 .arg(shown(m_path)));
    }
    m_file.tryLock(OsFile::Lock::None, OsFile::Range::Content);
    lock(file, OsFile::Lock::Exclusive);
    if (m_journal.exists()) m_journal.rollBack(file);
}

// Compares the file with what the cache was read from.
void PageFile::refreshState(const FileState& now) {
    if (now == m_state) return;
    dropCache();
    readHeader();
    if (now.size > uint64_t{maxPages} * bytesPerPage() || now.size % bytesPerPage() != 0)
        failDamaged(QStringLiteral("la lunghezza del file non è quella di un database"));
    m_state = now;
    m_pageCount = static_cast<uint32_t>(now.size / bytesPerPage());
}

void PageFile::dropCache() {
    m_cache.clear();
    m_cached = 0;
    m_hand = 0;
    m_state = {};
    ++m_generation;
}

void PageFile::keep(uint32_t n, std::shared_ptr<Page> page) {
    if (m_cache.size() <= n) m_cache.resize(std::max<size_t>(n + 1, m_pageCount));
    Slot& slot = m_cache[n];
    if (!slot.page) ++m_cached;
    slot = {std::move(page), true};
    while (m_cached > m_limits.cachedPages + m_changed.size())
        evict();
}

// Drops one page. Second chance: those read since the hand last passed stay this time, changed ones always.
// There are more cached pages than changed ones when this is called, so it ends.
void PageFile::evict() {
    for (;;) {
        Slot& slot = m_cache[m_hand];
        const uint32_t n = static_cast<uint32_t>(m_hand);
        m_hand = (m_hand + 1) % m_cache.size();
        if (!slot.page || m_changed.contains(n)) continue;
        if (!slot.used) {
            slot.page.reset();
            --m_cached;
            return;
        }
        slot.used = false;
    }
}

PagePtr PageFile::page(uint32_t n) {
    if (n < m_cache.size() && m_cache[n].page) {
        m_cache[n].used = true;
        return m_cache[n].page;
    }
    if (n >= m_pageCount) failDamaged(QStringLiteral("manca la pagina %1").arg(n));
    auto page = std::make_shared_for_overwrite<Page>();
    const std::span<uint8_t> bytes = std::span(*page).first(bytesPerPage());
    if (m_file.read(uint64_t{n} * bytes.size(), bytes) != bytes.size())
        failDamaged(QStringLiteral("la pagina %1 è troncata").arg(n));
    if (m_header.pageKey != 0 && n != 0) codePage(m_header.pageKey, n, bytes);
    if (m_header.jet3) jet3::widenPage(*page);
    keep(n, page);
    return page;
}

void PageFile::refuseIfOpenElsewhere() const {
    const std::string path = foreignLockFile(m_path);
    if (!OsFile::exists(path)) return;
    try {
        const bool held = OsFile(path, OsFile::Access::Read).lockedByOthers();
        if (!held) OsFile::remove(path);
        if (!held) return;
    } catch (const Failure&) {
        // It cannot be opened or removed: its maker still has it.
    }
    fail(ErrorCode::FileInUse,
         QStringLiteral("Il database \"%1\" è aperto in un altro programma (%2): non può essere modificato.")
             .arg(shown(m_path), shown(path)));
}

void PageFile::requireWritable() const {
    if (m_header.jet3)
        fail(ErrorCode::ReadOnlyDatabase,
             QStringLiteral("Il database \"%1\" è di Access 97: può essere letto ma non modificato. Per "
                            "modificarlo convertirlo in formato Access 2000-2003 (.mdb).")
                 .arg(shown(m_path)));
    if (m_readOnly)
        fail(ErrorCode::ReadOnlyDatabase,
             QStringLiteral("Il database \"%1\" è di sola lettura.").arg(shown(m_path)));
}

void PageFile::beginWrite() {
    if (m_writing) fail(ErrorCode::NotSupported, QStringLiteral("Una transazione è già in corso."));
    requireWritable();
    refuseIfOpenElsewhere();
    try {
        if (!m_file.isOpen()) open();
        (void)lockCurrent(OsFile::Lock::Exclusive);
        if (m_journal.exists()) m_journal.rollBack(m_file);
        refreshState(m_file.state());
    } catch (...) {
        unlock();
        throw;
    }
    m_writing = true;
    m_pagesWritten = false;
    m_originalPages = m_pageCount;
    m_journaled.assign(m_originalPages, false);
}

Page& PageFile::change(uint32_t n) {
    if (const auto found = m_changed.find(n); found != m_changed.end()) return *found->second;
    const PagePtr original = page(n);
    if (!m_journal.started()) m_journal.start(m_file, m_originalPages);
    if (n < m_originalPages && !m_journaled[n]) {
        m_journal.add(n, inFileForm(n, *original));
        m_journaled[n] = true;
    }
    auto copy = std::make_shared<Page>(*original);
    m_changed[n] = copy;
    keep(n, copy);
    return *copy;
}

uint32_t PageFile::append() {
    if (m_pageCount >= maxPages)
        fail(ErrorCode::NotSupported,
             QStringLiteral("Il database ha raggiunto la dimensione massima di 2 GB."));
    if (!m_journal.started()) m_journal.start(m_file, m_originalPages);
    const uint32_t n = m_pageCount++;
    auto page = std::make_shared<Page>();
    page->fill(0);
    m_changed[n] = page;
    keep(n, page);
    return n;
}

// A page as it lies in the file: encoded, where the file's pages are.
Page PageFile::inFileForm(uint32_t n, const Page& page) const {
    Page bytes = page;
    if (m_header.pageKey != 0 && n != 0) codePage(m_header.pageKey, n, bytes);
    return bytes;
}

// Steps 3 and 4.
void PageFile::writeChanged() {
    m_journal.sync();
    m_pagesWritten = true;
    for (const auto& [n, page] : m_changed)
        m_file.write(uint64_t{n} * pageSize, inFileForm(n, *page));
    m_changed.clear();
}

void PageFile::endStatement() {
    if (m_changed.size() > m_limits.changedPages) writeChanged();
}

void PageFile::commit() {
    if (m_journal.started()) {
        try {
            writeChanged();
            m_file.stampAfter(m_state.modifiedNs);
            m_file.sync();
            m_journal.finish();
        } catch (...) {
            rollback();
            throw;
        }
        m_state = m_file.state();
    }
    m_writing = false;
    unlock();
}

// What cannot be put back now is put back by whoever opens the file next, from the journal.
void PageFile::rollback() noexcept {
    try {
        if (m_pagesWritten && m_journal.exists()) {
            m_journal.rollBack(m_file);
        } else if (m_journal.started()) {
            m_journal.discard();
        }
    } catch (const Failure&) {
    }
    m_changed.clear();
    m_pageCount = m_originalPages;
    m_writing = false;
    dropCache();
    unlock();
}

}  // namespace jet
