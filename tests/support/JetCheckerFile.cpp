// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/JetCheckerFile.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>

namespace jetcheck {

unsigned le(const Bytes& b, size_t at, int length) {
    if (at + static_cast<size_t>(length) > b.size()) throw Broken(words("read behind ", b.size(), " bytes"));
    unsigned value = 0;
    for (int i = length; i-- > 0;)
        value = value << 8 | b[at + static_cast<size_t>(i)];
    return value;
}

unsigned be(const Bytes& b, size_t at, int length) {
    unsigned value = 0;
    for (int i = 0; i < length; ++i)
        value = value << 8 | b.at(at + static_cast<size_t>(i));
    return value;
}

Bytes cut(const Bytes& b, size_t from, size_t to) {
    if (from > to || to > b.size()) throw Broken(words("bytes ", from, " to ", to, " of ", b.size()));
    return {b.begin() + static_cast<long>(from), b.begin() + static_cast<long>(to)};
}

static void cipher(Bytes& data, size_t from, size_t length, const Bytes& key) {
    unsigned char s[256];
    for (unsigned i = 0; i < 256; ++i)
        s[i] = static_cast<unsigned char>(i);
    for (unsigned i = 0, j = 0; i < 256; ++i) {
        j = (j + s[i] + key[i % key.size()]) % 256;
        std::swap(s[i], s[j]);
    }
    unsigned a = 0;
    unsigned b = 0;
    for (size_t n = from; n < from + length; ++n) {
        a = (a + 1) % 256;
        b = (b + s[a]) % 256;
        std::swap(s[a], s[b]);
        data[n] ^= s[(s[a] + s[b]) % 256];
    }
}

JetFile::JetFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    content.assign(std::istreambuf_iterator<char>(in), {});
    if (content.size() < size_t{6} * 4096 || content.size() % 4096 != 0)
        throw Broken("the length is no number of pages");
    if (std::memcmp(&content[4], "Standard Jet DB", 16) != 0 || le(content, 0x14, 4) != 1)
        throw Broken("not a Jet 4 file");
    cipher(content, 0x18, 128, {0xC7, 0xDA, 0x39, 0x6B});
    pageKey = le(content, 0x3E, 4);
}

Bytes JetFile::page(unsigned n) const {
    if (n >= pageCount()) throw Broken(words("page ", n, " lies behind the end"));
    Bytes bytes = cut(content, n * size_t{4096}, (n + 1) * size_t{4096});
    if (pageKey != 0 && n != 0) {
        const unsigned key = pageKey ^ n;
        Bytes keyBytes;
        for (int i = 0; i < 4; ++i)
            keyBytes.push_back(static_cast<unsigned char>(key >> 8 * i));
        cipher(bytes, 0, 4096, keyBytes);
    }
    return bytes;
}

Bytes JetFile::rowAt(Place place) const {
    const Bytes p = page(place.first);
    if (p[0] != 1 || place.second >= le(p, 12, 2))
        throw Broken(words("no row ", place.first, "/", place.second));
    const unsigned raw = slot(p, place.second);
    return cut(p, raw & 0x1FFF, place.second == 0 ? 4096 : slot(p, place.second - 1) & 0x1FFF);
}

static void addBits(PageSet& pages, const Bytes& bits, size_t from, unsigned first) {
    for (size_t i = from; i < bits.size(); ++i)
        for (unsigned b = 0; b < 8; ++b)
            if (bits[i] >> b & 1) pages.insert(first + static_cast<unsigned>(8 * (i - from)) + b);
}

PageSet JetFile::mapAt(unsigned pointer) {
    const Bytes row = rowAt({pointer >> 8, pointer & 0xFF});
    PageSet pages;
    if (row.at(0) == 0) {
        if (le(row, 1, 4) % 8 != 0)
            findings.push_back(words("map ", pointer, " does not begin at a multiple of 8"));
        addBits(pages, row, 5, le(row, 1, 4));
        return pages;
    }
    if (row[0] != 1) throw Broken(words("map ", pointer, " has form ", int(row[0])));
    for (unsigned k = 0; k < 16 && 5 + 4 * k <= row.size(); ++k) {  // what follows may be rubbish
        const unsigned number = le(row, 1 + 4 * k, 4);
        if (number == 0) continue;
        const Bytes bits = page(number);
        if (bits[0] != 5) findings.push_back(words("page ", number, " of a map is of type ", int(bits[0])));
        bitmapPages[number] = pointer;
        addBits(pages, bits, 4, k * 4092 * 8);
    }
    return pages;
}

static std::string ascii(const Bytes& utf16) {
    std::string text;
    for (size_t i = 0; i + 1 < utf16.size(); i += 2)
        text += utf16[i + 1] == 0 && utf16[i] < 128 ? static_cast<char>(utf16[i]) : '?';
    return text;
}

