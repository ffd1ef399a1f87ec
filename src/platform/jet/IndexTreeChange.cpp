// SPDX-License-Identifier: GPL-3.0-or-later
// Changes of an index: entries are inserted and removed, pages split, joined and freed.
#include <algorithm>
#include <cassert>

#include "platform/jet/Failure.h"
#include "platform/jet/IndexTree.h"
#include "platform/jet/UsageMap.h"

namespace jet {

namespace {

// Leaves that are joined leave some room, so that the next insertion does not split them again.
constexpr size_t fullEnough = index::room * 7 / 8;

Bytes copyOf(std::span<const uint8_t> bytes) {
    return {bytes.begin(), bytes.end()};
}

}  // namespace

void IndexTree::store(uint32_t number, const IndexPage& page) {
    if (!page.fits()) failInternal("la pagina di indice %1 è troppo piena"_tr, number);
    page.store(m_file.change(number), m_definition.page);
}

// Changes `previous` or `next` of a page and leaves all else as it is.
void IndexTree::link(uint32_t number, size_t field, uint32_t value) {
    (void)load(number);
    store32(&m_file.change(number)[field], value);
}

uint32_t IndexTree::takePage() {
    const uint32_t number = GlobalMap(m_file).take();
    assert(number >= firstOrdinaryPage);                                                  // M3
    if (m_index.mapPointer != 0) UsageMap(m_file, m_index.mapPointer).set(number, true);  // T5
    return number;
}

void IndexTree::givePage(uint32_t number) {
    assert(number != m_index.rootPage);  // T4
    if (m_index.mapPointer != 0) UsageMap(m_file, m_index.mapPointer).set(number, false);
    GlobalMap(m_file).give(number);
}

// Other programs store nodes with a prefix. Those on the way that are too full without one are split first.
IndexTree::Path IndexTree::descendForChange(std::span<const uint8_t> wanted) {
    for (;;) {
        Path path = descend(wanted);
        const auto tooFull =
            std::find_if(path.begin(), path.end(), [](const Step& step) { return !step.page.fits(); });
        if (tooFull == path.end()) return path;
        place(path, static_cast<size_t>(tooFull - path.begin()), tooFull->page, false);
    }
}

std::optional<uint32_t> IndexTree::insert(std::span<const uint8_t> key, RowId row) {
    const Bytes entry = entryOf(key, row);
    Path path = descendForChange(entry);
    IndexPage leaf = std::move(path.back().page);
    const size_t at = leaf.lowerBound(entry);
    if (at < leaf.count() && compareEntries(leaf.keyAndRow(at), entry) == 0)
        failDamaged("un indice di \"%1\" contiene già la riga"_tr, m_definition.name);
    leaf.insert(at, entry);
    assert(at == 0 || compareEntries(leaf.keyAndRow(at - 1), entry) < 0);  // T1
    assert(at + 1 == leaf.count() || compareEntries(entry, leaf.keyAndRow(at + 1)) < 0);
    const bool atEnd = leaf.next == 0 && at + 1 == leaf.count();
    const bool fits = leaf.fits();
    place(path, path.size() - 1, std::move(leaf), atEnd);
    return atEnd && fits ? std::optional(path.back().number) : std::nullopt;
}

bool IndexTree::append(uint32_t leaf, std::span<const uint8_t> key, RowId row) {
    const Bytes entry = entryOf(key, row);
    assert(load(leaf).leaf && load(leaf).next == 0);
    return appendEntry(m_file.change(leaf), entry);
}

// Splits a page that is too full into pages that are not. At the right end of the index all but the last
// entries stay together, since more are likely to follow; elsewhere a page is halved.
std::vector<IndexTree::Part> IndexTree::divide(IndexPage page, Bytes greatest, bool atEnd) {
    if (page.fits()) return {{std::move(page), std::move(greatest)}};
    const size_t count = page.count();
    // The engine's own keys are shorter than a third of a page.
    if (count < 4)
        fail(ErrorCode::NotSupported,
             "Le voci di un indice del database sono troppo lunghe per essere divise."_tr);
    IndexPage right;
    right.leaf = page.leaf;
    right.level = page.level;
    right.tail = page.tail;
    Bytes middle;
    if (page.leaf) {
        const size_t at = atEnd ? count - 1 : count / 2;
        page.moveTail(at, right);
        middle = copyOf(page.keyAndRow(at - 1));
    } else {
        // The entry at the split moves up; its child becomes the left page's tail.
        const size_t at = atEnd ? count - 2 : count / 2;
        page.moveTail(at + 1, right);
        middle = copyOf(page.keyAndRow(at));
        page.tail = page.child(at);
        page.erase(at);
    }
    std::vector<Part> parts = divide(std::move(page), std::move(middle), false);
    std::vector<Part> rest = divide(std::move(right), std::move(greatest), false);
    std::move(rest.begin(), rest.end(), std::back_inserter(parts));
    assert(std::all_of(parts.begin(), parts.end(), [](const Part& part) {  // T2, T6
        return part.page.fits() && (part.page.leaf ? part.page.count() > 0 : part.page.tail != 0);
    }));
    return parts;
}

// Stores a changed page, split if it has become too full.
void IndexTree::place(const Path& path, size_t depth, IndexPage page, bool atEnd) {
    const uint32_t number = path[depth].number;
    if (page.fits()) return store(number, page);
    const uint32_t next = page.next;
    const uint32_t previous = page.previous;
    const uint8_t level = page.leaf ? uint8_t{0} : std::max<uint8_t>(page.level, 1);
    std::vector<Part> parts = divide(std::move(page), {}, atEnd);
    if (depth == 0) return growRoot(std::move(parts), static_cast<uint8_t>(level + 1));

    std::vector<uint32_t> numbers{number};
    while (numbers.size() < parts.size())
        numbers.push_back(takePage());
    for (size_t i = 0; i < parts.size(); ++i) {
        parts[i].page.previous = i == 0 ? previous : numbers[i - 1];
        parts[i].page.next = i + 1 < parts.size() ? numbers[i + 1] : next;
        store(numbers[i], parts[i].page);
    }
    if (next != 0) link(next, index::previous, numbers.back());
    // The last part takes the old page's place above; the others are listed before it.
    const Step& above = path[depth - 1];
    IndexPage parent = load(above.number);
    if (above.child < parent.count()) {
        const Bytes greatest = copyOf(parent.keyAndRow(above.child));
        parent.erase(above.child);
        parent.insert(above.child, nodeEntry(greatest, numbers.back()));
    } else {
        parent.tail = numbers.back();
    }
    for (size_t i = 0; i + 1 < parts.size(); ++i)
        parent.insert(above.child + i, nodeEntry(parts[i].greatest, numbers[i]));
    const bool parentAtEnd = atEnd && parent.next == 0;
    place(path, depth - 1, std::move(parent), parentAtEnd);
}

// Rule T4.
void IndexTree::growRoot(std::vector<Part> parts, uint8_t level) {
    std::vector<uint32_t> numbers;
    while (numbers.size() < parts.size())
        numbers.push_back(takePage());
    IndexPage root;
    root.leaf = false;
    root.level = level;
    root.tail = numbers.back();
    for (size_t i = 0; i < parts.size(); ++i) {
        parts[i].page.previous = i == 0 ? 0 : numbers[i - 1];
        parts[i].page.next = i + 1 < parts.size() ? numbers[i + 1] : 0;
        store(numbers[i], parts[i].page);
        if (i + 1 < parts.size()) root.insert(i, nodeEntry(parts[i].greatest, numbers[i]));
    }
    store(m_index.rootPage, root);
}

bool IndexTree::erase(std::span<const uint8_t> key, RowId row) {
    const Bytes entry = entryOf(key, row);
    Path path = descendForChange(entry);
    const size_t depth = path.size() - 1;
    IndexPage& leaf = path[depth].page;
    const size_t at = leaf.lowerBound(entry);
    if (at == leaf.count() || compareEntries(leaf.keyAndRow(at), entry) != 0) return false;
    leaf.erase(at);
    if (leaf.count() == 0 && depth > 0) {
        removeEmpty(path, depth);
        shrinkRoot();
        return true;
    }
    const bool wasLast = at == leaf.count() && at > 0;
    const Bytes greatest = wasLast ? copyOf(leaf.keyAndRow(at - 1)) : Bytes();
    // Without an entry the common prefix can only become longer, so the leaf fits.
    store(path[depth].number, leaf);
    if (wasLast) greatestChanged(path, depth, greatest);
    if (depth > 0) joinSparse(leaf);
    return true;
}

// A look at the neighbour's free field, before it is parsed.
bool IndexTree::mayJoin(const IndexPage& leaf, uint32_t neighbour) const {
    if (neighbour == 0) return false;
    const size_t free = load16(&(*m_file.page(neighbour))[index::freeBytes]);
    return leaf.used() + index::room <= fullEnough + free;
}

// Rule T7.
void IndexTree::joinSparse(const IndexPage& leaf) {
    if (leaf.used() > index::room / 2) return;
    if (!mayJoin(leaf, leaf.next) && !mayJoin(leaf, leaf.previous)) return;
    const Path path = descendForChange(leaf.keyAndRow(0));
    if (path.size() < 2) return;
    const Step& above = path[path.size() - 2];
    if (above.child < above.page.count() && join(above, above.child)) return;
    if (above.child > 0) (void)join(above, above.child - 1);
}

// Moves the entries of the leaf after the left one, both children of that node, to the left one. False when
// they would not leave room there.
bool IndexTree::join(const Step& above, size_t left) {
    IndexPage parent = above.page;
    const uint32_t number = parent.child(left);
    const uint32_t emptied = parent.child(left + 1);
    IndexPage page = load(number);
    IndexPage right = load(emptied);
    if (!page.leaf || !right.leaf || page.next != emptied || page.used() + right.used() > fullEnough)
        return false;
    right.moveTail(0, page);
    assert(page.fits());  // T7
    page.next = right.next;
    if (right.next != 0) link(right.next, index::previous, number);
    if (left + 1 < parent.count()) {
        const Bytes greatest = copyOf(parent.keyAndRow(left + 1));
        parent.erase(left + 1);
        parent.erase(left);
        parent.insert(left, nodeEntry(greatest, number));
    } else {
        parent.erase(left);
        parent.tail = number;
    }
    givePage(emptied);
    store(number, page);
    store(above.number, parent);
    shrinkRoot();
    return true;
}

// Rule T2, upwards from the page at `depth`, whose greatest entry is another one now.
void IndexTree::greatestChanged(const Path& path, size_t depth, const Bytes& greatest) {
    for (; depth > 0; --depth) {
        const Step& above = path[depth - 1];
        IndexPage parent = load(above.number);
        if (above.child >= parent.count()) continue;  // the tail: it is the parent's greatest as well
        parent.erase(above.child);
        parent.insert(above.child, nodeEntry(greatest, path[depth].number));
        return place(path, depth - 1, std::move(parent), false);
    }
}

// Removes the page at `depth`, below which nothing is left.
void IndexTree::removeEmpty(const Path& path, size_t depth) {
    const uint32_t number = path[depth].number;
    const IndexPage page = load(number);
    if (page.previous != 0) link(page.previous, index::next, page.next);
    if (page.next != 0) link(page.next, index::previous, page.previous);
    givePage(number);

    const Step& above = path[depth - 1];
    IndexPage parent = load(above.number);
    if (above.child < parent.count()) {
        parent.erase(above.child);
        return store(above.number, parent);
    }
    if (parent.count() == 0) {
        if (depth > 1) return removeEmpty(path, depth - 1);
        return store(m_index.rootPage, IndexPage());
    }
    const size_t last = parent.count() - 1;
    const Bytes greatest = copyOf(parent.keyAndRow(last));
    parent.tail = parent.child(last);
    parent.erase(last);
    store(above.number, parent);
    greatestChanged(path, depth - 1, greatest);
}

// Rule T4.
void IndexTree::shrinkRoot() {
    for (;;) {
        const IndexPage root = load(m_index.rootPage);
        if (root.leaf || root.count() > 0) return;
        IndexPage child = load(root.tail);
        child.previous = child.next = 0;
        givePage(root.tail);
        store(m_index.rootPage, child);
    }
}

}  // namespace jet
