// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/StatementRules.h"

#include <algorithm>
#include <bit>
#include <span>
#include <utility>

#include "platform/jet/DataPages.h"
#include "platform/jet/Failure.h"
#include "platform/jet/IndexPage.h"

namespace jet {

namespace {

constexpr size_t deepestPath = 20;

bool isIndexPage(const Page& page) {
    return page[0] == NodePage || page[0] == LeafPage;
}

// P1, P5; a pointer of P3 has its four bytes.
bool rowPageHolds(const Page& page, uint32_t number) {
    const DataPageView rows(page, number);
    if (rows.freeBytes() != load16(&page[data::freeBytes])) return false;
    for (size_t slot = 0; slot < rows.count(); ++slot) {
        const size_t length = rows.bytes(slot).size();
        if (rows.flags(slot) == data::pointer && length < 4) return false;
    }
    return rows.count() < data::maxSlots || !rows.isEmpty();
}

/// First and last entry of an index page, without the rest: most pages are asked for no more.
class Edges {
  public:
    Edges(const Page& page, uint32_t number, uint32_t owner)
        : leaf(page[0] == LeafPage), tail(load32(&page[index::tail])) {
        if (!isIndexPage(page) || load32(&page[index::owner]) != owner)
            failDamaged("manca la pagina %1"_tr, number);
        const uint8_t* entries = &page[index::entries];
        const size_t end = endBefore(page, bits);
        if (end == 0) return;
        const size_t firstEnd = firstEndOf(page);
        const size_t start = end == firstEnd ? 0 : endBefore(page, end);
        const size_t shared = start == 0 ? 0 : load16(&page[index::prefix]);
        const size_t least = index::rowIdLength + (leaf ? 0 : index::childLength);
        if (end > index::room || shared > firstEnd || firstEnd < least || shared + end - start < least)
            failDamaged("la pagina di indice %1 non è leggibile"_tr, number);
        first.assign(entries, entries + firstEnd);
        last.assign(entries, entries + shared);
        last.insert(last.end(), entries + start, entries + end);
        if (leaf) return;
        first.resize(first.size() - index::childLength);
        last.resize(last.size() - index::childLength);
    }

    bool leaf;
    uint32_t tail;
    Bytes first;  ///< key and row id; empty where there is no entry
    Bytes last;

    /// Bytes that the entries of a page take.
    static size_t stored(const Page& page) { return endBefore(page, bits); }

  private:
    static constexpr size_t bits = 8 * (index::entries - index::mask);

    static size_t firstEndOf(const Page& page) {
        const uint8_t* mask = &page[index::mask];
        const uint8_t* byte =
            std::find_if(mask, &page[index::entries], [](uint8_t some) { return some != 0; });
        return static_cast<size_t>(8 * (byte - mask)) + static_cast<size_t>(std::countr_zero(*byte));
    }
    // The last end below `limit`; 0 where there is none.
    static size_t endBefore(const Page& page, size_t limit) {
        const uint8_t* mask = &page[index::mask];
        for (size_t byte = (limit + 7) / 8; byte-- > 0;) {
            const size_t below = std::min<size_t>(limit - 8 * byte, 8);
            const unsigned rest = mask[byte] & ((1u << below) - 1);
            if (rest != 0) return 8 * byte + static_cast<size_t>(std::bit_width(rest)) - 1;
        }
        return 0;
    }
};

// T1 within a page, and its free field.
bool indexPageHolds(const Page& bytes, const IndexPage& page) {
    for (size_t i = 1; i < page.count(); ++i)
        if (compareEntries(page.keyAndRow(i - 1), page.keyAndRow(i)) >= 0) return false;
    return load16(&bytes[index::freeBytes]) == index::room - Edges::stored(bytes);
}

/// The table's pages before the statement or after it.
class View {
  public:
    enum class Moment { Before, After };

    View(PageFile& file, const TableDefinition& definition, Moment moment)
        : m_file(file), m_definition(definition), m_moment(moment) {}

    bool holds() const {
        try {
            return std::all_of(m_file.touched().begin(), m_file.touched().end(), [&](const auto& touched) {
                const bool known =
                    m_moment == Moment::Before && m_file.wasSound(touched.first, m_definition.page);
                return known || holds(touched.first);
            });
        } catch (const Failure&) {
            return false;
        }
    }
    /// The touched pages and the pages beside them, looked for by their first and their last entry. What the
    /// tree says of those decides where a key goes, though the statement changes none of it.
    bool surroundingsHold() const {
        try {
            return std::all_of(m_file.touched().begin(), m_file.touched().end(), [&](const auto& touched) {
                return holds(touched.first) && neighboursHold(touched.first);
            });
        } catch (const Failure&) {
            return false;
        }
    }
    /// P3: as many as these there are of pointers more than of bodies on the pages that were touched.
    int pointersWithoutBody() const {
        int count = 0;
        for (const auto& [number, before] : m_file.touched()) {
            const PagePtr bytes = find(number);
            if (!bytes || !isRowPage(*bytes)) continue;
            const DataPageView rows(*bytes, number);
            for (size_t slot = 0; slot < rows.count(); ++slot)
                count += (rows.flags(slot) == data::pointer) - (rows.flags(slot) == data::notARow);
        }
        return count;
    }

