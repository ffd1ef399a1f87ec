// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <QDBusVariant>
#include <QObject>

namespace ui {

/// The watcher that keeps highContrast() as the desktop says, from the first answer on; `changed` is called
/// each time that it changes.
class ContrastWatch : public QObject {
    Q_OBJECT

  public:
    ContrastWatch(std::function<void()> changed, QObject* parent);

  public Q_SLOTS:  // the bus calls no other
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

  private:
    void take(bool on);

    std::function<void()> m_changed;
};

}  // namespace ui
