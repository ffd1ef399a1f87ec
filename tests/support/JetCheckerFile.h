// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The reader of a Jet file's bytes for JetChecker, independent of the engine. A contradiction after which
// reading can continue goes to `findings`; the rest throws Broken.

#include <map>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

namespace jetcheck {

using Bytes = std::vector<unsigned char>;
using Place = std::pair<unsigned, unsigned>;  // page, slot
using PageSet = std::set<unsigned>;

struct Broken : std::runtime_error {
    using std::runtime_error::runtime_error;
};

template <class... Parts>
std::string words(const Parts&... parts) {
    std::string text;
    const auto add = [&text](const auto& part) {
        if constexpr (std::is_arithmetic_v<std::decay_t<decltype(part)>>)
            text += std::to_string(part);
        else
            text += part;
    };
    (add(parts), ...);
    return text;
}

/// Little and big endian numbers of `length` bytes.
unsigned le(const Bytes& b, size_t at, int length);
unsigned be(const Bytes& b, size_t at, int length);
Bytes cut(const Bytes& b, size_t from, size_t to);

struct ColumnFacts {
    unsigned type, number, variable, flags, offset, length;
    std::string name;
};

struct IndexFacts {
    std::vector<std::pair<unsigned, bool>> columns;  // number, ascending
    unsigned map, root, flags;
};

/// Pages with the memo or OLE values of a column.
struct LongMap {
    unsigned number, owned, room;
};

struct TableFacts {
    std::string name;
    unsigned page = 0, rows = 0, maxColumns = 0, variables = 0, owned = 0, room = 0;
    std::vector<unsigned> pages;
    std::vector<ColumnFacts> columns;
    std::vector<IndexFacts> indexes;
    std::vector<LongMap> longMaps;
};

/// A value as stored in a row; no value is Null. Yes/no: True is empty.
using Stored = std::optional<Bytes>;
Stored storedValue(const TableFacts& table, const ColumnFacts& column, const Bytes& row);

struct Entry {
    Bytes key;
    Place row;
    unsigned child = 0;
    Bytes whole;  // key and row
};

struct IndexNode {
    unsigned number, kind, previous, next, tail, level;
    std::vector<Entry> entries;
};

struct JetFile {
    /// Throws Broken if it is no Jet 4 file.
    explicit JetFile(const std::string& path);

    unsigned pageCount() const { return static_cast<unsigned>(content.size() / 4096); }
    Bytes page(unsigned n) const;
    static unsigned slot(const Bytes& p, unsigned i) { return le(p, 14 + 2 * i, 2); }
    Bytes rowAt(Place place) const;
    PageSet mapAt(unsigned pointer);
    TableFacts definition(unsigned first, const std::string& name);
    /// Name and definition page of each local table.
    std::vector<std::pair<std::string, unsigned>> localTables();
    IndexNode indexNode(const TableFacts& t, unsigned n);

    Bytes content;  ///< with page 0 unmasked
    unsigned pageKey = 0;
    std::map<unsigned, unsigned> bitmapPages;  ///< pages of maps read so far, with the map's pointer
    std::vector<std::string> findings;
};

}  // namespace jetcheck
