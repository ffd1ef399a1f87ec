#include "platform/jet/StatementRules.h"

#include <algorithm>
#include <optional>

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

// T1 within a page, and its free field.
bool indexPageHolds(const Page& bytes, const IndexPage& page) {
    for (size_t i = 1; i < page.count(); ++i)
        if (compareEntries(page.keyAndRow(i - 1), page.keyAndRow(i)) >= 0) return false;
    size_t stored = 0;
    for (size_t bit = 0; bit < 8 * (index::entries - index::mask); ++bit)
        if (bytes[index::mask + bit / 8] >> bit % 8 & 1) stored = bit;
    return load16(&bytes[index::freeBytes]) == index::room - stored;
}

/// The table's pages before the statement or after it.
class View {
  public:
    enum class Moment { Before, After };

    View(PageFile& file, const TableDefinition& definition, Moment moment)
        : m_file(file), m_definition(definition), m_moment(moment) {}

    bool holds() const {
        try {
            return std::all_of(m_file.touched().begin(), m_file.touched().end(),
                               [&](const auto& touched) { return holds(touched.first); });
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
        if (!bytes) failDamaged("manca la pagina ", number);
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
        const auto inOrder = [&](const IndexPage& left, const IndexPage& right) {
            return left.leaf == right.leaf &&
                   (left.count() == 0 || right.count() == 0 ||
                    compareEntries(left.keyAndRow(left.count() - 1), right.keyAndRow(0)) < 0);
        };
        if (page.next != 0) {
            const IndexPage next = indexPage(page.next);
            if (next.previous != number || !inOrder(page, next)) return false;
        }
        if (page.previous == 0) return true;
        const IndexPage previous = indexPage(page.previous);
        return previous.next == number && inOrder(previous, page);
    }
    // T2 and T4: one of the table's indexes has the page, as its root or where its entries say.
    bool listed(uint32_t number) const {
        const Bytes wanted = greatestBelow(number);
        return std::any_of(m_definition.indexes.begin(), m_definition.indexes.end(), [&](const Index& index) {
            uint32_t at = index.rootPage;
            for (size_t depth = 0; depth < deepestPath && at != number; ++depth) {
                const IndexPage page = indexPage(at);
                if (page.leaf) return false;
                const size_t child = page.lowerBound(wanted);
                at = page.child(child);
                if (at == number && child < page.count())
                    return compareEntries(page.keyAndRow(child), wanted) == 0;
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
            const IndexPage page = indexPage(number);
            if (page.leaf && page.count() == 0) return {};
            if (page.leaf) {
                const auto last = page.keyAndRow(page.count() - 1);
                return {last.begin(), last.end()};
            }
            number = page.tail;
        }
        failDamaged("un indice gira in tondo");
    }

    PageFile& m_file;
    const TableDefinition& m_definition;
    Moment m_moment;
};

}  // namespace

bool keepsRules(PageFile& file, const TableDefinition& definition) {
    if (file.touchedInDoubt()) return true;
    const View before(file, definition, View::Moment::Before);
    if (!before.holds()) return true;
    const View after(file, definition, View::Moment::After);
    return after.holds() && after.pointersWithoutBody() == before.pointersWithoutBody();
}

}  // namespace jet
