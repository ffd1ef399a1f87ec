#pragma once

#include <QString>
#include <utility>

#include "platform/Status.h"

namespace jet {

/// How a failure travels inside the engine. It is turned into a Status at the engine's edge (Database, Table)
/// and never leaves it.
struct Failure {
    Status status;
};

[[noreturn]] inline void fail(ErrorCode code, QString text) {
    throw Failure{Status(code, std::move(text))};
}

/// The file contradicts itself. `what` completes the sentence "Il database è danneggiato: …".
[[noreturn]] inline void failDamaged(const QString& what) {
    fail(ErrorCode::DamagedDatabase, QStringLiteral("Il database è danneggiato: %1.").arg(what));
}

/// Runs `work` and hands back its outcome as a Status or Result.
template <class Work>
auto guarded(Work&& work) -> decltype(work()) {
    try {
        return work();
    } catch (Failure& failure) {
        return std::move(failure.status);
    }
}

}  // namespace jet