  private:
    bool isRowPage(const Page& page) const {
        return page[0] == DataPage && load32(&page[data::owner]) == m_definition.page;
    }
    PagePtr find(uint32_t number) const {
        if (m_moment == Moment::Before)
            if (const auto touched = m_file.touched().find(number); touched != m_file.touched().end())
                return touched->second;
        return number < m_file.pageCount() ? m_file.page(number) : PagePtr();
    }
    IndexPage indexPage(uint32_t number) const {
        const PagePtr bytes = find(number);
        if (!bytes) failDamaged("manca la pagina %1"_tr, number);
        return {*bytes, number, m_definition.page};
    }

    Edges edges(uint32_t number) const {
        const PagePtr bytes = find(number);
        if (!bytes) failDamaged("manca la pagina %1"_tr, number);
        return {*bytes, number, m_definition.page};
    }

    bool holds(uint32_t number) const {
        const PagePtr bytes = find(number);
        if (!bytes) return true;
        if (isRowPage(*bytes)) return rowPageHolds(*bytes, number);
        if (!isIndexPage(*bytes) || load32(&(*bytes)[index::owner]) != m_definition.page) return true;
        const IndexPage page(*bytes, number, m_definition.page);
        return indexPageHolds(*bytes, page) && chained(number, page) && listed(number) &&
               (page.leaf || listsItsChildren(page));
    }
    // T3, and T1 from one page to the next.
    bool chained(uint32_t number, const IndexPage& page) const {
        const auto inOrder = [&](uint32_t left, uint32_t right) {
            const Edges one = edges(left);
            const Edges other = edges(right);
            return one.leaf == other.leaf &&
                   (one.last.empty() || other.first.empty() || compareEntries(one.last, other.first) < 0);
        };
        const auto link = [&](uint32_t at, size_t field) { return load32(&(*find(at))[field]); };
        return (page.next == 0 ||
                (inOrder(number, page.next) && link(page.next, index::previous) == number)) &&
               (page.previous == 0 ||
                (inOrder(page.previous, number) && link(page.previous, index::next) == number));
    }
    // T2 and T4: one of the table's indexes has the page, as its root or where its entries say.
    bool listed(uint32_t number) const {
        const Bytes greatest = greatestBelow(number);
        return isFound(number, greatest,
                       [&](std::span<const uint8_t> entry) { return compareEntries(entry, greatest) == 0; });
    }
    bool neighboursHold(uint32_t number) const {
        const PagePtr bytes = find(number);
        if (!bytes || !isIndexPage(*bytes) || load32(&(*bytes)[index::owner]) != m_definition.page)
            return true;
        const IndexPage page(*bytes, number, m_definition.page);
        const auto inItsPlace = [&](uint32_t one) {
            if (one == 0) return true;
            const Bytes first = edges(one).first;
            const auto any = [](std::span<const uint8_t>) { return true; };
            return listed(one) && (first.empty() || isFound(one, first, any));
        };
        return inItsPlace(page.previous) && inItsPlace(number) && inItsPlace(page.next);
    }
    // Whether the search for a key in one of the indexes comes to the page, by an entry that fits.
    template <class Fits>
    bool isFound(uint32_t number, const Bytes& key, Fits fits) const {
        return std::any_of(m_definition.indexes.begin(), m_definition.indexes.end(), [&](const Index& index) {
            uint32_t at = index.rootPage;
            for (size_t depth = 0; depth < deepestPath && at != number; ++depth) {
                const IndexPage page = indexPage(at);
                if (page.leaf) return false;
                const size_t child = page.lowerBound(key);
                at = page.child(child);
                if (at == number && child < page.count()) return fits(page.keyAndRow(child));
            }
            return at == number;
        });
    }
    bool listsItsChildren(const IndexPage& page) const {
        for (size_t i = 0; i < page.count(); ++i)
            if (compareEntries(page.keyAndRow(i), greatestBelow(page.child(i))) != 0) return false;
        return true;
    }
    Bytes greatestBelow(uint32_t number) const {
        for (size_t depth = 0; depth < deepestPath; ++depth) {
            Edges page = edges(number);
            if (page.leaf) return std::move(page.last);
            number = page.tail;
        }
        failDamaged("un indice gira in tondo"_tr);
    }

    PageFile& m_file;
    const TableDefinition& m_definition;
    Moment m_moment;
};

}  // namespace

bool keepsRules(PageFile& file, const TableDefinition& definition) {
    const View before(file, definition, View::Moment::Before);
    if (file.touchedInDoubt() || !before.holds()) {
        file.forgetSound();
        return true;
    }
    const View after(file, definition, View::Moment::After);
    if (!after.holds() || after.pointersWithoutBody() != before.pointersWithoutBody()) {
        if (before.surroundingsHold()) return false;
        file.forgetSound();
        return true;
    }
    file.noteSound(definition.page);
    return true;
}

}  // namespace jet
