#pragma once

#include <functional>
#include <QDBusVariant>
#include <QObject>

namespace ui {

/// Keeps highContrast() at what the desktop says, from its first answer on; `changed` is called each time
/// that it changes.
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
