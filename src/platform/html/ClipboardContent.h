#pragma once

#include <QJsonObject>

class QMimeData;

/// What a clipboard or a drop holds for a document, as the editing scripts take it: `html`, `text`, and the
/// addresses of `images` (files that are images; a bare picture as a `data:` address). Empty when there is
/// nothing of these.
QJsonObject clipboardContent(const QMimeData& data);
