// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <QObject>
#include <QString>

class QMimeData;
class QWidget;

namespace ui {

/// A drop target for one local file, anywhere on a window, its text boxes included. Owned by the window.
class FileDrop : public QObject {
  public:
    FileDrop(QWidget& window, std::function<void(const QString& path)> dropped);

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    static QString fileOf(const QMimeData* data);

    std::function<void(const QString& path)> m_dropped;
};

}  // namespace ui
