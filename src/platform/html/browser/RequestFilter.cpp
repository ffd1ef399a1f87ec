#include "platform/html/browser/RequestFilter.h"

#include <QFileInfo>
#include <QUrl>

namespace {

// A device file could be read without end
bool isLocalImage(const QWebEngineUrlRequestInfo& request) {
    const QUrl url = request.requestUrl();
    return request.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeImage && url.isLocalFile() &&
           url.host().isEmpty() && QFileInfo(url.toLocalFile()).isFile();
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
