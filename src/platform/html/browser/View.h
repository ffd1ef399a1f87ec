#pragma once

#include <memory>
#include <QWebEngineProfile>
#include <QWebEngineView>

#include "platform/html/browser/Browser.h"
#include "platform/html/browser/Page.h"

/// The browser's widget, without its own menu and without its own way with dropped files.
class View : public QWebEngineView {
  public:
    View(const BrowserEvents& events, QWidget* parent);

    Page& document() { return *m_page; }

  protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    BrowserEvents m_events;
    std::shared_ptr<QWebEngineProfile> m_profile;
    std::unique_ptr<Page> m_page;
};
