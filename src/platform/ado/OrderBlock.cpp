#include "platform/ado/OrderBlock.h"

#include <algorithm>

namespace ado {

namespace {

// Lengths stand seven bits a byte, the lowest first; all bytes but the last have the eighth bit set.
void appendLength(std::string& bytes, size_t length) {
    for (; length >= 0x80; length >>= 7)
        bytes.push_back(static_cast<char>(length | 0x80));
    bytes.push_back(static_cast<char>(length));
}

size_t takeLength(const std::string& bytes, size_t& at) {
    size_t length = 0;
    for (int shift = 0;; shift += 7) {
        const auto byte = static_cast<uint8_t>(bytes[at++]);
        length |= static_cast<size_t>(byte & 0x7f) << shift;
        if (byte < 0x80) return length;
    }
}

void appendEntry(std::string& bytes, std::string_view key, std::string_view previous) {
    const size_t most = std::min(key.size(), previous.size());
    const auto shared = static_cast<size_t>(
        std::mismatch(key.begin(), key.begin() + static_cast<std::ptrdiff_t>(most), previous.begin()).first -
        key.begin());
    appendLength(bytes, shared);
    appendLength(bytes, key.size() - shared);
    bytes += key.substr(shared);
}

}  // namespace

OrderBlock::Entry OrderBlock::entryAt(size_t at) const {
    Entry entry;
    entry.at = at;
    entry.shared = takeLength(m_keys, at);
    const size_t length = takeLength(m_keys, at);
    entry.rest = std::string_view(m_keys).substr(at, length);
    entry.end = at + length;
    return entry;
}

std::string_view OrderBlock::firstKey() const {
    return entryAt(0).rest;
}

template <class Stop>
OrderBlock::Walk OrderBlock::walk(Stop stop) const {
    Walk walk;
    for (; walk.index < count(); ++walk.index) {
        const Entry entry = entryAt(walk.at);
        walk.previous = walk.key;
        walk.key.resize(entry.shared);
        walk.key += entry.rest;
        if (stop(walk.index, walk.key)) return walk;
        walk.at = entry.end;
    }
    walk.previous = std::move(walk.key);
    walk.key.clear();
    return walk;
}

OrderBlock::Walk OrderBlock::find(std::string_view key, Id id) const {
    return walk([&](size_t i, std::string_view other) {
        const int order = other.compare(key);
        return order > 0 || (order == 0 && m_ids[i] >= id);
    });
}

size_t OrderBlock::lowerBound(std::string_view key, Id id) const {
    return find(key, id).index;
}

void OrderBlock::append(std::string_view key, Id id, std::string_view previous) {
    appendEntry(m_keys, key, m_ids.empty() ? std::string_view() : previous);
    m_ids.push_back(id);
}

void OrderBlock::insert(std::string_view key, Id id) {
    const Walk place = find(key, id);
    const bool last = place.index == count();
    if (!last && place.key == key && m_ids[place.index] == id) return;
    std::string entries;
    appendEntry(entries, key, place.previous);
    size_t end = place.at;
    if (!last) {
        appendEntry(entries, place.key, key);
        end = entryAt(place.at).end;
    }
    m_keys.replace(place.at, end - place.at, entries);
    m_ids.insert(m_ids.begin() + static_cast<std::ptrdiff_t>(place.index), id);
}

bool OrderBlock::erase(std::string_view key, Id id) {
    const Walk place = find(key, id);
    if (place.index == count() || place.key != key || m_ids[place.index] != id) return false;
    size_t end = entryAt(place.at).end;
    std::string next;
    if (place.index + 1 < count()) {
        const Entry entry = entryAt(end);
        appendEntry(next, place.key.substr(0, entry.shared).append(entry.rest), place.previous);
        end = entry.end;
    }
    m_keys.replace(place.at, end - place.at, next);
    m_ids.erase(m_ids.begin() + static_cast<std::ptrdiff_t>(place.index));
    return true;
}

OrderBlock OrderBlock::split() {
    const size_t half = count() / 2;
    const Walk place = walk([&](size_t i, std::string_view) { return i == half; });
    OrderBlock second;
    appendEntry(second.m_keys, place.key, {});
    second.m_keys += std::string_view(m_keys).substr(entryAt(place.at).end);
    second.m_ids.assign(m_ids.begin() + static_cast<std::ptrdiff_t>(half), m_ids.end());
    m_keys.resize(place.at);
    m_ids.resize(half);
    shrinkToFit();
    return second;
}

void OrderBlock::shrinkToFit() {
    m_keys.shrink_to_fit();
    m_ids.shrink_to_fit();
}

}  // namespace ado
