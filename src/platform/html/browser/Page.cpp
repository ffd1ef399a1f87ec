// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/html/browser/Page.h"

#include <QFile>
#include <QUuid>
#include <QWebEngineScript>
#include <QWebEngineSettings>
#include <utility>

#include "platform/html/browser/RequestFilter.h"

namespace {

// Local images are shown because the empty document counts as a local file
const QUrl localOrigin(QStringLiteral("file:///"));

// What applies to every document that is written into the page. A document cannot revoke a policy, nor the
// refusal to prefetch DNS names.
const QString emptyDocument = QStringLiteral(
    "<meta http-equiv=\"x-dns-prefetch-control\" content=\"off\">"
    "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; img-src data: file:; "
    "style-src 'unsafe-inline'; frame-src 'none'; form-action 'none'\">");

QString editingScripts() {
    QString scripts;
    for (const char* name : {"editor", "text", "history", "table", "insert", "clean", "commands", "elements",
                             "page", "marks", "missing"}) {
        QFile file(QStringLiteral(":/vestrola/browser/%1.js").arg(QLatin1String(name)));
        if (file.open(QIODevice::ReadOnly)) scripts += QString::fromUtf8(file.readAll());
    }
    return scripts;
}

}  // namespace

std::shared_ptr<QWebEngineProfile> Page::commonProfile() {
    static std::weak_ptr<QWebEngineProfile> common;
    std::shared_ptr<QWebEngineProfile> profile = common.lock();
    if (!profile) {
        profile = std::make_shared<QWebEngineProfile>();
        profile->setUrlRequestInterceptor(new RequestFilter(profile.get()));
        common = profile;
    }
    return profile;
}

Page::Page(QWebEngineProfile& profile, std::function<void(const QString&)> said)
    : QWebEnginePage(&profile), m_said(std::move(said)), m_token(QUuid::createUuid().toString()) {
    QWebEngineSettings& rules = *settings();
    using Rule = QWebEngineSettings;
    for (const Rule::WebAttribute off :
         {Rule::JavascriptEnabled, Rule::JavascriptCanOpenWindows, Rule::LocalContentCanAccessRemoteUrls,
          Rule::PluginsEnabled, Rule::PdfViewerEnabled, Rule::FullScreenSupportEnabled,
          Rule::ErrorPageEnabled, Rule::DnsPrefetchEnabled, Rule::HyperlinkAuditingEnabled,
          Rule::AutoLoadIconsForPage, Rule::LocalStorageEnabled, Rule::NavigateOnDropEnabled,
          Rule::WebGLEnabled, Rule::Accelerated2dCanvasEnabled}) {
        rules.setAttribute(off, false);
    }
    rules.setUnknownUrlSchemePolicy(QWebEngineSettings::DisallowUnknownUrlSchemes);
    // for our own scripts, as nobody else's run
    rules.setAttribute(Rule::JavascriptCanAccessClipboard, true);
    rules.setAttribute(Rule::JavascriptCanPaste, true);

    // Scripts that belong to the page itself are sometimes missing in a process that follows one that died.
    connect(this, &QWebEnginePage::loadFinished, this, [this](bool whole) {
        m_starting = false;
        if (!whole) return;
        runJavaScript(editingScripts() + QStringLiteral("editor.token = '%1';").arg(m_token),
                      QWebEngineScript::ApplicationWorld);
    });
}

void Page::start() {
    m_starting = true;
    setHtml(emptyDocument, localOrigin);
}

bool Page::acceptNavigationRequest(const QUrl& url, NavigationType, bool isMainFrame) {
    return m_starting && isMainFrame && url.scheme() == QLatin1String("data");
}

void Page::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString& message, int,
                                    const QString&) {
    if (message.startsWith(m_token)) m_said(message.mid(m_token.size()));
}
