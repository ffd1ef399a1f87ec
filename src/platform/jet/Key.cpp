#include "platform/jet/Key.h"

#include <algorithm>

#include "platform/jet/Format.h"

namespace jet {

Bytes longKey(std::optional<int32_t> value, bool ascending) {
    if (!value) return {static_cast<uint8_t>(ascending ? 0x00 : 0xFF)};
    Bytes key(5);
    key[0] = 0x7F;
    store32Big(&key[1], static_cast<uint32_t>(*value) ^ 0x80000000u);
    if (!ascending)
        for (uint8_t& byte : key)
            byte = static_cast<uint8_t>(~byte);
    return key;
}

std::optional<int32_t> longOfKey(const Bytes& key) {
    if (key.size() != 5 || key[0] != 0x7F) return std::nullopt;
    return static_cast<int32_t>(load32Big(&key[1]) ^ 0x80000000u);
}

const Column* keptColumn(const TableDefinition& definition, const Index& index) {
    if (index.parts.size() != 1) return nullptr;
    const auto found =
        std::find_if(definition.columns.begin(), definition.columns.end(),
                     [&](const Column& column) { return column.number == index.parts[0].column; });
    return found != definition.columns.end() && found->type == Type::Long ? &*found : nullptr;
}

}  // namespace jet
