// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/JetChecker.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>

#include "support/HotJournal.h"
#include "support/JetCheckerFile.h"
#include "support/JetCheckerKeys.h"
#include "support/JetCheckerLongs.h"

using namespace jetcheck;

namespace {

class Checker {
  public:
    explicit Checker(const std::string& path) : m_file(path) {
        if (hasHotJournal(path)) find("a hot journal was left beside the file");
    }

    std::vector<std::string> run() {
        try {
            checkFile();
        } catch (const std::exception& e) {
            find(words("the check broke off: ", e.what()));
        }
        return m_file.findings;
    }

  private:
    void find(std::string finding) { m_file.findings.push_back(std::move(finding)); }

    void checkFile() {
        for (size_t i = 0xE00; i < 0x1000; i += 2)
            if (le(m_file.content, i, 2) < 0x0100) find(words("commit counter at ", i, " is too low"));
        m_free = m_file.mapAt(0x100);
        checkEndOfFile();
        claim(0, "header");
        claim(1, "global map");
        for (const auto& [name, page] : m_file.localTables()) {
            try {
                checkTable(m_file.definition(page, name));
            } catch (const std::exception& e) {
                find(words(name, ": ", e.what()));
            }
        }
        for (unsigned page : m_mapPages)
            claim(page, "usage maps");
        for (const auto& [page, pointer] : m_file.bitmapPages)
            claim(page, words("map ", pointer));
        for (const auto& [page, who] : m_owner)
            if (m_free.contains(page)) find(words("page ", page, " is free but belongs to ", who));
    }

    void claim(unsigned n, const std::string& who) {
        if (n >= m_file.pageCount()) find(words("page ", n, " of ", who, " lies behind the end"));
        const auto [place, fresh] = m_owner.emplace(n, who);
        if (!fresh && place->second != who)
            find(words("page ", n, " belongs to ", place->second, " and ", who));
    }

    void checkEndOfFile() {
        const Bytes row = m_file.rowAt({1, 0});
        if (row[0] != 0) return;
        const unsigned reach = le(row, 1, 4) + static_cast<unsigned>(8 * (row.size() - 5));
        if (reach < m_file.pageCount())
            find(words("the global map ends at ", reach, " of ", m_file.pageCount(), " pages"));
    }

    void checkTable(const TableFacts& t) {
        for (unsigned n : t.pages)
            claim(n, words("definition of ", t.name));
        for (unsigned pointer : {t.owned, t.room})
            m_mapPages.insert(pointer >> 8);
        const PageSet owned = m_file.mapAt(t.owned);
        for (unsigned n : m_file.mapAt(t.room))
            if (!owned.contains(n)) find(words(t.name, ": page ", n, " has room but is not owned"));

        std::map<Place, Bytes> rows;
        PageSet bodies;  // places as numbers
        PageSet pointers;
        const auto key = [](Place place) { return place.first << 8 | place.second; };
        for (unsigned n : owned) {
            claim(n, words("rows of ", t.name));
            const Bytes p = m_file.page(n);
            if (!checkDataPage(t, n, p)) continue;
            for (unsigned i = 0; i < le(p, 12, 2); ++i) {
                const unsigned flags = m_file.slot(p, i) & 0xC000;
                if (flags == 0x8000) bodies.insert(key({n, i}));
                if (flags & 0x8000) continue;
                Bytes row = m_file.rowAt({n, i});
                if (flags & 0x4000) {
                    const Place body{le(row, 1, 3), row.at(0)};
                    if (!pointers.insert(key(body)).second) find(words(t.name, ": two rows share a body"));
                    row = m_file.rowAt(body);
                }
                rows[{n, i}] = row;
            }
        }
        if (pointers != bodies)
            find(words(t.name, ": ", pointers.size(), " moved rows, ", bodies.size(), " bodies"));
        for (const auto& [place, row] : rows)
            checkRow(t, place, row);
        const bool system = t.name.starts_with("MSys");
        if (!system && rows.size() != t.rows)
            find(words(t.name, ": ", rows.size(), " rows, the definition says ", t.rows));
        for (size_t i = 0; i < t.indexes.size(); ++i)
            checkIndex(t, i, rows);
        for (const LongMap& map : t.longMaps)
            for (unsigned pointer : {map.owned, map.room}) {
                if (pointer == 0) continue;
                m_mapPages.insert(pointer >> 8);
                for (unsigned n : m_file.mapAt(pointer))
                    claim(n, words("long values of ", t.name, " ", map.number));
            }
        checkLongValues(m_file, t, rows);
    }

