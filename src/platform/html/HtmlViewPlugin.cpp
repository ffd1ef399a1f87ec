#include "platform/html/HtmlViewPlugin.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibrary>

namespace {

CreateBrowser* load(QString& failure) {
    const QString program = QCoreApplication::applicationDirPath();
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
                QStringLiteral("Impossibile caricare la vista dei messaggi: %1").arg(failure)};
    }
    create(parent, events, browser);
    return {};
}
