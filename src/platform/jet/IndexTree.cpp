// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/IndexTree.h"

#include <algorithm>

#include "platform/jet/Failure.h"

namespace jet {

namespace {

// Deeper than any index of a 2 GB file: a walk that gets here is in a cycle.
constexpr size_t maxDepth = 20;

RowId rowOf(std::span<const uint8_t> keyAndRow) {
    const uint8_t* p = keyAndRow.data() + keyAndRow.size() - index::rowIdLength;
    return {load24Big(p), p[3]};
}

Bytes keyIn(std::span<const uint8_t> keyAndRow) {
    const auto key = keyAndRow.first(keyAndRow.size() - index::rowIdLength);
    return {key.begin(), key.end()};
}

}  // namespace

Bytes IndexTree::entryOf(std::span<const uint8_t> key, RowId row) {
    Bytes entry(key.begin(), key.end());
    entry.push_back(static_cast<uint8_t>(row.page >> 16));
    entry.push_back(static_cast<uint8_t>(row.page >> 8));
    entry.push_back(static_cast<uint8_t>(row.page));
    entry.push_back(row.slot);
    return entry;
}

IndexPage IndexTree::load(uint32_t number) const {
    return IndexPage(*m_file.page(number), number, m_definition.page);
}

// From the root to the leaf where `wanted` is or would be.
IndexTree::Path IndexTree::descend(std::span<const uint8_t> wanted) const {
    Path path;
    uint32_t number = m_index.rootPage;
    while (path.size() < maxDepth) {
        path.push_back({number, load(number)});
        Step& step = path.back();
        if (step.page.leaf) return path;
        step.child = step.page.lowerBound(wanted);
        if (step.child == step.page.count() && step.page.tail == 0)
            failDamaged("la pagina di indice %1 non ha un ultimo ramo"_tr, number);
        number = step.page.child(step.child);
    }
    failDamaged("un indice di \"%1\" gira in tondo"_tr, m_definition.name);
}

std::optional<RowId> IndexTree::find(std::span<const uint8_t> key) const {
    const Bytes wanted = entryOf(key, {});
    IndexPage leaf = std::move(descend(wanted).back().page);
    for (uint32_t hops = 0; hops <= m_file.pageCount(); ++hops) {
        const size_t at = leaf.lowerBound(wanted);
        if (at < leaf.count()) {
            const auto found = leaf.keyAndRow(at);
            const auto foundKey = found.first(found.size() - index::rowIdLength);
            if (!std::equal(foundKey.begin(), foundKey.end(), key.begin(), key.end())) return std::nullopt;
            return rowOf(found);
        }
        if (leaf.next == 0) return std::nullopt;
        leaf = load(leaf.next);
    }
    failDamaged("un indice di \"%1\" gira in tondo"_tr, m_definition.name);
}

// The first or the last leaf of the index.
IndexPage IndexTree::edgeLeaf(bool last) const {
    uint32_t number = m_index.rootPage;
    for (size_t depth = 0; depth < maxDepth; ++depth) {
        IndexPage page = load(number);
        if (page.leaf) return page;
        const bool tail = page.count() == 0 || (last && page.tail != 0);
        number = tail ? page.tail : page.child(last ? page.count() - 1 : 0);
    }
    failDamaged("un indice di \"%1\" gira in tondo"_tr, m_definition.name);
}

std::optional<Bytes> IndexTree::firstKey() const {
    const IndexPage leaf = edgeLeaf(false);
    if (leaf.count() == 0) return std::nullopt;
    return keyIn(leaf.keyAndRow(0));
}

std::optional<Bytes> IndexTree::lastKey() const {
    const IndexPage leaf = edgeLeaf(true);
    if (leaf.count() == 0) return std::nullopt;
    return keyIn(leaf.keyAndRow(leaf.count() - 1));
}

std::optional<Bytes> IndexTree::keyOf(RowId row) const {
    IndexPage leaf = edgeLeaf(false);
    for (uint32_t hops = 0; hops <= m_file.pageCount(); ++hops) {
        for (size_t i = 0; i < leaf.count(); ++i)
            if (rowOf(leaf.keyAndRow(i)) == row) return keyIn(leaf.keyAndRow(i));
        if (leaf.next == 0) return std::nullopt;
        leaf = load(leaf.next);
    }
    failDamaged("un indice di \"%1\" gira in tondo"_tr, m_definition.name);
}

std::optional<std::vector<RowId>> IndexTree::rowsFrom(std::span<const uint8_t> start, size_t most) const {
    std::vector<RowId> rows;
    IndexPage leaf = std::move(descend(start).back().page);
    size_t at = leaf.lowerBound(start);
    for (uint32_t leaves = 0; leaves < m_file.pageCount(); ++leaves) {
        for (; at < leaf.count(); ++at) {
            const std::span<const uint8_t> entry = leaf.keyAndRow(at);
            const bool begins = entry.size() >= start.size() + index::rowIdLength &&
                                std::equal(start.begin(), start.end(), entry.begin());
            if (!begins) return rows;
            if (rows.size() == most) return std::nullopt;
            rows.push_back(rowOf(entry));
        }
        if (leaf.next == 0) return rows;
        leaf = load(leaf.next);
        at = 0;
    }
    failDamaged("un indice di \"%1\" gira in tondo"_tr, m_definition.name);
}

std::vector<IndexTree::Entry> IndexTree::someEntries(size_t most) const {
    std::vector<Entry> entries;
    const auto add = [&](const IndexPage& leaf, size_t from) {
        for (size_t i = from; i < leaf.count() && i < from + most; ++i)
            entries.push_back({keyIn(leaf.keyAndRow(i)), rowOf(leaf.keyAndRow(i))});
    };
    add(edgeLeaf(false), 0);
    const IndexPage last = edgeLeaf(true);
    add(last, last.count() - std::min(most, last.count()));
    return entries;
}

}  // namespace jet
