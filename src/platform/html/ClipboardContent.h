// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonObject>

class QMimeData;

/// The content of a clipboard or a drop for a document, in the editing scripts' form: `html`, `text`, and the
/// addresses of `images` (files that are images; a bare picture as a `data:` address). Empty when there is
/// nothing of these.
QJsonObject clipboardContent(const QMimeData& data);
