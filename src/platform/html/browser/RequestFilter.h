#pragma once

#include <QWebEngineUrlRequestInterceptor>

/// Lets a document load what it carries itself (`data:`) and images of this machine, and nothing else: no
/// network, no other kind of local file.
class RequestFilter : public QWebEngineUrlRequestInterceptor {
  public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;
    void interceptRequest(QWebEngineUrlRequestInfo& request) override;
};
