// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/ColumnProperties.h"

#include <optional>

#include "platform/jet/Format.h"
#include "platform/jet/JetText.h"

namespace jet {

namespace {

using Span = std::span<const uint8_t>;

constexpr uint16_t namesChunk = 0x80;
constexpr uint16_t columnChunk = 1;

// Takes `length` bytes off the front; nothing when there are not so many.
std::optional<Span> take(Span& rest, size_t length) {
    if (length > rest.size()) return std::nullopt;
    const Span taken = rest.first(length);
    rest = rest.subspan(length);
    return taken;
}

std::optional<std::string> takeName(Span& rest) {
    const auto length = take(rest, 2);
    if (!length) return std::nullopt;
    const auto units = take(rest, load16(length->data()));
    if (!units) return std::nullopt;
    std::string name;
    appendPlainUtf8(*units, name);
    return name;
}

// Takes a block that begins with its own length in a number of `width` bytes; what follows that is its value.
std::optional<Span> takeBlock(Span& rest, size_t width) {
    if (rest.size() < width) return std::nullopt;
    const size_t length = width == 2 ? load16(rest.data()) : load32(rest.data());
    if (length < width) return std::nullopt;
    const auto block = take(rest, length);
    return block ? std::optional(block->subspan(width)) : std::nullopt;
}

void applyToColumn(Span chunk, const std::vector<std::string>& names, TableDefinition& table) {
    auto nameBlock = takeBlock(chunk, 4);
    const auto name = nameBlock ? takeName(*nameBlock) : std::nullopt;
    const auto position = name ? table.find(*name) : std::nullopt;
    if (!position) return;
    Column& column = table.columns[*position];
    while (const auto property = takeBlock(chunk, 2)) {
        constexpr size_t head = 6;
        if (property->size() <= head) continue;
        const size_t which = load16(&(*property)[2]);
        const bool yes = (*property)[head] != 0;
        if (which >= names.size() || static_cast<Type>((*property)[1]) != Type::YesNo) continue;
        if (names[which] == "Required") column.required = yes;
        if (names[which] == "AllowZeroLength") column.allowZeroLength = yes;
    }
}

}  // namespace

void applyProperties(Span list, TableDefinition& table) {
    const auto mark = take(list, 4);
    if (!mark || std::memcmp(mark->data(), "MR2", 4) != 0) return;
    std::vector<std::string> names;
    while (auto chunk = takeBlock(list, 4)) {
        const auto type = take(*chunk, 2);
        if (!type) return;
        if (load16(type->data()) == columnChunk) applyToColumn(*chunk, names, table);
        if (load16(type->data()) != namesChunk) continue;
        while (auto name = takeName(*chunk))
            names.push_back(std::move(*name));
    }
}

}  // namespace jet
