// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/NewDatabase.h"

#include <algorithm>

#include "platform/jet/EmptyDatabase.h"
#include "platform/jet/Failure.h"
#include "platform/jet/Names.h"
#include "platform/jet/OsFile.h"

namespace jet {

namespace {

bool isPlainName(const std::string& name) {
    constexpr size_t longest = 64;
    return !name.empty() && name.size() <= longest && std::all_of(name.begin(), name.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
    });
}

/// Tables, or columns: each has a name of its own.
template <class Named>
bool areNamedApart(const std::vector<Named>& all) {
    for (size_t i = 0; i < all.size(); ++i) {
        if (!isPlainName(all[i].name)) return false;
        for (size_t k = 0; k < i; ++k)
            if (sameName(all[i].name, all[k].name)) return false;
    }
    return true;
}

bool canBeMade(const NewColumn& column) {
    if (column.type == Type::Text)
        return column.characters >= 1 && column.characters <= 255 && !column.autoNumber;
    if (column.characters != 0 || column.emptyAllowed) return false;
    return column.type == Type::Long || (column.type == Type::YesNo && !column.autoNumber);
}

bool canBeMade(const NewTable& table) {
    const auto& columns = table.columns;
    return !columns.empty() && columns.front().type == Type::Long && areNamedApart(columns) &&
           std::all_of(columns.begin(), columns.end(), [](const NewColumn& c) { return canBeMade(c); }) &&
           std::count_if(columns.begin(), columns.end(), [](const NewColumn& c) { return c.autoNumber; }) < 2;
}

}  // namespace

bool canBeMade(const std::vector<NewTable>& tables) {
    return areNamedApart(tables) && std::all_of(tables.begin(), tables.end(), [](const NewTable& table) {
               return canBeMade(table) && !sameName(table.name.substr(0, 4), "MSys");
           });
}

Status createDatabase(const std::string& path, const std::vector<NewTable>& tables) {
    return guarded([&]() -> Status {
        if (OsFile::exists(path)) fail(ErrorCode::PathAccess, "Il file \"%1\" esiste già."_tr, path);
        const std::vector<Page> pages = emptyDatabase(tables);
        OsFile file(path, OsFile::Access::Create);
        try {
            for (size_t n = 0; n < pages.size(); ++n)
                file.write(n * pageSize, pages[n]);
            file.sync();
            OsFile::syncFolderOf(path);
        } catch (const Failure&) {
            OsFile::remove(path);
            throw;
        }
        return {};
    });
}

}  // namespace jet
