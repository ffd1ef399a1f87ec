// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/IndexPage.h"

#include <algorithm>
#include <bit>

#include "platform/jet/Failure.h"

namespace jet {

IndexPage::IndexPage(const Page& page, uint32_t number, uint32_t owner) {
    const uint8_t* p = page.data();
    const auto damaged = [&] { failDamaged("la pagina di indice %1 non è leggibile"_tr, number); };
    if ((p[0] != NodePage && p[0] != LeafPage) || load32(p + index::owner) != owner) damaged();
    leaf = p[0] == LeafPage;
    previous = load32(p + index::previous);
    next = load32(p + index::next);
    tail = load32(p + index::tail);
    level = p[index::level];
    const size_t prefix = load16(p + index::prefix);
    const size_t least = 1 + index::rowIdLength + (leaf ? 0 : index::childLength);

    m_ends.reserve(index::room / least + 1);
    for (size_t i = 0; i < index::entries - index::mask; ++i)
        for (unsigned rest = p[index::mask + i]; rest != 0; rest &= rest - 1)
            m_ends.push_back(static_cast<uint32_t>(8 * i) + static_cast<uint32_t>(std::countr_zero(rest)));
    if (!m_ends.empty() && (m_ends.back() > index::room || m_ends.front() < std::max(least, prefix)))
        damaged();
    for (size_t i = 1; i < m_ends.size(); ++i)
        if (prefix + m_ends[i] - m_ends[i - 1] < least) damaged();
    takeEntries(p + index::entries, prefix);
    if (!leaf && m_ends.empty() && tail == 0) damaged();
}

// Each end becomes the end of the whole entry; from the second on that is longer by the prefix.
void IndexPage::takeEntries(const uint8_t* stored, size_t prefix) {
    const size_t size = m_ends.empty() ? 0 : m_ends.back();
    if (prefix == 0 || size == 0) {
        m_bytes.assign(stored, stored + size);
        return;
    }
    m_bytes.resize(size + prefix * (m_ends.size() - 1));
    size_t end = 0;
    size_t at = 0;
    for (uint32_t& entryEnd : m_ends) {
        const size_t shared = at == 0 ? 0 : prefix;
        const size_t own = entryEnd - end;
        std::memcpy(&m_bytes[at], m_bytes.data(), shared);
        std::memcpy(&m_bytes[at + shared], stored + end, own);
        end = entryEnd;
        at += shared + own;
        entryEnd = static_cast<uint32_t>(at);
    }
}

std::span<const uint8_t> IndexPage::entry(size_t i) const {
    return std::span(m_bytes).subspan(start(i), m_ends[i] - start(i));
}

std::span<const uint8_t> IndexPage::keyAndRow(size_t i) const {
    const auto whole = entry(i);
    return leaf ? whole : whole.first(whole.size() - index::childLength);
}

uint32_t IndexPage::child(size_t i) const {
    if (i >= count()) return tail;
    return load32Big(m_bytes.data() + m_ends[i] - index::childLength);
}

size_t IndexPage::lowerBound(std::span<const uint8_t> wanted) const {
    size_t low = 0;
    size_t high = count();
    while (low < high) {
        const size_t middle = (low + high) / 2;
        if (compareEntries(keyAndRow(middle), wanted) < 0)
            low = middle + 1;
        else
            high = middle;
    }
    return low;
}

void IndexPage::insert(size_t i, std::span<const uint8_t> entry) {
    const std::vector<uint8_t> own(entry.begin(), entry.end());  // may come from this very page
    const size_t at = start(i);
    m_bytes.insert(m_bytes.begin() + static_cast<ptrdiff_t>(at), own.begin(), own.end());
    m_ends.insert(m_ends.begin() + static_cast<ptrdiff_t>(i), static_cast<uint32_t>(at));
    for (size_t k = i; k < m_ends.size(); ++k)
        m_ends[k] += static_cast<uint32_t>(own.size());
}

void IndexPage::erase(size_t i) {
    const size_t at = start(i);
    const uint32_t length = static_cast<uint32_t>(m_ends[i] - at);
    m_bytes.erase(m_bytes.begin() + static_cast<ptrdiff_t>(at),
                  m_bytes.begin() + static_cast<ptrdiff_t>(at + length));
    m_ends.erase(m_ends.begin() + static_cast<ptrdiff_t>(i));
    for (size_t k = i; k < m_ends.size(); ++k)
        m_ends[k] -= length;
}

void IndexPage::moveTail(size_t i, IndexPage& other) {
    for (size_t k = i; k < count(); ++k)
        other.insert(other.count(), entry(k));
    m_bytes.resize(start(i));
    m_ends.resize(i);
}

// Entries rise, so what first and last share all share. Like other programs, a leaf takes its prefix only
// when it would be too full without.
size_t IndexPage::prefix() const {
    if (!leaf || m_bytes.size() <= index::room) return 0;
    const auto first = entry(0);
    const auto last = entry(count() - 1);
    const size_t most = std::min(first.size(), last.size());
    return static_cast<size_t>(
        std::mismatch(first.begin(), first.begin() + static_cast<ptrdiff_t>(most), last.begin()).first -
        first.begin());
}

size_t IndexPage::storedSize() const {
    return count() == 0 ? 0 : m_bytes.size() - prefix() * (count() - 1);
}

bool IndexPage::fits() const {
    return storedSize() <= index::room;
}

void IndexPage::store(Page& page, uint32_t owner) const {
    page.fill(0);
    uint8_t* p = page.data();
    p[0] = leaf ? LeafPage : NodePage;
    p[1] = 1;
    store16(p + index::freeBytes, static_cast<uint32_t>(index::room - storedSize()));
    store32(p + index::owner, owner);
    store32(p + index::previous, previous);
    store32(p + index::next, next);
    store32(p + index::tail, tail);
    store16(p + index::prefix, static_cast<uint32_t>(prefix()));
    p[index::level] = level;
    const size_t shared = prefix();
    if (shared == 0) std::copy(m_bytes.begin(), m_bytes.end(), p + index::entries);
    for (size_t i = 0; i < count(); ++i) {
        const size_t end = m_ends[i] - i * shared;
        p[index::mask + end / 8] |= static_cast<uint8_t>(1u << (end % 8));
        if (shared == 0) continue;
        const auto own = entry(i).subspan(i == 0 ? 0 : shared);
        std::copy(own.begin(), own.end(), p + index::entries + end - own.size());
    }
}

namespace {

// Where an entry's end is marked at or before that place; 0 where none is.
size_t markBefore(const uint8_t* marks, size_t from) {
    for (size_t byte = from / 8;; --byte) {
        const unsigned wanted = byte == from / 8 ? (2u << (from % 8)) - 1 : 0xFFu;
        if (const unsigned found = marks[byte] & wanted; found != 0)
            return 8 * byte + static_cast<size_t>(std::bit_width(found)) - 1;
        if (byte == 0) return 0;
    }
}

size_t firstMark(const uint8_t* marks, size_t last) {
    size_t byte = 0;
    while (marks[byte] == 0 && 8 * byte < last)
        ++byte;
    return 8 * byte + static_cast<size_t>(std::countr_zero(unsigned{marks[byte]}));
}

}  // namespace

bool appendEntry(Page& leaf, std::span<const uint8_t> entry) {
    uint8_t* const p = leaf.data();
    uint8_t* const entries = p + index::entries;
    const size_t shared = load16(p + index::prefix);
    const size_t end = index::room - std::min<size_t>(load16(p + index::freeBytes), index::room);
    if (end == 0 || entry.size() <= shared || end + entry.size() - shared > index::room) return false;
    const size_t start = markBefore(p + index::mask, end - 1);
    const size_t firstEnd = firstMark(p + index::mask, end);
    if (firstEnd > end || shared > firstEnd) return false;
    const std::span<const uint8_t> first(entries, firstEnd);
    const auto own = entry.subspan(shared);
    if (!std::equal(entry.begin(), entry.end() - static_cast<ptrdiff_t>(own.size()), first.begin()))
        return false;
    // The longest prefix, where there is one, is what the first entry shares with the last.
    if (shared > 0 && shared < firstEnd && first[shared] == own.front()) return false;
    const auto last = std::span<const uint8_t>(entries, end).subspan(start == 0 ? shared : start);
    if (compareEntries(last, own) >= 0) return false;
    std::copy(own.begin(), own.end(), entries + end);
    const size_t now = end + own.size();
    p[index::mask + now / 8] |= static_cast<uint8_t>(1u << (now % 8));
    store16(p + index::freeBytes, static_cast<uint32_t>(index::room - now));
    return true;
}

int compareEntries(std::span<const uint8_t> a, std::span<const uint8_t> b) {
    const size_t most = std::min(a.size(), b.size());
    const int order = most == 0 ? 0 : std::memcmp(a.data(), b.data(), most);
    if (order != 0) return order;
    return a.size() < b.size() ? -1 : a.size() > b.size();
}

std::vector<uint8_t> nodeEntry(std::span<const uint8_t> keyAndRow, uint32_t child) {
    std::vector<uint8_t> entry(keyAndRow.begin(), keyAndRow.end());
    entry.resize(entry.size() + index::childLength);
    store32Big(entry.data() + entry.size() - index::childLength, child);
    return entry;
}

}  // namespace jet
