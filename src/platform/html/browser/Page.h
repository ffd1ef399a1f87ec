// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <QWebEnginePage>
#include <QWebEngineProfile>

/// A page that never changes its address: no navigation, no window, no script but ours, no file chosen,
/// nothing downloaded.
class Page : public QWebEnginePage {
  public:
    /// `said` receives the messages of the editing scripts. The profile has to outlive the page.
    Page(QWebEngineProfile& profile, std::function<void(const QString&)> said);

    /// The one profile of all pages that live at a time: nothing on disk, nothing from a network.
    static std::shared_ptr<QWebEngineProfile> commonProfile();

    /// Loads the empty document that others are written into.
    void start();

  protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;
    QWebEnginePage* createWindow(WebWindowType) override { return nullptr; }
    QStringList chooseFiles(FileSelectionMode, const QStringList&, const QStringList&) override { return {}; }
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString& message, int line,
                                  const QString& source) override;

  private:
    std::function<void(const QString&)> m_said;
    QString m_token;  // begins the messages of our scripts; unknown to any document
    bool m_starting = false;
};