    bool checkDataPage(const TableFacts& t, unsigned n, const Bytes& p) {
        if (p[0] != 1 || p[1] != 1 || le(p, 4, 4) != t.page) {
            find(words(t.name, ": page ", n, " holds no rows of this table"));
            return false;
        }
        const unsigned count = le(p, 12, 2);
        if (count > 255) find(words(t.name, ": page ", n, " has ", count, " slots"));
        unsigned last = 4096;
        for (unsigned i = 0; i < count; ++i) {
            const unsigned start = m_file.slot(p, i) & 0x1FFF;
            if (start > last) find(words(t.name, ": row ", n, "/", i, " begins behind the one before"));
            if (m_file.slot(p, i) & 0x2000) find(words(t.name, ": row ", n, "/", i, " has an unknown flag"));
            last = start;
        }
        if (last < 14 + 2 * count || le(p, 2, 2) != last - 14 - 2 * count)
            find(words(t.name, ": page ", n, " says ", le(p, 2, 2), " free bytes"));
        return true;
    }

    void checkRow(const TableFacts& t, Place place, const Bytes& row) {
        const std::string where = words(t.name, ": row ", place.first, "/", place.second);
        const unsigned columns = le(row, 0, 2);
        if (columns > t.maxColumns) return find(where + " has too many columns");
        const size_t mask = row.size() - (columns + 7) / 8;
        size_t fixedEnd = mask;
        if (t.variables > 0) {
            const unsigned count = le(row, mask - 2, 2);
            if (count > t.variables) return find(where + " has too many variable columns");
            const size_t list = mask - 2 - 2 * (size_t{count} + 1);
            unsigned last = 2;
            for (unsigned k = 0; k <= count; ++k) {
                const unsigned offset = le(row, mask - 4 - 2 * size_t{k}, 2);
                if (offset < last) return find(where + " has falling offsets");
                last = offset;
            }
            // Other programs leave dead bytes between data and offsets.
            if (last > list) return find(where + " has data in its offsets");
            fixedEnd = le(row, mask - 4, 2);
        }
        for (const ColumnFacts& c : t.columns)
            if ((c.flags & 1) && c.type != 1 && c.number < columns && 2 + c.offset >= fixedEnd)
                find(where + " is too short for column " + c.name);
    }

    // Collects the pages of each level from left to right; returns the greatest entry below.
    Bytes walk(const TableFacts& t, unsigned n, unsigned depth, std::vector<std::vector<IndexNode>>& levels,
               PageSet& pages) {
        if (!pages.insert(n).second || depth > 30) throw Broken(words("index page ", n, " is met twice"));
        const IndexNode node = m_file.indexNode(t, n);
        if (levels.size() <= depth) levels.resize(depth + 1);
        levels[depth].push_back(node);
        if (node.kind == 4) return node.entries.empty() ? Bytes() : node.entries.back().whole;
        for (const Entry& e : node.entries) {
            const Bytes greatest = walk(t, e.child, depth + 1, levels, pages);
            if (greatest != e.whole)
                find(words(t.name, ": node ", n, " does not hold the greatest entry below page ", e.child));
        }
        return walk(t, node.tail, depth + 1, levels, pages);
    }

