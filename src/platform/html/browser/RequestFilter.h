// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWebEngineUrlRequestInterceptor>

/// The filter of a document's requests: allows images inside it (`data:`) and image files of this machine,
/// nothing else: no network, no font, style or medium, no other kind of local file.
class RequestFilter : public QWebEngineUrlRequestInterceptor {
  public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;
    void interceptRequest(QWebEngineUrlRequestInfo& request) override;
};
