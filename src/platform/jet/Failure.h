// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <utility>

#include "platform/PlainStatus.h"

namespace jet {

/// An exception inside the engine. It is turned into a Status at the engine's edge (Database, Table)
/// and never leaves it.
struct Failure {
    Status status;
};

/// Throws a Failure with that text.
[[noreturn]] inline void fail(ErrorCode code, Phrase text) {
    throw Failure{Status(code, std::move(text))};
}
template <class... Values>
[[noreturn]] void fail(ErrorCode code, OwnText text, const Values&... values) {
    fail(code, Phrase(text, values...));
}

/// The file contradicts itself. The text completes the sentence "Il database è danneggiato: …".
template <class... Values>
[[noreturn]] void failDamaged(OwnText text, const Values&... values) {
    fail(ErrorCode::DamagedDatabase, "Il database è danneggiato: %1."_tr, Phrase(text, values...));
}

/// The engine contradicts itself, not the file: a page that was found to have room has none. The
/// text completes the sentence "Errore interno del database: …".
template <class... Values>
[[noreturn]] void failInternal(OwnText text, const Values&... values) {
    fail(ErrorCode::Internal, "Errore interno del database: %1."_tr, Phrase(text, values...));
}

/// The file, or one of its maps, would grow beyond the end of a Jet file.
[[noreturn]] inline void failFull() {
    fail(ErrorCode::DatabaseFull, "Il database ha raggiunto la dimensione massima di 2 GB."_tr);
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
