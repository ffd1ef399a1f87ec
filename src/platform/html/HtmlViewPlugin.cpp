// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/html/HtmlViewPlugin.h"

#include <optional>
#include <QFileInfo>
#include <QLibrary>
#include <QOpenGLContext>
#include <utility>

#include "platform/system/CoreDumps.h"
#include "platform/system/OwnProgram.h"

#include "platform/text/Words.h"

// The toolkit exports it without declaring it in public.
void qt_gl_set_global_share_context(QOpenGLContext* context);

namespace {

/// The browser draws with contexts that are shared with the program's windows. The toolkit would make the
/// context that all others share at the start of the program, which takes longer than all the rest of the
/// start; this makes it when it is needed. It is never deleted, as the toolkit uses it to the end. Where no
/// context can be created the browser asks for one all the same, and draws without.
void shareContexts() {
    if (QOpenGLContext::globalShareContext() != nullptr) return;
    auto* context = new QOpenGLContext;
    context->create();
    qt_gl_set_global_share_context(context);
}

/// No page names a host that is looked up, and nothing is sent through a proxy: the engine is set at its
/// start to resolve no name. Rules in the user's own flags come before and are overruled.
void closeNameResolution() {
    static constexpr char variable[] = "QTWEBENGINE_CHROMIUM_FLAGS";
    qputenv(variable, qgetenv(variable) + " --host-resolver-rules=\"MAP * ~NOTFOUND\" --no-proxy-server");
}

CreateBrowser* load(QString& failure) {
    shareContexts();
    closeNameResolution();
    const QString program = sys::applicationFolder();
    for (const QString& folder : QStringLiteral(VESTROLA_PLUGIN_FOLDERS).split(':')) {
        const QString path = program + '/' + folder + QStringLiteral("/libvestrola_browser.so");
        if (!QFileInfo::exists(path)) continue;
        QLibrary library(path);
        library.setLoadHints(QLibrary::PreventUnloadHint);
        if (auto* symbol = reinterpret_cast<CreateBrowser*>(library.resolve("createBrowser"))) return symbol;
        failure = library.errorString();
    }
    if (failure.isEmpty()) failure = QStringLiteral("libvestrola_browser.so");
    return nullptr;
}

}  // namespace

Status createBrowserOf(QWidget* parent, const BrowserEvents& events, Browser& browser) {
    QString failure;
    static CreateBrowser* const create = load(failure);
    if (create == nullptr) {
        return {ErrorCode::FileNotFound,
                Words::tr("Impossibile caricare la vista dei messaggi: %1").arg(failure)};
    }
    // The first view starts the engine's processes, whose sandbox needs namespaces.
    static bool started = false;
    std::optional<sys::CoreDumpsMeanwhile> namespaces;
    if (!std::exchange(started, true)) namespaces.emplace();
    create(parent, events, browser);
    return {};
}