TableFacts JetFile::definition(unsigned first, const std::string& name) {
    TableFacts t;
    t.name = name;
    t.page = first;
    Bytes b;
    for (unsigned n = first; n != 0 || b.empty();) {
        const Bytes p = page(n);
        if (p[0] != 2) throw Broken(words("page ", n, " is no definition"));
        if (t.pages.size() > 100) throw Broken("the definition does not end");
        b.insert(b.end(), p.begin() + (b.empty() ? 0 : 8), p.end());
        t.pages.push_back(n);
        n = le(p, 4, 4);
    }
    t.rows = le(b, 16, 4);
    t.maxColumns = le(b, 41, 2);
    t.variables = le(b, 43, 2);
    t.owned = le(b, 55, 4);
    t.room = le(b, 59, 4);
    const unsigned logicals = le(b, 47, 4);
    const unsigned reals = le(b, 51, 4);
    size_t at = 63 + 12 * size_t{reals};
    for (unsigned i = 0; i < le(b, 45, 2); ++i, at += 25)
        t.columns.push_back({b.at(at),
                             le(b, at + 5, 2),
                             le(b, at + 7, 2),
                             b.at(at + 15),
                             le(b, at + 21, 2),
                             le(b, at + 23, 2),
                             {}});
    for (ColumnFacts& column : t.columns) {
        const unsigned length = le(b, at, 2);
        column.name = ascii(cut(b, at + 2, at + 2 + length));
        at += 2 + length;
    }
    for (unsigned i = 0; i < reals; ++i, at += 52) {
        IndexFacts index{{}, le(b, at + 34, 4), le(b, at + 38, 4), b.at(at + 46)};
        for (size_t k = at + 4; k < at + 34; k += 3)
            if (le(b, k, 2) != 0xFFFF) index.columns.emplace_back(le(b, k, 2), b[k + 2] != 0);
        t.indexes.push_back(index);
    }
    at += 28 * size_t{logicals};
    for (unsigned i = 0; i < logicals; ++i)
        at += 2 + le(b, at, 2);
    for (; le(b, at, 2) != 0xFFFF; at += 10)
        t.longMaps.push_back({le(b, at, 2), le(b, at + 2, 4), le(b, at + 6, 4)});
    if (le(b, 8, 4) != at + 2)
        findings.push_back(words(name, ": definition of ", at + 2, " bytes says ", le(b, 8, 4)));
    return t;
}

std::vector<std::pair<std::string, unsigned>> JetFile::localTables() {
    const TableFacts catalog = definition(2, "MSysObjects");
    const auto column = [&](const char* name) {
        for (const ColumnFacts& c : catalog.columns)
            if (c.name == name) return c;
        throw Broken(words("the catalogue has no column ", name));
    };
    const ColumnFacts id = column("Id");
    const ColumnFacts type = column("Type");
    const ColumnFacts name = column("Name");
    std::vector<std::pair<std::string, unsigned>> tables;
    for (unsigned n : mapAt(catalog.owned)) {
        const Bytes p = page(n);
        for (unsigned i = 0; i < le(p, 12, 2); ++i) {
            if (slot(p, i) & 0x8000) continue;
            Bytes row = rowAt({n, i});
            if (slot(p, i) & 0x4000) row = rowAt({le(row, 1, 3), row.at(0)});
            if (le(row, 2 + type.offset, 2) != 1) continue;
            const size_t mask = row.size() - (le(row, 0, 2) + 7) / 8;
            const size_t entry = mask - 4 - 2 * size_t{name.variable};
            tables.emplace_back(ascii(cut(row, le(row, entry, 2), le(row, entry - 2, 2))),
                                le(row, 2 + id.offset, 3));
        }
    }
    return tables;
}

Stored storedValue(const TableFacts& table, const ColumnFacts& column, const Bytes& row) {
    const unsigned columns = le(row, 0, 2);
    const size_t mask = row.size() - (columns + 7) / 8;
    if (column.number >= columns || !(row.at(mask + column.number / 8) >> column.number % 8 & 1))
        return std::nullopt;
    constexpr unsigned yesNo = 1;
    if (column.type == yesNo) return Bytes();
    if (column.flags & 1) {
        const size_t start = 2 + size_t{column.offset};
        return cut(row, start, start + column.length);
    }
    if (table.variables == 0 || column.variable >= le(row, mask - 2, 2)) return std::nullopt;
    const size_t entry = mask - 4 - 2 * size_t{column.variable};
    return cut(row, le(row, entry, 2), le(row, entry - 2, 2));
}

IndexNode JetFile::indexNode(const TableFacts& t, unsigned n) {
    const Bytes p = page(n);
    if ((p[0] != 3 && p[0] != 4) || le(p, 4, 4) != t.page)
        throw Broken(words("page ", n, " is of no index of it"));
    IndexNode node{n, p[0], le(p, 12, 4), le(p, 16, 4), le(p, 20, 4), p[26], {}};
    const unsigned prefix = le(p, 24, 2);
    unsigned start = 0;
    Bytes first;
    for (unsigned bit = 0; bit < 453 * 8; ++bit) {
        if (!(p[27 + bit / 8] >> bit % 8 & 1)) continue;
        Bytes whole = cut(p, 480 + start, 480 + bit);
        if (start == 0)
            first = whole;
        else
            whole.insert(whole.begin(), first.begin(),
                         first.begin() + std::min<long>(prefix, static_cast<long>(first.size())));
        start = bit;
        Entry e;
        if (node.kind == 3) {
            e.child = be(whole, whole.size() - 4, 4);
            whole.resize(whole.size() - 4);
        }
        e.row = {be(whole, whole.size() - 4, 3), whole.back()};
        e.key = cut(whole, 0, whole.size() - 4);
        e.whole = std::move(whole);
        node.entries.push_back(std::move(e));
    }
    if (le(p, 2, 2) != 3616 - start)
        findings.push_back(words(t.name, ": index page ", n, " says ", le(p, 2, 2), " free bytes"));
    if (node.kind == 4 && node.tail != 0) findings.push_back(words(t.name, ": leaf ", n, " has a tail"));
    if (node.kind == 3 && node.tail == 0) findings.push_back(words(t.name, ": node ", n, " has no tail"));
    return node;
}

}  // namespace jetcheck
