// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <QWebEngineProfile>
#include <QWebEngineView>

#include "platform/html/browser/Browser.h"
#include "platform/html/browser/Page.h"

/// The browser's widget, without its own menu and its own handling of dropped files.
class View : public QWebEngineView {
  public:
    View(const BrowserEvents& events, QWidget* parent);

    Page& document() { return *m_page; }
    void run(const QString& script, const std::function<void(const QVariant&)>& done);

    void printToPdf(const QPageLayout& layout, const QPageRanges& ranges,
                    const std::function<void(const QByteArray&)>& done);

  protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    /// Notifications arrive inside a task of the browser, which runs no other task meanwhile: a question
    /// asked while handling them would never be answered. So they are passed on outside of it.
    void handOn(std::function<void()> news);

    BrowserEvents m_events;
    std::shared_ptr<QWebEngineProfile> m_profile;
    std::unique_ptr<Page> m_page;
};
