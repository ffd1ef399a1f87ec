// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/Probe.h"

#include <span>

#include "platform/jet/Failure.h"
#include "platform/jet/Format.h"
#include "platform/jet/Header.h"
#include "platform/jet/OsFile.h"

namespace jet {

Status probe(const std::string& path, const std::string& password) {
    return guarded([&]() -> Status {
        const OsFile file(path, OsFile::Access::Read);
        Page page0;
        const size_t length = file.read(0, page0);
        const Header header = parseHeader(std::span(page0).first(length));
        if (!header.password.empty() && header.password != password)
            return {ErrorCode::InvalidPassword, "Password non valida."_tr};
        return {};
    });
}

}  // namespace jet
