// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/ContrastWatch.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <utility>

#include "platform/ui/Contrast.h"

namespace ui {

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString place = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settings = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString contrast = QStringLiteral("contrast");

/// 1 is higher contrast, 0 no preference. Old portals wrap the value twice.
bool asksForMore(QVariant value) {
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value.toUInt() == 1;
}

}  // namespace

ContrastWatch::ContrastWatch(std::function<void()> changed, QObject* parent)
    : QObject(parent), m_changed(std::move(changed)) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return;
    bus.connect(service, place, settings, QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
    QDBusMessage question = QDBusMessage::createMethodCall(service, place, settings, QStringLiteral("Read"));
    question << appearance << contrast;
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QVariant> reply = *answer;
        if (reply.isValid()) take(asksForMore(reply.value()));
        answer->deleteLater();
    });
}

void ContrastWatch::settingChanged(const QString& group, const QString& key, const QDBusVariant& value) {
    if (group == appearance && key == contrast) take(asksForMore(value.variant()));
}

void ContrastWatch::take(bool on) {
    if (on == highContrast()) return;
    setHighContrast(on);
    m_changed();
}

}  // namespace ui
