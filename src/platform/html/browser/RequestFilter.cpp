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

}  // namespace

void RequestFilter::interceptRequest(QWebEngineUrlRequestInfo& request) {
    const bool carried = request.requestUrl().scheme() == QLatin1String("data");
    request.block(!carried && !isLocalImage(request));
}
