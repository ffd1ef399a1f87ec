// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>
#include <type_traits>
#include <utility>

namespace ui {

/// Runs `work` in a thread of its own and returns when it has ended; what it throws is thrown here. When it
/// lasts, the windows are painted meanwhile and nothing else: timers, sockets and posted events come when the
/// event loop turns again, and so do keys and requests to close a window; clicks are dropped, and so is a
/// statement that a handler begins.
///
/// The work may use the database, files and its own values, but no window, no timer and nothing else that
/// belongs to the window's thread; of values of the caller only what painting leaves alone. Work inside work
/// runs where it is begun.
void paintWhile(const std::function<void()>& work);

/// The same with a result.
template <class Work>
std::invoke_result_t<Work&> painted(Work&& work) {
    if constexpr (std::is_void_v<std::invoke_result_t<Work&>>) {
        paintWhile([&] { work(); });
    } else {
        std::optional<std::invoke_result_t<Work&>> result;
        paintWhile([&] { result.emplace(work()); });
        return std::move(*result);
    }
}

/// For what such work calls: runs `call` in the window's thread and returns after it.
void inWindowThread(const std::function<void()>& call);

}  // namespace ui
