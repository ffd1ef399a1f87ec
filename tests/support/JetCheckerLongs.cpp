// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/JetCheckerLongs.h"

#include <algorithm>

namespace jetcheck {

namespace {

constexpr unsigned ole = 11;
constexpr unsigned memo = 12;

class ColumnCheck {
  public:
    ColumnCheck(JetFile& file, const TableFacts& table, const ColumnFacts& column)
        : m_file(file), m_who(words(table.name, ".", column.name)) {
        for (const LongMap& map : table.longMaps) {
            if (map.number != column.number || map.owned == 0) continue;
            m_owned = file.mapAt(map.owned);
            if (map.room == 0) continue;
            for (unsigned page : file.mapAt(map.room))
                if (!m_owned.contains(page)) find(words("page ", page, " has room but is not owned"));
        }
    }

    void checkValue(Place place, const Bytes& head) {
        try {
            walk(place, head);
        } catch (const std::exception& e) {
            find(words("row ", place.first, "/", place.second, ": ", e.what()));
        }
    }

    // Slots that no value uses.
    void checkPages() {
        for (unsigned number : m_owned) {
            const Bytes page = m_file.page(number);
            if (page[0] != 1 || cut(page, 4, 8) != Bytes{'L', 'V', 'A', 'L'}) {
                find(words("page ", number, " holds no long values"));
                continue;
            }
            for (unsigned i = 0; i < le(page, 12, 2); ++i)
                if ((JetFile::slot(page, i) & 0xC000) != 0xC000 && !m_used.contains({number, i}))
                    find(words("the row ", number, "/", i, " belongs to no value"));
        }
    }

  private:
    void find(const std::string& what) { m_file.findings.push_back(m_who + ": " + what); }

    void walk(Place place, const Bytes& head) {
        const size_t length = le(head, 0, 4) & 0x3FFFFFFF;
        const unsigned kind = head.at(3) >> 6;
        if (kind & 2) {
            if (head.size() < 12 + length) find(words("row ", place.first, "/", place.second, " is cut"));
            return;
        }
        size_t got = 0;
        for (unsigned pointer = le(head, 4, 4); got < length;) {
            const Place at{pointer >> 8, pointer & 0xFF};
            if (!m_used.insert(at).second)
                throw Broken(words("the row ", at.first, "/", at.second, " is used twice"));
            if (!m_owned.contains(at.first)) throw Broken(words("page ", at.first, " is not in the map"));
            if ((JetFile::slot(m_file.page(at.first), at.second) & 0xC000) == 0xC000)
                throw Broken(words("the row ", at.first, "/", at.second, " is deleted"));
            const Bytes row = m_file.rowAt(at);
            got += kind == 1 ? row.size() : row.size() - 4;
            if (kind == 1) break;
            pointer = le(row, 0, 4);
        }
        if (got < length) throw Broken(words("only ", got, " of ", length, " bytes"));
    }

    JetFile& m_file;
    std::string m_who;
    PageSet m_owned;
    std::set<Place> m_used;
};

}  // namespace

void checkLongValues(JetFile& file, const TableFacts& table, const std::map<Place, Bytes>& rows) {
    for (const ColumnFacts& column : table.columns) {
        if (column.type != memo && column.type != ole) continue;
        ColumnCheck check(file, table, column);
        for (const auto& [place, row] : rows)
            if (const Stored value = storedValue(table, column, row)) check.checkValue(place, *value);
        // Other programs leave stale rows in the pages of their own tables.
        if (!table.name.starts_with("MSys")) check.checkPages();
    }
}

}  // namespace jetcheck
