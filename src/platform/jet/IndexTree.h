// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

#include "platform/jet/Database.h"
#include "platform/jet/IndexPage.h"
#include "platform/jet/PageFile.h"

namespace jet {

/// One index of a table as a tree of pages over whole keys. It does not know how a key is made of values.
/// Members throw Failure.
///
/// Rules that every change keeps:
///   T1 entries rise strictly, by key and row id, over the whole index
///   T2 a node lists each child but the last with the greatest entry below it; the last child is its tail
///   T3 pages of one level are chained in order, both ways
///   T4 the root keeps its page number: when it is full, its content goes to new pages below it, and when
///      only a tail is left, that child's content moves into the root
///   T5 the index's map contains just the pages of the tree
///   T7 a leaf that becomes less than half full joins a neighbour below the same node, when both leave room
///   on one page
class IndexTree {
  public:
    IndexTree(PageFile& file, const TableDefinition& definition, const Index& index)
        : m_file(file), m_definition(definition), m_index(index) {}

    /// Row of the first entry with exactly that key.
    std::optional<RowId> find(std::span<const uint8_t> key) const;
    /// Rows of all entries whose key begins so; nothing where there are more than `most`.
    std::optional<std::vector<RowId>> rowsFrom(std::span<const uint8_t> start, size_t most) const;
    /// Least and greatest key of the index.
    std::optional<Bytes> firstKey() const;
    std::optional<Bytes> lastKey() const;
    /// The number of the index's last leaf where the entry has become its last one and no page was divided.
    std::optional<uint32_t> insert(std::span<const uint8_t> key, RowId row);
    /// The same for an entry after all others, on that leaf, without reading the pages above it. False, and
    /// nothing done, where it does not belong there or the leaf has no room for it. `leaf` comes from
    /// insert(), and nothing else has changed the index since.
    bool append(uint32_t leaf, std::span<const uint8_t> key, RowId row);
    /// Removes an entry; false when it is not there.
    bool erase(std::span<const uint8_t> key, RowId row);
    /// Key of the row's entry, found by a walk over the whole index.
    std::optional<Bytes> keyOf(RowId row) const;
    /// Some entries: those of the first and of the last leaf, at most `most` of each.
    struct Entry {
        Bytes key;
        RowId row;
    };
    std::vector<Entry> someEntries(size_t most) const;

  private:
    /// A page on the way down, as it is in the file, and which child was taken (count() of the page = its
    /// tail).
    struct Step {
        uint32_t number = 0;
        IndexPage page;
        size_t child = 0;
    };
    using Path = std::vector<Step>;
    struct Part {
        IndexPage page;
        Bytes greatest;
    };

    static Bytes entryOf(std::span<const uint8_t> key, RowId row);
    IndexPage load(uint32_t number) const;
    Path descend(std::span<const uint8_t> wanted) const;
    IndexPage edgeLeaf(bool last) const;

    // IndexTreeChange.cpp
    void store(uint32_t number, const IndexPage& page);
    uint32_t takePage();
    void givePage(uint32_t number);
    void link(uint32_t number, size_t field, uint32_t value);
    Path descendForChange(std::span<const uint8_t> wanted);
    void place(const Path& path, size_t depth, IndexPage page, bool atEnd);
    void growRoot(std::vector<Part> parts, uint8_t level);
    void greatestChanged(const Path& path, size_t depth, const Bytes& greatest);
    void removeEmpty(const Path& path, size_t depth);
    void shrinkRoot();
    bool mayJoin(const IndexPage& leaf, uint32_t neighbour) const;
    void joinSparse(const IndexPage& leaf);
    bool join(const Step& above, size_t left);
    static std::vector<Part> divide(IndexPage page, Bytes greatest, bool atEnd);

    PageFile& m_file;
    const TableDefinition& m_definition;
    const Index& m_index;
};

}  // namespace jet
