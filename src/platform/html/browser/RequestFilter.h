#pragma once

#include <QWebEngineUrlRequestInterceptor>

/// Lets a document load images that it carries itself (`data:`) or that are on this machine, and nothing
/// else: no network, no font, style or medium, no other kind of local file.
class RequestFilter : public QWebEngineUrlRequestInterceptor {
  public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;
    void interceptRequest(QWebEngineUrlRequestInfo& request) override;
};
