// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/WindowTurn.h"

#include <glib.h>
#include <algorithm>
#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>
#include <string_view>
#include <vector>

namespace ui {

namespace {

/// What Qt calls the two sources of its main loop that deliver the window system's events: that of the X11
/// platform, and that of all others.
bool isWindowSystem(GSource* source) {
    const char* name = g_source_get_name(source);
    return name && (name == std::string_view("[Qt] XcbEventSource") ||
                    name == std::string_view("[Qt] GUserEventSource"));
}

std::vector<GSource*> findWindowSystem() {
    GMainContext* loop = g_main_context_default();
    // Sources are numbered as they come: the next number says how far to look.
    GSource* next = g_idle_source_new();
    const guint end = g_source_attach(next, loop);
    g_source_destroy(next);
    g_source_unref(next);
    std::vector<GSource*> found;
    for (guint id = 1; id < end; ++id)
        if (GSource* source = g_main_context_find_source_by_id(loop, id); source && isWindowSystem(source))
            found.push_back(g_source_ref(source));
    return found;
}

const std::vector<GSource*>& windowSystem() {
    static std::vector<GSource*> sources;
    const bool gone =
        std::any_of(sources.begin(), sources.end(), [](GSource* s) { return g_source_is_destroyed(s); });
    if (gone) {
        std::for_each(sources.begin(), sources.end(), g_source_unref);
        sources.clear();
    }
    if (sources.empty()) sources = findWindowSystem();
    return sources;
}

}  // namespace

void turnWindows() {
    QAbstractEventDispatcher* loop = QAbstractEventDispatcher::instance();
    if (!loop) return;
    // Platforms read from their display server and write to it on these two signals.
    Q_EMIT loop->awake();
    for (GSource* source : windowSystem())
        source->source_funcs->dispatch(source, nullptr, nullptr);
    for (const QEvent::Type painting : {QEvent::LayoutRequest, QEvent::UpdateLater, QEvent::UpdateRequest})
        QCoreApplication::sendPostedEvents(nullptr, painting);
    Q_EMIT loop->aboutToBlock();
}

}  // namespace ui
