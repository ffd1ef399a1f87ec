// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/PageRoom.h"

#include <limits>
#include <vector>

#include "platform/jet/Failure.h"
#include "platform/jet/UsageMap.h"

namespace jet {

namespace {

// A page with less room than this that could not take a row leaves the map of pages with room; it returns
// when it has so much again. Other programs leave out pages with up to 371 free bytes.
constexpr size_t roomWorthKeeping = 372;

// So many pages are looked at before a new one is taken.
constexpr size_t pagesLearnt = 32;

}  // namespace

DataPageView PageRoom::view(const Page& page, uint32_t number) const {
    const DataPageView view(page, number);
    if (view.owner() != m_owner)
        failDamaged("la pagina %1 è fra quelle libere di una tabella a cui non appartiene"_tr, number);
    return view;
}

void PageRoom::setMember(uint32_t page, bool member) {
    if (m_roomMap != 0) UsageMap(m_file, m_roomMap).set(page, member);
}

void PageRoom::remember(uint32_t page, size_t room) {
    const auto [known, fresh] = m_roomOf.try_emplace(page, room);
    if (!fresh) {
        m_byRoom.erase({known->second, page});
        known->second = room;
    }
    m_byRoom.emplace(room, page);
}

void PageRoom::noteGone(uint32_t page) {
    if (const auto known = m_roomOf.find(page); known != m_roomOf.end()) {
        m_byRoom.erase({known->second, page});
        m_roomOf.erase(known);
    }
    if (m_last == page) m_last = 0;
    setMember(page, false);
}

void PageRoom::noteNew(uint32_t page) {
    setMember(page, true);
    remember(page, view(*m_file.page(page), page).room());
    m_last = page;
}

void PageRoom::noteTaken(uint32_t page) {
    if (m_roomOf.contains(page)) remember(page, view(*m_file.page(page), page).room());
}

void PageRoom::noteFreed(uint32_t page) {
    const PagePtr bytes = m_file.page(page);
    const DataPageView rows = view(*bytes, page);
    if (rows.freeBytes() < roomWorthKeeping || rows.room() == 0) return noteTaken(page);
    setMember(page, true);
    remember(page, rows.room());
}

void PageRoom::forget() {
    m_roomOf.clear();
    m_byRoom.clear();
    m_last = 0;
    m_start = m_next;
    m_wrapped = m_allKnown = false;
}

// Learns the room of the next pages of the map, round in a circle.
void PageRoom::learnSome(size_t length) {
    std::vector<uint32_t> pages;
    while (pages.size() < pagesLearnt && !m_allKnown) {
        const uint32_t end = m_wrapped ? m_start : std::numeric_limits<uint32_t>::max();
        UsageMap(m_file, m_roomMap).forEach([&](uint32_t page) {
            if (page >= end) return false;
            if (page < m_next) return true;
            m_next = page + 1;
            if (!m_roomOf.contains(page)) pages.push_back(page);
            return pages.size() < pagesLearnt;
        });
        if (pages.size() == pagesLearnt) break;
        m_allKnown = m_wrapped;
        m_wrapped = true;
        m_next = m_allKnown ? m_start : 0;
    }
    for (const uint32_t page : pages) {
        const PagePtr bytes = m_file.page(page);
        const DataPageView rows = view(*bytes, page);
        if (rows.room() < length && (rows.freeBytes() < roomWorthKeeping || rows.room() == 0))
            setMember(page, false);
        else
            remember(page, rows.room());
    }
}

std::optional<uint32_t> PageRoom::find(size_t length) {
    if (const auto last = m_roomOf.find(m_last); last != m_roomOf.end()) {
        if (last->second >= length) return m_last;
        if (last->second < roomWorthKeeping) noteGone(m_last);
    }
    if (m_roomMap == 0) m_allKnown = true;
    for (bool learnt = false;; learnt = true) {
        const auto fullest = m_byRoom.lower_bound({length, 0});
        if (fullest != m_byRoom.end()) return m_last = fullest->second;
        if (learnt || m_allKnown) return std::nullopt;
        learnSome(length);
    }
}

}  // namespace jet
