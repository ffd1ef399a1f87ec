// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/html/browser/View.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QPageLayout>
#include <QPageRanges>
#include <QPrinter>
#include <QWebEngineScript>
#include <QWebEngineSettings>

View::View(const BrowserEvents& events, QWidget* parent)
    : QWebEngineView(parent),
      m_events(events),
      m_profile(Page::commonProfile()),
      m_page(std::make_unique<Page>(*m_profile, [this](const QString& message) {
          handOn([this, message] { m_events.said(message); });
      })) {
    m_page->setParent(this);
    m_page->setObjectName(QStringLiteral("page"));
    setPage(m_page.get());
    // a load that is cut short by the process's end finishes too
    connect(m_page.get(), &QWebEnginePage::loadFinished, this, [this](bool whole) {
        if (whole) handOn([this] { m_events.started(); });
    });
    connect(m_page.get(), &QWebEnginePage::renderProcessTerminated, this,
            [this] { handOn([this] { m_events.died(); }); });
}

void View::run(const QString& script, const std::function<void(const QVariant&)>& done) {
    m_page->runJavaScript(script, QWebEngineScript::ApplicationWorld,
                          [this, done](const QVariant& answer) { handOn([done, answer] { done(answer); }); });
}

void View::printToPdf(const QPageLayout& layout, const QPageRanges& ranges,
                      const std::function<void(const QByteArray&)>& done) {
    m_page->printToPdf([this, done](const QByteArray& pdf) { handOn([done, pdf] { done(pdf); }); }, layout,
                       ranges);
}

void View::handOn(std::function<void()> news) {
    QMetaObject::invokeMethod(this, std::move(news), Qt::QueuedConnection);
}

void View::contextMenuEvent(QContextMenuEvent* event) {
    handOn([this, place = event->globalPos()] { m_events.menu(place); });
    event->accept();
}

// The browser handles moves inside the document
void View::dragEnterEvent(QDragEnterEvent* event) {
    if (event->source() == nullptr) {
        event->setAccepted(m_events.dragged(*event->mimeData()));
        if (!event->isAccepted()) return;
    }
    QWebEngineView::dragEnterEvent(event);
}

void View::dropEvent(QDropEvent* event) {
    if (event->source() != nullptr) {
        QWebEngineView::dropEvent(event);
    } else if (m_events.dropped(event->position().toPoint(), *event->mimeData())) {
        event->acceptProposedAction();
    }
}

extern "C" Q_DECL_EXPORT void createBrowser(QWidget* parent, const BrowserEvents& events, Browser& browser) {
    auto* view = new View(events, parent);
    browser.widget = view;
    browser.start = [view] { view->document().start(); };
    browser.run = [view](const QString& script, const std::function<void(const QVariant&)>& done) {
        view->run(script, done);
    };
    browser.setStandardFont = [view](const QString& family) {
        view->settings()->setFontFamily(QWebEngineSettings::StandardFont, family);
    };
    browser.pdf = [view](const QPageLayout& layout, const QPageRanges& ranges,
                         const std::function<void(const QByteArray&)>& done) {
        view->printToPdf(layout, ranges, done);
    };
    browser.process = [view] { return view->document().renderProcessPid(); };
    browser.print = [view](QPrinter& printer, const std::function<void(bool)>& done) {
        QObject::connect(view, &QWebEngineView::printFinished, view, done, Qt::SingleShotConnection);
        view->print(&printer);
    };
}
