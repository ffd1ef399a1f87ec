// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/PageFile.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <filesystem>
#include <span>
#include <utility>

#include "platform/jet/Failure.h"
#include "platform/jet/FileLocks.h"
#include "platform/jet/Jet3.h"

namespace jet {

namespace {

constexpr size_t pagesTogether = 64;
constexpr size_t pagesBrought = 16;  // by one call
constexpr size_t mostBrought = 64;

// Under whatever name a database is opened, its journal has one.
std::string realPath(const std::string& path) {
    std::error_code error;
    const std::filesystem::path real = std::filesystem::canonical(path, error);
    return error ? path : real.string();
}

}  // namespace

PageFile::PageFile(const std::string& path, bool readOnly, const Limits& limits)
    : m_path(realPath(path)), m_limits(limits), m_wantReadOnly(readOnly), m_journal(m_path) {
    open();
    beginRead();
    endRead();
    (void)roomReserved();
}

PageFile::~PageFile() {
    if (m_writing) rollback();
    letGoOfRoom();
}

bool PageFile::roomReserved() {
    if (readOnly()) return false;
    try {
        if (m_journal.roomKept()) return true;
        m_journal.keepRoom(m_file, m_file.rights());
    } catch (const Failure&) {
        // Whether that matters is seen when something is written.
    }
    return m_journal.roomKept();
}

PageFile::Seen PageFile::look(const std::string& path) const {
    FileState now;
    if (!m_file.isOpen() || !fileState(path, now) || !sameFile(now, m_opened)) return Seen::Other;
    return now == m_state ? Seen::Unchanged : Seen::Changed;
}

void PageFile::copyTo(OsFile& out) {
    std::vector<uint8_t> block(1 << 20);
    for (uint64_t at = 0;;) {
        const size_t length = m_file.read(at, block);
        if (length == 0) return;
        out.write(at, std::span(block).first(length));
        at += length;
    }
}

void PageFile::open() {
    m_readOnly = m_wantReadOnly;
    try {
        if (!m_readOnly) {
            try {
                m_file = OsFile(m_path, OsFile::Access::ReadWrite);
            } catch (const Failure& failure) {
                if (failure.status.code() != ErrorCode::PathAccess) throw;
                m_readOnly = true;
            }
        }
        if (m_readOnly) m_file = OsFile(m_path, OsFile::Access::Read);
    } catch (const Failure& failure) {
        if (failure.status.code() == ErrorCode::FileNotFound) failMissing();
        throw;
    }
    m_opened = m_file.state();
    // Before the journal is read: nothing is ever rolled back into a file of another kind.
    readHeader();
}

void PageFile::failMissing() const {
    const Phrase text("Impossibile trovare il file \"%1\"."_tr, m_path);
    if (!m_journal.isLeftBehind()) fail(ErrorCode::FileNotFound, text);
    fail(ErrorCode::FileNotFound,
         "%1 Accanto è rimasto il giornale delle sue ultime modifiche, "
         "\"%2\", che viene conservato: rimettere il file al suo posto."_tr,
         text, m_journal.path());
}

void PageFile::readHeader() {
    Page page0;
    const size_t length = m_file.read(0, page0);
    m_header = parseHeader(std::span(page0).first(length));
}

size_t PageFile::bytesPerPage() const {
    return m_header.jet3 ? jet3::pageSize : pageSize;
}

// Compares the file with what the cache was read from.
void PageFile::refreshState(const FileState& now) {
    if (now == m_state) return;
    dropCache();
    readHeader();
    if (now.size > uint64_t{maxPages} * bytesPerPage())
        fail(ErrorCode::DatabaseFull, "Il file \"%1\" supera la dimensione massima di un database, 2 GB."_tr,
             m_path);
    if (now.size % bytesPerPage() != 0) failDamaged("la lunghezza del file non è quella di un database"_tr);
    m_state = now;
    m_pageCount = static_cast<uint32_t>(now.size / bytesPerPage());
}

void PageFile::dropCache() {
    m_cache.clear();
    m_cached.clear();
    m_hand = 0;
    m_state = {};
    m_sound.clear();
    ++m_generation;
}

void PageFile::keep(uint32_t n, std::shared_ptr<Page> page) {
    if (m_cache.size() <= n) m_cache.resize(std::max<size_t>(n + 1, m_pageCount));
    Slot& slot = m_cache[n];
    if (!slot.page) m_cached.push_back(n);
    slot = {std::move(page), true};
    while (m_cached.size() > m_limits.cachedPages + m_changed.size())
        evict();
}

// Drops one page. Second chance: those read since the hand last passed stay this time, changed ones always.
// There are more cached pages than changed ones when this is called, so it ends.
void PageFile::evict() {
    for (;; ++m_hand) {
        if (m_hand >= m_cached.size()) m_hand = 0;
        const uint32_t n = m_cached[m_hand];
        if (m_changed.contains(n)) continue;
        Slot& slot = m_cache[n];
        if (!std::exchange(slot.used, false)) {
            slot.page.reset();
            m_cached[m_hand++] = m_cached.back();  // the newest
            m_cached.pop_back();
            return;
        }
    }
}

PagePtr PageFile::page(uint32_t n) {
    if (n < m_cache.size() && m_cache[n].page) {
        m_cache[n].used = true;
        return m_cache[n].page;
    }
    if (n >= m_pageCount) failDamaged("manca la pagina %1"_tr, n);
    auto page = std::make_shared_for_overwrite<Page>();
    const std::span<uint8_t> bytes = std::span(*page).first(bytesPerPage());
    if (m_file.read(uint64_t{n} * bytes.size(), bytes) != bytes.size())
        failDamaged("la pagina %1 è troncata"_tr, n);
    if (m_header.pageKey != 0 && n != 0) codePage(m_header.pageKey, n, bytes);
    if (m_header.jet3) jet3::widenPage(*page);
    keep(n, page);
    return page;
}

void PageFile::bring(uint32_t first, uint32_t last) {
    if (last < first || last - first >= mostBrought || last >= m_pageCount || m_header.jet3 ||
        m_limits.cachedPages < 2 * mostBrought)
        return;
    for (uint32_t n = first; n <= last; ++n) {
        std::array<std::shared_ptr<Page>, pagesBrought> pages;
        std::array<std::span<uint8_t>, pagesBrought> places;
        size_t count = 0;
        for (; count < pagesBrought && n + count <= last && !cached(n + static_cast<uint32_t>(count));
             ++count) {
            pages[count] = std::make_shared_for_overwrite<Page>();
            places[count] = *pages[count];
        }
        if (count < 2) continue;
        const size_t read = m_file.read(uint64_t{n} * pageSize, std::span(places).first(count)) / pageSize;
        for (size_t i = 0; i < read; ++i) {
            const uint32_t number = n + static_cast<uint32_t>(i);
            if (m_header.pageKey != 0 && number != 0) codePage(m_header.pageKey, number, *pages[i]);
            keep(number, std::move(pages[i]));
        }
        n += static_cast<uint32_t>(count - 1);
    }
}

size_t PageFile::readPages(uint32_t first, std::span<Page> pages) const {
    assert(!m_header.jet3);
    const std::span<uint8_t> bytes(pages.front().data(), pages.size() * pageSize);
    const size_t count = m_file.read(uint64_t{first} * pageSize, bytes) / pageSize;
    for (size_t i = 0; m_header.pageKey != 0 && i < count; ++i)
        if (first + i != 0) codePage(m_header.pageKey, first + static_cast<uint32_t>(i), pages[i]);
    return count;
}

void PageFile::requireWritable() const {
    if (m_header.jet3)
        fail(ErrorCode::ReadOnlyDatabase,
             "Il database \"%1\" è di Access 97: può essere letto ma non modificato. "
             "Per modificarlo convertirlo in formato Access 2000-2003 (.mdb)."_tr,
             m_path);
    if (m_readOnly) fail(ErrorCode::ReadOnlyDatabase, "Il database \"%1\" è di sola lettura."_tr, m_path);
}

void PageFile::beginWrite() {
    if (m_writing) fail(ErrorCode::NotSupported, "Una transazione è già in corso."_tr);
    requireWritable();
    refuseIfOpenElsewhere(m_path);
    try {
        refreshState(lockForWriting());
    } catch (...) {
        unlock();
        throw;
    }
    assert(m_changed.empty() && !m_journal.started());
    assert(m_file.isHeld(OsFile::Range::Writer));  // L2
    m_writing = true;
    m_pagesWritten = false;
    m_originalPages = m_pageCount;
    m_journaled.assign(m_originalPages, false);
}

bool PageFile::noteTouched(uint32_t n) {
    if (!m_touched.contains(n)) m_touched[n] = std::make_shared<Page>(*page(n));
    return true;
}

bool PageFile::noteTaken(uint32_t n) {
    m_touchedInDoubt = m_touchedInDoubt || (*page(n))[0] != HeaderPage;  // as it is where a page was wiped
    m_touched.try_emplace(n);
    return true;
}

bool PageFile::wasSound(uint32_t n, uint32_t table) const {
    const auto sound = m_sound.find(n);
    return sound != m_sound.end() && sound->second == table;
}

void PageFile::noteSound(uint32_t table) {
    for (const auto& touched : m_touched)
        m_sound[touched.first] = table;
    m_touched.clear();
}

// What is still noted as touched was not checked.
bool PageFile::forgetTouched() {
    for (const auto& touched : m_touched)
        m_sound.erase(touched.first);
    m_touched.clear();
    m_touchedInDoubt = false;
    return true;
}

void PageFile::startJournal() {
    if (!m_journal.started()) m_journal.start(m_file, m_rights, m_originalPages, *page(0));
}

Page& PageFile::change(uint32_t n) {
    assert(m_writing && n != 0);
    assert(noteTouched(n));
    if (const auto found = m_changed.find(n); found != m_changed.end()) return *found->second;
    const PagePtr original = page(n);
    startJournal();
    if (n < m_originalPages && !m_journaled[n]) {
        m_journal.add(n, inFileForm(n, *original));
        m_journaled[n] = true;
    }
    const auto copy = m_changed.emplace(n, std::make_shared<Page>(*original)).first;
    keep(n, copy->second);
    return *copy->second;
}

uint32_t PageFile::append() {
    assert(m_writing);
    if (m_pageCount >= maxPages) failFull();
    startJournal();
    const uint32_t n = m_pageCount++;
    auto page = std::make_shared<Page>();
    page->fill(0);
    m_changed[n] = page;
    keep(n, page);
    assert(noteTaken(n));
    return n;
}

// A page as it is in the file: encoded, where the file's pages are.
Page PageFile::inFileForm(uint32_t n, const Page& page) const {
    Page bytes = page;
    if (m_header.pageKey != 0 && n != 0) codePage(m_header.pageKey, n, bytes);
    return bytes;
}

// Steps 2 (its end) to 4.
void PageFile::writeChanged() {
    if (m_changed.empty()) return;
    for (const auto& [n, page] : m_changed)
        m_journal.announce(n, inFileForm(n, *page));
    lockPages();
    assert(m_journal.inForce());  // J1
    assert(m_file.isHeld(OsFile::Range::Writer) && m_file.isHeld(OsFile::Range::Author) &&
           m_file.isHeld(OsFile::Range::Content));  // L1, L3
    m_pagesWritten = true;
    // Pages that are neighbours are written together.
    std::vector<uint8_t> bytes;
    uint32_t first = 0;
    for (const auto& [n, page] : m_changed) {
        assert(n >= m_originalPages || m_journaled[n]);
        if (n != first + bytes.size() / pageSize || bytes.size() == pagesTogether * pageSize) {
            if (!bytes.empty()) m_file.write(uint64_t{first} * pageSize, bytes);
            bytes.clear();
            first = n;
        }
        const Page written = inFileForm(n, *page);
        bytes.insert(bytes.end(), written.begin(), written.end());
    }
    m_file.write(uint64_t{first} * pageSize, bytes);
    m_changed.clear();
}

void PageFile::endStatement() {
    assert(forgetTouched());
    if (m_changed.size() > m_limits.changedPages) writeChanged();
}

void PageFile::commit() {
    assert(m_writing);
    if (m_journal.started()) {
        FileState written;
        try {
            writeChanged();
            written = m_file.stampAfter(m_state.modifiedNs);
            m_journal.finish(m_file.sync());
        } catch (...) {
            rollback();
            throw;
        }
        m_state = written;
    }
    m_writing = false;
    unlock();
}

// What cannot be put back now is put back by the process that opens the file next, from the journal.
void PageFile::rollback() noexcept {
    try {
        if (m_pagesWritten) {
            m_journal.recover(m_file);
        } else if (m_journal.started()) {
            m_journal.discard();
        }
    } catch (const Failure&) {
    }
    m_changed.clear();
    assert(forgetTouched());
    m_pageCount = m_originalPages;
    m_writing = false;
    dropCache();
    unlock();
}

}  // namespace jet
