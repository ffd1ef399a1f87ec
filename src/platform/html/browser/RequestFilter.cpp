// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/html/browser/RequestFilter.h"

#include "platform/html/LocalFile.h"

namespace {

bool isLocalImage(const QWebEngineUrlRequestInfo& request) {
    return request.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeImage &&
           html::namesLocalFile(request.requestUrl());
}

// The empty document comes as data too; the page navigates to no other
bool isCarried(const QWebEngineUrlRequestInfo& request) {
    const auto type = request.resourceType();
    return request.requestUrl().scheme() == QLatin1String("data") &&
           (type == QWebEngineUrlRequestInfo::ResourceTypeImage ||
            type == QWebEngineUrlRequestInfo::ResourceTypeMainFrame);
}

}  // namespace

void RequestFilter::interceptRequest(QWebEngineUrlRequestInfo& request) {
    request.block(!isCarried(request) && !isLocalImage(request));
}