    void checkIndex(const TableFacts& t, size_t i, const std::map<Place, Bytes>& rows) {
        const IndexFacts& index = t.indexes[i];
        const std::string who = words("index ", i, " of ", t.name);
        std::vector<std::vector<IndexNode>> levels;
        PageSet pages;
        walk(t, index.root, 0, levels, pages);
        for (size_t depth = 0; depth < levels.size(); ++depth) {
            const auto& level = levels[depth];
            const bool leaves = depth + 1 == levels.size();
            for (size_t k = 0; k < level.size(); ++k) {
                if ((level[k].kind == 4) != leaves) find(who + ": leaves at different depths");
                if (level[k].previous != (k == 0 ? 0 : level[k - 1].number) ||
                    level[k].next != (k + 1 < level.size() ? level[k + 1].number : 0))
                    find(words(who, ": the chain is broken at page ", level[k].number));
                // Some writers leave 0 in nodes.
                if (level[k].level != 0 && level[k].level != levels.size() - 1 - depth)
                    find(words(who, ": page ", level[k].number, " says level ", level[k].level));
            }
        }
        if (index.map != 0) {
            m_mapPages.insert(index.map >> 8);
            if (m_file.mapAt(index.map) != pages) find(who + ": its map does not hold just its pages");
        }
        for (unsigned n : pages)
            claim(n, who);

        std::vector<Entry> entries;
        for (const IndexNode& leaf : levels.back())
            entries.insert(entries.end(), leaf.entries.begin(), leaf.entries.end());
        std::set<Place> listed;
        for (size_t k = 0; k < entries.size(); ++k) {
            if (k > 0 && entries[k - 1].whole >= entries[k].whole) find(who + ": entries do not rise");
            const auto row = rows.find(entries[k].row);
            const bool hasNull = row == rows.end() || anyNull(t, index, row->second);
            if ((index.flags & 1) && !hasNull && k > 0 && entries[k - 1].key == entries[k].key)
                find(who + ": a key stands twice");
            if ((index.flags & 8) && hasNull) find(who + ": a required key is Null");
            listed.insert(entries[k].row);
            if (!rows.contains(entries[k].row))
                find(words(who, ": entry for row ", entries[k].row.first, "/", entries[k].row.second,
                           " that is not there"));
        }
        for (const auto& [place, row] : rows) {
            const bool hidden = (index.flags & 2) && allNull(t, index, row);
            if (listed.contains(place) == hidden)
                find(words(who, ": row ", place.first, "/", place.second,
                           hidden ? " is listed" : " is missing"));
        }
        checkKeys(t, index, who, rows, entries);
    }

    static const ColumnFacts* columnOf(const TableFacts& t, unsigned number) {
        for (const ColumnFacts& c : t.columns)
            if (c.number == number) return &c;
        return nullptr;
    }

    static bool anyNull(const TableFacts& t, const IndexFacts& index, const Bytes& row) {
        return std::any_of(index.columns.begin(), index.columns.end(), [&](const auto& part) {
            const ColumnFacts* c = columnOf(t, part.first);
            return c && c->type != 1 && !storedValue(t, *c, row);
        });
    }

    static bool allNull(const TableFacts& t, const IndexFacts& index, const Bytes& row) {
        return std::all_of(index.columns.begin(), index.columns.end(), [&](const auto& part) {
            const ColumnFacts* c = columnOf(t, part.first);
            return !c || (c->type != 1 && !storedValue(t, *c, row));
        });
    }

    // Keys are the values of the index's columns, one after the other.
    void checkKeys(const TableFacts& t, const IndexFacts& index, const std::string& who,
                   const std::map<Place, Bytes>& rows, const std::vector<Entry>& entries) {
        for (const Entry& e : entries) {
            const auto row = rows.find(e.row);
            if (row == rows.end()) continue;
            std::vector<Bytes> keys{Bytes()};
            for (const auto& [number, ascending] : index.columns) {
                const ColumnFacts* c = columnOf(t, number);
                if (!c) return find(who + ": its column is not there");
                const auto forms = keyForms(c->type, ascending, storedValue(t, *c, row->second));
                std::vector<Bytes> longer;
                for (const Bytes& key : keys)
                    for (const Bytes& form : forms) {
                        longer.push_back(key);
                        longer.back().insert(longer.back().end(), form.begin(), form.end());
                    }
                keys = longer;
            }
            if (!keys.empty() && std::find(keys.begin(), keys.end(), e.key) == keys.end())
                find(words(who, ": row ", e.row.first, "/", e.row.second, " has another key"));
        }
    }

    JetFile m_file;
    PageSet m_free;
    PageSet m_mapPages;
    std::map<unsigned, std::string> m_owner;
};

}  // namespace

std::vector<std::string> checkJetFile(const std::string& path) {
    try {
        return Checker(path).run();
    } catch (const Broken& e) {
        return {e.what()};
    }
}
