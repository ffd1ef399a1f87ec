// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <optional>
#include <set>
#include <utility>

#include "platform/jet/DataPages.h"
#include "platform/jet/PageFile.h"

namespace jet {

/// The pages of one owner that have room for rows: the map in the file, and how much room they have as far as
/// that is known. It is learnt from some pages at a time, whenever no known one fits, so that one row in a
/// large file does not read all of them; once all are known no page is added while another one fits. Members
/// throw Failure.
class PageRoom {
  public:
    /// `roomMap` may be 0: then only pages that are reported by noteNew() are known. `owner` is on each of
    /// the pages.
    PageRoom(PageFile& file, uint32_t roomMap, uint32_t owner)
        : m_file(file), m_roomMap(roomMap), m_owner(owner) {}

    /// A page that takes a row of that length: the last one, else the fullest that is known to.
    std::optional<uint32_t> find(size_t length);
    /// After a row was put on the page, or has changed there.
    void noteTaken(uint32_t page);
    /// After a row of the page has gone or shrunk. The page returns to the map if that is worth while.
    void noteFreed(uint32_t page);
    /// A new page of the owner.
    void noteNew(uint32_t page);
    /// The page does not belong to the owner any more.
    void noteGone(uint32_t page);
    /// Drops what is known, after pages were changed by somebody else.
    void forget();

  private:
    DataPageView view(const Page& page, uint32_t number) const;
    void setMember(uint32_t page, bool member);
    void remember(uint32_t page, size_t room);
    void learnSome(size_t length);

    PageFile& m_file;
    uint32_t m_roomMap;
    uint32_t m_owner;
    uint32_t m_last = 0;                             ///< took the last row; tried first
    std::map<uint32_t, size_t> m_roomOf;             ///< by page
    std::set<std::pair<size_t, uint32_t>> m_byRoom;  ///< the same
    uint32_t m_start = 0;                            ///< where learning began; it ends there
    uint32_t m_next = 0;                             ///< page at which it continues
    bool m_wrapped = false;
    bool m_allKnown = false;
};

}  // namespace jet
