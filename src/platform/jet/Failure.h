// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <concepts>
#include <string>
#include <type_traits>
#include <utility>

#include "platform/jet/JetText.h"
#include "platform/PlainStatus.h"

namespace jet {

/// An exception inside the engine. It is turned into a Status at the engine's edge (Database, Table)
/// and never leaves it.
struct Failure {
    Status status;
};

/// Texts in UTF-8 and whole numbers, joined.
template <class... Parts>
std::string phrase(const Parts&... parts) {
    std::string text;
    const auto append = [&text](const auto& part) {
        if constexpr (std::integral<std::remove_cvref_t<decltype(part)>>)
            text += std::to_string(part);
        else
            text += part;
    };
    (append(parts), ...);
    return text;
}

/// Throws a Failure whose text is the parts, joined as by phrase().
template <class... Parts>
[[noreturn]] void fail(ErrorCode code, const Parts&... parts) {
    throw Failure{Status(code, toUtf16(phrase(parts...)))};
}

/// The file contradicts itself. The parts complete the sentence "Il database è danneggiato: …".
template <class... Parts>
[[noreturn]] void failDamaged(const Parts&... parts) {
    fail(ErrorCode::DamagedDatabase, "Il database è danneggiato: ", phrase(parts...), ".");
}

/// The engine contradicts itself, not the file: a page that was found to have room has none. The
/// parts complete the sentence "Errore interno del database: …".
template <class... Parts>
[[noreturn]] void failInternal(const Parts&... parts) {
    fail(ErrorCode::Internal, "Errore interno del database: ", phrase(parts...), ".");
}

/// The file, or one of its maps, would grow beyond the end of a Jet file.
[[noreturn]] inline void failFull() {
    fail(ErrorCode::DatabaseFull, "Il database ha raggiunto la dimensione massima di 2 GB.");
}

/// Runs `work` and returns its outcome as a Status or Result.
template <class Work>
auto guarded(Work&& work) -> decltype(work()) {
    try {
        return work();
    } catch (Failure& failure) {
        return std::move(failure.status);
    }
}

}  // namespace jet
